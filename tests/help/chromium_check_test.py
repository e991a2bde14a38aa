"""Shows that the check in the browser can fail: each of its rules on a small bad page."""

import pathlib
import tempfile
import unittest

import chromium_check

GOOD = ("<!DOCTYPE html><html lang='en'><head><meta charset='utf-8'><style>{style}</style></head>"
        "<body><h1 id='a'>Good</h1><a href='#a'>A</a>{body}</body></html>")
# A reader may prefer either.
STYLE = ":root {{ color-scheme: light dark; }} html {{ background: Canvas; color: CanvasText; }}"
PROGRAM = chromium_check.browser()


class ChromiumCheck(unittest.TestCase):
    def setUp(self):
        if not PROGRAM:
            self.skipTest("There is no Chromium or Chrome here.")

    def complaints(self, body="", style=""):
        with tempfile.TemporaryDirectory() as folder:
            text = GOOD.format(style=STYLE.format() + style, body=body)
            pathlib.Path(folder, "help_en.html").write_text(text, encoding="utf-8")
            return chromium_check.look_at(PROGRAM, pathlib.Path(folder))

    def assert_found(self, words, times, **page):
        found = [sentence for sentence in self.complaints(**page) if words in sentence]
        self.assertEqual(len(found), times, found)

    def test_a_good_page_has_no_complaints(self):
        self.assertEqual(self.complaints(), [])

    def test_a_link_to_nothing_is_found(self):
        self.assert_found("#b leads to nothing", 6, body="<a href='#b'>B</a>")

    def test_a_picture_that_does_not_load_is_found(self):
        self.assert_found("b.png does not load", 6, body="<img src='b.png' alt=''>")

    def test_a_page_wider_than_a_narrow_window_is_found(self):
        self.assert_found("the page is", 2, body="<div style='width: 700px'>A</div>")

    def test_a_tiny_text_is_found(self):
        self.assert_found("pixels high", 6, body="<p style='font-size: 9px'>A</p>")

    def test_a_pale_text_is_found_where_the_ground_is_like_it(self):
        self.assert_found("contrast", 3, body="<p style='color: #eee'>A</p>")

    def test_a_folder_without_pages_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(len(chromium_check.look_at(PROGRAM, pathlib.Path(folder))), 1)


if __name__ == "__main__":
    unittest.main()
