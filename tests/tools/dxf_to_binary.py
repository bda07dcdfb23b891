#!/usr/bin/env python3
"""Converts an ASCII drawing (R13 and later) to a binary one with two-byte group codes, tag by tag."""
import argparse
import struct
import sys

import dxf_tags


def encoded(tag):
    kind = dxf_tags.KIND.get(tag.code)
    code = struct.pack("<H", tag.code)
    if kind is None:
        raise dxf_tags.DxfError(f"line {tag.place}: nothing is known about group code {tag.code}")
    try:
        if kind == "string":
            return code + tag.text + b"\0"
        if kind == "bytes":
            data = bytes.fromhex(tag.text.decode("ascii"))
            return code + struct.pack("<B", len(data)) + data
        number = float(tag.text) if kind == "double" else int(tag.text)
        return code + dxf_tags.NUMBERS[kind].pack(number)
    except (ValueError, struct.error) as error:
        raise dxf_tags.DxfError(f"line {tag.place}: group code {tag.code}: {error}") from None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", metavar="ASCII_DRAWING")
    parser.add_argument("target", metavar="BINARY_DRAWING")
    options = parser.parse_args()
    try:
        drawing = dxf_tags.read(options.source)
        if drawing.form != "ascii" or drawing.version < "AC1012":
            raise dxf_tags.DxfError(f"{options.source} is no ASCII drawing of R13 or later")
        data = dxf_tags.SENTINEL + b"".join(encoded(tag) for tag in drawing.tags if tag.code != 999)
        with open(options.target, "wb") as file:
            file.write(data)
    except (OSError, dxf_tags.DxfError) as error:
        sys.exit(str(error))


if __name__ == "__main__":
    main()
