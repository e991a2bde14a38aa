#!/usr/bin/env python3
"""Says on which display the program runs and how to end it, and what that display lacks: without a
compositor nothing shines through a window.

    display_notes.py
"""

import os

import x11


def notes(display, composited):
    lines = [f"Ormala runs on the display {display}. To end it, close its control window or press"
             " Ctrl+C here."]
    if not composited:
        lines.append("No compositor runs there, so the worksheet hides what lies below instead of"
                     " letting it shine through. The package picom has one: start it with"
                     " \"picom &\" and then ./run again.")
    return lines


if __name__ == "__main__":
    has_compositor = x11.Display().is_selection_owned("_NET_WM_CM_S0")
    print("\n".join(notes(os.environ["DISPLAY"], has_compositor)), flush=True)
