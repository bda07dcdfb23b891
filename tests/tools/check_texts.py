#!/usr/bin/env python3
"""Compares the two languages of every text of the host: placeholders, keywords in brackets, line breaks. The English one
has no Chinese characters. A name may stand for one text only, since all of them share a namespace.

    check_texts.py FILE_OR_FOLDER...

Reads the pairs {L"chinese", L"english"} of the C++ sources. Says what differs, with file and line, and answers 1 then.
"""
import pathlib
import re
import sys

LITERAL = r'L"(?:\\.|[^"\\])*"'
LITERALS = rf"(?:{LITERAL}\s*)+"
PAIR = re.compile(rf"\{{\s*({LITERALS}),\s*({LITERALS}),?\s*\}}")
PLACEHOLDER = re.compile(r"%[-+ #0]*\d*(?:\.\d+)?(?:l|ll)?[a-zA-Z%]")
NAME = re.compile(r"inline constexpr Text (\w+)")
BRACKETS = re.compile(r"\[([^\]]*)\]")
LOCAL_KEYWORD = re.compile(r"(.*)\(([^()]+)\)$")
CHINESE = re.compile(r"[\u2e80-\u9fff\uff00-\uffef]")


# Who cannot read the language in use finds the way to the other one.
BILINGUAL = {"&Language 语言"}


def text_of(literals):
    """The characters between the quotes of adjacent literals, escapes as they stand."""
    return "".join(part[2:-1] for part in re.findall(LITERAL, literals))


def typed_for(keyword):
    """What a person types for an English keyword: its capital letters and digits, or all of it."""
    return "".join(c for c in keyword if c.isupper() or c.isdigit()) or keyword


def keywords(text, is_local):
    """What may be typed at each place in brackets: "[Close/Undo]" and "[闭合(C)/放弃(U)]" both give C, U."""
    found = []
    for group in BRACKETS.findall(text):
        for keyword in group.split("/"):
            local = LOCAL_KEYWORD.match(keyword)
            found.append(local.group(2) if is_local and local else typed_for(keyword))
    return found


def line_breaks(text):
    return text.startswith("\\n"), text.endswith("\\n")


CHECKS = (
    ("placeholders", lambda text, is_local: PLACEHOLDER.findall(text)),
    ("keywords in brackets", keywords),
    ("line breaks at the start and the end", lambda text, is_local: line_breaks(text)),
    ("being empty", lambda text, is_local: not text),
    ("a default in <>", lambda text, is_local: bool(re.search(r"<[^>]+>: ?$", text))),
)


def problems_in(source):
    """(line, what is wrong) for every pair whose languages differ or are mixed."""
    for pair in PAIR.finditer(source):
        chinese, english = text_of(pair.group(1)), text_of(pair.group(2))
        line = source.count("\n", 0, pair.start()) + 1
        for what, measure in CHECKS:
            a, b = measure(chinese, True), measure(english, False)
            if a != b:
                yield line, f"{what} differ: {a} in \"{chinese}\", {b} in \"{english}\""
        if CHINESE.search(english) and english not in BILINGUAL:
            yield line, f"Chinese characters in the English \"{english}\""


def self_test():
    """The checker finds what it is for."""
    wrong = [
        '{L"a %s", L"a %d"}', '{L"a %s", L"a"}', '{L"[是(Y)/否(N)]", L"[Yes/nO]"}', '{L"[是(Y)]", L"[Yes/No]"}',
        '{L"\\na", L"a"}', '{L"a", L""}', '{L"a <b>: ", L"a: "}', '{L"甲。", L"a。"}', '{L"甲", L"a甲"}',
    ]
    right = [
        '{L"%d 个 %s", L"%d of %s"}', '{L"[闭合(C)/放弃(U)]", L"[Close/Undo]"}', '{L"[列出(?)/三点(3P)]", L"[?/3Point]"}',
        '{L"甲" L"乙\\n",\n L"a" L"b\\n"}',
    ]
    assert all(any(problems_in(source)) for source in wrong)
    assert not any(any(problems_in(source)) for source in right)


def main(arguments):
    self_test()
    files = [file for argument in map(pathlib.Path, arguments)
             for file in (sorted(argument.glob("*.[hc]*")) if argument.is_dir() else [argument])]
    pairs = failures = 0
    home = {}
    for file in files:
        source = file.read_text(encoding="utf-8")
        for name in NAME.findall(source):
            if home.setdefault(name, file) != file:
                print(f"{file}: {name} is the name of a text of {home[name]} already")
                failures += 1
        pairs += len(PAIR.findall(source))
        for line, problem in problems_in(source):
            print(f"{file}:{line}: {problem}")
            failures += 1
    print(f"{pairs} texts in {len(files)} files, {failures} problems")
    return 1 if failures or pairs == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
