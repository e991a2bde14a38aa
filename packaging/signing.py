#!/usr/bin/env python3
"""signing.py FILE: signs a program in its place with the command of ORMALA_SIGN, in which %f stands
for the file. Without ORMALA_SIGN nothing is signed."""

import os
import pathlib
import shlex
import sys

from release import PackageError, run

PLACE = "%f"


def is_wanted():
    return bool(os.environ.get("ORMALA_SIGN"))


def sign(path):
    if not is_wanted():
        return
    words = shlex.split(os.environ["ORMALA_SIGN"])
    if not any(PLACE in word for word in words):
        raise PackageError(f"ORMALA_SIGN has no {PLACE} where the file to sign stands.")
    before = path.read_bytes()
    run([word.replace(PLACE, str(path)) for word in words])
    if path.read_bytes() == before:
        raise PackageError(f"The command of ORMALA_SIGN left {path.name} as it was.")


if __name__ == "__main__":
    try:
        sign(pathlib.Path(sys.argv[1]))
    except PackageError as failure:
        sys.exit(str(failure))
