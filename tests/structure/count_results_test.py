"""The counter of results, on files like those of CTest and GoogleTest."""

import contextlib
import io
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import count_results

PASSED = '<testcase name="Good" classname="Suite"/>'
FAILED = '<testcase name="Bad" classname="Suite"><failure message="no"/></testcase>'
SKIPPED = '<testcase name="Left" classname="Left" status="notrun"><skipped/></testcase>'

EXCUSED = ('<testcase name="help.chromium" classname="help.chromium" status="notrun">'
           '<skipped/><system-out>There is none.\n</system-out></testcase>')


class CountResults(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.directory = pathlib.Path(self.folder.name)

    def suite(self, name, cases, exit_code=0):
        path = self.directory / f"{name}.xml"
        if cases is not None:
            path.write_text(f"<testsuite>{cases}</testsuite>", encoding="utf-8")
        with contextlib.redirect_stdout(io.StringIO()):
            return count_results.report_suite(path, exit_code)

    def sum(self, failed_steps=0):
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            good = count_results.report_sum(self.directory, failed_steps)
        return good, printed.getvalue()

    def test_all_suites_are_summed(self):
        self.assertTrue(self.suite("one", PASSED + PASSED))
        self.assertTrue(self.suite("two", PASSED))
        self.assertEqual(self.sum(), (True, "3 passed, 0 failed\n"))

    def test_a_failed_test_fails_its_suite_and_the_sum(self):
        self.assertFalse(self.suite("one", PASSED + FAILED, exit_code=8))
        self.assertEqual(self.sum(), (False, "failed: Suite.Bad (one)\n1 passed, 1 failed\n"))

    def test_what_a_failed_test_said_stands_before_the_sum(self):
        said = ("[ RUN      ] Suite.Bad\nplace.cpp:7: Failure\n  Actual: 1\nExpected: 2\n\n"
                "[  FAILED  ] Suite.Bad\n[ RUN      ] Suite.Good\nnothing to tell\n")
        self.suite("one", FAILED.replace("</testcase>", f"<system-out>{said}</system-out></testcase>"))
        self.assertEqual(self.sum()[1], "failed: Suite.Bad (one)\n   place.cpp:7: Failure\n"
                         "     Actual: 1\n   Expected: 2\n   [  FAILED  ] Suite.Bad\n"
                         "0 passed, 1 failed\n")

    def test_a_test_that_hung_tells_its_last_lines(self):
        said = "\n".join(f"line {i}" for i in range(100))
        self.suite("one", FAILED.replace("</testcase>", f"<system-out>{said}</system-out></testcase>"))
        told = self.sum()[1].splitlines()
        self.assertEqual(told[1], "   line 90")
        self.assertEqual(told[-2:], ["   line 99", "0 passed, 1 failed"])

    def test_a_test_that_did_not_run_is_failed(self):
        self.assertFalse(self.suite("one", PASSED + SKIPPED))
        self.assertEqual(self.sum(), (False, "failed: Left (one)\n1 passed, 1 failed\n"))

    def test_what_a_system_may_lack_is_told_of_and_not_counted(self):
        printed = io.StringIO()
        path = self.directory / "one.xml"
        path.write_text("<testsuite>" + PASSED + EXCUSED + "</testsuite>", encoding="utf-8")
        with contextlib.redirect_stdout(printed):
            self.assertTrue(count_results.report_suite(path, 0))
        self.assertIn("left out: help.chromium: There is none.", printed.getvalue())
        self.assertEqual(self.sum(), (True, "1 passed, 0 failed\n"))

    def test_what_a_system_may_lack_can_fail(self):
        failed = EXCUSED.replace(' status="notrun"', "").replace("skipped", "failure")
        self.assertFalse(self.suite("one", PASSED + failed))
        self.assertEqual(self.sum(), (False, "failed: help.chromium (one)\n   There is none.\n"
                                             "1 passed, 1 failed\n"))

    def test_a_crash_is_a_failure_of_its_own(self):
        self.assertFalse(self.suite("no file", None, exit_code=5))
        self.assertFalse(self.suite("good file", PASSED, exit_code=5))
        self.assertEqual(self.sum(), (False, "1 passed, 2 failed\n"))

    def test_a_suite_that_left_no_file_is_a_failure(self):
        self.assertFalse(self.suite("one", None))
        self.assertEqual(self.sum(), (False, "0 passed, 1 failed\n"))

    def test_no_test_at_all_is_no_success(self):
        self.assertTrue(self.suite("one", ""))
        self.assertEqual(self.sum(), (False, "0 passed, 0 failed\n"))

    def test_a_failed_step_counts(self):
        self.suite("one", PASSED)
        self.assertEqual(self.sum(failed_steps=1), (False, "1 passed, 1 failed\n"))


if __name__ == "__main__":
    unittest.main()
