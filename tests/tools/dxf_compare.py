#!/usr/bin/env python3
"""Compares two drawings tag by tag: which records were added, removed, moved or changed from A to B.

Exit status 0 where B differs from A by nothing but what the options allow, 1 otherwise, 2 where a drawing cannot be read.
With --allow-added, records may be added, and with them what they need may change: the handle seed, the counts of tables
and classes, and the entries of dictionaries (added ones). Those are printed as "needed". A change in the values of the
codes given with --expect-changed is allowed too.
"""
import argparse
import difflib
import signal
import sys
from collections import Counter

import dxf_tags

DICTIONARIES = ("DICTIONARY", "ACDBDICTIONARYWDFLT")


def keyed(drawing):
    """The records by a key that stays the same when others come or go: place, type, and handle, name or turn."""
    seen = Counter()
    found = {}
    section = None
    for record in drawing.records:
        section = record.section or section
        # The end of a section has no place of its own: it goes with the section that it ends.
        place = section if record.type == "ENDSEC" else record.section
        base = (place, record.container, record.type, record.handle or record.name)
        found[base + (seen[base],)] = record
        seen[base] += 1
    return found


def values(record):
    return [(tag.code, tag.raw) for tag in record.tags]


def changes(before, after):
    """The tags that went and the tags that came, as (old tags, new tags) pairs in order."""
    matcher = difflib.SequenceMatcher(None, values(before), values(after), autojunk=False)
    for kind, a, b, c, d in matcher.get_opcodes():
        if kind == "equal":
            continue
        old, new = before.tags[a:b], after.tags[c:d]
        if len(old) == len(new):
            yield from (([one], [other]) for one, other in zip(old, new))
        else:
            yield old, new


def is_entry(tags):
    """Whether these tags are whole dictionary entries; a diff may cut them as name, handle or as handle, name."""
    codes = [tag.code for tag in tags]
    return len(codes) % 2 == 0 and all({a, b} in ({3, 350}, {3, 360}) for a, b in zip(codes[::2], codes[1::2]))


def is_needed(record, old, new):
    """Whether a change comes with records that were added."""
    codes = {tag.code for tag in old + new}
    if record.section == "HEADER":
        return record.name == b"$HANDSEED" and codes == {5}
    if record.type == "TABLE":
        return record.section == "TABLES" and codes == {70}
    if record.type == "CLASS":
        return codes == {91}
    return record.type in DICTIONARIES and not old and is_entry(new)


def moved(before, after):
    """The keys of records that stand in both drawings but in another order."""
    common = [key for key in before if key in after]
    turn = {key: number for number, key in enumerate(key for key in after if key in before)}
    result = []
    highest = -1
    for key in common:
        if turn[key] < highest:
            result.append(key)
        highest = max(highest, turn[key])
    return result


class Report:
    def __init__(self, options):
        self.options = options
        self.counts = Counter()
        self.bad = 0

    def say(self, what, allowed, text):
        self.counts[what] += 1
        self.bad += not allowed
        if not self.options.quiet or not allowed:
            print(f"{what:8s} {text}{'' if allowed else '   <- not allowed'}")

    def change(self, record, old, new, encoding, added):
        shown = [" | ".join(f"{tag.code} {tag.shown(encoding)}" for tag in tags) or "nothing" for tags in (old, new)]
        codes = {tag.code for tag in old + new}
        needed = added and is_needed(record, old, new)
        allowed = (needed and self.options.allow_added) or codes <= set(self.options.expect_changed)
        self.say("needed" if needed else "changed", allowed,
                 f"{dxf_tags.describe(record, encoding)}: {shown[0]} -> {shown[1]}")


def compare(one, two, options):
    report = Report(options)
    before, after = keyed(one), keyed(two)
    for what in ("form", "line_end", "version"):
        if getattr(one, what) != getattr(two, what):
            report.say("changed", False, f"{what}: {getattr(one, what)} -> {getattr(two, what)}")
    if one.rest != two.rest:
        report.say("changed", False, f"bytes behind EOF: {len(one.rest)} -> {len(two.rest)}")
    added = [key for key in after if key not in before]
    for key in added:
        record = after[key]
        report.say("added", options.allow_added, dxf_tags.describe(record, two.encoding) + f", {len(record.tags)} tags")
    for key, record in before.items():
        if key not in after:
            report.say("removed", False, dxf_tags.describe(record, one.encoding))
        elif values(record) != values(after[key]):
            for old, new in changes(record, after[key]):
                report.change(record, old, new, two.encoding, bool(added))
    for key in moved(before, after):
        report.say("moved", False, dxf_tags.describe(before[key], one.encoding))
    return report


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("before", metavar="A")
    parser.add_argument("after", metavar="B")
    parser.add_argument("--allow-added", action="store_true", help="records may be added")
    parser.add_argument("--expect-changed", action="append", default=[], type=int, metavar="CODE",
                        help="values of this group code may change (may be given several times)")
    parser.add_argument("--quiet", action="store_true", help="print what is not allowed only")
    options = parser.parse_args()
    sys.stdout.reconfigure(errors="backslashreplace")
    try:
        report = compare(dxf_tags.read(options.before), dxf_tags.read(options.after), options)
    except (OSError, dxf_tags.DxfError) as error:
        print(error, file=sys.stderr)
        return 2
    kinds = ("added", "needed", "changed", "removed", "moved")
    print(", ".join(f"{report.counts[kind]} {kind}" for kind in kinds) + f": {report.bad} not allowed")
    return 1 if report.bad else 0


if __name__ == "__main__":
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    sys.exit(main())
