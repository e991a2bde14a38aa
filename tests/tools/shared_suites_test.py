"""The suites that stages share: each is played once, the longest first, and no result is lost."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PROJECT = pathlib.Path(sys.argv[1]).resolve()
TOOL = PROJECT / "tools" / "shared_suites.py"
TIMEOUT_SECONDS = 60

# Shows the tests of a file, or plays one of them: "e2e.Bad" fails, "e2e.Lost" leaves no result.
CTEST = f"""#!{sys.executable}
import os, pathlib, re, sys
arguments = sys.argv[1:]
if "--show-only=json-v1" in arguments:
    print(pathlib.Path(os.environ["SHOWN"]).read_text())
    sys.exit()
pattern = arguments[arguments.index("--tests-regex") + 1]
name = next(each for each in ("e2e.Bad", "e2e.Good", "e2e.Lost", "e2e.Goods")
            if re.search(pattern, each))
with open(os.environ["PLAYED"], "a") as played:
    played.write(name + " " + arguments[0] + "\\n")
if name != "e2e.Lost":
    pathlib.Path(arguments[arguments.index("--output-junit") + 1]).write_text(
        f'<testsuite><testcase name="{{name}}"/></testsuite>')
sys.exit(8 if name == "e2e.Bad" else 0)
"""


def shown(name, *properties):
    return {"name": name,
            "properties": [{"name": each, "value": value} for each, value in properties]}


class SharedSuites(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        ctest = self.folder / "ctest"
        ctest.write_text(CTEST, encoding="utf-8")
        ctest.chmod(0o755)
        self.list = self.folder / "list"
        self.results = self.folder / "results.xml"

    def start(self, *arguments):
        return subprocess.Popen(
            [sys.executable, "-B", TOOL, *arguments], stderr=subprocess.DEVNULL,
            env=os.environ | {"PATH": f"{self.folder}:{os.environ['PATH']}",
                              "SHOWN": str(self.folder / "shown"),
                              "PLAYED": str(self.folder / "played")})

    def run_tool(self, *arguments):
        return self.start(*arguments).wait(timeout=TIMEOUT_SECONDS)

    def play(self, *names):
        self.list.write_text("".join(f"{name}\n" for name in names), encoding="utf-8")
        return self.run_tool("play", self.list, self.results, "--option")

    def played(self):
        return (self.folder / "played").read_text(encoding="utf-8").splitlines()

    def names_in_results(self):
        return [case.get("name") for case in ElementTree.parse(self.results).iter("testcase")]

    def test_the_longest_come_first_and_others_in_their_order(self):
        tests = [shown("e2e.B"), shown("e2e.A", ("LABELS", ["e2e"])),
                 shown("e2e.Long", ("COST", 30)), shown("e2e.Longest", ("TIMEOUT", 9.0), ("COST", 80))]
        (self.folder / "shown").write_text(json.dumps({"tests": tests}), encoding="utf-8")
        self.assertEqual(self.run_tool("fill", self.list), 0)
        self.assertEqual(self.list.read_text(encoding="utf-8").splitlines(),
                         ["e2e.Longest", "e2e.Long", "e2e.B", "e2e.A"])

    def test_all_of_the_list_are_played_and_no_others(self):
        self.assertEqual(self.play("e2e.Goods", "e2e.Good"), 0)
        self.assertEqual(self.played(), ["e2e.Goods --option", "e2e.Good --option"])
        self.assertEqual(self.names_in_results(), ["e2e.Goods", "e2e.Good"])
        self.assertEqual(self.list.read_text(encoding="utf-8"), "")

    def test_a_suite_that_fails_is_told_of_and_the_others_are_played(self):
        self.assertEqual(self.play("e2e.Bad", "e2e.Good"), 1)
        self.assertEqual(self.names_in_results(), ["e2e.Bad", "e2e.Good"])

    def test_a_suite_without_a_result_is_an_error(self):
        self.assertNotEqual(self.play("e2e.Lost"), 0)
        self.assertFalse(self.results.exists())

    def test_where_none_is_left_there_are_no_results_and_no_error(self):
        self.assertEqual(self.play(), 0)
        self.assertEqual(self.names_in_results(), [])

    def test_none_is_played_twice(self):
        names = ["e2e.Good", "e2e.Goods"] * 10
        self.list.write_text("".join(f"{name}\n" for name in names), encoding="utf-8")
        results = [self.folder / f"{number}.xml" for number in range(3)]
        stages = [self.start("play", self.list, result, "--option") for result in results]
        self.assertEqual([stage.wait(timeout=TIMEOUT_SECONDS) for stage in stages], [0, 0, 0])
        self.assertEqual(len(self.played()), len(names))
        self.assertEqual(sum(len(list(ElementTree.parse(result).iter("testcase")))
                             for result in results), len(names))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
