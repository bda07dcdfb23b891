#!/usr/bin/env python3
"""Makes the small drawings with one spot light that the tests read: tests/data/dxf/own/light_{2000,2007,2018}.dxf.

Each is the empty drawing of resources/templates/new.dxf, taken back to what its version holds, with the light, its
extension dictionary, its photometric record, its layer and its class, tag by tag as drawings of that version have them.
"""
import argparse
import pathlib

import dxf_tags

ROOT = pathlib.Path(__file__).resolve().parents[2]

AFTER_2007 = {"$REQUIREDVERSIONS", "$DIMTXTDIRECTION"}
AFTER_2000 = AFTER_2007 | {
    "$LASTSAVEDBY", "$DIMFXL", "$DIMFXLON", "$DIMJOGANG", "$DIMTFILL", "$DIMTFILLCLR", "$DIMARCSYM", "$DIMLTYPE",
    "$DIMLTEX1", "$DIMLTEX2", "$SORTENTS", "$INDEXCTL", "$HIDETEXT", "$XCLIPFRAME", "$HALOGAP", "$OBSCOLOR", "$OBSLTYPE",
    "$INTERSECTIONDISPLAY", "$INTERSECTIONCOLOR", "$DIMASSOC", "$PROJECTNAME", "$CAMERADISPLAY", "$LENSLENGTH",
    "$CAMERAHEIGHT", "$STEPSPERSEC", "$STEPSIZE", "$3DDWFPREC", "$PSOLWIDTH", "$PSOLHEIGHT", "$LOFTANG1", "$LOFTANG2",
    "$LOFTMAG1", "$LOFTMAG2", "$LOFTPARAM", "$LOFTNORMALS", "$LATITUDE", "$LONGITUDE", "$NORTHDIRECTION", "$TIMEZONE",
    "$LIGHTGLYPHDISPLAY", "$TILEMODELIGHTSYNCH", "$CMATERIAL", "$SOLIDHIST", "$SHOWHIST", "$DWFFRAME", "$DGNFRAME",
    "$REALWORLDSCALE", "$INTERFERECOLOR", "$CSHADOW", "$SHADOWPLANELOCATION"}
# codes that a record of AC1015 does not have yet, by record type
NOT_IN_2000 = {"VPORT": {60, 61, 292, 282, 141, 142, 63, 421}, "LAYER": {347}, "BLOCK_RECORD": {70, 280, 281}, "CLASS": {91}}
WIDTHS = {"int16": 6, "bool": 6, "int32": 9, "int64": 18}

LIGHT = "30"
DICTIONARY = "31"
RECORD = "32"
LAYER = "33"
SEED = "34"

VERSIONS = {
    "2000": dict(acadver="AC1015", layer="ADSK_SYSTEM_LIGHTS", flags="5", name="Spotlight1", colour=[(90, "-1023410171")],
                 graphics=92, drop=AFTER_2000),
    "2007": dict(acadver="AC1021", layer="*ADSK_SYSTEM_LIGHTS", flags="0", name="聚光灯1", colour=[(63, "5")],
                 graphics=92, drop=AFTER_2007),
    "2018": dict(acadver="AC1032", layer="*ADSK_SYSTEM_LIGHTS", flags="0", name="聚光灯1",
                 colour=[(63, "192"), (421, "6039756")], graphics=160, drop=set()),
}


def light(form):
    """The LIGHT entity."""
    return [
        (0, "LIGHT"), (5, LIGHT), (102, "{ACAD_XDICTIONARY"), (360, DICTIONARY), (102, "}"), (330, "1F"),
        (100, "AcDbEntity"), (8, form["layer"]), (form["graphics"], "8"), (310, "0800000000000000"),
        (100, "AcDbLight"), (90, "1"), (1, form["name"]), (70, "3"), (290, "1"), *form["colour"], (291, "0"), (40, "0.8"),
        (10, "100.0"), (20, "200.0"), (30, "2700.0"), (11, "100.0"), (21, "450.5"), (31, "0.0"), (72, "0"), (292, "0"),
        (41, "1.0"), (42, "10.0"), (50, "45.0"), (51, "50.0"), (293, "1"), (73, "0"), (91, "256"), (280, "1")]


def photometry():
    """The extension dictionary and the record in it."""
    return [
        (0, "DICTIONARY"), (5, DICTIONARY), (330, LIGHT), (100, "AcDbDictionary"), (280, "1"), (281, "1"),
        (3, "ADSK_XREC_PHOTOMETRICLIGHTINFO"), (360, RECORD),
        (0, "XRECORD"), (5, RECORD), (102, "{ACAD_REACTORS"), (330, DICTIONARY), (102, "}"), (330, DICTIONARY),
        (100, "AcDbXrecord"), (280, "1"), (290, "0"), (70, "0"), (40, "1500.0"), (41, "1.0"), (71, "1"), (42, "3600.0"),
        (72, "0"), (43, "0.0"), (44, "0.0"), (45, "0.0"), (73, "1"), (46, "0.0"), (47, "0.0"), (48, "0.0"), (74, "16"),
        (75, "0"), (76, "1"), (49, "0.0"), (50, "0.0"), (51, "0.0"), (53, "57.29577951308232"), (54, "0.0"), (55, "0.0"),
        (77, "0")]


def layer(form):
    tags = [(0, "LAYER"), (5, LAYER), (330, "2"), (100, "AcDbSymbolTableRecord"), (100, "AcDbLayerTableRecord"),
            (2, form["layer"]), (70, form["flags"]), (62, "7"), (6, "Continuous"), (370, "-3"), (390, "F")]
    return tags if form["acadver"] < "AC1018" else tags + [(347, "2B")]


def light_class(form):
    count = [] if form["acadver"] < "AC1018" else [(91, "1")]
    return [(0, "CLASS"), (1, "LIGHT"), (2, "AcDbLight"), (3, "SCENEOE"), (90, "1025"), *count, (280, "0"), (281, "1")]


def taken_back(record, form):
    """The tags of a record of the template as the version has them; none where it has no such record."""
    tags = [(tag.code, tag.shown()) for tag in record.tags]
    old = form["acadver"] < "AC1018"
    name = (record.name or b"").decode()
    if record.section == "HEADER" and name in form["drop"]:
        return []
    if old and (record.type == "MATERIAL" or record.handle == "28" or name == "MATERIAL"):
        return []
    if old and record.type in NOT_IN_2000 and record.type != "TABLE":
        split = next((at for at, tag in enumerate(tags) if tag == (146, "0.0")), 0)
        tags = tags[:split] + [tag for tag in tags[split:] if tag[0] not in NOT_IN_2000[record.type]]
    if old and record.type == "LAYOUT":
        split = tags.index((100, "AcDbLayout"))
        tags = [tag for tag in tags[:split] if tag[0] not in (76, 77, 78)] + tags[split:]
    if old and record.handle == "C":
        at = tags.index((3, "ACAD_MATERIAL"))
        del tags[at:at + 2]
    if form["acadver"] < "AC1032":
        tags = {"$ACADMAINTVER": [(9, "$ACADMAINTVER"), (70, "20")],
                "$XCLIPFRAME": [(9, "$XCLIPFRAME"), (290, "0")]}.get(name, tags)
    changed = {"$ACADVER": (1, form["acadver"]), "$HANDSEED": (5, SEED)}.get(name)
    if changed:
        tags[1] = changed
    if record.type == "TABLE" and record.handle == "2":
        tags = [(70, "2") if tag[0] == 70 else tag for tag in tags]
    return tags


def drawing(template, form):
    before_end = {"CLASSES": light_class(form), "ENTITIES": light(form), "OBJECTS": photometry()}
    tags = []
    section = table = ""
    for record in template.records:
        if record.type == "ENDSEC":
            tags += before_end.get(section, [])
        if record.type == "ENDTAB" and table == "LAYER":
            tags += layer(form)
        section = record.section
        if record.type == "TABLE":
            table = record.name.decode()
        tags += taken_back(record, form)
    return tags


def written(code, text):
    return f"{code:3d}\n{text.rjust(WIDTHS.get(dxf_tags.KIND.get(code), 0)) if code else text}\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", default=str(ROOT / "tests/data/dxf/own"), help="where to (default: %(default)s)")
    folder = pathlib.Path(parser.parse_args().folder)
    folder.mkdir(parents=True, exist_ok=True)
    template = dxf_tags.read(str(ROOT / "resources/templates/new.dxf"))
    for year, form in VERSIONS.items():
        text = "".join(written(code, value) for code, value in drawing(template, form))
        (folder / f"light_{year}.dxf").write_bytes(text.encode())


if __name__ == "__main__":
    main()
