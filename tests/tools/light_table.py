#!/usr/bin/env python3
"""Compares what -LIGHTTABLE writes (CSV and JSON) with the drawing itself, read tag by tag with a reader of its own.

Every field of every light is worked out anew from the tags, for each value of LIGHTINGUNITS and for drawings in
millimetres, metres and feet; numbers have to agree to the last digits, texts exactly. Prints "N passed, N failed"; exit
status 1 where something failed.
"""
import argparse
import csv
import json
import math
import pathlib
import subprocess
import sys
import tempfile

import dxf_light
import dxf_tags

PRESETS = ["d65_white", "fluorescent", "cool_white", "white_fluorescent", "daylight_fluorescent", "incandescent", "xenon",
           "halogen", "quartz", "metal_halide", "mercury", "phosphor_mercury", "high_pressure_sodium",
           "low_pressure_sodium", "custom"]
SHAPES = {0: ("linear", "length"), 1: ("rectangle", "length width"), 2: ("disk", "radius"), 3: ("cylinder", "length radius"),
          4: ("sphere", "radius")}
MILLIMETRES = {4: 1.0, 6: 1000.0, 2: 304.8}  # of the unit, by INSUNITS
REFERENCE_AREA = {1: 304.8 ** 2, 2: 1000.0 ** 2}  # of a foot-candle and a lux, in square millimetres
ILLUMINANCE_UNIT = {0: None, 1: "fc", 2: "lx"}
NUMBERED_COLORS = {1: "#FF0000", 4: "#00FFFF", 5: "#0000FF", 7: "#FFFFFF", 30: "#FF7F00", 40: "#FFBF00", 255: "#FFFFFF"}
TRUE_COLOR = 0xC2
ATTENUATIONS = ["none", "inverse_linear", "inverse_square"]
SPHERE = 4 * math.pi
SPOT_CONE = 0.3973980687964644  # stands for the cone of every spot light


class Failure(Exception):
    """What was expected, and what came."""


def run(program, *arguments):
    done = subprocess.run([program, *map(str, arguments)], stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
    if done.returncode:
        raise Failure(f"exit status {done.returncode}: {done.stderr.decode()}{done.stdout.decode()}")
    return done.stdout.decode()


class Tags:
    """The values of a record behind a subclass marker, by code; `nth` tells those apart that share one."""

    def __init__(self, record, subclass, encoding):
        texts = [tag.text for tag in record.tags if tag.code == 100]
        self.encoding = encoding
        started = False
        self.tags = []
        for tag in record.tags:
            if started:
                self.tags.append(tag)
            started = started or (tag.code == 100 and tag.text == subclass)
        if subclass not in texts:
            raise Failure(f"a record without {subclass}")

    def text(self, code):
        return next((dxf_tags.text_of(tag.text, self.encoding) for tag in self.tags if tag.code == code), None)

    def number(self, code):
        found = self.text(code)
        return None if found is None else float(found)

    def whole(self, code):
        return int(self.number(code))

    def point(self, code):
        return tuple(self.number(code + axis) for axis in (0, 10, 20))


def kind_of(light, photometry):
    number = light.whole(70)
    is_web = photometry.whole(290) == 1
    targeted = photometry.whole(76) == 1
    if number == 1:
        return "distant"
    name = "web" if is_web else {2: "point", 3: "spot"}[number]
    if targeted:
        return "target_point" if name == "point" else name
    return name if name == "point" else "free_" + name


def direction(position, target):
    difference = [to - at for at, to in zip(position, target)]
    length = math.hypot(*difference)
    return [part / length if length else None for part in difference]


def geometry(kind, light):
    position, target = light.point(10), light.point(11)
    has_direction = kind not in ("point", "target_point")
    shown = {
        "position": position if kind != "distant" else [None] * 3,
        "target": target if kind in ("target_point", "spot", "web") else [None] * 3,
        "direction": direction(position, target) if has_direction else [None] * 3,
    }
    fields = {f"{name}_{axis}": value for name, point in shown.items() for axis, value in zip("xyz", point)}
    is_spot = kind in ("spot", "free_spot")
    fields["hotspot_degrees"] = light.number(50) if is_spot else None
    fields["falloff_degrees"] = light.number(51) if is_spot else None
    return fields


def intensities(kind, photometry, has_web, insunits, lighting_units):
    value, distance = photometry.number(40), photometry.number(41)
    given_as = ["candela", "lumen", "illuminance"][photometry.whole(70)]
    solid_angle = SPOT_CONE if kind in ("spot", "free_spot") else SPHERE
    area = (distance * MILLIMETRES[insunits]) ** 2
    lux = REFERENCE_AREA.get(lighting_units)
    found = dict.fromkeys(("candela", "lumen", "illuminance"))
    if given_as == "lumen":
        found["candela"] = value / solid_angle
    elif given_as == "illuminance":
        found["candela"] = value * area / lux if lux else None
    else:
        found["candela"] = value
    if found["candela"] is not None and kind != "distant":
        found["lumen"] = found["candela"] * solid_angle
        found["illuminance"] = found["candela"] * lux / area if lux and area else None
    if has_web:  # what a web shines does not follow from an intensity
        for other in ("candela", "illuminance") if given_as == "lumen" else ("lumen",):
            found[other] = None
    found[given_as] = value
    unit = ILLUMINANCE_UNIT[lighting_units] if found["illuminance"] is not None else None
    if kind == "distant" and found["illuminance"] is None:
        distance = None
    return {**found, "given_as": given_as, "illuminance_unit": unit, "illuminance_distance": distance}


def color_of(light):
    """Of a true colour the components and the names. AC1015 has one word in place of the number and the components."""
    number, true = light.number(63), light.text(421)
    if number is None:
        word = int([tag.text for tag in light.tags if tag.code == 90][-1])
        number, true = word & 0xFF, word & 0xFFFFFF if word >> 24 & 0xFF == TRUE_COLOR else None
    if true is None:
        return {"color": NUMBERED_COLORS[int(number)], "color_index": int(number), "color_name": None}
    return {"color": f"#{int(true):06X}", "color_index": None, "color_name": light.text(431)}


def shadows_of(light, photometry):
    fields = dict.fromkeys(("shadow_map_size", "shadow_softness", "shadow_samples", "shadow_shape", "shadow_shape_length",
                            "shadow_shape_width", "shadow_shape_radius"))
    if light.whole(293) == 0:
        return {**fields, "shadows": "off"}
    fields["shadows"] = ["sharp", "soft_mapped", "soft_sampled"][light.whole(73)]
    if fields["shadows"] == "soft_mapped":
        fields["shadow_map_size"], fields["shadow_softness"] = light.whole(91), light.whole(280)
    if fields["shadows"] == "soft_sampled":
        name, sizes = SHAPES[photometry.whole(73)]
        numbers = {"length": photometry.number(46), "width": photometry.number(47), "radius": photometry.number(48)}
        fields |= {f"shadow_shape_{size}": numbers[size] for size in sizes.split()}
        fields |= {"shadow_shape": name, "shadow_samples": photometry.whole(74)}
    return fields


def attenuation_of(light):
    return {
        "attenuation": ATTENUATIONS[light.whole(72)], "attenuation_limits": light.whole(292) == 1,
        "attenuation_start": light.number(41), "attenuation_end": light.number(42),
    }


def web_of(kind, photometry):
    is_web = kind in ("web", "free_web")
    rotation = [photometry.number(code) if is_web else None for code in (43, 44, 45)]
    file = (photometry.text(300) or None) if is_web else None
    return {"web_file": file, **{f"web_rotation_{axis}": angle for axis, angle in zip("xyz", rotation)},
            "web_flux": (photometry.number(49) or None) if file else None}


def expected_light(drawing, handles, record, insunits, lighting_units):
    light = Tags(record, b"AcDbLight", drawing.encoding)
    dictionary = dxf_light.find(handles, dxf_light.extension_dictionary(record))
    photometry = Tags(dxf_light.find(handles, dxf_light.entry_of(dictionary, dxf_light.ENTRY)), b"AcDbXrecord",
                      drawing.encoding)
    kind = kind_of(light, photometry)
    by_preset = photometry.whole(71) == 1
    web = web_of(kind, photometry)
    return {
        "handle": record.first(5).decode(), "name": light.text(1), "kind": kind, "space": "Model",
        "layer": dxf_tags.text_of(record.first(8), drawing.encoding), "on": light.whole(290) == 1,
        **geometry(kind, light),
        "intensity_factor": light.number(40),
        **intensities(kind, photometry, web["web_file"] is not None, insunits, lighting_units),
        "lamp_preset": PRESETS[photometry.whole(72)] if by_preset else None,
        "lamp_kelvin": None if by_preset else photometry.number(42),
        **color_of(light),
        **shadows_of(light, photometry),
        **attenuation_of(light),
        **web,
    }


def agree(expected, got):
    if isinstance(expected, float) and isinstance(got, (int, float)) and not isinstance(got, bool):
        return math.isclose(expected, got, rel_tol=1e-13, abs_tol=1e-15)
    return type(expected) is type(got) and expected == got


def is_same(name, expected, got):
    """Angles come back as they were typed, to the digits that people type."""
    if name.endswith("_degrees") and expected is not None:
        return got == float(f"{expected:.15g}")
    return agree(expected, got)


def compare(expected, got, what):
    if expected.keys() != got.keys():
        raise Failure(f"{what}: other fields: {sorted(expected.keys() ^ got.keys())}")
    for name, value in expected.items():
        if not is_same(name, value, got[name]):
            raise Failure(f"{what}, {expected['name']}: {name} is {got[name]!r}, {value!r} was expected")


def from_cell(cell, expected):
    """A cell of CSV as the kind of value that is expected there."""
    if cell == "":
        return None
    if isinstance(expected, bool):
        return {"true": True, "false": False}[cell]
    return type(expected)(cell) if isinstance(expected, (int, float)) else cell


def check_csv(path, expected):
    raw = path.read_bytes().decode("utf-8")
    if raw.count("\n") != raw.count("\r\n") or not raw.endswith("\r\n"):
        raise Failure("CSV: lines do not all end with CR LF")
    rows = list(csv.DictReader(raw.splitlines(keepends=True), strict=True))
    if len(rows) != len(expected):
        raise Failure(f"CSV: {len(rows)} lights, {len(expected)} were expected")
    for row, light in zip(rows, expected):
        compare(light, {name: from_cell(cell, light.get(name)) for name, cell in row.items()}, "CSV")


def check_json(path, drawing, insunits, lighting_units, expected):
    found = json.loads(path.read_bytes().decode("utf-8"))
    units = {"length": {4: "mm", 6: "m", 2: "ft"}[insunits], "illuminance": ILLUMINANCE_UNIT[lighting_units],
             "insunits": insunits, "lightingunits": lighting_units}
    if found["units"] != units or found["drawing"] != str(drawing) or set(found) != {"drawing", "units", "lights"}:
        raise Failure(f"JSON: {found['drawing']}, {found['units']}")
    if len(found["lights"]) != len(expected):
        raise Failure(f"JSON: {len(found['lights'])} lights, {len(expected)} were expected")
    for light, got in zip(expected, found["lights"]):
        compare(light, got, "JSON")


def check(program, source, insunits, lighting_units, folder):
    drawing = dxf_tags.read(source)
    handles = drawing.by_handle()
    lights = [expected_light(drawing, handles, record, insunits, lighting_units)
              for record in drawing.records if record.type == "LIGHT" and record.section == "ENTITIES"]
    if not lights:
        raise Failure("no lights in the drawing")
    settings = ["--set", f"INSUNITS={insunits}", "--set", f"LIGHTINGUNITS={lighting_units}"]
    as_csv, as_json = folder / "lights.csv", folder / "lights.json"
    # the same in English: the file does not change with the language
    run(program, source, *settings, "-c", f"-LIGHTTABLE C {as_csv}\n")
    run(program, source, *settings, "--lang", "en", "-c", f"-LIGHTTABLE J {as_json}\n")
    check_csv(as_csv, lights)
    check_json(as_json, source, insunits, lighting_units, lights)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("quorc")
    parser.add_argument("drawings", nargs="+", type=pathlib.Path)
    options = parser.parse_args()
    cases = [(drawing.resolve(), insunits, units) for drawing in options.drawings for insunits in MILLIMETRES
             for units in ILLUMINANCE_UNIT]
    failed = 0
    for drawing, insunits, units in cases:
        what = f"{drawing.name}, INSUNITS {insunits}, LIGHTINGUNITS {units}"
        with tempfile.TemporaryDirectory() as folder:
            try:
                check(options.quorc, drawing, insunits, units, pathlib.Path(folder).resolve())
                print(f"passed  {what}")
            except (Failure, dxf_tags.DxfError, ValueError, KeyError) as problem:
                print(f"failed  {what}: {problem!r}")
                failed += 1
    print(f"{len(cases) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
