"""Every source looks as clang-format leaves it: that of version 14, since another lays out some
lines in another way. tools/setup installs it."""

import pathlib
import shutil
import subprocess
import sys

PROGRAM = "clang-format-14"
FOLDERS = ("src", "tests", "bench")


def sources(project):
    return [
        path
        for folder in FOLDERS
        for path in sorted((project / folder).rglob("*"))
        if path.suffix in (".h", ".cpp")
    ]


def main():
    if shutil.which(PROGRAM) is None:
        sys.exit(f"{PROGRAM} is not installed: run tools/setup.")
    found = sources(pathlib.Path(sys.argv[1]))
    run = subprocess.run([PROGRAM, "--dry-run", "--Werror", *found], check=False)
    if run.returncode == 0:
        print(f"{len(found)} files are formatted.")
    sys.exit(run.returncode if found else 1)


if __name__ == "__main__":
    main()
