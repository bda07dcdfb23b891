#!/usr/bin/env python3
"""Reads the tags of a drawing (DXF: ASCII, binary, binary of R12 and before), independently of the program under test.

As a program it lists them: every tag with its place (line, or byte in a binary drawing), or with --records the sections
with their records, a line each. As a module it gives `read(path)`, a Drawing.
"""
import argparse
import re
import signal
import struct
import sys
from dataclasses import dataclass, field
from typing import NamedTuple

SENTINEL = bytes.fromhex("4175746f434144204269" "6e617279204458460d0a1a00")
CODE_PAGES = {"dos850": "cp850", "ascii": "ascii", "ansi_936": "gbk", "ansi_1361": "johab"}

# first code, last code, what a binary drawing stores
KINDS = [
    (0, 9, "string"), (10, 59, "double"), (60, 79, "int16"), (90, 99, "int32"), (100, 102, "string"), (105, 105, "string"),
    (110, 149, "double"), (160, 169, "int64"), (170, 179, "int16"), (210, 239, "double"), (270, 289, "int16"),
    (290, 299, "bool"), (300, 309, "string"), (310, 319, "bytes"), (320, 369, "string"), (370, 389, "int16"),
    (390, 399, "string"), (400, 409, "int16"), (410, 419, "string"), (420, 429, "int32"), (430, 439, "string"),
    (440, 459, "int32"), (460, 469, "double"), (470, 481, "string"), (999, 1003, "string"), (1004, 1004, "bytes"),
    (1005, 1009, "string"), (1010, 1059, "double"), (1060, 1070, "int16"), (1071, 1071, "int32"),
]
KIND = {code: kind for first, last, kind in KINDS for code in range(first, last + 1)}
NUMBERS = {"double": struct.Struct("<d"), "int16": struct.Struct("<h"), "int32": struct.Struct("<i"),
           "int64": struct.Struct("<q"), "bool": struct.Struct("<B")}


class DxfError(Exception):
    """What is wrong, and where."""


class Tag(NamedTuple):
    code: int
    raw: bytes    # the value as it stands in the file (a binary number: its bytes)
    place: int    # line of the code (ASCII) or offset of the tag (binary)
    text: bytes   # the value as an ASCII drawing would have it, blanks around numbers removed

    def shown(self, encoding="utf-8"):
        return self.text.decode(encoding, "backslashreplace")


@dataclass
class Record:
    """What stands from one 0 group to the next; a header variable is a record of the type HEADER."""
    section: str
    container: str
    type: str
    tags: list = field(default_factory=list)

    def first(self, code, subclass=None):
        """The first value of a code, from the start or after a subclass marker."""
        started = subclass is None
        for tag in self.tags:
            if started and tag.code == code:
                return tag.text
            started = started or (tag.code == 100 and tag.text == subclass)
        return None

    @property
    def handle(self):
        wanted = 105 if self.type == "DIMSTYLE" and self.section == "TABLES" else 5
        inside = False
        for tag in self.tags if self.section != "HEADER" else []:
            if tag.code == 100 or tag.code >= 1000:
                break
            if tag.code == 102:
                inside = tag.text.startswith(b"{")
            elif tag.code == wanted and not inside:
                return tag.text.decode("ascii", "replace").strip().upper().lstrip("0") or "0"
        return None

    @property
    def name(self):
        if self.section in ("TABLES", "BLOCKS", "HEADER") or self.type == "SECTION":
            return self.first(2 if self.section != "HEADER" or self.type == "SECTION" else 9)
        return self.first(1) if self.type == "CLASS" else None


@dataclass
class Drawing:
    path: str
    form: str         # "ascii", "binary" (two-byte codes) or "binary r12"
    line_end: str     # "LF", "CRLF" or "" in a binary drawing
    tags: list
    rest: bytes       # what follows EOF
    records: list = field(default_factory=list)
    sections: list = field(default_factory=list)
    version: str = ""
    encoding: str = "cp1252"

    def by_handle(self):
        found = {}
        for record in self.records:
            if record.handle:
                found.setdefault(record.handle, record)
        return found


def read(path):
    with open(path, "rb") as file:
        data = file.read()
    drawing = read_binary(path, data) if data.startswith(SENTINEL) else read_ascii(path, data)
    structure(drawing)
    return drawing


def read_ascii(path, data):
    skip = 3 if data.startswith(b"\xef\xbb\xbf") else 0
    lines = data[skip:].split(b"\n")
    ends = "CRLF" if lines[0].endswith(b"\r") else "LF"
    tags = []
    at = 0
    while at + 1 < len(lines):
        code_text = lines[at].strip()
        if at + 2 >= len(lines) and not code_text:
            break
        try:
            code = int(code_text)
        except ValueError:
            raise DxfError(f"{path}, line {at + 1}: {code_text[:40]!r} is no group code") from None
        raw = lines[at + 1].removesuffix(b"\r")
        tags.append(Tag(code, raw, at + 1, raw if KIND.get(code) == "string" and code else raw.strip()))
        at += 2
        if code == 0 and raw.strip() == b"EOF":
            break
    return Drawing(path, "ascii", ends, tags, b"\n".join(lines[at:]))


def read_binary(path, data):
    at = len(SENTINEL)
    short = len(data) > at + 1 and data[at + 1] != 0
    tags = []
    try:
        while at < len(data):
            place = at
            if short and data[at] != 255:
                code, at = data[at], at + 1
            else:
                at += 1 if short else 0
                code, at = struct.unpack_from("<H", data, at)[0], at + 2
            raw, text, at = binary_value(data, at, code)
            tags.append(Tag(code, raw, place, text))
            if code == 0 and raw == b"EOF":
                break
    except (struct.error, ValueError, IndexError, KeyError) as error:
        raise DxfError(f"{path}, byte {place}: the tag there is broken ({error})") from None
    return Drawing(path, "binary r12" if short else "binary", "", tags, data[at:])


def binary_value(data, at, code):
    """The bytes of a value, its text, and the offset behind it."""
    kind = KIND[code]
    if kind == "string":
        end = data.index(b"\0", at)
        return data[at:end], data[at:end], end + 1
    if kind == "bytes":
        end = at + 1 + data[at]
        if end > len(data):
            raise ValueError("bytes are missing")
        return data[at + 1:end], data[at + 1:end].hex().upper().encode(), end
    number = NUMBERS[kind]
    value = number.unpack_from(data, at)[0]
    return data[at:at + number.size], repr(value).encode(), at + number.size


def structure(drawing):
    """Cuts the tags into records and finds version and encoding."""
    section = container = ""
    current = None
    for tag in drawing.tags:
        starts = tag.code == 0 or (section == "HEADER" and tag.code == 9)
        if starts or current is None:
            kind = tag.text.decode("ascii", "replace") if tag.code == 0 else "HEADER" if starts else "?"
            if kind in ("SECTION", "ENDSEC", "EOF"):
                section = container = ""
            elif kind in ("TABLE", "BLOCK", "ENDTAB") or section not in ("TABLES", "BLOCKS"):
                container = ""
            current = Record(section, container, kind)
            drawing.records.append(current)
        elif tag.code == 2 and current.type == "SECTION" and not current.section:
            section = current.section = tag.text.decode("ascii", "replace")
            drawing.sections.append(section)
        elif tag.code == 2 and current.type in ("TABLE", "BLOCK") and not container:
            container = tag.text.decode("utf-8", "backslashreplace")
        current.tags.append(tag)
    header = {record.tags[0].text: record for record in drawing.records if record.type == "HEADER"}
    if b"$ACADVER" in header:
        drawing.version = (header[b"$ACADVER"].first(1) or b"").decode("ascii", "replace").strip()
    if drawing.version >= "AC1021":
        drawing.encoding = "utf-8"
    elif b"$DWGCODEPAGE" in header:
        page = (header[b"$DWGCODEPAGE"].first(3) or b"").decode("ascii", "replace").strip().lower()
        drawing.encoding = CODE_PAGES.get(page, page.replace("ansi_", "cp") if page.startswith("ansi_") else "cp1252")


def text_of(raw, encoding):
    """A text, with the escapes for what the code page of an old drawing does not have."""
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda found: chr(int(found[1], 16)), raw.decode(encoding))


def describe(record, encoding):
    handle = f" #{record.handle}" if record.handle else ""
    name = f" {record.name.decode(encoding, 'backslashreplace')}" if record.name is not None else ""
    place = "/".join(part for part in (record.section, record.container) if part)
    return f"{place} {record.type}{handle}{name}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("drawing", nargs="+")
    parser.add_argument("--records", action="store_true", help="sections and records instead of tags")
    parser.add_argument("--summary", action="store_true", help="one line per drawing")
    options = parser.parse_args()
    sys.stdout.reconfigure(errors="backslashreplace")
    for path in options.drawing:
        try:
            drawing = read(path)
        except (OSError, DxfError) as error:
            sys.exit(str(error))
        if options.summary:
            print(f"{path}: {drawing.version or 'no version'} {drawing.form} {drawing.line_end} {drawing.encoding}, "
                  f"{len(drawing.tags)} tags, {len(drawing.records)} records, {', '.join(dict.fromkeys(drawing.sections))}; "
                  f"{len(drawing.rest)} bytes behind EOF")
        elif options.records:
            for record in drawing.records:
                print(f"{record.tags[0].place:9d} {len(record.tags):5d} tags  {describe(record, drawing.encoding)}")
        else:
            for tag in drawing.tags:
                print(f"{tag.place:9d} {tag.code:5d} {tag.shown(drawing.encoding)}")


if __name__ == "__main__":
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    main()
