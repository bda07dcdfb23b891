#!/usr/bin/env python3
"""Makes every kind of light with every option by one script, and looks for every value where the file format has it.

The drawing is saved, read tag by tag with a reader of its own, opened and saved again, and listed by the program before
and after (LIST, LIGHTTABLE, and -LIGHTTABLE as JSON, whose values have to be those of the tags); both listings and both
files have to be the same. Prints "N passed, N failed"; exit status 1 where something failed.
"""
import argparse
import json
import pathlib
import sys
import tempfile

import dxf_light
import dxf_tags
import every_option_lights
import light_table
from light_table import Failure, run

# what the script sets: INSUNITS and LIGHTINGUNITS
MILLIMETRES, LUX = 4, 2
LISTINGS = ["LIST ALL\n", "LIGHTTABLE\n"]


def same(expected, text, encoding):
    if hasattr(expected, "matches"):
        return expected.matches(dxf_tags.text_of(text, encoding))
    if isinstance(expected, str):
        return expected == dxf_tags.text_of(text, encoding)
    return abs(float(text) - expected) <= 1e-9 * max(1, abs(expected))


def look_for(expected, record, subclass, encoding):
    """Every value in its order; others may stand between them."""
    start = next(at for at, tag in enumerate(record.tags) if tag.code == 100 and tag.text == subclass)
    tags = iter(record.tags[start + 1:])
    for code, value in expected:
        if value is None:
            if any(tag.code == code for tag in record.tags):
                raise Failure(f"{subclass.decode()}: there is a {code}")
        elif not any(tag.code == code and same(value, tag.text, encoding) for tag in tags):
            raise Failure(f"{subclass.decode()}: no {code} with {value!r} in its place")


def lights_by_name(drawing):
    found = {}
    for record in drawing.records:
        name = record.first(1, b"AcDbLight") if record.type == "LIGHT" else None
        if name is not None:
            found[dxf_tags.text_of(name, drawing.encoding)] = record
    return found


def photometry_of(handles, light):
    dictionary = dxf_light.find(handles, dxf_light.extension_dictionary(light))
    return dxf_light.find(handles, dxf_light.entry_of(dictionary, dxf_light.ENTRY))


def look_for_all(drawing):
    found = lights_by_name(drawing)
    handles = drawing.by_handle()
    for light in every_option_lights.LIGHTS:
        name = light["name"]
        if name not in found:
            raise Failure(f"{name} is not in the file")
        record = found[name]
        try:
            look_for(every_option_lights.entity(light, drawing.version), record, b"AcDbLight", drawing.encoding)
            look_for(every_option_lights.photometry(light), photometry_of(handles, record), b"AcDbXrecord", drawing.encoding)
        except Failure as problem:
            raise Failure(f"{name}: {problem}") from None


def listing_of(output, version):
    """What the listings print; of a drawing without a place for the names of colours, LIST alone without them."""
    start = output.rindex("命令: LIST\n")
    if version > "AC1015":
        return output[start:output.rindex("命令: -LIGHTTABLE\n")]
    lines = output[start:output.rindex("命令: LIGHTTABLE\n")].splitlines()
    return [line for line in lines if "光线颜色" not in line]


def check_table(table, drawing):
    """The table against the tags, but for what the file cannot tell: names of colours, and that a layer is hidden."""
    unkept = {name for name, first in (("color_name", "AC1018"), ("layer", "AC1021")) if drawing.version < first}
    handles = drawing.by_handle()
    lights = [record for record in drawing.records if record.type == "LIGHT" and record.section == "ENTITIES"]
    if len(lights) != len(table):
        raise Failure(f"the table has {len(table)} lights, {len(lights)} were expected")
    for record, row in zip(lights, table):
        expected = light_table.expected_light(drawing, handles, record, MILLIMETRES, LUX)
        light_table.compare({**expected, **{name: row[name] for name in unkept}}, row, "table")


def check(program, script, source, folder):
    first, second, table = folder / "first.dxf", folder / "second.dxf", folder / "table.json"
    listings = [option for text in [*LISTINGS, f"-LIGHTTABLE J {table}\n"] for option in ("-c", text)]
    before = run(program, *source, "-s", script, *listings, "-o", first)
    before_table = json.loads(table.read_text(encoding="utf-8"))["lights"]
    drawing = dxf_tags.read(first)
    look_for_all(drawing)
    check_table(before_table, drawing)
    table.unlink()
    after = run(program, first, *listings, "-o", second)
    after_table = json.loads(table.read_text(encoding="utf-8"))["lights"]
    if listing_of(before, drawing.version) != listing_of(after, drawing.version):
        raise Failure("the lights are listed differently after they were opened again")
    check_table(after_table, drawing)
    if first.read_bytes() != second.read_bytes():
        raise Failure("the second save differs from the first")
    return f"{drawing.version} {drawing.form}, {len(every_option_lights.LIGHTS)} lights"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("quorc")
    parser.add_argument("script", type=pathlib.Path)
    parser.add_argument("drawings", nargs="*", help="drawings to do it in, beside a new one")
    options = parser.parse_args()
    failed = 0
    for source in [[], *([drawing] for drawing in options.drawings)]:
        name = source[0] if source else "new drawing"
        with tempfile.TemporaryDirectory() as folder:
            try:
                print(f"passed  {name} ({check(options.quorc, options.script.resolve(), source, pathlib.Path(folder))})")
            except (Failure, dxf_tags.DxfError, ValueError) as problem:
                print(f"failed  {name}: {problem}")
                failed += 1
    print(f"{1 + len(options.drawings) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
