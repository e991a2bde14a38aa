"""Shows that the rules of the structure can be broken: each on a small bad tree."""

import unittest

import include_rules
import source_lists

HEADER = "#pragma once\n"


class IncludeRules(unittest.TestCase):
    def assert_complaint(self, tree, words):
        found = include_rules.complaints(tree)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_good_tree_has_no_complaints(self):
        tree = {
            "modAPI/points.h": HEADER + '#include <vector>\n#include "base/Utf8.h"\n',
            "platform/win/Window.h": HEADER + "#include <windows.h>\n",
            "stencil/Stencil.h": HEADER + '#include "modAPI/points.h"\n',
            "stencil/Stencil.cpp": '#include "stencil/Stencil.h"\n\n#include <cmath>\n',
            "app/win/frmSettings.cpp": '#include "platform/win/Window.h"\n',
        }
        self.assertEqual(include_rules.complaints(tree), [])

    def test_a_higher_level_is_out_of_reach(self):
        self.assert_complaint({"scene/a.cpp": '#include "app/b.h"\n'}, "scene may not use app")

    def test_the_same_level_is_out_of_reach(self):
        tree = {"stencil/a.cpp": '#include "measure/b.h"\n'}
        self.assert_complaint(tree, "stencil may not use measure")

    def test_a_named_neighbour_is_within_reach_in_one_direction(self):
        good = {"platform/win/a.cpp": '#include "scene/Canvas.h"\n'}
        self.assertEqual(include_rules.complaints(good), [])
        bad = {"scene/Canvas.cpp": '#include "platform/a.h"\n'}
        self.assert_complaint(bad, "scene may not use platform")

    def test_the_sheet_knows_no_kind_of_tool(self):
        tree = {"worksheet/a.cpp": '#include "stencil/b.h"\n'}
        self.assert_complaint(tree, "worksheet may not use stencil")

    def test_portable_code_includes_no_header_of_a_window(self):
        tree = {"app/a.cpp": '#include "platform/win/Window.h"\n'}
        self.assert_complaint(tree, "app/a.cpp is portable")

    def test_portable_code_includes_no_header_of_the_system(self):
        self.assert_complaint({"app/a.cpp": "#include <windows.h>\n"}, "is portable")
        self.assert_complaint({"app/a.cpp": "  #  include <sys/stat.h>\n"}, "is portable")

    def test_an_include_in_a_comment_is_none(self):
        tree = {"app/a.cpp": "// #include <windows.h>\n/*\n#include <windows.h>\n*/\n"}
        self.assertEqual(include_rules.complaints(tree), [])

    def test_an_include_starts_with_its_folder(self):
        self.assert_complaint({"app/a.cpp": '#include "b.h"\n'}, "does not start with a folder")

    def test_a_header_is_read_once(self):
        self.assert_complaint({"app/a.h": "int a();\n"}, "no #pragma once")

    def test_the_own_header_comes_first(self):
        tree = {"app/a.h": HEADER, "app/a.cpp": '#include <vector>\n#include "app/a.h"\n'}
        self.assert_complaint(tree, "own header first")

    def test_a_long_file_is_refused(self):
        allowed = "\n" * include_rules.MAXIMUM_LINES
        self.assertEqual(include_rules.complaints({"app/a.cpp": allowed}), [])
        self.assert_complaint({"app/a.cpp": allowed + "\n"}, "more than")

    def test_a_table_of_data_may_be_long(self):
        table = min(include_rules.DATA_TABLES)
        self.assertEqual(include_rules.complaints({table: "\n" * 1000}), [])

    def test_a_cycle_is_found_over_three_files(self):
        tree = {
            "app/a.h": HEADER + '#include "app/b.h"\n',
            "app/b.h": HEADER + '#include "app/c.h"\n',
            "app/c.h": HEADER + '#include "app/a.h"\n',
        }
        self.assert_complaint(tree, "app/a.h -> app/b.h -> app/c.h -> app/a.h")

    def test_a_folder_without_a_level_is_refused(self):
        self.assert_complaint({"other/a.cpp": ""}, "has no level")


class SourceLists(unittest.TestCase):
    def assert_complaint(self, tree, words):
        found = source_lists.complaints(tree)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_good_tree_has_no_complaints(self):
        tree = {
            "src/a/CMakeLists.txt": "ormala_library(a SOURCES\n  x.cpp LINK base)\n"
            "ormala_windows_library(a SOURCES y.cpp)\n",
            "src/a/x.cpp": "",
            "src/a/win/y.cpp": "",
            "tests/a/CMakeLists.txt": "target_sources(unit PRIVATE x_test.cpp ../b/z.cpp)\n"
            'add_executable(b "${PROJECT_SOURCE_DIR}/tests/b/z.cpp" ${name}_fuzz.cpp)\n',
            "tests/a/x_test.cpp": "",
            "tests/a/one_fuzz.cpp": "",
            "tests/b/z.cpp": "",
        }
        self.assertEqual(source_lists.complaints(tree), [])

    def test_a_forgotten_file_is_found(self):
        tree = {"src/a/CMakeLists.txt": "ormala_library(a SOURCES)\n", "src/a/x.cpp": ""}
        self.assert_complaint(tree, "src/a/x.cpp is listed in no")

    def test_a_file_named_in_a_comment_is_forgotten(self):
        tree = {"src/a/CMakeLists.txt": "# f(x.cpp)\n", "src/a/x.cpp": ""}
        self.assert_complaint(tree, "src/a/x.cpp is listed in no")

    def test_a_portable_file_is_no_file_of_windows(self):
        tree = {
            "src/a/CMakeLists.txt": "ormala_windows_library(a SOURCES x.cpp)\n",
            "src/a/x.cpp": "",
            "src/a/win/x.cpp": "",
        }
        self.assert_complaint(tree, "src/a/x.cpp is listed in no")

    def test_a_source_is_listed_once(self):
        tree = {"src/a/CMakeLists.txt": "f(x.cpp)\ng(x.cpp)\n", "src/a/x.cpp": ""}
        self.assert_complaint(tree, "listed 2 times")

    def test_a_missing_file_is_found(self):
        tree = {"tests/a/CMakeLists.txt": "target_sources(unit PRIVATE gone.cpp)\n"}
        self.assert_complaint(tree, "tests/a/gone.cpp is listed and does not exist")


if __name__ == "__main__":
    unittest.main()
