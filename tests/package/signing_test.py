"""Signing, with a certificate of our own."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

from certificate import Certificate

ROOT = pathlib.Path(__file__).resolve().parents[2]
# Program, uninstaller and installer.
SIGNED = 3


class Signing(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.certificate = Certificate(self.folder)
        self.output = self.folder / "package"

    def package(self, command):
        return subprocess.run(
            [sys.executable, ROOT / "tools/package", "--output", self.output],
            env=os.environ | {"ORMALA_SIGN": command}, check=False,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def assert_good(self, path):
        good, said = self.certificate.verification(path)
        self.assertTrue(good, said)

    def assert_change_is_found(self, path):
        data = bytearray(path.read_bytes())
        data[len(data) // 2] ^= 1
        path.write_bytes(data)
        self.assertFalse(self.certificate.verification(path)[0])

    def test_program_uninstaller_and_installer_are_signed(self):
        done = self.package(self.certificate.command)
        self.assertEqual(done.returncode, 0, done.stdout)
        signed = self.certificate.signed_files()
        self.assertEqual(len(signed), SIGNED)
        for path in signed:
            self.assert_good(path)
        setup = next(self.output.glob("*-setup.exe"))
        self.assert_good(setup)
        with zipfile.ZipFile(next(self.output.glob("*-portable.zip"))) as archive:
            self.assert_good(archive.extract("Ormala/Ormala.exe", self.folder))
        self.assert_change_is_found(setup)

    def test_a_failed_signature_makes_no_package(self):
        done = self.package("false %f")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("Could not make the package", done.stdout)
        self.assertFalse((self.output / "SHA256SUMS").exists())

    def test_a_folder_of_other_things_is_left_alone(self):
        self.output.mkdir()
        other = self.output / "letter.txt"
        other.write_text("mine")
        done = self.package("")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("holds something else", done.stdout)
        self.assertTrue(other.exists())

    def test_a_command_that_signs_nothing_has_failed(self):
        file = self.folder / "program.exe"
        file.write_bytes(b"program")
        for command in ("true %f", "true"):
            done = subprocess.run(
                [sys.executable, "-B", ROOT / "packaging/signing.py", file], check=False,
                env=os.environ | {"ORMALA_SIGN": command}, stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
            self.assertNotEqual(done.returncode, 0)
            self.assertIn("ORMALA_SIGN", done.stderr)


if __name__ == "__main__":
    unittest.main()
