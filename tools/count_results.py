#!/usr/bin/env python3
"""Counts the results that CTest and GoogleTest leave as JUnit files.

With --suite FILE it tells about one suite and fails if one of its tests did. A suite that ended
with an error code and no failed test, or without a file, crashed: that is a failure of its own,
which is remembered in a file beside the results. A test that was left out has failed, but for those
few that a system may be unable to run: they are told of and not counted.
With --sum DIRECTORY it prints what each failed test said, then the line "N passed, N failed" over all
suites, and fails if a test failed or if none ran.
"""

import argparse
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


# What a system may lack that tools/setup cannot give it.
MAY_BE_LEFT_OUT = {"help.chromium"}

# Of what a failed test said.
MOST_LINES = 40
LAST_LINES = 10


def left_out(case):
    return case.find("skipped") is not None or case.get("status") in ("notrun", "disabled")


def passes(case):
    """A test that was left out proves nothing, so that it counts as failed."""
    return not left_out(case) and case.find("failure") is None and case.find("error") is None


def excused(case):
    return left_out(case) and full_name(case) in MAY_BE_LEFT_OUT


def full_name(case):
    """GoogleTest gives the suite as the class name; CTest repeats the test's own name."""
    suite, name = case.get("classname", ""), case.get("name", "")
    return name if suite in ("", name) else f"{suite}.{name}"


def count(path):
    """(passed, names of the failed) of one file; None where there is no readable file."""
    cases = cases_of(path)
    if cases is None:
        return None
    counted = [case for case in cases if not excused(case)]
    failed = [full_name(case) for case in counted if not passes(case)]
    return len(counted) - len(failed), failed


def cases_of(path):
    try:
        return list(ElementTree.parse(path).getroot().iter("testcase"))
    except (OSError, ElementTree.ParseError):
        return None


def tell_excused(path):
    for case in filter(excused, cases_of(path) or []):
        said = (case.findtext("system-out") or "").strip()
        print(f"   left out: {full_name(case)}" + (f": {said}" if said else ""))


def what_it_said(case):
    """The failures in a test's output, or the end of it if there are none, as after a time limit."""
    failure = case.find("failure")
    said = case.findtext("system-out") or (failure.text if failure is not None else "") or ""
    told, telling = [], False
    for line in said.splitlines():
        if line.startswith("[") or line.rstrip().endswith("Failure"):
            telling = not line.startswith("[") or "FAILED" in line
        if telling and line.strip():
            told.append(line.rstrip())
    return told[:MOST_LINES] or said.rstrip().splitlines()[-LAST_LINES:]


def tell_failures(directory):
    for path in sorted(directory.glob("*.xml")):
        for case in cases_of(path) or []:
            if not passes(case) and not excused(case):
                print(f"failed: {full_name(case)} ({path.stem})")
                for line in what_it_said(case):
                    print(f"   {line}")


def crash_mark(path):
    return path.with_suffix(".crashed")


def report_suite(path, exit_code):
    counted = count(path)
    if counted is None or (exit_code != 0 and not counted[1]):
        crash_mark(path).write_text(f"{exit_code}\n", encoding="utf-8")
        print(f"   ended with exit code {exit_code}")
    passed, failed = counted or (0, [])
    print(f"   passed {passed}, failed {len(failed)}")
    tell_excused(path)
    for name in failed:
        print(f"   failed: {name}")
    return not failed and not crash_mark(path).exists()


def report_sum(directory, failed_steps):
    tell_failures(directory)
    passed, failed = 0, failed_steps
    for path in sorted(directory.glob("*.xml")):
        counted = count(path)
        if counted is not None:
            passed += counted[0]
            failed += len(counted[1])
    failed += len(list(directory.glob("*.crashed")))
    print(f"{passed} passed, {failed} failed")
    return failed == 0 and passed > 0


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--suite", type=pathlib.Path)
    parser.add_argument("--exit-code", type=int, default=0)
    parser.add_argument("--sum", type=pathlib.Path)
    parser.add_argument("--failed-steps", type=int, default=0)
    arguments = parser.parse_args()
    if arguments.suite:
        good = report_suite(arguments.suite, arguments.exit_code)
    else:
        good = report_sum(arguments.sum, arguments.failed_steps)
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main()
