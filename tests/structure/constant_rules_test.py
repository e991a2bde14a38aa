"""Shows that the rules of constants and modes can be broken."""

import unittest

import constant_rules


class Constants(unittest.TestCase):
    def complaints(self, *texts):
        return constant_rules.complaints({f"src/a/{i}.cpp": text for i, text in enumerate(texts)})

    def assert_complaint(self, words, *texts):
        found = self.complaints(*texts)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_constant_stands_in_one_file(self):
        first, second = "constexpr int rowHeight = 16;\n", "constexpr unsigned rowHeight{16};\n"
        self.assertEqual(self.complaints(first + first), [])
        self.assert_complaint("rowHeight = 16 stands in src/a/0.cpp, src/a/1.cpp", first, second)

    def test_texts_are_constants(self):
        text = 'constexpr const char* section = "Form";\n'
        self.assert_complaint("section", text, "static " + text)

    def test_one_name_may_stand_for_different_values(self):
        one, other = "constexpr int margin = 15;\n", "constexpr int margin = 16;\n"
        self.assertEqual(self.complaints(one, other), [])

    def test_small_numbers_agree_by_chance(self):
        text = "constexpr int gap = 4;\n"
        self.assertEqual(self.complaints(text, text), [])

    def test_a_comment_defines_nothing(self):
        text = "constexpr int rowHeight = 16;\n"
        self.assertEqual(self.complaints(text, "// " + text), [])

    def test_what_one_file_knows_is_not_written_elsewhere(self):
        self.assert_complaint("0123456789ABCDEF", *['f("0123456789ABCDEF");\n'] * 2)


class Modes(unittest.TestCase):
    def complaints(self, text, path="src/a/b.cpp"):
        return constant_rules.complaints({path: text})

    def test_a_mode_is_no_number(self):
        for breach in (
            "if (mode == 1) {}",
            "if (options.mode != 2) {}",
            "if (2 == view.mode()) {}",
            "int Mode = 0;",
            "int mode{1};",
            "LensMode_ = 0;",
            "while (lastMode_ < 2) {}",
            "const bool is = mode >= 0;",
            "SetMode(2);",
            "switch (mode) { case 0: break; }",
            "switch (options.mode) { default: break; case 2: break; }",
        ):
            found = self.complaints("void f() {\n" + breach + "\n}\n")
            self.assertEqual(found, ["src/a/b.cpp:2: a mode has a name and is no number."], breach)

    def test_a_name_is_a_mode(self):
        for good in (
            "if (mode == Mode::edit) {}",
            "const bool paused = mode() == Mode::pause;",
            "SetMode(Mode::pause);",
            "switch (mode) { case Mode::edit: f(0); }",
            "switch (count) { case 0: break; }",
            'named("optMode(0)") = 1;',
            "// mode = 0\n",
            "auto model = 0;",
        ):
            self.assertEqual(self.complaints("void f() {\n" + good + "\n}\n"), [], good)

    def test_modes_of_other_things_have_numbers(self):
        self.assertEqual(self.complaints("int AngleMode = 0;\nint LensGridDrawMode = 1;\n"), [])
        path = min(constant_rules.FILES_OF_OTHER_MODES)
        self.assertEqual(self.complaints("bool b = mode == 1;\n", path), [])


if __name__ == "__main__":
    unittest.main()
