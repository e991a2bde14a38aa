"""What the rules know of C++: which part of a text is code, and which of its braces hold what."""

import pathlib
import re
import sys

COMMENT_OR_LITERAL = re.compile(
    r"//[^\n]*|/\*.*?\*/"
    r'|R"(?P<mark>[^()\s\\"]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9a-zA-Z])'(?:\\.|[^'\\\n])+'",
    re.DOTALL,
)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)

# What stands between the parentheses of a function and its brace.
FUNCTION = re.compile(
    r"(?P<name>[\w:~]+)\s*\([^{}]*\)(\s*(const|noexcept|override|final|mutable|&&?))*"
    r"(\s*->[^={}]*)?(\s*:[^:].*)?\s*$",
    re.DOTALL,
)
# After the braces of a member that a constructor makes.
GOES_ON = re.compile(r"\s*[,{]")
CLASS = re.compile(r"\b(class|struct)\s+(?P<name>\w+)[^()=]*$")


def spaces_for(match):
    return re.sub(r"[^\n]", " ", match.group())


def without_comments(text):
    """The text with spaces for its comments, so that each place stays the same line and column."""

    def blanked(match):
        return spaces_for(match) if match.group().startswith(("//", "/*")) else match.group()

    return COMMENT_OR_LITERAL.sub(blanked, text)


def code_of(text):
    """The text with spaces for comments, literals and directives."""
    return DIRECTIVE.sub(spaces_for, COMMENT_OR_LITERAL.sub(spaces_for, text))


def blocks(code):
    """(start of the head, opening brace, closing brace) of each pair of braces, outer ones first.
    The head is what stands before the brace since the last statement; members that a constructor
    makes with braces belong to its head."""
    found, open_blocks, head, parentheses = [], [], 0, 0
    for place, sign in enumerate(code):
        if sign in "()":
            parentheses += 1 if sign == "(" else -1
        elif sign == "{":
            open_blocks.append((head, place, parentheses))
            head, parentheses = place + 1, 0
        elif sign == "}" and open_blocks:
            start, opened, parentheses = open_blocks.pop()
            found.append((start, opened, place))
            head = start if GOES_ON.match(code, place + 1) else place + 1
        elif sign == ";" and parentheses == 0:
            head = place + 1
    return sorted(found, key=lambda block: block[1])


def functions(code):
    """(name, first line, last line) of each function that has a body; the functions inside one,
    such as lambdas, are part of it."""
    end = -1
    for start, opened, closed in blocks(code):
        head = code[start:opened]
        match = FUNCTION.search(head)
        if opened < end or not match or GOES_ON.match(code, closed + 1):
            continue
        end = closed
        name = head.lstrip()
        first = start + len(head) - len(name)
        yield match["name"], line_of(code, first), line_of(code, closed)


def classes(code):
    """(name, line, members) of each class, the members as the code between its braces."""
    for start, opened, closed in blocks(code):
        match = CLASS.search(code[start:opened])
        if match:
            line = line_of(code, start + match.start())
            yield match["name"], line, code[opened + 1 : closed]


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def read_tree(project, folders):
    return {
        path.relative_to(project).as_posix(): path.read_text(encoding="utf-8")
        for folder in folders
        for path in sorted((project / folder).rglob("*"))
        if path.suffix in (".h", ".cpp")
    }


def check(complaints, project, folders=("src", "tests", "bench")):
    """What each of these programs does: prints the complaints about a project, and fails if there
    are some or if there is nothing to complain about."""
    tree = read_tree(pathlib.Path(project), folders)
    found = complaints(tree)
    print("\n".join(found) or f"{len(tree)} files keep the rules.")
    sys.exit(1 if found or not tree else 0)
