"""Colours stand in figures in two tables only; all other sources take them by their names.

A tree is a dictionary from the path below src/ to the text of the file. A number of six or eight
hexadecimal digits is taken for a colour; a mask of such a length says that it is none by its
suffix U. No colour at all, which is 0, may stand anywhere.
"""

import pathlib
import re
import sys

import include_rules

TABLES = {"modAPI/drawingColors.h", "widgets/lookColors.h"}

NOT_CODE = re.compile(r'/\*.*?\*/|//[^\n]*|"(?:\\.|[^"\\\n])*"', re.DOTALL)
MIXED = re.compile(r"\b(?:rgb|RGB)\s*\(([^()]*)\)")
NUMBER = re.compile(r"0[xX][0-9A-Fa-f']+|[0-9][0-9']*")
HEXADECIMAL = re.compile(r"\b0[xX](?:[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})\b")
SET = re.compile(r"\b(?:Color|COLORREF)\s+\w+\s*[={]\s*(" + NUMBER.pattern + r")\s*[;,})]")


def is_mixed_of_figures(arguments):
    return any(NUMBER.fullmatch(part.strip()) for part in arguments.split(","))


def colors_in(text):
    """Each colour that stands in figures, as (place, what stands there)."""
    code = NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)
    for found in MIXED.finditer(code):
        if is_mixed_of_figures(found.group(1)):
            yield found.start(), found.group()
    for found in HEXADECIMAL.finditer(code):
        yield found.start(), found.group()
    for found in SET.finditer(code):
        number = found.group(1)
        if not HEXADECIMAL.fullmatch(number) and int(number.replace("'", ""), 0) != 0:
            yield found.start(), found.group()


def complaints(tree):
    found = []
    for path in sorted(set(tree) - TABLES):
        text = tree[path]
        for place, words in sorted(colors_in(text)):
            line = text.count("\n", 0, place) + 1
            found.append(f"{path}:{line} has a colour in figures: {words}")
    return found


def main():
    tree = include_rules.read_tree(pathlib.Path(sys.argv[1]) / "src")
    found = complaints(tree)
    found.extend(f"There is no table {path}." for path in sorted(TABLES - set(tree)))
    print("\n".join(found) or f"{len(tree)} files take their colours from {len(TABLES)} tables.")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
