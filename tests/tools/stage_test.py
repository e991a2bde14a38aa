"""The virtual screen: it ends whatever its parts do."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv[1])

DEAF_SCREEN = """#!/bin/bash
trap '' TERM
setpriv --pdeathsig KILL {server} "$@" &
echo $$ >{note}
while kill -0 $! 2>/dev/null; do wait $!; done
"""


@unittest.skipUnless(shutil.which("Xvfb"), "needs a virtual screen")
class Ending(unittest.TestCase):
    def test_a_screen_that_does_not_listen_is_killed(self):
        with tempfile.TemporaryDirectory() as folder:
            note = pathlib.Path(folder, "number")
            screen = pathlib.Path(folder, "Xvfb")
            screen.write_text(DEAF_SCREEN.format(server=shutil.which("Xvfb"), note=note),
                              encoding="utf-8")
            screen.chmod(0o755)
            ended = subprocess.run(
                ["tools/stage", "--no-wine", "--size", "320x240", "--", "sh", "-c", "exit 7"],
                cwd=ROOT, env={**os.environ, "PATH": f"{folder}:{os.environ['PATH']}"}, check=False,
                timeout=60)
            self.assertEqual(ended.returncode, 7)
            self.assertFalse(pathlib.Path("/proc", note.read_text().strip()).exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
