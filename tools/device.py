#!/usr/bin/env python3
"""Mouse and keyboard of a virtual screen, as the devices that a window manager listens to.

    device.py FOLDER

A request (tools/stage_service.py tells how) is a line of words for xdotool, such as
"mousemove 10 20 mousedown 1".
"""

import pathlib
import subprocess
import sys

import stage_service


def answer_to(wanted):
    try:
        subprocess.run(
            ["xdotool", *wanted.split()], check=True, capture_output=True, text=True, timeout=30
        )
    except subprocess.CalledProcessError as error:
        return error.stderr or f"exit code {error.returncode}"
    except (OSError, subprocess.TimeoutExpired) as error:
        return f"{type(error).__name__}: {error}"
    return "done"


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    stage_service.serve(pathlib.Path(sys.argv[1]), answer_to)
