#!/usr/bin/env python3
"""One session in English and in Chinese: typed from the start to the saved file, both dialogs and a script with every
option of every kind of light included.

In English not one Chinese character may be printed or saved; in Chinese the same answers have to make the same drawing.
Prints "N passed, N failed"; exit status 1 where something failed.
"""
import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

# ideographs and kana, their radicals, and the forms that go with them
CHINESE = re.compile("[\u2e80-\u9fff\uf900-\ufaff\uff00-\uffef]")
NOT_ASCII = re.compile("[^\x00-\x7f]+")
LIGHT = re.compile("^ *0\nLIGHT$", re.MULTILINE)
LIGHTS = 30  # two that are typed, and those of the script

# The first light is asked about default lighting, the distant one whether it is wanted; both boxes are ticked.
SESSION = """LIGHT
1+
P
0,0,3000
N
Hall
X
DISTANTLIGHT
2+
V
0,0,-1
N
Sun
X
U
REDO

SCRIPT
every_option.scr
LIST
ALL

LIGHTTABLE

-LIGHTTABLE
C
lights.csv

HELP

HELP
LIGHT
NO SUCH COMMAND
SETVAR
LIGHTINGUNITS
7

SAVEAS
session.dxf
"""


class Failure(Exception):
    pass


def with_plain_names(script):
    """The script with a name of its own for each that is Chinese."""
    names = {}
    return NOT_ASCII.sub(lambda found: names.setdefault(found.group(), f"Name{len(names)}"), script)


def session_in(language, quorc, script, folder):
    folder.mkdir()
    (folder / "every_option.scr").write_text(with_plain_names(script.read_text(encoding="utf-8")), encoding="utf-8")
    done = subprocess.run([quorc, "--lang", language], input=SESSION, capture_output=True, encoding="utf-8", cwd=folder,
                          env={**os.environ, "XDG_CONFIG_HOME": str(folder / "config")}, timeout=120)
    if not (folder / "session.dxf").is_file():
        raise Failure(f"nothing was saved\n{done.stdout}\n{done.stderr}")
    drawing = (folder / "session.dxf").read_text(encoding="utf-8")
    if len(LIGHT.findall(drawing)) != LIGHTS:
        raise Failure(f"{len(LIGHT.findall(drawing))} lights in place of {LIGHTS}\n{done.stdout}\n{done.stderr}")
    return done.stdout + done.stderr, drawing


def check_english(printed, saved):
    for what, text in (("printed", printed), ("saved", saved)):
        for line in text.splitlines():
            if CHINESE.search(line):
                raise Failure(f"{what} in English: {line}")


def check_chinese(printed, drawing, english):
    if not CHINESE.search(printed):
        raise Failure("nothing Chinese was printed")
    for number, (mine, other) in enumerate(zip(drawing.splitlines(), english.splitlines()), start=1):
        if mine != other:
            raise Failure(f"line {number} of the drawing: {mine!r} in Chinese, {other!r} in English")
    if drawing != english:
        raise Failure("one drawing is longer than the other")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("quorc", type=pathlib.Path)
    parser.add_argument("script", type=pathlib.Path)
    args = parser.parse_args()
    passed = failed = 0
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        english = session_in("en", args.quorc.resolve(), args.script, folder / "en")
        chinese = session_in("zh", args.quorc.resolve(), args.script, folder / "zh")
        for check, arguments in ((check_english, english), (check_chinese, (*chinese, english[1]))):
            try:
                check(*arguments)
                passed += 1
            except Failure as problem:
                failed += 1
                print(f"{check.__name__}: {problem}")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
