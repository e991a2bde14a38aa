"""The help pages are well-formed, alike in every language, and need nothing but each other.

The pages are written so that they read as HTML and as XML. `complaints` takes a dictionary from the
name of each file of help/ to its text, or to the bytes of a picture, and returns one sentence for
each fault.
"""

import pathlib
import re
import struct
import sys
import xml.etree.ElementTree as ElementTree

# What the program opens, by its text tables.
TEXT_TABLES = ("src/language/englishTexts.cpp", "src/language/germanTexts.cpp")
PAGE_OF_LANGUAGE = re.compile(r'\{265,\s*"([^"]+)"\}')

HEADING = re.compile(r"h[1-6]")
ADDRESS = re.compile(r"\s*([a-z][a-z0-9+.-]*:|//)", re.IGNORECASE)
CSS_REFERENCE = re.compile(r"url\(|@import|expression\(", re.IGNORECASE)
REFERRING = ("href", "src", "srcset", "action", "poster", "data")
# How many pixels of a picture are shown as one, so that it is sharp on a fine screen too.
PIXELS_AS_ONE = 2
# All pictures together: the help lies beside a program of a few megabytes.
PICTURE_BYTES = 1_500_000
OF_A_LANGUAGE = re.compile(r".*_([a-z]{2})\.webp")
FORBIDDEN = ("script", "iframe", "object", "embed", "style", "base", "form", "link")


def local_name(element):
    """Without the namespace that a picture declares."""
    return element.tag.rpartition("}")[2]


def parsed(name, text):
    """(root, complaint), one of them None."""
    try:
        return ElementTree.fromstring(text), None
    except ElementTree.ParseError as error:
        return None, f"{name} is not well-formed: {error}."


def anchors(root):
    return [element.get("id") for element in root.iter() if element.get("id")]


def references(root):
    for element in root.iter():
        for attribute, value in element.items():
            if attribute.rpartition("}")[2] in REFERRING:
                yield value


def outline(root):
    """What all languages share: the headings with their anchors, the rows of each table, and the
    pictures, whose names end with the language where they show words."""
    lines = []
    for element in root.iter():
        if HEADING.fullmatch(element.tag):
            lines.append(f"{element.tag} {element.get('id')}")
        elif element.tag in ("ol", "ul", "table"):
            rows = sum(child.tag in ("li", "tr") for child in element.iter())
            lines.append(f"{element.tag} of {rows}")
        elif element.tag == "img":
            lines.append("img " + re.sub(r"_[a-z]{2}(?=\.webp$)", "", element.get("src", "")))
    return lines


def language_of(name):
    return re.fullmatch(r"help_(\w+)\.html", name)[1]


def size_of_picture(data):
    """(width, height) of a picture in WebP without a loss, None for anything else."""
    if data[:4] != b"RIFF" or data[8:12] != b"WEBP":
        return None
    at = 12
    while at + 8 <= len(data):
        kind, length = struct.unpack_from("<4sI", data, at)
        if kind == b"VP8L" and at + 13 <= len(data) and data[at + 8] == 0x2F:
            bits = struct.unpack_from("<I", data, at + 9)[0]
            return (bits & 0x3FFF) + 1, (bits >> 14 & 0x3FFF) + 1
        at += 8 + length + length % 2
    return None


def complaints_about_head(name, root):
    language = language_of(name)
    if root.get("lang") != language:
        yield f"{name} does not say that its language is {language}."
    if not (root.findtext("head/title") or "").strip():
        yield f"{name} has no title."
    if not any((meta.get("charset") or "").lower() == "utf-8" for meta in root.iter("meta")):
        yield f"{name} does not say that it is UTF-8."


def complaints_about_elements(name, root):
    for element in root.iter():
        tag = local_name(element)
        if tag in FORBIDDEN and not (tag == "link" and element.get("rel") == "stylesheet"):
            yield f"{name} has a <{tag}>."
        for attribute in element.keys():
            if attribute.startswith("on") or attribute == "style":
                yield f"{name} has the attribute {attribute}."
        if tag == "img" and not element.get("alt"):
            yield f"{name} has a picture without a text for those who do not see it."
        if tag in ("h2", "h3") and not element.get("id"):
            yield f'{name} has a heading without an anchor: "{"".join(element.itertext())}".'
    known = anchors(root)
    for anchor in sorted({anchor for anchor in known if known.count(anchor) > 1}):
        yield f"{name} has the anchor {anchor} twice."


def complaints_about_references(name, root, roots, files):
    for reference in references(root):
        if ADDRESS.match(reference):
            yield f"{name} refers to something outside: {reference}."
            continue
        target, _, anchor = reference.partition("#")
        target = target or name
        if target not in files:
            yield f"{name} refers to {target}, which is not there."
        elif anchor and target in roots and anchor not in anchors(roots[target]):
            yield f"{name} refers to {reference}, an anchor that is not there."


def complaints_about_pictures(name, root, files):
    for element in root.iter("img"):
        source = element.get("src", "")
        data = files.get(source)
        if not isinstance(data, bytes):
            continue
        size = size_of_picture(data)
        if not size:
            yield f"{source} is no WebP without a loss."
            continue
        shown = tuple(str(side // PIXELS_AS_ONE) for side in size)
        if (element.get("width"), element.get("height")) != shown:
            yield f"{name} doesn't show {source} with {shown[0]} x {shown[1]} pixels."
        spoken = OF_A_LANGUAGE.fullmatch(source)
        if spoken and spoken[1] != language_of(name):
            yield f"{name} shows {source}, a picture of another language."


def complaints_about_language_links(name, root, pages):
    """Who reads a section can go on reading it in each other language."""
    for element in root.iter():
        if element.tag not in ("h2", "h3") or not element.get("id"):
            continue
        links = {link.get("href"): link.get("hreflang") for link in element.iter("a")}
        for other in sorted(set(pages) - {name}):
            target = f"{other}#{element.get('id')}"
            if links.get(target) != language_of(other):
                yield f"{name} has no link to {target} in its heading."


def complaints_about_outlines(pages):
    first, *others = sorted(pages)
    expected = outline(pages[first])
    for name in others:
        present = outline(pages[name])
        for line, (ours, theirs) in enumerate(zip(expected, present)):
            if ours != theirs:
                yield f"{first} has <{ours}> where {name} has <{theirs}>, as part {line + 1}."
                break
        else:
            if len(expected) != len(present):
                yield f"{first} has {len(expected)} parts and {name} has {len(present)}."


def complaints(files):
    found, roots = [], {}
    for name, text in files.items():
        if name.endswith((".html", ".svg")):
            root, complaint = parsed(name, text)
            if complaint:
                found.append(complaint)
            else:
                roots[name] = root
        if name.endswith(".css") and (CSS_REFERENCE.search(text) or "//" in text):
            found.append(f"{name} refers to something outside.")
    for name, root in roots.items():
        found += complaints_about_elements(name, root)
        found += complaints_about_references(name, root, roots, files)
    pages = {name: root for name, root in roots.items() if name.endswith(".html")}
    for name, root in pages.items():
        found += complaints_about_head(name, root)
        found += complaints_about_pictures(name, root, files)
        found += complaints_about_language_links(name, root, pages)
    if pages:
        found += complaints_about_outlines(pages)
    used = {value.partition("#")[0] for root in pages.values() for value in references(root)}
    found += [f"{name} is used by no page." for name in files
              if name not in used and not name.endswith(".html")]
    total = sum(len(data) for data in files.values() if isinstance(data, bytes))
    if total > PICTURE_BYTES:
        found.append(f"The pictures have {total} bytes, more than {PICTURE_BYTES}.")
    return found


def complaints_about_copying(files, build):
    """`build` is the text of the CMakeLists.txt that lists what goes beside the program."""
    for name in files:
        if name not in build.replace(")", " ").split():
            yield f"{name} is not copied beside the program."


def complaints_about_program(files, tables):
    """`tables` holds the text of each table of program texts by its path."""
    for path, text in tables.items():
        page = PAGE_OF_LANGUAGE.search(text)
        if not page:
            yield f"{path} names no help page."
        elif page[1] not in files:
            yield f"{path} names {page[1]}, which is not there."


def read(path):
    return path.read_bytes() if path.suffix == ".webp" else path.read_text(encoding="utf-8")


def main():
    project = pathlib.Path(sys.argv[1])
    files = {path.name: read(path)
             for path in sorted((project / "help").iterdir()) if path.name != "CMakeLists.txt"}
    tables = {path: (project / path).read_text(encoding="utf-8") for path in TEXT_TABLES}
    build = (project / "help" / "CMakeLists.txt").read_text(encoding="utf-8")
    found = complaints(files)
    found += complaints_about_copying(files, build)
    found += complaints_about_program(files, tables)
    print("\n".join(found) or f"{len(files)} files keep the rules.")
    sys.exit(1 if found or not files else 0)


if __name__ == "__main__":
    main()
