#!/usr/bin/env python3
"""Lets ezdxf judge a saved drawing: prints what it finds wrong in AFTER and did not find in BEFORE.

Both drawings are opened the strict way and, as damaged drawings are, in recover mode; both are audited. A way that does
not open BEFORE says nothing about AFTER. Exit status 0 where AFTER brings nothing new, 1 where it does, 2 where ezdxf is
missing. Needs ezdxf (python3-ezdxf).
"""
import argparse
import logging
import re
import sys
from collections import defaultdict


def messages(auditor):
    """What an audit found, by its text without handles: ezdxf invents handles where a damaged drawing has none."""
    found = defaultdict(list)
    for kind, entries in (("error", auditor.errors), ("fix", auditor.fixes)):
        for entry in entries:
            text = f"{kind} {entry.code}: {' '.join(entry.message.split())}"
            found[re.sub(r"#[0-9A-Fa-f]+", "#", text)].append(text)
    return found


def misread(path):
    """Whether ezdxf's recover mode takes the wrong encoding: it reads UTF-8 as cp1252 where $DWGCODEPAGE is missing."""
    with open(path, "rb") as file:
        head = file.read(65536)
    version = re.search(rb"\$ACADVER\s+1\s+AC(\d{4})", head)
    return version is not None and int(version[1]) >= 1021 and b"$DWGCODEPAGE" not in head


def strictly(path):
    import ezdxf
    return messages(ezdxf.readfile(path).audit())


def recovering(path):
    from ezdxf import recover
    return messages(recover.readfile(path)[1])


def judged(way, path):
    """Messages, or the reason why the drawing cannot be opened."""
    try:
        return way(path), None
    except Exception as error:  # whatever ezdxf stumbles over is a finding
        return {}, f"{type(error).__name__}: {error}"


def new_findings(before, after):
    """Lines that say what is new in AFTER."""
    logging.disable(logging.CRITICAL)
    found = []
    for title, way in (("strict", strictly), ("recover", recovering)):
        old, closed_before = judged(way, before)
        new, closed_after = judged(way, after)
        if closed_before:
            continue
        if title == "recover" and misread(after):
            new = {kind: texts for kind, texts in new.items() if "unicode decoding" not in kind}
        if closed_after:
            found.append(f"{title}: cannot be opened: {closed_after}")
        for kind, texts in new.items():
            found += [f"{title}: {text}" for text in texts[len(old.get(kind, [])):]]
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("before", metavar="BEFORE")
    parser.add_argument("after", metavar="AFTER")
    options = parser.parse_args()
    try:
        import ezdxf  # noqa: F401
    except ImportError:
        print("ezdxf is missing: install python3-ezdxf", file=sys.stderr)
        return 2
    found = new_findings(options.before, options.after)
    for line in found:
        print(line)
    print(f"{len(found)} new findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
