"""Two builds of the same sources, in two folders, at two times, by two users: the same bytes."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = ROOT / "build/package"
OTHER_USER = {"TZ": "Asia/Tokyo", "LC_ALL": "C", "LANG": "C", "USER": "other"}


def git(*arguments):
    return subprocess.run(["git", *map(str, arguments)], check=True, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE).stdout


def copy_sources(target):
    """A clone of the commit, with the files as they are here."""
    git("clone", "--quiet", "--shared", "--no-checkout", ROOT, target)
    listed = git("-C", ROOT, "ls-files", "-z", "--cached", "--others", "--exclude-standard")
    for name in listed.decode().split("\0"):
        source = ROOT / name
        if name and source.is_file():
            (target / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target / name)


class Reproducible(unittest.TestCase):
    def test_another_folder_and_another_day_give_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            target = pathlib.Path(folder) / "a folder with a much longer name" / "Ormala"
            target.parent.mkdir()
            copy_sources(target)
            done = subprocess.run(
                [sys.executable, target / "tools/package"], umask=0o077, check=False,
                env=os.environ | OTHER_USER, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT, text=True)
            self.assertEqual(done.returncode, 0, done.stdout)
            other = target / "build/package"
            names = sorted(path.name for path in PACKAGE.iterdir())
            self.assertEqual(sorted(path.name for path in other.iterdir()), names)
            self.assertGreater(len(names), 1)
            different = [name for name in names
                         if (PACKAGE / name).read_bytes() != (other / name).read_bytes()]
            self.assertEqual(different, [])


if __name__ == "__main__":
    unittest.main()
