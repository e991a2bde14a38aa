"""What is run in the pauses of others: it gets least, and is otherwise as if it were run at once."""

import os
import pathlib
import subprocess
import sys
import unittest

ROOT = pathlib.Path(sys.argv[1])


def run_when_idle(*command):
    return subprocess.run(["tools/when_idle", *command], cwd=ROOT, check=False, capture_output=True,
                          text=True, timeout=60)


def shares_among_sessions():
    """The file is empty, or not there, where the kernel does not."""
    group = pathlib.Path("/proc/self/autogroup")
    return group.exists() and group.read_text(encoding="ascii") != ""


class WhenIdle(unittest.TestCase):
    def test_the_command_keeps_its_arguments_and_its_code(self):
        ended = run_when_idle("sh", "-c", 'printf "%s|" "$@"; exit 7', "sh", "a b", "")
        self.assertEqual((ended.returncode, ended.stdout), (7, "a b||"))

    def test_all_others_go_first(self):
        script = "import os; print(os.sched_getscheduler(0), os.getpriority(os.PRIO_PROCESS, 0))"
        policy, priority = map(int, run_when_idle(sys.executable, "-c", script).stdout.split())
        self.assertTrue(policy == os.SCHED_IDLE or priority == 19, (policy, priority))

    @unittest.skipUnless(shares_among_sessions(), "shares among processes only")
    def test_its_session_goes_after_all_others(self):
        shown = run_when_idle("cat", "/proc/self/autogroup").stdout
        self.assertTrue(shown.strip().endswith("nice 19"), shown)

    def test_without_a_command_it_says_how_it_is_called(self):
        ended = run_when_idle()
        self.assertEqual(ended.returncode, 2)
        self.assertIn("tools/when_idle COMMAND", ended.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
