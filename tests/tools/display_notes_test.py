"""What ./run says of the display: that the program runs, how to end it, and what is missing."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROJECT = pathlib.Path(sys.argv[1]).resolve()
TIMEOUT_SECONDS = 60
STUB = "#!/bin/bash\necho \"$(basename \"$0\") $*\"\n"


class BareDisplay:
    """A screen without a compositor."""

    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "320x240x24", "-nolisten", "tcp"],
            pass_fds=[writing], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as number:
            self.name = f":{number.readline().strip()}"
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait(timeout=TIMEOUT_SECONDS)


def said(*command, folder=PROJECT, **environment):
    return subprocess.run(command, cwd=folder, env=os.environ | environment, check=True,
                          stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          timeout=TIMEOUT_SECONDS).stdout.splitlines()


def notes_on(display):
    return said(sys.executable, "-B", "tools/display_notes.py", DISPLAY=display)


def copy_of_run(folder):
    """./run with its own words, and with nothing to install, to build or to start."""
    tools = folder / "tools"
    tools.mkdir()
    for name in ("run", "tools/environment", "tools/display_notes.py", "tools/x11.py"):
        shutil.copy(PROJECT / name, folder / name)
    (folder / "build" / "windows").mkdir(parents=True)
    for path in (tools / "setup", tools / "stage", folder / "bin" / "cmake"):
        path.parent.mkdir(exist_ok=True)
        path.write_text(STUB, encoding="utf-8")
        path.chmod(0o755)
    return folder / "run"


class DisplayNotes(unittest.TestCase):
    def test_without_a_compositor_two_lines_say_what_runs_and_what_helps(self):
        with BareDisplay() as display:
            lines = notes_on(display.name)
        self.assertEqual(len(lines), 2, lines)
        self.assertIn(f"runs on the display {display.name}. To end it, close", lines[0])
        self.assertIn("The package picom", lines[1])

    def test_with_a_compositor_there_is_nothing_to_add(self):
        lines = said("tools/stage", "--no-wine", "--size", "320x240", "--", sys.executable, "-B",
                     "tools/display_notes.py")
        self.assertEqual(len(lines), 1, lines)
        self.assertIn("To end it, close its control window or press Ctrl+C here.", lines[0])

    def test_run_says_it_before_it_starts_the_program(self):
        with tempfile.TemporaryDirectory() as work, BareDisplay() as display:
            run = copy_of_run(pathlib.Path(work))
            path = f"{work}/bin:{os.environ['PATH']}"
            lines = said(str(run), folder=work, DISPLAY=display.name, PATH=path)
        at = next(n for n, line in enumerate(lines) if "runs on the display" in line)
        self.assertIn("picom", lines[at + 1])
        self.assertTrue(lines[at + 2].startswith("stage --here -- "), lines)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
