#!/usr/bin/env python3
"""Sets every option of a point light with one script, and looks for every value where the file format has it.

The drawing is saved, read tag by tag with a reader of its own, opened and saved again, and listed by the program before
and after; both listings have to be the same. Prints "N passed, N failed"; exit status 1 where something failed.
"""
import argparse
import math
import pathlib
import re
import subprocess
import sys
import tempfile

import dxf_light
import dxf_tags

NEAREST = None  # a colour number near the true colour; which one is the program's choice

NAME = "吊灯 一号"

# values by code, in the order of the file; AC1015 has one colour word in place of 63, 421 and 431
LIGHT = [
    (1, NAME), (70, 2), (290, 0), (63, NEAREST), (421, 0x663399), (431, "Web Colors$rebeccapurple"), (291, 0), (40, 0.75),
    (10, 1000), (20, 2000), (30, 3000),
    (11, 0), (21, 0), (31, -10), (72, 2), (292, 1), (41, 5), (42, 500), (50, 45), (51, 50), (293, 1), (73, 2), (91, 512),
    (280, 4),
]
COLOR_WORD = (90, 0xC2663399 - (1 << 32))
PHOTOMETRY = [
    (290, 0), (70, 1), (40, 12345), (41, 2500), (71, 0), (42, 2700), (72, 7), (43, 0), (44, 0), (45, 0), (73, 3), (46, 45), (47, 25),
    (48, 15), (74, 64), (75, 1), (76, 0), (49, 0),
    (50, 0), (51, 0), (53, math.degrees(1)), (54, 0), (55, 0), (77, 0),
]


class Failure(Exception):
    """What was expected, and what came."""


def run(program, *arguments):
    done = subprocess.run([program, *map(str, arguments)], stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
    if done.returncode:
        raise Failure(f"exit status {done.returncode}: {done.stderr.decode()}{done.stdout.decode()}")
    return done.stdout.decode()


def text_of(raw, encoding):
    """With the escapes for what the code page of an old drawing does not have."""
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda found: chr(int(found[1], 16)), raw.decode(encoding))


def same(expected, text, encoding):
    if expected is NEAREST:
        return 1 <= int(text) <= 255
    if isinstance(expected, str):
        return text_of(text, encoding) == expected
    return abs(float(text) - expected) < 1e-9


def look_for(expected, record, subclass, encoding):
    """Every value in its order; others may stand between them."""
    tags = iter(record.tags)
    for tag in tags:
        if tag.code == 100 and tag.text == subclass:
            break
    for code, value in expected:
        if not any(tag.code == code and same(value, tag.text, encoding) for tag in tags):
            raise Failure(f"{subclass.decode()}: no {code} with {value!r} in its place")


def light_of(drawing):
    for record in drawing.records:
        name = record.first(1, b"AcDbLight") if record.type == "LIGHT" else None
        if name is not None and text_of(name, drawing.encoding) == NAME:
            return record
    raise Failure("the light is not in the file")


def photometry_of(drawing, light):
    handles = drawing.by_handle()
    dictionary = dxf_light.find(handles, dxf_light.extension_dictionary(light))
    return dxf_light.find(handles, dxf_light.entry_of(dictionary, dxf_light.ENTRY))


def expected_of(version):
    """The light's values in a drawing of that version."""
    if version > "AC1015":
        return LIGHT
    return [COLOR_WORD if code == 63 else (code, value) for code, value in LIGHT if code not in (421, 431)]


def listing_of(output, version):
    """The light's lines, without the name of its colour where the version has no place for it."""
    lines = output[output.rindex("\nLIGHT\n"):].splitlines()
    return [line for line in lines if line.startswith("  ") and (version > "AC1015" or "光线颜色" not in line)]


def check(program, script, source, folder):
    first, second = folder / "first.dxf", folder / "second.dxf"
    before = run(program, *source, "-s", script, "-c", "LIST LAST ", "-o", first)
    drawing = dxf_tags.read(first)
    light = light_of(drawing)
    look_for(expected_of(drawing.version), light, b"AcDbLight", drawing.encoding)
    look_for(PHOTOMETRY, photometry_of(drawing, light), b"AcDbXrecord", drawing.encoding)
    after = run(program, first, "-c", "LIST LAST ", "-o", second)
    if listing_of(before, drawing.version) != listing_of(after, drawing.version):
        raise Failure("the light is listed differently after it was opened again")
    if first.read_bytes() != second.read_bytes():
        raise Failure("the second save differs from the first")
    return drawing.version


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
