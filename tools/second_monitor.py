#!/usr/bin/env python3
"""The second monitor of a virtual screen, left of the main one, where x is negative for Windows.

    second_monitor.py open MAIN SECOND           gives both monitors their sizes, each WxH
    second_monitor.py serve MAIN SECOND FOLDER   takes the second away and gives it back on request

A request (tools/stage_service.py tells how) is "absent", "present" or "stir". The last changes the
main monitor's rate and changes it back: whoever listens to the display is told, and no window sees
anything else.
"""

import pathlib
import subprocess
import sys

import stage_service

MAIN, SECOND = "DUMMY0", "DUMMY1"
# The driver shows nothing, so that any blanking and any rate will do.
BLANKING = (16, 32, 64)
FRAMES_PER_SECOND = (60, 59)


def xrandr(*arguments):
    subprocess.run(["xrandr", *arguments], check=True, capture_output=True, text=True, timeout=30)


def mode_of(output, rate=FRAMES_PER_SECOND[0]):
    return f"stage-{output}-{rate}"


def add_modes(output, size):
    across, down = ([length, *(length + part for part in BLANKING)] for length in size)
    for rate in FRAMES_PER_SECOND:
        clock = across[-1] * down[-1] * rate / 1e6
        xrandr("--newmode", mode_of(output, rate), f"{clock:.2f}", *map(str, across + down))
        xrandr("--addmode", output, mode_of(output, rate))


def lay_out(main, second):
    """The screen is what the monitors cover: Wine takes its corner for theirs."""
    fit = f"{main[0] + second[0]}x{max(main[1], second[1])}"
    if not second[0]:
        leftmost = ("--output", SECOND, "--off")
    else:
        leftmost = ("--output", SECOND, "--mode", mode_of(SECOND), "--pos", "0x0")
    rest = ("--output", MAIN, "--primary", "--mode", mode_of(MAIN), "--pos", f"{second[0]}x0")
    xrandr("--fb", fit, *leftmost, *rest)
    # The question makes the server look: until then it says what was connected before.
    xrandr("--query")


def answer_to(wanted, main, second):
    print(wanted, flush=True)
    try:
        if wanted == "stir":
            for rate in reversed(FRAMES_PER_SECOND):
                xrandr("--output", MAIN, "--mode", mode_of(MAIN, rate))
        else:
            lay_out(main, {"absent": (0, 0), "present": second}[wanted])
    except subprocess.CalledProcessError as error:
        return error.stderr
    except (KeyError, subprocess.TimeoutExpired) as error:
        return f"{type(error).__name__}: {error}"
    return "done"


def serve(main, second, folder):
    stage_service.serve(folder, lambda wanted: answer_to(wanted, main, second))


def size_of(text):
    width, height = text.split("x")
    return int(width), int(height)


def open_both(main, second):
    try:
        add_modes(MAIN, main)
        add_modes(SECOND, second)
        lay_out(main, second)
    except subprocess.CalledProcessError as error:
        sys.exit(f"No second monitor: {error.stderr.strip()}")


def main(arguments):
    if len(arguments) == 3 and arguments[0] == "open":
        open_both(*map(size_of, arguments[1:]))
    elif len(arguments) == 4 and arguments[0] == "serve":
        serve(*map(size_of, arguments[1:3]), pathlib.Path(arguments[3]))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
