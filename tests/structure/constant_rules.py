"""A constant stands in one place, and a mode has a name.

A tree is a dictionary from the path in the project to the text of the file. `complaints` returns
one sentence for each breach.
"""

import collections
import re
import sys

import cpp_text

DEFINITION = re.compile(
    r"\bconstexpr\s+(?:[\w:<>]+[\s*]+)+(?P<name>\w+)(?:\[\])?\s*"
    r"(?:=\s*(?P<set>[^;]+)|\{(?P<made>[^;]*)\})\s*;"
)
# A small number is what two things agree in by chance.
BY_CHANCE = re.compile(r"-?\d(\.0?)?[Ff]?")
# What is reckoned from other names says something else where those do.
RECKONED = re.compile(r"[a-z]\w*\s*[-+*/]|[-+*/]\s*[a-z]")
# The rule of the colours looks after these.
COLOR = re.compile(r"rgb\(|0x[0-9A-Fa-f]{6}$")

# What only one file knows.
ONCE = ('"0123456789ABCDEF"',)

MODE = r"(?:\b|(?<=[a-z]))[mM]ode_?(?:\(\))?"
BARE_MODE = re.compile(
    rf"{MODE}\s*(?:[=!<>]=|[=<>]|\{{)\s*-?\d\b|\b\d\s*(?:[=!<>]=|[<>])\s*(?:\w+(?:\.|->))*{MODE}\b"
    rf"|\b[sS]etMode\(\s*\d"
)
MODE_SWITCH = re.compile(rf"\bswitch\s*\([^()]*{MODE}\s*\)\s*$")
BARE_CASE = re.compile(r"\bcase\s+\d+\s*:")

# Modes of other things, which have numbers of their own: how an angle or a length is written, and
# how a line is mixed with what lies beneath it.
OTHER_MODES = re.compile(r"(?:Angle|Length|Draw|Raster)Mode")
FILES_OF_OTHER_MODES = {
    "src/modAPI/textForms.cpp",
    "src/modAPI/textForms.h",
    "src/magnifier/rasterLines.cpp",
    "src/magnifier/rasterLines.h",
}


def definitions(text):
    """(name, value) of each constant of a file whose value says something."""
    for match in DEFINITION.finditer(cpp_text.without_comments(text)):
        value = " ".join((match["set"] or match["made"] or "").split())
        said = BY_CHANCE.fullmatch(value) or RECKONED.search(value) or COLOR.match(value)
        if not said:
            yield match["name"], value


def doubled_constants(tree):
    places = collections.defaultdict(set)
    for path, text in tree.items():
        for definition in definitions(text):
            places[definition].add(path)
    for (name, value), paths in sorted(places.items()):
        if len(paths) > 1:
            yield f"{name} = {value} stands in {', '.join(sorted(paths))}."


def doubled_texts(tree):
    for text_once in ONCE:
        paths = sorted(p for p, t in tree.items() if text_once in cpp_text.without_comments(t))
        if len(paths) > 1:
            yield f"{text_once} stands in {', '.join(paths)}."


def bare_modes(path, code):
    code = OTHER_MODES.sub(lambda match: "_" * len(match.group()), code)
    found = [match.start() for match in BARE_MODE.finditer(code)]
    for start, opened, closed in cpp_text.blocks(code):
        if MODE_SWITCH.search(code[start:opened]):
            cases = BARE_CASE.finditer(code, opened, closed)
            found.extend(match.start() for match in cases)
    for place in sorted(found):
        yield f"{path}:{cpp_text.line_of(code, place)}: a mode has a name and is no number."


def complaints(tree):
    found = list(doubled_constants(tree)) + list(doubled_texts(tree))
    for path, text in sorted(tree.items()):
        if path not in FILES_OF_OTHER_MODES:
            found.extend(bare_modes(path, cpp_text.code_of(text)))
    return found


if __name__ == "__main__":
    cpp_text.check(complaints, sys.argv[1], ("src",))
