"""The Windows side of a stage: programs, files, registry and keys, for the tests of the package."""

import os
import pathlib
import re
import subprocess
import tempfile
import time

PREFIX = pathlib.Path(os.environ.get("WINEPREFIX", "."))
DRIVE = PREFIX / "drive_c"
WINE = os.environ.get("ORMALA_WINE", "wine")
PATIENCE = 60


def wait_for(what, condition, seconds=PATIENCE):
    """The first value of `condition` that is true; fails after a time that no test should need."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.1)
    raise AssertionError(f"Waited in vain for this: {what}")


def windows_path(path):
    """As Windows programs see a path of drive C."""
    return "C:\\" + str(path.relative_to(DRIVE)).replace("/", "\\")


def unix_path(text):
    return DRIVE / text.removeprefix("C:\\").replace("\\", "/")


def start(program, *arguments, folder=DRIVE):
    """A running program. Its output leads nowhere, since what it starts inherits it."""
    return subprocess.Popen([WINE, windows_path(program), *arguments], cwd=folder,
                            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)


def run(program, *arguments):
    """The exit code of a program."""
    return start(program, *arguments).wait(timeout=PATIENCE)


def system_tool(*command):
    """(exit code, output) of one of the system's own programs."""
    with tempfile.TemporaryFile() as output:
        code = subprocess.run([WINE, *command], stdin=subprocess.DEVNULL, stdout=output,
                              stderr=subprocess.DEVNULL, timeout=PATIENCE, check=False).returncode
        output.seek(0)
        return code, output.read().decode("utf-8", "replace")


def only_folder(pattern):
    """The folder of the one user."""
    found = [path for path in DRIVE.glob(pattern) if "Public" not in path.parts]
    assert len(found) == 1, found
    return found[0]


def local_data():
    return only_folder("users/*/AppData/Local")


def roaming_data():
    return only_folder("users/*/AppData/Roaming")


def files_below(folder):
    """The names of all files below a folder, with slashes."""
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file()}


def set_value(key, name, text):
    named = ["/ve"] if name is None else ["/v", name]
    assert system_tool("reg", "add", key, *named, "/d", text, "/f")[0] == 0, key


def registry():
    """All of the registry that programs write to: from each key to its values' names and texts."""
    found = {}
    for root in ("HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE\\Software"):
        target = DRIVE / "export.reg"
        assert system_tool("regedit", "/E", windows_path(target), root)[0] == 0
        text = target.read_text(encoding="utf-16")
        target.unlink()
        for block in re.split(r"\r?\n\r?\n(?=\[)", text)[1:]:
            key, *values = block.splitlines()
            found[key.strip("[]")] = dict(
                re.findall(r'^(@|"(?:[^"\\]|\\.)*")=(.*)$', "\n".join(values), re.MULTILINE))
    return found


def text_of(value):
    """A text as an export of the registry quotes it."""
    return re.sub(r"\\(.)", r"\1", value[1:-1])


def keys(*names):
    subprocess.run(["xdotool", "key", "--delay", "60", *names], check=True, timeout=PATIENCE)


def windows_named(pattern):
    """The visible windows with a title, as the screen counts them."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", pattern],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                           timeout=PATIENCE, check=False)
    return found.stdout.split()


def activate(pattern):
    """Brings a window to the front once it is there, and returns it."""
    window = wait_for(f"a window {pattern}", lambda: windows_named(pattern))[0]

    def is_active():
        subprocess.run(["xdotool", "windowactivate", window], stderr=subprocess.DEVNULL,
                       timeout=PATIENCE, check=False)
        active = subprocess.run(["xdotool", "getactivewindow"], stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True, timeout=PATIENCE,
                                check=False)
        return active.stdout.strip() == window

    wait_for(f"{pattern} in front", is_active)
    return window


def picture_of(window):
    return subprocess.run(["import", "-silent", "-window", window, "ppm:-"],
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=PATIENCE,
                          check=False).stdout


def settle(pattern):
    """Brings a window to the front and waits until it is painted: until it no longer changes."""
    seen = []

    def is_still():
        seen.append(picture_of(activate(pattern)))
        time.sleep(0.3)
        return len(seen) > 2 and seen[-1] == seen[-2] == seen[-3]

    wait_for(f"{pattern} painted", is_still)


def press_until(pattern, key, what, condition):
    """Presses a key in a window. A key that comes while a page is being made is lost, so it is
    pressed again after a while as long as it has no effect."""
    def has_effect():
        if windows_named(pattern):
            settle(pattern)
            keys(key)
        end = time.monotonic() + 3
        while time.monotonic() < end and not condition():
            time.sleep(0.1)
        return condition()

    wait_for(what, has_effect)
