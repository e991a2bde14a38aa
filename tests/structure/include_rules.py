"""The rules of src/README.md that can be read off the include lines of the sources.

A tree is a dictionary from the path below src/, such as "scene/Canvas.h", to the text of the file.
`complaints` returns one sentence for each breach.
"""

import pathlib
import re
import sys

LEVELS = {
    "base": 0,
    "modAPI": 0,
    "language": 1,
    "storage": 1,
    "scene": 1,
    "platform": 1,
    "pictures": 2,
    "widgets": 3,
    "toolkit": 4,
    "stencil": 5,
    "measure": 5,
    "worksheet": 6,
    "magnifier": 6,
    "dialogs": 7,
    "app": 8,
}

# Folders of one level do not know each other, but for these.
NEIGHBOURS = {
    ("modAPI", "base"),
    ("storage", "language"),  # the messages of failures
    ("platform", "scene"),  # the canvas that it implements
}

# The sheet knows the interface of tools and no kind of tool.
FORBIDDEN = {("worksheet", "stencil"), ("worksheet", "measure")}

MAXIMUM_LINES = 400

# Tables of data, which are as long as they have entries.
DATA_TABLES = {"language/englishTexts.cpp", "language/germanTexts.cpp"}

INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')
STANDARD_HEADER = re.compile(r"[a-z_0-9]+")


def includes(text):
    """(opening sign, name) of each include line outside comments, in their order."""
    found = []
    for line in re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL).splitlines():
        match = INCLUDE.match(line)
        if match:
            found.append(match.groups())
    return found


def folder_of(path):
    return path.split("/")[0]


def is_windows(path):
    return "/win/" in path


def may_use(user, used):
    if user == used or (user, used) in NEIGHBOURS:
        return True
    return LEVELS[used] < LEVELS[user] and (user, used) not in FORBIDDEN


def complaints_about_include(path, sign, name):
    if sign == "<":
        if not is_windows(path) and not STANDARD_HEADER.fullmatch(name):
            yield f"{path} is portable and includes <{name}>, no header of the standard library."
        return
    user, used = folder_of(path), folder_of(name)
    if used not in LEVELS or "/" not in name:
        yield f'{path} includes "{name}", which does not start with a folder of src/.'
        return
    if not may_use(user, used):
        yield f'{path} includes "{name}": {user} may not use {used}.'
    if is_windows(name) and not is_windows(path):
        yield f'{path} is portable and includes "{name}".'


def complaints_about_file(path, text, tree):
    lines = text.count("\n")
    if lines > MAXIMUM_LINES and path not in DATA_TABLES:
        yield f"{path} has {lines} lines, more than {MAXIMUM_LINES}."
    if path.endswith(".h") and not re.search(r"^#pragma once$", text, re.MULTILINE):
        yield f"{path} has no #pragma once."
    found = includes(text)
    own = path.removesuffix(".cpp") + ".h"
    if path.endswith(".cpp") and own in tree and found[:1] != [('"', own)]:
        yield f"{path} does not include its own header first."
    for sign, name in found:
        yield from complaints_about_include(path, sign, name)


def cycle_in(graph):
    """The nodes of one cycle in their order, or nothing."""
    done, road = set(), []

    def visit(node):
        if node in road:
            return road[road.index(node) :] + [node]
        if node in done:
            return []
        road.append(node)
        for following in sorted(graph.get(node, ())):
            cycle = visit(following)
            if cycle:
                return cycle
        road.pop()
        done.add(node)
        return []

    for start in sorted(graph):
        cycle = visit(start)
        if cycle:
            return cycle
    return []


def include_graph(tree):
    return {
        path: {name for sign, name in includes(text) if sign == '"' and name in tree}
        for path, text in tree.items()
    }


def complaints(tree):
    found = []
    for path in sorted(tree):
        if folder_of(path) not in LEVELS:
            found.append(f"{path} lies in a folder that has no level.")
        else:
            found.extend(complaints_about_file(path, tree[path], tree))
    cycle = cycle_in(include_graph(tree))
    if cycle:
        found.append("A cycle of includes: " + " -> ".join(cycle))
    return found


def read_tree(source):
    return {
        path.relative_to(source).as_posix(): path.read_text(encoding="utf-8")
        for path in sorted(source.rglob("*"))
        if path.suffix in (".h", ".cpp")
    }


def main():
    tree = read_tree(pathlib.Path(sys.argv[1]) / "src")
    found = complaints(tree)
    print("\n".join(found) or f"{len(tree)} files keep the rules.")
    sys.exit(1 if found or not tree else 0)


if __name__ == "__main__":
    main()
