"""Every source file is listed in a CMakeLists.txt, those of src/ once; every listed file exists.

A tree is a dictionary from the path in the project to the text of the file; only the texts of the
CMakeLists.txt files are looked at.
"""

import collections
import pathlib
import posixpath
import re
import sys

FOLDERS = ("src", "tests", "bench")

CALL = re.compile(r"(\w+)\s*\(([^()]*)\)")
SOURCE = re.compile(r'[^\s"]+\.cpp\b')
VARIABLE = re.compile(r"\\\$\\\{\w+\\\}")


def listed_in(path, text):
    """The sources that one CMakeLists.txt lists, as paths in the project."""
    folder = posixpath.dirname(path)
    text = re.sub(r"#[^\n]*", "", text).replace("${PROJECT_SOURCE_DIR}/", "/")
    text = text.replace("${CMAKE_CURRENT_SOURCE_DIR}/", "")
    for function, arguments in CALL.findall(text):
        below = "win/" if function == "ormala_windows_library" else ""
        for name in SOURCE.findall(arguments):
            place = name[1:] if name.startswith("/") else posixpath.join(folder, below + name)
            yield posixpath.normpath(place)


def stands_for(listed, path):
    """Whether a listed name, which may contain variables, stands for a file."""
    return re.fullmatch(VARIABLE.sub("[^/]+", re.escape(listed)), path) is not None


def complaints(tree):
    listed = collections.Counter()
    for path, text in tree.items():
        if posixpath.basename(path) == "CMakeLists.txt":
            listed.update(listed_in(path, text))
    patterns = [name for name in listed if "$" in name]
    sources = [path for path in sorted(tree) if path.endswith(".cpp")]
    found = []
    for path in sources:
        if not listed[path] and not any(stands_for(name, path) for name in patterns):
            found.append(f"{path} is listed in no CMakeLists.txt.")
        if listed[path] > 1 and path.startswith("src/"):
            found.append(f"{path} is listed {listed[path]} times.")
    for name in sorted(listed):
        if not any(name == path or stands_for(name, path) for path in sources):
            found.append(f"{name} is listed and does not exist.")
    return found


def read_tree(project):
    tree = {}
    for folder in FOLDERS:
        for path in sorted((project / folder).rglob("*")):
            if path.suffix == ".cpp":
                tree[path.relative_to(project).as_posix()] = ""
            elif path.name == "CMakeLists.txt":
                tree[path.relative_to(project).as_posix()] = path.read_text(encoding="utf-8")
    return tree


def main():
    tree = read_tree(pathlib.Path(sys.argv[1]))
    found = complaints(tree)
    print("\n".join(found) or f"{len(tree)} files keep the rules.")
    sys.exit(1 if found or not tree else 0)


if __name__ == "__main__":
    main()
