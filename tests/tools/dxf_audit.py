#!/usr/bin/env python3
"""Lets ezdxf judge a saved drawing: prints what it finds wrong in AFTER and did not find in BEFORE.

Both drawings are opened the strict way and, as damaged drawings are, in recover mode; both are audited. A BEFORE that
cannot be opened the strict way sets no mark for AFTER there. Exit status 0 where AFTER brings nothing new, 1 where it
does, 2 where ezdxf is missing. Needs ezdxf (python3-ezdxf).
"""
import argparse
import logging
import sys
from collections import Counter


def messages(auditor):
    """What an audit found, and how often."""
    found = Counter()
    for kind, entries in (("error", auditor.errors), ("fix", auditor.fixes)):
        found.update(f"{kind} {entry.code}: {entry.message}" for entry in entries)
    return found


def strictly(ezdxf, path):
    return messages(ezdxf.readfile(path).audit())


def recovering(ezdxf, path):
    from ezdxf import recover
    document, auditor = recover.readfile(path)
    return messages(auditor) + Counter({f"version {document.dxfversion}": 1})


def judged(way, ezdxf, path):
    """Messages, or the reason why the drawing cannot be opened."""
    try:
        return way(ezdxf, path), None
    except Exception as error:  # whatever ezdxf stumbles over is a finding
        return Counter(), f"{type(error).__name__}: {error}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("before", metavar="BEFORE")
    parser.add_argument("after", metavar="AFTER")
    options = parser.parse_args()
    try:
        import ezdxf
    except ImportError:
        print("ezdxf is missing: install python3-ezdxf", file=sys.stderr)
        return 2
    logging.disable(logging.CRITICAL)
    bad = 0
    for title, way in (("strict", strictly), ("recover", recovering)):
        before, closed_before = judged(way, ezdxf, options.before)
        after, closed_after = judged(way, ezdxf, options.after)
        new = [f"cannot be opened: {closed_after}"] if closed_after and not closed_before else []
        if not closed_before and not closed_after:
            new += [f"{text} ({count}x)" for text, count in (after - before).items()]
        for text in new:
            print(f"{title}: {' '.join(text.split())}")
        bad += len(new)
    print(f"{bad} new findings")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
