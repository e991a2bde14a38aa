#!/usr/bin/env python3
"""Waits until a window manager and a compositor really run on the display.

Both announce themselves: the manager by a property of the root window that names a living window,
the compositor by owning the selection _NET_WM_CM_S0. A fixed pause would be too short on a busy
machine and too long on an idle one.
"""

import ctypes
import ctypes.util
import subprocess
import sys
import time

TIMEOUT_SECONDS = 30


def window_manager_runs():
    answer = subprocess.run(
        ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=False
    )
    return "window id #" in answer.stdout


class Selections:
    """The owners of X selections, which no command of the system tells."""

    def __init__(self):
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XInternAtom.restype = ctypes.c_ulong
        self.x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
        self.x11.XGetSelectionOwner.restype = ctypes.c_ulong
        self.x11.XGetSelectionOwner.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
        self.display = self.x11.XOpenDisplay(None)
        if not self.display:
            sys.exit("The display cannot be opened.")

    def owned(self, name):
        atom = self.x11.XInternAtom(self.display, name.encode(), False)
        return self.x11.XGetSelectionOwner(self.display, atom) != 0


def wait_for(what, condition, deadline):
    while not condition():
        if time.monotonic() > deadline:
            sys.exit(f"No {what} after {TIMEOUT_SECONDS} seconds.")
        time.sleep(0.02)


def main():
    deadline = time.monotonic() + TIMEOUT_SECONDS
    selections = Selections()
    wait_for("window manager", window_manager_runs, deadline)
    wait_for("compositor", lambda: selections.owned("_NET_WM_CM_S0"), deadline)


if __name__ == "__main__":
    main()
