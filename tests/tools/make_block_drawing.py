#!/usr/bin/env python3
"""Makes tests/data/dxf/own/luminaires.dxf: a block with lights, references to it in every attitude, and references that
cannot be edited in place.

It is the empty drawing of resources/templates/new.dxf with its units for lighting; the lights have the tags of
make_light_drawings.py.
"""
import argparse

import dxf_tags
import make_light_drawings as base

FORM = base.VERSIONS["2018"]
MODEL = "1F"
SEED = "80"

# block name: its record, BLOCK and ENDBLK, flags, base point, path
BLOCKS = {
    "LAMP": ("40", "41", "42", "0", ("10.0", "20.0", "0.0"), ""),
    "SITE": ("50", "51", "52", "4", ("0.0", "0.0", "0.0"), "site.dxf"),
    "EMPTY": ("53", "54", "55", "0", ("0.0", "0.0", "0.0"), ""),
    "PLAIN": ("56", "57", "58", "0", ("0.0", "0.0", "0.0"), ""),
}
# light: its dictionary and record, owner, name, type, position, target
LIGHTS = {
    "43": ("44", "45", "40", "Pendant", "2", ("10.0", "20.0", "5.0"), ("10.0", "20.0", "-5.0")),
    "46": ("47", "48", "40", "Spot", "3", ("12.0", "20.0", "5.0"), ("12.0", "24.0", "0.0")),
    "69": ("6A", "6B", MODEL, "Ceiling", "2", ("500.0", "500.0", "30.0"), ("500.0", "500.0", "20.0")),
}
# reference: block, place, and what is not as usual
REFERENCES = {
    "60": ("LAMP", ("100.0", "0.0", "0.0"), []),
    "61": ("LAMP", ("200.0", "50.0", "10.0"), [(50, "90.0")]),
    "62": ("LAMP", ("0.0", "100.0", "0.0"), [(41, "-2.0"), (42, "2.0"), (43, "2.0"), (50, "30.0")]),
    "63": ("LAMP", ("0.0", "200.0", "0.0"), [(41, "2.0"), (42, "3.0"), (43, "0.5")]),
    "64": ("LAMP", ("300.0", "0.0", "0.0"), [(210, "0.0"), (220, "0.0"), (230, "-1.0")]),
    "65": ("LAMP", ("400.0", "0.0", "0.0"), [(70, "3"), (71, "1"), (44, "50.0")]),
    "66": ("SITE", ("0.0", "0.0", "0.0"), []),
    "67": ("EMPTY", ("0.0", "0.0", "0.0"), []),
    "68": ("PLAIN", ("0.0", "0.0", "0.0"), []),
    "6C": ("LAMP", ("10.0", "20.0", "30.0"), [(50, "20.0"), (210, "0.6"), (220, "0.0"), (230, "0.8")]),
}


def point(code, coordinates):
    return [(code + 10 * axis, value) for axis, value in enumerate(coordinates)]


def head(kind, handle, owner, subclass, layer="0"):
    marker = [(100, subclass)] if subclass else []
    return [(0, kind), (5, handle), (330, owner), (100, "AcDbEntity"), (8, layer), *marker]


def light(handle):
    dictionary, _, owner, name, kind, position, target = LIGHTS[handle]
    values = {5: handle, 360: dictionary, 330: owner, 1: name, 70: kind, **dict(point(10, position)), **dict(point(11, target))}
    return [(code, values.get(code, value)) for code, value in base.light(FORM)]


def photometry(handle):
    dictionary, record, _, _, kind, _, _ = LIGHTS[handle]
    handles = {base.LIGHT: handle, base.DICTIONARY: dictionary, base.RECORD: record}
    tags = [(code, handles.get(value, value) if code in (5, 330, 360) else value) for code, value in base.photometry()]
    return [(code, "1" if kind == "3" else "0") if code == 76 else (code, value) for code, value in tags]


def line(handle, owner):
    return head("LINE", handle, owner, "AcDbLine") + point(10, ("10.0", "20.0", "0.0")) + point(11, ("12.0", "20.0", "0.0")) + [
        (1001, "ACAD"), (1000, "kept with the line")]


def face(handle, owner):
    corners = [("10.0", "20.0", "0.0"), ("11.0", "20.0", "0.0"), ("11.0", "21.0", "0.1"), ("10.0", "21.0", "0.1")]
    return head("3DFACE", handle, owner, "AcDbFace") + [tag for at, corner in enumerate(corners) for tag in point(10 + at, corner)]


def circle(handle, owner):
    return head("CIRCLE", handle, owner, "AcDbCircle") + point(10, ("10.0", "20.0", "0.0")) + [(40, "1.5")]


def reference(handle):
    name, place, rest = REFERENCES[handle]
    subclass = "AcDbMInsertBlock" if any(code == 70 for code, _ in rest) else "AcDbBlockReference"
    return head("INSERT", handle, MODEL, subclass) + [(2, name)] + point(10, place) + rest


def contents(name):
    return {"LAMP": light("43") + light("46") + line("49", "40") + face("4A", "40") + circle("4B", "40"),
            "PLAIN": circle("59", "56")}.get(name, [])


def block(name):
    record, begin, end, flags, origin, path = BLOCKS[name]
    return (head("BLOCK", begin, record, "AcDbBlockBegin") + [(2, name), (70, flags)] + point(10, origin) +
            [(3, name), (1, path)] + contents(name) + head("ENDBLK", end, record, "AcDbBlockEnd"))


def block_record(name):
    return [(0, "BLOCK_RECORD"), (5, BLOCKS[name][0]), (330, "1"), (100, "AcDbSymbolTableRecord"),
            (100, "AcDbBlockTableRecord"), (2, name), (340, "0"), (70, "0"), (280, "1"), (281, "0")]


def joined(parts):
    return [tag for part in parts for tag in part]


def light_class():
    return [(code, str(len(LIGHTS)) if code == 91 else value) for code, value in base.light_class(FORM)]


def drawing(template):
    at_end_of_section = {"CLASSES": light_class(), "BLOCKS": joined(map(block, BLOCKS)),
                         "ENTITIES": joined(map(reference, REFERENCES)) + light("69"),
                         "OBJECTS": joined(map(photometry, LIGHTS))}
    at_end_of_table = {"LAYER": base.layer(FORM), "BLOCK_RECORD": joined(map(block_record, BLOCKS))}
    tags = []
    section = table = ""
    for record in template.records:
        if record.type == "ENDSEC":
            tags += at_end_of_section.get(section, [])
        if record.type == "ENDTAB":
            tags += at_end_of_table.get(table, [])
        section = record.section
        if record.type == "TABLE":
            table = record.name.decode()
        taken = base.taken_back(record, FORM)
        tags += [taken[0], (5, SEED)] if (record.name or b"") == b"$HANDSEED" else taken
    return tags


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    default = base.ROOT / "tests/data/dxf/own/luminaires.dxf"
    parser.add_argument("--file", default=str(default), help="where to (default: %(default)s)")
    path = parser.parse_args().file
    template = dxf_tags.read(str(base.ROOT / "resources/templates/new.dxf"))
    with open(path, "wb") as file:
        file.write("".join(base.written(code, value) for code, value in drawing(template)).encode())


if __name__ == "__main__":
    main()
