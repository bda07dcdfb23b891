#!/usr/bin/env python3
"""Opens and saves every drawing below the given folders with quorc and checks what comes back.

1. Saved with no command, the copy is the same byte for byte. A drawing whose refusal names --recover is tried with it.
2. Given one point light, it differs by what was added and what that needs, and the audit of ezdxf finds nothing new;
   the light is whole. A drawing older than AC1015 is refused with status 4, and nothing is written.

Prints a table, the reasons of what failed, and "N passed, N failed"; exit status 1 where something failed or nothing ran.
"""
import argparse
import contextlib
import io
import pathlib
import subprocess
import sys
import tempfile

import dxf_audit
import dxf_compare
import dxf_light
import dxf_tags

LIGHT_SCRIPT = "SETVAR LIGHTINGUNITS 2\nPOINTLIGHT 1,2,3\nX\n"
TOO_OLD = 4
FIRST_WITH_LIGHTS = "AC1015"


class Failure(Exception):
    """Why a check did not pass."""


class Trip:
    """One drawing on its ways through the program."""

    def __init__(self, options, source, folder):
        self.options = options
        self.source = source
        self.folder = folder
        self.recover = []

    def run(self, name, script):
        """Saves the drawing under another name after a script; the result of the program and the path."""
        target = self.folder / name
        commands = self.folder / "commands.scr"
        commands.write_text(script, encoding="utf-8")
        command = [self.options.quorc, str(self.source), "-s", str(commands), "-o", str(target), *self.recover]
        try:
            done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, timeout=self.options.timeout)
        except subprocess.TimeoutExpired:
            raise Failure(f"no end after {self.options.timeout} s") from None
        if done.returncode < 0:
            raise Failure(f"ended by signal {-done.returncode}: {said(done)}")
        return done, target

    def same(self):
        """Check 1; answers how it passed."""
        done, target = self.run("same.dxf", "")
        if done.returncode and b"--recover" in done.stdout + done.stderr:
            self.recover = ["--recover"]
            done, target = self.run("same.dxf", "")
        if done.returncode:
            raise Failure(f"status {done.returncode}: {said(done)}")
        if not target.exists():
            raise Failure(f"nothing was saved: {said(done)}")
        before, after = self.source.read_bytes(), target.read_bytes()
        if before != after:
            at = next((n for n, (a, b) in enumerate(zip(before, after)) if a != b), min(len(before), len(after)))
            raise Failure(f"differs from byte {at}; {len(before)} -> {len(after)} bytes")
        return "same, recovered" if self.recover else "same"

    def lit(self):
        """Check 2; answers how it passed."""
        done, target = self.run("lit.dxf", LIGHT_SCRIPT)
        before = dxf_tags.read(str(self.source))
        if before.version < FIRST_WITH_LIGHTS:
            if done.returncode != TOO_OLD or target.exists():
                raise Failure(f"status {done.returncode}, {'written' if target.exists() else 'not written'}, "
                              f"but this version holds no lights: {said(done)}")
            return "refused"
        if done.returncode or not target.exists():
            raise Failure(f"status {done.returncode}: {said(done)}")
        after = dxf_tags.read(str(target))
        check_difference(before, after)
        check_light(before, after)
        found = dxf_audit.new_findings(str(self.source), str(target)) if self.options.audit else []
        if found:
            raise Failure("; ".join(found[:5]))
        return "lit"


def said(done):
    """The end of what the program printed."""
    lines = (done.stdout + done.stderr).decode("utf-8", "replace").split("\n")
    return " / ".join(line.strip() for line in lines if line.strip())[-300:]


def has_units(drawing):
    return any(tag.code == 3 and tag.text == b"LIGHTINGUNITS" for record in drawing.records for tag in record.tags)


def check_difference(before, after):
    # a drawing that has the setting already gets another value in its place
    options = argparse.Namespace(allow_added=True, expect_changed=[1] if has_units(before) else [], quiet=True)
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed):
        report = dxf_compare.compare(before, after, options)
    if report.bad:
        raise Failure(" / ".join(printed.getvalue().strip().split("\n")[:5]))


def check_light(before, after):
    """One light more, and the new one is whole."""
    known = {record.handle for record in lights(before)}
    new = [record for record in lights(after) if record.handle not in known]
    if len(lights(after)) != len(lights(before)) + 1 or len(new) != 1:
        raise Failure(f"{len(lights(before))} -> {len(lights(after))} lights")
    with contextlib.redirect_stdout(io.StringIO()):
        faults = dxf_light.inspect(new[0], after.by_handle(), after.encoding)
    if faults:
        raise Failure("; ".join(faults))


def lights(drawing):
    return [record for record in drawing.records if record.type == "LIGHT" and record.section in ("ENTITIES", "BLOCKS")]


def drawings(folders):
    for folder in map(pathlib.Path, folders):
        yield from sorted(folder.rglob("*.dxf")) if folder.is_dir() else [folder]


def attempt(check):
    try:
        return check(), None
    except (Failure, dxf_tags.DxfError, OSError) as error:
        return "FAILED", str(error)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("quorc", metavar="QUORC", help="the program")
    parser.add_argument("folder", metavar="FOLDER", nargs="+", help="folders with drawings, or drawings")
    parser.add_argument("--no-audit", dest="audit", action="store_false", help="leave ezdxf out")
    parser.add_argument("--timeout", type=float, default=60, metavar="SECONDS", help="for one run (default %(default)s)")
    options = parser.parse_args()
    sys.stdout.reconfigure(encoding="utf-8", errors="backslashreplace")
    if options.audit:
        try:
            import ezdxf  # noqa: F401
        except ImportError:
            sys.exit("ezdxf is missing: install python3-ezdxf, or give --no-audit")
    passed = failed = 0
    for source in drawings(options.folder):
        original = source.read_bytes()
        with tempfile.TemporaryDirectory() as folder:
            trip = Trip(options, source, pathlib.Path(folder))
            results = [attempt(trip.same), attempt(trip.lit)]
        if source.read_bytes() != original:
            results.append(("FAILED", "the drawing itself was changed"))
        passed += sum(reason is None for _, reason in results)
        failed += sum(reason is not None for _, reason in results)
        print(f"{source.name:42} {results[0][0]:16} {results[1][0]}")
        for _, reason in results:
            if reason is not None:
                print(f"    {reason}")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
