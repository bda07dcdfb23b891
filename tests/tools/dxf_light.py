#!/usr/bin/env python3
"""Prints every LIGHT of a drawing: its tags as they stand, its extension dictionary and its photometric record.

Exit status 0 where every light has a whole chain (light, extension dictionary, photometric record, owners that point back),
1 where one has not (the reason is printed with "!"), 2 where the drawing cannot be read.
"""
import argparse
import signal
import sys

import dxf_tags

ENTRY = b"ADSK_XREC_PHOTOMETRICLIGHTINFO"
# the order in which the photometric record holds its codes
PHOTOMETRIC = [290, 300, 70, 40, 41, 71, 42, 72, 43, 44, 45, 73, 46, 47, 48, 74, 75, 76, 49, 50, 51, 53, 54, 55, 77]


def extension_dictionary(light):
    """The handle in the {ACAD_XDICTIONARY group."""
    inside = False
    for tag in light.tags:
        if tag.code == 102:
            inside = tag.text == b"{ACAD_XDICTIONARY"
        elif inside and tag.code == 360:
            return tag.text
    return None


def entry_of(dictionary, name):
    tags = dictionary.tags
    for here, following in zip(tags, tags[1:]):
        if here.code == 3 and here.text == name and following.code in (350, 360):
            return following.text
    return None


def owner(record):
    """The owner is the first 330 outside the {ACAD_REACTORS group."""
    inside = False
    for tag in record.tags:
        if tag.code == 102:
            inside = tag.text.startswith(b"{")
        elif tag.code == 330 and not inside:
            return tag.text
    return None


def find(handles, handle):
    return handles.get(handle.decode("ascii", "replace").upper().lstrip("0")) if handle else None


def show(title, record, encoding):
    print(f"  {title}")
    for tag in record.tags:
        print(f"    {tag.place:9d} {tag.code:5d} {tag.shown(encoding)}")


def photometric_faults(record):
    codes = []
    started = False
    for tag in record.tags:
        if started and tag.code < 1000:
            codes.append(tag.code)
        started = started or (tag.code == 280)
    known = [code for code in codes if code in PHOTOMETRIC]
    missing = [code for code in PHOTOMETRIC if code not in codes and code != 300]
    if missing:
        yield f"the photometric record lacks {missing}"
    if known != [code for code in PHOTOMETRIC if code in known]:
        yield "the codes of the photometric record are not in their order"


def inspect(light, handles, encoding):
    show("LIGHT", light, encoding)
    dictionary = find(handles, extension_dictionary(light))
    if dictionary is None:
        return ["no extension dictionary"]
    show("extension dictionary", dictionary, encoding)
    faults = []
    if find(handles, owner(dictionary)) is not light:
        faults.append("the extension dictionary does not belong to the light")
    record = find(handles, entry_of(dictionary, ENTRY))
    if record is None:
        return faults + ["no photometric record"]
    show("photometric record", record, encoding)
    if find(handles, owner(record)) is not dictionary:
        faults.append("the photometric record does not belong to the extension dictionary")
    return faults + list(photometric_faults(record))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("drawing", metavar="FILE")
    options = parser.parse_args()
    sys.stdout.reconfigure(errors="backslashreplace")
    try:
        drawing = dxf_tags.read(options.drawing)
    except (OSError, dxf_tags.DxfError) as error:
        print(error, file=sys.stderr)
        return 2
    handles = drawing.by_handle()
    lights = [record for record in drawing.records if record.type == "LIGHT" and record.section in ("ENTITIES", "BLOCKS")]
    bad = 0
    for light in lights:
        print(f"{dxf_tags.describe(light, drawing.encoding)}")
        for fault in inspect(light, handles, drawing.encoding):
            print(f"  ! {fault}")
            bad += 1
    print(f"{len(lights)} lights, {bad} faults")
    return 1 if bad else 0


if __name__ == "__main__":
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    sys.exit(main())
