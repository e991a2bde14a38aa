"""The sizes that CONTRIBUTING.md states: lines of a function, columns, members of an interface,
branches of the windows.

A tree is a dictionary from the path in the project, such as "src/scene/Canvas.h", to the text of
the file. `complaints` returns one sentence for each breach.
"""

import re
import sys

import cpp_text

MAXIMUM_LINES = 60
MAXIMUM_COLUMNS = 100
MAXIMUM_MEMBERS = 10

# Tables of data, which are as long as they have entries.
DATA_TABLES = {("tests/win/WindowTextRows.cpp", "windowTextRows")}

# A text is not broken only to fit.
UNBREAKABLE = re.compile(r'\s*"')

# The windows of the program take hardly any decision.
WINDOWS = "src/app/win/"
MAXIMUM_BRANCHES = 90
BRANCH = re.compile(r"\b(?:if|case)\b")

PURE = re.compile(r"\bvirtual\b[^;{}]*=\s*0\s*;")


def complaints_about_functions(path, code):
    for name, first, last in cpp_text.functions(code):
        lines = last - first + 1
        if lines > MAXIMUM_LINES and (path, name) not in DATA_TABLES:
            yield f"{path}:{first}: {name} has {lines} lines, more than {MAXIMUM_LINES}."


def complaints_about_columns(path, text):
    for number, line in enumerate(text.splitlines(), 1):
        if len(line) > MAXIMUM_COLUMNS and not UNBREAKABLE.match(line):
            yield f"{path}:{number} has {len(line)} columns, more than {MAXIMUM_COLUMNS}."


def complaints_about_interfaces(path, code):
    for name, line, members in cpp_text.classes(code):
        count = len(PURE.findall(members))
        if count > MAXIMUM_MEMBERS:
            yield f"{path}:{line}: {name} has {count} members, more than {MAXIMUM_MEMBERS}."


def branches_of_windows(tree):
    return sum(
        len(BRANCH.findall(cpp_text.code_of(text)))
        for path, text in tree.items()
        if path.startswith(WINDOWS)
    )


def complaints(tree):
    found = []
    branches = branches_of_windows(tree)
    if branches > MAXIMUM_BRANCHES:
        found.append(f"{WINDOWS} has {branches} branches, more than {MAXIMUM_BRANCHES}.")
    for path, text in sorted(tree.items()):
        code = cpp_text.code_of(text)
        found.extend(complaints_about_functions(path, code))
        found.extend(complaints_about_columns(path, text))
        found.extend(complaints_about_interfaces(path, code))
    return found


if __name__ == "__main__":
    cpp_text.check(complaints, sys.argv[1])
