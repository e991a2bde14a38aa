"""What lies under the worksheet in the pictures: a photograph, a card, a plan, painted here. Places
and sizes are in pixels at 96 DPI; the pictures have SCALE times as many."""

import pathlib
import subprocess
import sys

from help_scene import SCALE, Box, run

TOOLS = pathlib.Path(__file__).resolve().parent
G = (5**0.5 - 1) / 2
PAINTING_SECONDS = 200
DESKTOP = "#3d4450"

# The photograph has the format of most cameras.
PHOTO = Box(40, 50, 480, 320)
CARD = Box(90, 92, 380, 235)
# Its bar is as long as five metres, its longest wall as eight.
PLAN = Box(52, 58, 456, 300)
SCALE_BAR = Box(100, 322, 150, 6)
LONG_WALL = Box(100, 86, 240, 8)


def landscape(width, height, path):
    # It is painted pixel by pixel.
    subprocess.run([sys.executable, str(TOOLS / "make_picture"), str(round(width * SCALE)),
                    str(round(height * SCALE)), str(path)], check=True, timeout=PAINTING_SECONDS)


def rectangle(box, color):
    left, top = box.x * SCALE, box.y * SCALE
    right, bottom = left + box.width * SCALE - 1, top + box.height * SCALE - 1
    return ["-fill", color, "-draw", f"rectangle {left},{top} {right},{bottom}"]


def text(x, y, size, color, words):
    return ["-fill", color, "-pointsize", str(size * SCALE), "-font", "DejaVu-Sans", "-draw",
            f"text {x * SCALE},{y * SCALE} '{words}'"]


def screen_of(size, *drawing):
    return ["convert", "-size", size, f"xc:{DESKTOP}", *drawing, "-depth", "8"]


def put(picture, box):
    return [str(picture), "-geometry", f"+{round(box.x * SCALE)}+{round(box.y * SCALE)}",
            "-composite"]


def photo(size, folder, target):
    """A photograph in a viewer."""
    land = folder / "photo.ppm"
    landscape(PHOTO.width, PHOTO.height, land)
    run(*screen_of(size, *rectangle(PHOTO.grown(14), "#20242a"), *put(land, PHOTO)), str(target))


def card(size, folder, target):
    """A business card of the golden section, its picture at the right."""
    land = folder / "card.ppm"
    picture = CARD.inset(CARD.width * (1 - G), 0, CARD.width * G, CARD.height)
    landscape(picture.width, picture.height, land)
    left, top = CARD.x + 16, CARD.y + CARD.height * (1 - G)
    drawing = rectangle(Box(20, 40, 520, 340), "#d9d6cf") + rectangle(CARD, "#fbfaf6")
    drawing += text(left, top - 10, 15, "#22303c", "Lena Moor")
    drawing += rectangle(Box(left, top, 112, 1), "#c0392b")
    for row, words in enumerate(("Gardens", "and landscapes", "", "At the lake 16", "moor.example")):
        drawing += text(left, top + 26 + 18 * row, 11, "#4d5963", words or " ")
    run(*screen_of(size, *drawing, *put(land, picture)), str(target))


def wall(x, y, width, height):
    return rectangle(Box(x, y, width, height), "#2b2b2b")


def plan(size, _, target):
    """A floor plan with its scale bar."""
    thick, left, top = 8, LONG_WALL.x, LONG_WALL.y
    right, bottom = left + LONG_WALL.width, top + 190
    drawing = rectangle(PLAN, "#f7f5ee")
    drawing += wall(left, top, LONG_WALL.width, thick) + wall(left, top, thick, 190)
    drawing += wall(right - thick, top, thick, 190) + wall(left, bottom - thick, 90, thick)
    drawing += wall(left + 126, bottom - thick, LONG_WALL.width - 126, thick)
    drawing += wall(left + 140, top, 5, 84) + wall(left + 140, top + 114, 5, 76)
    drawing += wall(right - thick, top + 60, 120, thick) + wall(right + 112, top + 60, thick, 130)
    drawing += wall(right - thick, bottom - thick, 40, thick) + wall(right + 62, bottom - thick, 58,
                                                                  thick)
    for x, y, words in ((left + 44, top + 104, "24 m²"), (left + 168, top + 104, "14 m²"),
                        (right + 32, top + 130, "12 m²")):
        drawing += text(x, y, 11, "#5a564c", words)
    bar = SCALE_BAR
    for metre in range(5):
        drawing += rectangle(Box(bar.x + 30 * metre, bar.y, 30, bar.height),
                             "#2b2b2b" if metre % 2 == 0 else "#ffffff")
    for metre, words in ((0, "0"), (5, "5 m")):
        drawing += text(bar.x + 30 * metre - 3, bar.y - 5, 9, "#2b2b2b", words)
    run(*screen_of(size, *drawing), str(target))
