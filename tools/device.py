#!/usr/bin/env python3
"""Mouse and keyboard of a virtual screen, as the devices that a window manager listens to, and where
that has placed the windows.

    device.py FOLDER

A request (tools/stage_service.py tells how) is a line of words for xdotool, such as
"mousemove 10 20 mousedown 1", or "places ID ID", which is answered with place and size of each window,
such as "10,20,300,200 -". A window that is not shown yet, or not where it is to stay, has none.
"""

import pathlib
import subprocess
import sys

import stage_service
import x11


def places(display, windows):
    found = (display.place(int(window)) for window in windows)
    return " ".join("-" if place is None else "{},{},{},{}".format(*place) for place in found)


def play(words):
    try:
        subprocess.run(
            ["xdotool", *words], check=True, capture_output=True, text=True, timeout=30
        )
    except subprocess.CalledProcessError as error:
        return error.stderr or f"exit code {error.returncode}"
    except (OSError, subprocess.TimeoutExpired) as error:
        return f"{type(error).__name__}: {error}"
    return "done"


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    display = x11.Display()

    def answer_to(wanted):
        kind, *windows = wanted.split()
        return places(display, windows) if kind == "places" else play(wanted.split())

    stage_service.serve(pathlib.Path(sys.argv[1]), answer_to)
