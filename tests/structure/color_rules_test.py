"""Shows that a colour in figures is found, and that what is none is let be."""

import unittest

import color_rules


class ColorRules(unittest.TestCase):
    def assert_found(self, code, words):
        found = color_rules.complaints({"app/a.cpp": "int a;\n" + code + "\n"})
        self.assertEqual(len(found), 1, found)
        self.assertIn(f"app/a.cpp:2 has a colour in figures: {words}", found[0])

    def assert_fine(self, code):
        self.assertEqual(color_rules.complaints({"app/a.cpp": code}), [])

    def test_parts_in_figures_are_found(self):
        self.assert_found("constexpr Color ground = rgb(96, 96, 96);", "rgb(96, 96, 96)")
        self.assert_found("fill(context, RGB(0, 0, 0));", "RGB(0, 0, 0)")
        self.assert_found("return rgb(level, 0x40, level);", "rgb(level, 0x40, level)")

    def test_parts_over_two_lines_are_found(self):
        self.assert_found("fill(context, rgb(96,\n    96, 96));", "rgb(96,\n")

    def test_six_hexadecimal_digits_are_found(self):
        self.assert_found("constexpr COLORREF ground = 0x606060;", "0x606060")
        self.assert_found("constexpr PanelLook look{0x4a4a4A, text};", "0x4a4a4A")

    def test_a_pixel_with_its_opacity_is_found(self):
        self.assert_found("return 0xFF282828;", "0xFF282828")

    def test_a_color_of_plain_digits_is_found(self):
        self.assert_found("constexpr Color brown = 8747;", "Color brown = 8747;")
        self.assert_found("Color brown{8747};", "Color brown{8747}")

    def test_reckoned_parts_are_fine(self):
        self.assert_fine("return rgb(mixed(a, 255), moved(b), 255 * share / 4);")
        self.assert_fine("return rgb(component(0), component(8), component(4));")

    def test_no_color_is_fine(self):
        self.assert_fine("Color color = 0;\nColor other{};\n")

    def test_a_mask_says_that_it_is_none(self):
        self.assert_fine("constexpr std::uint32_t colors = 0xFFFFFFU;\n")

    def test_other_lengths_are_fine(self):
        self.assert_fine("constexpr unsigned layered = 0x80000;\nint a = 0x1234567;\n")

    def test_comments_and_texts_are_fine(self):
        self.assert_fine('// 0x606060\n/* rgb(1, 2, 3)\n0x606060 */\ncall("0x606060");\n')

    def test_tables_have_them(self):
        for table in color_rules.TABLES:
            tree = {table: "inline constexpr Color ground = rgb(96, 96, 96);\n"}
            self.assertEqual(color_rules.complaints(tree), [])


if __name__ == "__main__":
    unittest.main()
