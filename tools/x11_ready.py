#!/usr/bin/env python3
"""Waits until a window manager and a compositor really run on the display.

Both announce themselves: the manager by a property of the root window that names a living window,
the compositor by owning the selection _NET_WM_CM_S0. A fixed pause would be too short on a busy
machine and too long on an idle one.
"""

import subprocess
import sys
import time

import x11

TIMEOUT_SECONDS = 30


def window_manager_runs():
    answer = subprocess.run(
        ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=False
    )
    return "window id #" in answer.stdout


def wait_for(what, condition, deadline):
    while not condition():
        if time.monotonic() > deadline:
            sys.exit(f"No {what} after {TIMEOUT_SECONDS} seconds.")
        time.sleep(0.02)


def main():
    deadline = time.monotonic() + TIMEOUT_SECONDS
    display = x11.Display()
    wait_for("window manager", window_manager_runs, deadline)
    wait_for("compositor", lambda: display.is_selection_owned("_NET_WM_CM_S0"), deadline)


if __name__ == "__main__":
    main()
