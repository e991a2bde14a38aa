#!/usr/bin/env python3
"""Plays the suites that several stages share: each stage takes the next one when it is free.

shared_suites.py fill LIST [CTEST OPTIONS...]
    writes down which suites there are, those first that take longest, as their COST says
shared_suites.py play LIST RESULTS [CTEST OPTIONS...]
    plays one after the other that no other stage has taken, and leaves all results in RESULTS
"""

import fcntl
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def cost(test):
    return max((entry["value"] for entry in test.get("properties", []) if entry["name"] == "COST"),
               default=0)


def names_by_length(tests):
    """Those that take as long stay in their order."""
    return [test["name"] for test in sorted(tests, key=cost, reverse=True)]


def fill(path, options):
    shown = subprocess.run(["ctest", "--show-only=json-v1", *options], check=True,
                           stdout=subprocess.PIPE).stdout
    path.write_text("".join(f"{name}\n" for name in names_by_length(json.loads(shown)["tests"])),
                    encoding="utf-8")


def take(path):
    """The first suite of the list, which is then no longer in it; None where there is none left."""
    with open(path, "r+", encoding="utf-8") as listed:
        fcntl.flock(listed, fcntl.LOCK_EX)
        names = listed.read().splitlines()
        listed.seek(0)
        listed.truncate()
        listed.write("".join(f"{name}\n" for name in names[1:]))
    return names[0] if names else None


def play(path, results, options):
    """The number of suites that did not pass."""
    played = ElementTree.Element("testsuites")
    failed = 0
    with tempfile.TemporaryDirectory() as folder:
        result = pathlib.Path(folder, "suite.xml")
        while name := take(path):
            command = ["ctest", *options, "--tests-regex", f"^{re.escape(name)}$",
                       "--output-junit", str(result)]
            failed += subprocess.run(command, check=False).returncode != 0
            played.append(ElementTree.parse(result).getroot())
            result.unlink()
    ElementTree.ElementTree(played).write(results, encoding="utf-8")
    return failed


def main():
    if len(sys.argv) < 3 or sys.argv[1] not in ("fill", "play"):
        sys.exit(__doc__)
    path = pathlib.Path(sys.argv[2])
    if sys.argv[1] == "fill":
        fill(path, sys.argv[3:])
    elif play(path, sys.argv[3], sys.argv[4:]):
        sys.exit(1)


if __name__ == "__main__":
    main()
