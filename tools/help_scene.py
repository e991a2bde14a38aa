"""Ormala on the screen of a stage, for pictures of it: prepared files, windows, mouse, pictures.

Nothing here waits for a time: a window is waited for until it is there, a picture until it no
longer changes. All places and sizes are in pixels at 96 DPI. The screen has SCALE times as many: two
for the help, so that its pictures are sharp on a fine screen too.
"""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time
from typing import NamedTuple

SCALE = int(os.environ.get("ORMALA_PICTURE_SCALE", "2"))
TIMEOUT_SECONDS = 20
POLL_SECONDS = 0.1
# A window of the program's own, as `xwininfo -tree` lists it: its place on the screen comes last.
WINDOW = re.compile(r'(0x[0-9a-f]+) (?:"(.*)"|\(has no name\)): \("ormala\.exe".*\)'
                    r"\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)", re.IGNORECASE)
SHEET_TITLES = "Ormala Worksheet", "Ormala Arbeitsblatt"
# Of the mouse: away from everything that answers to it.
AWAY = 1270, 790
MARK_FONT = "DejaVu-Sans-Bold"
MARK_RADIUS = 9
# Without a loss, in a third less than the best PNG.
COMPRESSION = ("-define", "webp:lossless=true", "-define", "webp:method=6")


class Missing(Exception):
    """What a picture needs did not come up."""


class Box(NamedTuple):
    x: float
    y: float
    width: float
    height: float

    @property
    def middle(self):
        return self.x + self.width / 2, self.y + self.height / 2

    def inset(self, left, top, width, height):
        """A part, by its place in this box."""
        return Box(self.x + left, self.y + top, width, height)

    def grown(self, by):
        return Box(self.x - by, self.y - by, self.width + 2 * by, self.height + 2 * by)

    @property
    def geometry(self):
        """Of the screen."""
        x, y, width, height = (round(value * SCALE) for value in self)
        return f"{width}x{height}{x:+d}{y:+d}"


class XWindow(NamedTuple):
    number: str
    title: str
    box: Box


def run(*command):
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=TIMEOUT_SECONDS)


def waited_for(what, look):
    """The first true answer of `look`."""
    deadline = time.monotonic() + TIMEOUT_SECONDS
    while not (found := look()):
        if time.monotonic() > deadline:
            raise Missing(f"{what} did not come up within {TIMEOUT_SECONDS} seconds")
        time.sleep(POLL_SECONDS)
    return found


def windows():
    """Those of the program that show, the one behind first."""
    found = []
    for number, title, *numbers in WINDOW.findall(waited_for("The windows", window_tree)):
        width, height, x, y = (int(value) / SCALE for value in numbers)
        if width > 1 and shows(number):
            found.append(XWindow(number, title, Box(x, y, width, height)))
    return found[::-1]


def window_tree():
    """Nothing if a window went away meanwhile."""
    answer = subprocess.run(["xwininfo", "-root", "-tree"], check=False, capture_output=True,
                            text=True, timeout=TIMEOUT_SECONDS)
    return answer.stdout if answer.returncode == 0 else None


def shows(number):
    state = subprocess.run(["xwininfo", "-id", number], check=False, capture_output=True,
                           text=True, timeout=TIMEOUT_SECONDS).stdout
    return "IsViewable" in state


def shot(box, path):
    run("import", "-silent", "-window", "root", "-crop", box.geometry, "+repage",
        "-depth", "8", str(path))


def still_shot(box, path):
    """A picture of what no longer changes: three looks in a row that see the same."""
    with tempfile.TemporaryDirectory() as folder:
        now = pathlib.Path(folder, "now.ppm")
        seen = []

        def rests():
            shot(box, now)
            seen.append(now.read_bytes())
            return len(seen) > 2 and seen[-1] == seen[-2] == seen[-3]

        waited_for("A picture that rests", rests)
        shutil.copy(now, path)


def pixels(box):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "look.ppm")
        shot(box, path)
        return path.read_bytes()


class Mouse:
    @staticmethod
    def move(x, y):
        run("xdotool", "mousemove", "--sync", str(round(x * SCALE)), str(round(y * SCALE)))

    @staticmethod
    def press(button=1):
        run("xdotool", "mousedown", str(button))

    @staticmethod
    def release(button=1):
        run("xdotool", "mouseup", str(button))

    def hover(self, x, y):
        """Until what is there answers to the mouse, as a grip or a small button does by growing."""
        around = Box(x, y, 1, 1).grown(12)
        before = pixels(around)
        self.move(x, y)
        waited_for(f"The grown control at {x}, {y}", lambda: pixels(around) != before)

    def click(self, x, y, button=1):
        self.move(x, y)
        self.press(button)
        self.release(button)


def key(name):
    run("xdotool", "key", name)


@contextlib.contextmanager
def held(name):
    run("xdotool", "keydown", name)
    try:
        yield
    finally:
        run("xdotool", "keyup", name)


def ini(sections):
    """The text of a settings file."""
    lines = []
    for name, values in sections.items():
        lines.append(f"[{name}]")
        lines += [f"{key}={value}" for key, value in values.items()]
    return "\r\n".join(lines) + "\r\n"


class SettingsFolder:
    """The folder of the user's settings, whose own content comes back at the end."""

    def __init__(self, prefix):
        users = pathlib.Path(prefix, "drive_c", "users")
        roaming = [path for path in users.glob("*/AppData/Roaming") if "Public" not in path.parts]
        if len(roaming) != 1:
            raise Missing(f"No single application-data folder in {users}")
        self.folder = roaming[0] / "Ormala"
        self.kept = roaming[0] / "Ormala.kept"

    def __enter__(self):
        # What an earlier run that was killed could not bring back is the user's.
        if self.folder.exists() and not self.kept.exists():
            self.folder.rename(self.kept)
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)
        if self.kept.exists():
            self.kept.rename(self.folder)

    def write(self, options, tools):
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        for name, sections in (("Ormala.ini", options), ("Ormala Tools.ini", tools)):
            (self.folder / name).write_text(ini(sections), encoding="cp1252", newline="")


class Ormala:
    """The running program. `sheet` is the worksheet, `control` the inside of the control window."""

    def __init__(self, wine, program):
        self.wine, self.program = wine, program
        self.process = subprocess.Popen([wine, str(program)], cwd=program.parent,
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.mouse = Mouse()

    def __enter__(self):
        try:
            self.find_windows()
        except Missing:
            self.end()
            raise
        return self

    def __exit__(self, *_):
        self.end()

    def find_windows(self):
        self.main = waited_for("The control window", lambda: self.titled("Ormala - "))
        self.sheet = waited_for("The worksheet", self.sheet_at_rest)

    def end(self):
        """At once, without a question for changes and without a file."""
        run(self.wine, "taskkill", "/f", "/im", self.program.name)
        self.process.wait(timeout=TIMEOUT_SECONDS)
        waited_for("The end of the program", lambda: not windows())

    def titled(self, *beginnings):
        if self.process.poll() is not None:
            raise Missing("Ormala has ended")
        return next((w for w in windows() if w.title and w.title.startswith(beginnings)), None)

    def sheet_at_rest(self):
        """The window that its frame, which has the same title, lies around, once it stays there."""
        seen = []
        for _ in range(3):
            boxes = [window.box for window in windows() if window.title in SHEET_TITLES]
            seen.append(min(boxes, key=lambda box: box.width * box.height, default=None))
            time.sleep(POLL_SECONDS)
        box = seen[-1]
        return box if box and box.height > 100 and seen.count(box) == len(seen) else None

    @property
    def control(self):
        return waited_for("The control window", lambda: self.titled("Ormala - ")).box

    def activate(self):
        """Gives the control window the keyboard."""
        run("xdotool", "windowactivate", "--sync", self.main.number)

    def opened_by(self, what, action, tabs=0):
        """The window that comes up by the action, once it rests. What blinks as long as it has the
        keyboard loses that first, by so many presses of the Tab key."""
        before = {w.number for w in windows()}
        action()

        def newest():
            new = [w for w in windows() if w.number not in before and w.box.height > 60]
            return new[-1] if new else None

        box = waited_for(what, newest).box
        self.mouse.move(*AWAY)
        if tabs:
            first_look = pixels(box)
            waited_for("What blinks", lambda: pixels(box) != first_look)
            run("xdotool", "key", *["Tab"] * tabs)
        with tempfile.TemporaryDirectory() as folder:
            still_shot(box, pathlib.Path(folder, "rest.ppm"))
        # It may have been moved or sized since.
        return newest().box


def saved(source, target, marks=(), margin=0):
    """A picture for the pages, in all its colours. `marks` are (x, y, text) in the picture, which
    may lie in the margin."""
    # Only what lies in the margin is translucent.
    command = ["convert", str(source)]
    if margin:
        command += ["-bordercolor", "none", "-border", str(margin * SCALE)]
    for x, y, text in marks:
        x, y, radius = (x + margin) * SCALE, (y + margin) * SCALE, MARK_RADIUS * SCALE
        command += ["-stroke", "#1f1f1f", "-strokewidth", str(SCALE), "-fill", "#ffe600", "-draw",
                    f"circle {x},{y} {x + radius},{y}"]
        shift = 4 * SCALE * len(text)
        command += ["-stroke", "none", "-fill", "#1f1f1f", "-font", MARK_FONT, "-pointsize",
                    str(11 * SCALE), "-draw", f"text {x - shift},{y + 4 * SCALE} '{text}'"]
    command += ["-strip", *COMPRESSION, str(target)]
    run(*command)


def size_of(path):
    """In pixels of the screen."""
    answer = subprocess.run(["identify", "-format", "%w %h", str(path)], check=True,
                            capture_output=True, text=True, timeout=TIMEOUT_SECONDS)
    return tuple(map(int, answer.stdout.split()))


def side_by_side(sources, target, gap=8):
    # "+append" alone would leave no gap.
    first, *others = map(str, sources)
    command = ["convert", first, "-alpha", "set"]
    for other in others:
        command += ["(", other, "-alpha", "set", "-background", "none", "-gravity", "west",
                    "-splice", f"{gap}x0", ")"]
    run(*command, "-background", "none", "+append", str(target))


def column(box, x):
    """The colours of a column of the box once it rests, top to bottom, in pixels of the screen."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "column.ppm")
        still_shot(Box(box.x + x, box.y, 1 / SCALE, box.height), path)
        data = path.read_bytes()
    values = data[-3 * round(box.height * SCALE):]
    return [values[i:i + 3] for i in range(0, len(values), 3)]
