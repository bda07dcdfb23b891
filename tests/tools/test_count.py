#!/usr/bin/env python3
"""Counts the single tests of a ctest run and prints "N passed, N failed".

Reads the log that ctest leaves (Testing/Temporary/LastTest.log). A GoogleTest program counts as many tests as it ran; any
other program counts what its own last "N passed, N failed" line says, or as one test where it has none. A program that
failed without a failed test of its own (a crash, a time-out) counts as one failed test.
Exit status 1 where something failed or nothing ran.
"""
import argparse
import re
import sys

RULE = "-" * 58
ENTRY = re.compile(r"^\d+/\d+ Testing: (.*)$", re.M)
VERDICT = re.compile(r"^" + RULE + r"\nTest (Passed|Failed|.*)\.\s*$", re.M)


def last(pattern, text):
    found = re.findall(pattern, text, re.M)
    return found[-1] if found else None


def own_count(output):
    """The counts that the program printed itself, or None."""
    passed = last(r"^\[  PASSED  \] (\d+) tests?\.", output)
    if passed is not None:
        failed = last(r"^\[  FAILED  \] (\d+) tests?, listed below", output)
        return int(passed), int(failed or 0)
    line = last(r"^(\d+) passed, (\d+) failed$", output)
    return (int(line[0]), int(line[1])) if line else None


def count(entry):
    verdicts = VERDICT.findall(entry)
    good = bool(verdicts) and verdicts[-1] == "Passed"
    counted = own_count(entry)
    if counted is None:
        return (1, 0) if good else (0, 1)
    passed, failed = counted
    return (passed, failed) if good == (failed == 0) else (passed, max(failed, 1))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("log", help="LastTest.log of the run")
    try:
        text = open(parser.parse_args().log, encoding="utf-8", errors="replace").read()
    except OSError as error:
        sys.exit(f"no log of a test run: {error}")
    starts = [match.start() for match in ENTRY.finditer(text)] + [len(text)]
    counts = [count(text[begin:end]) for begin, end in zip(starts, starts[1:])]
    passed, failed = (sum(column) for column in zip(*counts)) if counts else (0, 0)
    print(f"{passed} passed, {failed} failed")
    return 0 if passed and not failed else 1


if __name__ == "__main__":
    sys.exit(main())
