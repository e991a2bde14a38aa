"""The package under Wine: installed, started, updated, removed, and unpacked from the archive.

Runs by itself: in a fresh copy of the Wine prefix and on a virtual screen of its own.
"""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
import zipfile

import windows_side as windows
from certificate import Certificate

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = ROOT / "build/package"
ON_STAGE = "ORMALA_PACKAGE_STAGE"
SECONDS = 400

sys.path.insert(0, str(ROOT / "packaging"))
from installer import make_installer
from release import version_of

UNINSTALL = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Ormala"
FOR_USER = f"HKEY_CURRENT_USER\\{UNINSTALL}"
FOR_ALL = f"HKEY_LOCAL_MACHINE\\{UNINSTALL}"
OPENED = "HKEY_CURRENT_USER\\Software\\Ormala Test"
CONTROL_WINDOW = "^Ormala - "
STILL_RUNS = 2
NOTES = {"Read me.txt", "Lies mich.txt"}
START_MENU = "Microsoft/Windows/Start Menu/Programs/Ormala.lnk"


def portable_files():
    with zipfile.ZipFile(PACKAGE / f"Ormala-{version_of(ROOT)}-portable.zip") as archive:
        return {name.removeprefix("Ormala/"): archive.read(name) for name in archive.namelist()}


def program_files():
    return {name: data for name, data in portable_files().items() if name not in NOTES}


def write_files(files, folder):
    for name, data in files.items():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(data)


def note_opened_pages():
    """Whatever page the system is asked to open, its path is noted in the registry."""
    windows.set_value("HKCR\\.html", None, "OrmalaTest.Page")
    windows.set_value(
        "HKCR\\OrmalaTest.Page\\shell\\open\\command", None,
        'C:\\windows\\system32\\reg.exe add "HKCU\\Software\\Ormala Test" /v Opened /d "%1" /f')


def opened_page():
    windows.system_tool("reg", "delete", OPENED, "/f")
    windows.press_until(CONTROL_WINDOW, "F1", "an opened page", lambda: windows.system_tool(
        "reg", "query", OPENED, "/v", "Opened")[0] == 0)
    return windows.text_of(windows.registry()[OPENED]['"Opened"'])


def added_keys(before, after):
    """Without what the system makes by itself: notes of Wine's own, and the key above that of the
    program with the first one in it."""
    return {key for key in set(after) - set(before)
            if "\\Software\\Wine\\" not in key and not FOR_USER.startswith(f"{key}\\")}


class Stage(unittest.TestCase):
    """A drive on which nothing of Ormala is left by the test before."""

    def setUp(self):
        self.setup = windows.DRIVE / "setup.exe"
        shutil.copy(PACKAGE / f"Ormala-{version_of(ROOT)}-setup.exe", self.setup)
        self.for_user = windows.local_data() / "Programs/Ormala"
        self.for_all = windows.DRIVE / "Program Files/Ormala"
        self.settings = windows.roaming_data() / "Ormala"
        self.running = []
        self.addCleanup(self.clear)

    def clear(self):
        for program in self.running:
            if program.poll() is None:
                program.kill()
                program.wait()
        for folder in (self.for_user, self.for_all):
            if (folder / "Uninstall.exe").exists():
                self.remove(folder)
            shutil.rmtree(folder, ignore_errors=True)
        shutil.rmtree(self.settings, ignore_errors=True)

    def start(self, folder):
        program = windows.start(folder / "Ormala.exe")
        self.running.append(program)
        windows.activate(CONTROL_WINDOW)
        return program

    def close(self, program):
        windows.press_until(CONTROL_WINDOW, "alt+F4", "the end of the program",
                            lambda: program.poll() is not None)
        self.assertEqual(program.returncode, 0)

    def install(self, *arguments, setup=None):
        self.assertEqual(windows.run(setup or self.setup, "/S", *arguments), 0)

    def remove(self, folder):
        """Silently. The uninstaller goes on as a copy of itself, which removes it at the end."""
        windows.run(folder / "Uninstall.exe", "/S")
        windows.wait_for("the end of the removal", lambda: not (folder / "Uninstall.exe").exists())

    def other_setup(self, version, added):
        """The installer of another version, which has some files more."""
        setup = windows.DRIVE / "other.exe"
        setup.unlink(missing_ok=True)
        with tempfile.TemporaryDirectory() as work:
            make_installer(ROOT, version, program_files() | added, pathlib.Path(work), setup)
        return setup

    def older_setup(self, added):
        return self.other_setup("0.9.0", added)


class Installation(Stage):
    def test_a_silent_installation_is_for_this_user_alone(self):
        before = windows.registry()
        self.install()
        expected = program_files()
        self.assertEqual(windows.files_below(self.for_user), set(expected) | {"Uninstall.exe"})
        for name, data in expected.items():
            self.assertEqual((self.for_user / name).read_bytes(), data, name)
        self.assertFalse(self.for_all.exists())
        self.assertTrue((windows.roaming_data() / START_MENU).exists())

        after = windows.registry()
        self.assertEqual(added_keys(before, after), {FOR_USER})
        entry = {name.strip('"'): value for name, value in after[FOR_USER].items()}
        place = windows.windows_path(self.for_user)
        kilobytes = int(entry.pop("EstimatedSize").removeprefix("dword:"), 16)
        self.assertAlmostEqual(kilobytes, sum(map(len, expected.values())) / 1024,
                               delta=len(expected))
        for name in ("NoModify", "NoRepair"):
            self.assertEqual(entry.pop(name), "dword:00000001")
        self.assertEqual({name: windows.text_of(value) for name, value in entry.items()}, {
            "DisplayName": "Ormala",
            "DisplayVersion": version_of(ROOT),
            "Publisher": "The Ormala authors",
            "DisplayIcon": f"{place}\\Ormala.exe,0",
            "InstallLocation": place,
            "UninstallString": f'"{place}\\Uninstall.exe"',
            "QuietUninstallString": f'"{place}\\Uninstall.exe" /S',
        })

        self.remove(self.for_user)
        windows.wait_for("an empty place", lambda: not self.for_user.exists())
        self.assertFalse((windows.roaming_data() / START_MENU).exists())
        self.assertEqual(added_keys(before, windows.registry()), set())

    def test_for_all_users_on_request(self):
        self.install("/ALLUSERS")
        self.assertFalse(self.for_user.exists())
        self.assertEqual(windows.files_below(self.for_all),
                         set(program_files()) | {"Uninstall.exe"})
        self.assertTrue((windows.DRIVE / "ProgramData" / START_MENU).exists())
        self.assertIn(FOR_ALL, windows.registry())
        self.assertNotIn(FOR_USER, windows.registry())
        # What is there for all users is updated for all users.
        self.install()
        self.assertFalse(self.for_user.exists())

        self.remove(self.for_all)
        windows.wait_for("an empty place", lambda: not self.for_all.exists())
        self.assertFalse((windows.DRIVE / "ProgramData" / START_MENU).exists())
        self.assertNotIn(FOR_ALL, windows.registry())

    def test_the_installed_program_opens_its_own_help_and_closes(self):
        note_opened_pages()
        self.install()
        program = self.start(self.for_user)
        self.assertEqual(opened_page(), windows.windows_path(self.for_user / "help_en.html"))
        self.close(program)
        self.assertTrue((self.settings / "Ormala.ini").exists())


class Signed(Stage):
    def test_the_uninstaller_bears_the_signature_too(self):
        with tempfile.TemporaryDirectory() as folder:
            certificate = Certificate(pathlib.Path(folder))
            with unittest.mock.patch.dict(os.environ, {"ORMALA_SIGN": certificate.command}):
                setup = self.other_setup(version_of(ROOT), {})
            self.install(setup=setup)
            for path in (setup, self.for_user / "Uninstall.exe"):
                good, said = certificate.verification(path)
                self.assertTrue(good, said)
            self.remove(self.for_user)


class Update(Stage):
    def test_a_running_program_is_closed_and_what_is_outdated_goes(self):
        self.install(setup=self.older_setup({"former.png": b"old", "former/page.txt": b"old"}))
        self.assertTrue((self.for_user / "former/page.txt").exists())
        own = self.for_user / "My tools.OM"
        own.write_text("mine")
        program = self.start(self.for_user)

        self.install()
        self.assertEqual(program.wait(timeout=windows.PATIENCE), 0)
        self.assertTrue((self.settings / "Ormala.ini").exists())
        self.assertEqual(windows.files_below(self.for_user),
                         set(program_files()) | {"Uninstall.exe", own.name})
        self.assertFalse((self.for_user / "former").exists())
        version = windows.registry()[FOR_USER]['"DisplayVersion"']
        self.assertEqual(windows.text_of(version), version_of(ROOT))

    def test_a_program_that_does_not_close_is_left_alone(self):
        self.install(setup=self.older_setup({"former.png": b"old"}))
        program = self.start(self.for_user)
        program.send_signal(signal.SIGSTOP)
        self.addCleanup(program.send_signal, signal.SIGCONT)
        self.assertEqual(windows.run(self.setup, "/S"), STILL_RUNS)
        self.assertTrue((self.for_user / "former.png").exists())
        self.assertEqual(windows.text_of(windows.registry()[FOR_USER]['"DisplayVersion"']), "0.9.0")

    def test_whoever_updates_by_hand_is_asked(self):
        self.install()
        program = self.start(self.for_user)
        setup = windows.start(self.setup)
        self.running.append(setup)
        windows.press_until("^Ormala Setup", "Escape", "the end of the setup",
                            lambda: setup.poll() is not None)
        self.assertEqual(setup.returncode, 1)
        self.assertIsNone(program.poll())

        setup = windows.start(self.setup)
        self.running.append(setup)
        windows.press_until("^Ormala Setup", "Return", "the end of the program",
                            lambda: program.poll() is not None)
        self.assertEqual(program.returncode, 0)


class Removal(Stage):
    OWN = ("Mine.OM", "notes.txt")
    OF_PROGRAM = ("Ormala.ini", "Ormala Tools.ini", "Ormala (kept 2026-01-31 23.05.09).ini",
                  "Ormala Tools (kept 2026-01-31 23.05.09, 2).ini",
                  "Ormala (previous).ini", "Ormala Tools (previous).ini", "Ormala (other).ini",
                  "Ormala Tools (other 2).ini", "~settings-12-3.tmp")

    def setUp(self):
        super().setUp()
        self.install()
        self.settings.mkdir(exist_ok=True)
        for name in self.OWN + self.OF_PROGRAM:
            (self.settings / name).write_text(name)

    def test_settings_and_what_the_user_put_there_stay(self):
        (self.for_user / "Mine.OM").write_text("mine")
        self.remove(self.for_user)
        self.assertNotIn(FOR_USER, windows.registry())
        self.assertEqual(windows.files_below(self.for_user), {"Mine.OM"})
        self.assertEqual(windows.files_below(self.settings), set(self.OWN + self.OF_PROGRAM))

    def remove_by_hand(self, folder, with_settings=False):
        uninstaller = "^Ormala Uninstall"
        windows.run(folder / "Uninstall.exe")
        windows.settle(uninstaller)
        if with_settings:
            windows.keys("space")
        windows.press_until(uninstaller, "Return", "the end of the removal",
                            lambda: not folder.exists())
        windows.press_until(uninstaller, "Return", "the end of the uninstaller",
                            lambda: not windows.windows_named(uninstaller))

    def test_settings_stay_unless_it_is_wished(self):
        self.remove_by_hand(self.for_user)
        self.assertEqual(windows.files_below(self.settings), set(self.OWN + self.OF_PROGRAM))

    def test_settings_go_on_request_and_files_of_the_user_never(self):
        self.remove_by_hand(self.for_user, with_settings=True)
        self.assertEqual(windows.files_below(self.settings), set(self.OWN))

    def test_settings_are_those_of_the_user_also_where_it_was_for_all(self):
        self.install("/ALLUSERS")
        self.remove_by_hand(self.for_all, with_settings=True)
        self.assertEqual(windows.files_below(self.settings), set(self.OWN))


class Portable(Stage):
    def test_it_runs_in_a_folder_with_blanks_and_umlauts(self):
        note_opened_pages()
        folder = windows.DRIVE / "Schöne Größen für mich"
        write_files(portable_files(), folder)
        self.addCleanup(shutil.rmtree, folder)
        program = self.start(folder)
        self.assertEqual(opened_page(), windows.windows_path(folder / "help_en.html"))
        self.close(program)
        self.assertEqual(windows.files_below(folder), set(portable_files()))

    def test_the_program_alone_says_that_its_help_is_missing(self):
        note_opened_pages()
        windows.system_tool("reg", "delete", OPENED, "/f")
        folder = windows.DRIVE / "alone"
        write_files({"Ormala.exe": portable_files()["Ormala.exe"]}, folder)
        self.addCleanup(shutil.rmtree, folder)
        program = self.start(folder)
        message = "^Ormala$"
        windows.settle(CONTROL_WINDOW)
        windows.keys("F1")
        windows.wait_for("a message", lambda: windows.windows_named(message))
        self.assertTrue(windows.windows_named(f"{CONTROL_WINDOW}Edit$"))
        self.assertNotIn(OPENED, windows.registry())
        windows.press_until(message, "Return", "the end of the message",
                            lambda: not windows.windows_named(message))
        self.close(program)


def run_on_stage():
    """The exit code of these tests in a stage of their own."""
    source = ROOT / "build/wine"
    prefix = ROOT / "build/wine-package"
    subprocess.run([ROOT / "tools/prefix"], check=True, stdin=subprocess.DEVNULL)
    shutil.rmtree(prefix, ignore_errors=True)
    try:
        subprocess.run(["cp", "-a", "--reflink=auto", source, prefix], check=True)
        return subprocess.run(
            [ROOT / "tools/stage", "--", "timeout", str(SECONDS), sys.executable, "-B", __file__,
             *sys.argv[1:]],
            env=os.environ | {"ORMALA_WINEPREFIX": str(prefix), ON_STAGE: "yes"}, check=False,
            stdin=subprocess.DEVNULL).returncode
    finally:
        shutil.rmtree(prefix, ignore_errors=True)


if __name__ == "__main__":
    if ON_STAGE in os.environ:
        unittest.main(verbosity=2)
    sys.exit(run_on_stage())
