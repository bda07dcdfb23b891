#!/usr/bin/env python3
"""Installs the build into a folder of its own and uses what is there, from another working folder.

    install_test.py BUILD

What is installed is exactly what is expected; the programs run, find module, texts and webs, and speak both languages; the
desktop's files are what the desktop reads; the manual pages are set without a warning.
Prints what failed and "N passed, N failed"; exit status 1 where something failed.
"""
import argparse
import configparser
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree

SOURCE = pathlib.Path(__file__).resolve().parents[2]
PATIENCE = 60  # seconds, more than anything takes
FOLDERS = {"share/quor/" + name: SOURCE / "resources" / name for name in ("lang", "colorbooks", "webs", "samples")}
FILES = {
    "bin/quor", "bin/quorc", "lib/quor/libquor.so.0", "lib/quor/modules/light.so",
    "share/applications/quor.desktop", "share/mime/packages/quor.xml", "share/icons/hicolor/scalable/apps/quor.svg",
    "share/man/man1/quor.1", "share/man/man1/quorc.1", "share/man/zh_CN/man1/quor.1", "share/man/zh_CN/man1/quorc.1",
    "share/doc/quor/copyright", "share/doc/quor/README.md", "share/doc/quor/README.zh-CN.md",
    "share/doc/quor/CHANGELOG.md",
}
# One light whose web file stands in the program's own folder, then the drawing is saved.
LIGHTS = "DEFAULTLIGHTING 0\nPOINTLIGHT 1,2,3\nN\nHall\nX\nFREEWEB 4,5,6\nB F\ndownlight.ies\nE X\n"


class Failure(Exception):
    """Why a check did not pass."""


def expect(holds, why):
    if not holds:
        raise Failure(why)


class Installed:
    """The installed programs, for a new user who stands in an empty folder."""

    def __init__(self, prefix, home):
        self.prefix = prefix
        self.home = home

    def environment(self, **more):
        inherited = {name: value for name, value in os.environ.items()
                     if not name.startswith("XDG_") and name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        # A build with sanitizers: leaks are looked for where the sources of a test are at hand.
        quiet = ":".join(filter(None, (os.environ.get("ASAN_OPTIONS"), "detect_leaks=0")))
        return {**inherited, "HOME": str(self.home), "LC_ALL": "C.UTF-8", "ASAN_OPTIONS": quiet, **more}

    def run(self, program, *arguments, **more):
        """Output, errors and status of a program."""
        done = subprocess.run([self.prefix / "bin" / program, *arguments], stdin=subprocess.DEVNULL, cwd=self.home,
                              capture_output=True, encoding="utf-8", env=self.environment(**more), timeout=PATIENCE)
        return done.stdout, done.stderr, done.returncode

    def start(self, program, *arguments):
        return subprocess.Popen([self.prefix / "bin" / program, *arguments], stdin=subprocess.DEVNULL, cwd=self.home,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=self.environment())


def installed_files(prefix):
    return {str(path.relative_to(prefix)) for path in prefix.rglob("*") if not path.is_dir()}


def nothing_else_is_installed(it):
    expected = set(FILES)
    for place, folder in FOLDERS.items():
        expected |= {f"{place}/{path.relative_to(folder)}" for path in folder.rglob("*") if path.is_file()}
    found = installed_files(it.prefix)
    # The library has its version behind its name too, where the build gives it one.
    extra = {name for name in found - expected if not name.startswith("lib/quor/libquor.so.0.")}
    expect(not extra, f"not expected: {sorted(extra)}")
    expect(not expected - found, f"missing: {sorted(expected - found)}")


def makes_lights(it, language, words):
    script = it.home / "lights.scr"
    script.write_text(LIGHTS, encoding="utf-8")
    target = it.home / f"{language}.dxf"
    out, errors, status = it.run("quorc", "--lang", language, "-s", str(script), "-o", str(target))
    expect(status == 0, f"status {status}: {out}{errors}")
    for word in words:
        expect(word in out, f"{word!r} is not said: {out}{errors}")
    drawing = target.read_text(encoding="utf-8")
    expect(drawing.count("\n  0\nLIGHT\n") == 2, "the drawing does not hold two lights")
    expect("downlight.ies" in drawing, "the web file is not in the drawing")


def console_makes_lights_in_english(it):
    makes_lights(it, "en", ("Specify source location <0,0,0>: 1,2,3", "Enter light name <Pointlight1>: Hall"))


def console_makes_lights_in_chinese(it):
    makes_lights(it, "zh", ("指定源位置 <0,0,0>: 1,2,3", "输入光源名称 <点光源1>: Hall"))


def programs_tell_their_version(it):
    for program in ("quor", "quorc"):
        out, errors, status = it.run(program, "--version")
        expect(status == 0 and out.startswith(f"{program} ") and not errors, f"{program}: {status} {out}{errors}")


def programs_explain_themselves_in_both_languages(it):
    for program in ("quor", "quorc"):
        for language, first in (("en", f"Usage: {program}"), ("zh", f"用法: {program}")):
            out, errors, status = it.run(program, "--lang", language, "--help")
            expect(status == 0 and out.startswith(first) and not errors, f"{program} {language}: {status} {out}{errors}")


def desktop_program_says_that_there_is_no_display(it):
    out, errors, status = it.run("quor", "--lang", "en")
    expect(status == 3, f"status {status}")
    expect(errors == "quor: there is no display (neither DISPLAY nor WAYLAND_DISPLAY is set); use quorc\n", errors)
    expect(not out, out)


def desktop_program_survives_a_display_that_is_not_there(it):
    _, errors, status = it.run("quor", "--lang", "en", DISPLAY=":4711", QT_QPA_PLATFORM="xcb")
    expect(status == 3, f"status {status}: {errors}")
    expect(errors.startswith("quor: the display cannot be used; use quorc."), errors)


def desktop_program_refuses_wrong_options(it):
    _, errors, status = it.run("quor", "-platform", "offscreen", "--lang", "en", "--nonsense")
    expect(status == 2, f"status {status}")
    expect(errors == 'quor: There is no option "--nonsense".\nSee quor --help.\n', errors)


def desktop_program_runs_a_script_to_its_quit(it):
    target = it.home / "-desktop.dxf"
    script = it.home / "desktop.scr"
    script.write_text(f"{LIGHTS}SAVEAS {target}\nQUIT\n", encoding="utf-8")
    out, errors, status = it.run("quor", "-platform", "offscreen", "--script", str(script))
    expect(status == 0, f"status {status}: {out}{errors}")
    expect(target.is_file(), "nothing was saved")
    script.write_text("QUIT\n", encoding="utf-8")
    out, errors, status = it.run("quor", "-platform", "offscreen", "--script", str(script), "--", target.name)
    expect(status == 0, f"a file name with a dash: status {status}: {out}{errors}")


def desktop_program_ends_by_a_signal(it):
    """It waits for a person; a script tells when it does."""
    mark = it.home / "mark.dxf"
    script = it.home / "mark.scr"
    script.write_text(f"SAVEAS {mark}\n", encoding="utf-8")
    program = it.start("quor", "-platform", "offscreen", "--script", str(script))
    try:
        end = time.monotonic() + PATIENCE
        while not mark.exists() and program.poll() is None and time.monotonic() < end:
            time.sleep(0.05)
        expect(mark.exists(), "the script was not run")
        program.send_signal(signal.SIGTERM)
        said, _ = program.communicate(timeout=PATIENCE)
    finally:
        program.kill()
    expect(program.returncode == 128 + signal.SIGTERM, f"status {program.returncode}: {said.decode()}")


def desktop_entry_is_well_formed(it):
    path = it.prefix / "share/applications/quor.desktop"
    if shutil.which("desktop-file-validate"):
        done = subprocess.run(["desktop-file-validate", path], capture_output=True, encoding="utf-8")
        expect(done.returncode == 0 and not done.stdout, done.stdout + done.stderr)
    parser = configparser.ConfigParser(interpolation=None, delimiters=("=",), strict=True)
    parser.optionxform = str
    parser.read(path, encoding="utf-8")
    expect(parser.sections() == ["Desktop Entry"], f"groups {parser.sections()}")
    entry = parser["Desktop Entry"]
    for key, value in (("Type", "Application"), ("Exec", "quor %F"), ("Icon", "quor"), ("Terminal", "false"),
                       ("StartupWMClass", "quor"), ("MimeType", "image/vnd.dxf;")):
        expect(entry.get(key) == value, f"{key}={entry.get(key)}")
    for key in ("Name", "GenericName", "GenericName[zh_CN]", "Comment", "Comment[zh_CN]"):
        expect(entry.get(key), f"{key} is missing")
    for key in ("Categories", "Keywords", "Keywords[zh_CN]"):
        expect(entry.get(key, "").endswith(";"), f"{key} is no list")


def mime_types_are_well_formed(it):
    space = "{http://www.freedesktop.org/standards/shared-mime-info}"
    root = xml.etree.ElementTree.parse(it.prefix / "share/mime/packages/quor.xml").getroot()
    expect(root.tag == space + "mime-info", root.tag)
    globs = {kind.get("type"): [glob.get("pattern") for glob in kind.iter(space + "glob")] for kind in root}
    expect(globs == {"image/vnd.dxf": ["*.dxf"], "application/x-photometric-web": ["*.ies"]}, f"{globs}")


def icon_is_an_svg(it):
    root = xml.etree.ElementTree.parse(it.prefix / "share/icons/hicolor/scalable/apps/quor.svg").getroot()
    expect(root.tag == "{http://www.w3.org/2000/svg}svg", root.tag)
    expect(root.get("viewBox"), "it has no size to scale from")


def manual_pages_are_complete(it):
    """Each option of the help stands in the page."""
    for program in ("quor", "quorc"):
        out, _, _ = it.run(program, "--lang", "en", "--help")
        options = {word.rstrip(",") for line in out.splitlines() for word in line.split()[:2] if word.startswith("--")}
        for folder in ("man1", "zh_CN/man1"):
            text = (it.prefix / "share/man" / folder / f"{program}.1").read_text(encoding="utf-8").replace("\\-", "-")
            missing = sorted(option for option in options if option not in text)
            expect(not missing, f"{folder}/{program}.1 does not tell of {missing}")


def manual_pages_are_set_without_warnings(it):
    for page in sorted((it.prefix / "share/man").rglob("*.1")):
        lines = page.read_text(encoding="utf-8").splitlines()
        expect(lines[0].startswith(".TH "), f"{page}: no title")
        wrong = [line for line in lines if line.startswith(".") and line.split()[0] not in REQUESTS]
        expect(not wrong, f"{page}: {wrong}")
        if shutil.which("groff"):
            done = subprocess.run(["groff", "-man", "-k", "-Tutf8", "-ww", "-rLL=200n", page], capture_output=True,
                                  encoding="utf-8")
            expect(done.returncode == 0 and not done.stderr, f"{page}: {done.stderr}")


REQUESTS = {".TH", ".SH", ".PP", ".TP", ".B", ".I", ".BI", ".BR", ".RI", ".nf", ".fi"}
CHECKS = (
    nothing_else_is_installed, console_makes_lights_in_english, console_makes_lights_in_chinese,
    programs_tell_their_version, programs_explain_themselves_in_both_languages,
    desktop_program_says_that_there_is_no_display, desktop_program_survives_a_display_that_is_not_there,
    desktop_program_refuses_wrong_options, desktop_program_runs_a_script_to_its_quit, desktop_program_ends_by_a_signal,
    desktop_entry_is_well_formed, mime_types_are_well_formed, icon_is_an_svg, manual_pages_are_complete,
    manual_pages_are_set_without_warnings,
)


def passes(check, build_prefix):
    with tempfile.TemporaryDirectory() as home:
        try:
            check(Installed(build_prefix, pathlib.Path(home)))
        except (Failure, OSError, subprocess.SubprocessError, configparser.Error, xml.etree.ElementTree.ParseError) as why:
            print(f"{check.__name__}: {why}")
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", metavar="BUILD", help="the folder of a build")
    build = parser.parse_args().build
    sys.stdout.reconfigure(encoding="utf-8", errors="backslashreplace")
    with tempfile.TemporaryDirectory() as folder:
        prefix = pathlib.Path(folder) / "a place with blanks"
        subprocess.run(["cmake", "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        results = [passes(check, prefix) for check in CHECKS]
    print(f"{results.count(True)} passed, {results.count(False)} failed")
    return 1 if False in results else 0


if __name__ == "__main__":
    sys.exit(main())
