"""Shows that the rules of the help can be broken: each on small bad pages."""

import struct
import unittest

import help_pages


def picture(width, height, length=32):
    """As it begins, of as many pixels of the page."""
    bits = (2 * width - 1) | (2 * height - 1) << 14
    return (b"RIFF\0\0\0\0WEBP" + b"VP8L\x0a\0\0\0\x2f" + struct.pack("<I", bits)).ljust(
        length, b"\0")


def heading(other, anchor, level=2):
    return (f'<h{level} id="{anchor}">A <a href="help_{other}.html#{anchor}" '
            f'hreflang="{other}">A</a></h{level}>')


def page(language, body, head=""):
    return (f'<!DOCTYPE html>\n<html lang="{language}"><head><meta charset="utf-8" />'
            f"<title>Help</title>{head}</head><body>{body}</body></html>")


def pages(body, other=None):
    return {"help_de.html": page("de", body), "help_en.html": page("en", other or body)}


class HelpPages(unittest.TestCase):
    def assert_complaint(self, files, words):
        found = help_pages.complaints(files)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def assert_both_complain(self, body, words):
        found = help_pages.complaints(pages(body))
        self.assertEqual(len(found), 2, found)
        for sentence in found:
            self.assertIn(words, sentence)

    def test_good_pages_have_no_complaints(self):
        body = ('<h1>Help</h1>{}<a href="#a">A</a><a href="help_de.html#a">A</a>'
                '<img src="a.svg" alt="A" />')
        files = pages(body.format(heading("en", "a")), body.format(heading("de", "a")))
        files["a.svg"] = '<svg xmlns="http://www.w3.org/2000/svg"><path d="M0 0" /></svg>'
        files["help.css"] = "p { margin: 0; }"
        files["help_en.html"] = page("en", body.format(heading("de", "a")),
                                     '<link rel="stylesheet" href="help.css" />')
        self.assertEqual(help_pages.complaints(files), [])

    def test_an_open_element_is_not_well_formed(self):
        files = pages("<p>A</p>")
        files["help_en.html"] = page("en", "<p>A")
        self.assert_complaint(files, "help_en.html is not well-formed")

    def test_the_language_is_that_of_the_name(self):
        files = pages("<p>A</p>")
        files["help_en.html"] = page("de", "<p>A</p>")
        self.assert_complaint(files, "help_en.html does not say that its language is en")

    def test_the_encoding_is_said(self):
        files = pages("<p>A</p>")
        files["help_en.html"] = files["help_en.html"].replace('<meta charset="utf-8" />', "")
        self.assert_complaint(files, "UTF-8")

    def test_there_is_a_title(self):
        files = pages("<p>A</p>")
        files["help_en.html"] = files["help_en.html"].replace("Help", " ")
        self.assert_complaint(files, "no title")

    def test_the_anchors_are_the_same(self):
        found = help_pages.complaints(pages(heading("en", "a"), heading("de", "b")))
        self.assertTrue(any("h2 a" in sentence for sentence in found), found)

    def test_the_levels_of_headings_are_the_same(self):
        self.assert_complaint(pages(heading("en", "a"), heading("de", "a", 3)), "h3 a")

    def test_no_language_has_more_headings(self):
        files = pages(heading("en", "a"), heading("de", "a") + "<h1>B</h1>")
        self.assert_complaint(files, "1 parts")

    def test_no_language_has_more_rows_in_a_table(self):
        row = "<tr><td>A</td></tr>"
        self.assert_complaint(pages(f"<table>{row}</table>", f"<table>{row}{row}</table>"),
                              "table of 2")

    def test_a_heading_has_an_anchor(self):
        self.assert_both_complain("<h2>A</h2>", "without an anchor")

    def test_an_anchor_is_there_once(self):
        self.assert_both_complain('<p id="a">A</p><p id="a">B</p>', "twice")

    def test_a_section_leads_to_itself_in_the_other_language(self):
        good = heading("en", "a")
        for bad in ('<h2 id="a">A</h2>', good.replace("en.html#a", "en.html"),
                    good.replace('hreflang="en"', 'hreflang="fr"')):
            self.assert_complaint(pages(bad, heading("de", "a")),
                                  "help_de.html has no link to help_en.html#a")

    def test_an_address_is_outside(self):
        for address in ("https://example.org/", "//example.org/a.css", "file:///C:/a",
                        "javascript:a()", "mailto:a@example.org"):
            self.assert_both_complain(f'<a href="{address}">A</a>', "outside")

    def test_a_missing_file_is_found(self):
        self.assert_both_complain('<img src="a.webp" alt="A" />', "a.webp, which is not there")

    def test_a_missing_anchor_is_found(self):
        self.assert_both_complain('<a href="#a">A</a>', "an anchor that is not there")
        self.assert_both_complain('<a href="help_de.html#a">A</a>', "an anchor that is not there")

    def test_a_file_without_use_is_found(self):
        files = pages("<p>A</p>")
        files["a.webp"] = ""
        self.assert_complaint(files, "a.webp is used by no page")

    def test_scripts_are_out(self):
        self.assert_both_complain("<script>a()</script>", "<script>")
        self.assert_both_complain('<p onclick="a()">A</p>', "onclick")

    def test_a_picture_has_a_text(self):
        files = pages('<img src="a.svg" />')
        files["a.svg"] = "<svg />"
        self.assertEqual(len(help_pages.complaints(files)), 2)

    def files_with_picture(self, image, data, source="a.webp"):
        files = pages(image)
        files[source] = data
        return files

    def test_a_picture_has_its_size(self):
        image = '<img src="a.webp" width="20" height="10" alt="A" />'
        self.assertEqual(help_pages.complaints(self.files_with_picture(image, picture(20, 10))), [])
        for data, words in ((picture(21, 10), "21 x 10"), (b"GIF89a", "no WebP")):
            found = help_pages.complaints(self.files_with_picture(image, data))
            self.assertEqual(len(found), 2, found)
            self.assertIn(words, found[0])

    def test_a_picture_without_its_size_is_found(self):
        files = self.files_with_picture('<img src="a.webp" alt="A" />', picture(20, 10))
        self.assertEqual(len(help_pages.complaints(files)), 2)

    def test_a_picture_with_words_is_of_the_language_of_the_page(self):
        image = '<img src="a_de.webp" width="1" height="1" alt="A" />'
        files = self.files_with_picture(image, picture(1, 1), "a_de.webp")
        self.assert_complaint(files, "another language")
        files["help_en.html"] = files["help_en.html"].replace("a_de", "a_en")
        files["a_en.webp"] = picture(1, 1)
        self.assertEqual(help_pages.complaints(files), [])

    def test_all_languages_show_the_same_pictures(self):
        image = '<img src="a.webp" width="1" height="1" alt="A" />'
        files = pages(image, "<p>A</p>")
        files["a.webp"] = picture(1, 1)
        self.assert_complaint(files, "1 parts and help_en.html has 0")

    def test_the_pictures_are_small_together(self):
        image = '<img src="a.webp" width="1" height="1" alt="A" />'
        self.assert_complaint(self.files_with_picture(image, picture(1, 1, 1_500_001)),
                              "1500001 bytes")

    def test_a_style_sheet_takes_nothing_from_outside(self):
        link = '<link rel="stylesheet" href="a.css" />'
        for text in ("p { background: url(a.webp); }", '@import "b.css";', "/* //a */"):
            files = {"help_en.html": page("en", "<p>A</p>", link), "a.css": text}
            self.assert_complaint(files, "a.css refers to something outside")

    def test_every_file_is_copied(self):
        build = "foreach(file help_de.html help_en.html)\n"
        files = pages("<p>A</p>")
        self.assertEqual(list(help_pages.complaints_about_copying(files, build)), [])
        files["help.css"] = ""
        self.assertEqual(list(help_pages.complaints_about_copying(files, build)),
                         ["help.css is not copied beside the program."])

    def test_the_program_opens_a_page_that_is_there(self):
        files = pages("<p>A</p>")
        good = {"a.cpp": '    {265, "help_en.html"},\n'}
        self.assertEqual(list(help_pages.complaints_about_program(files, good)), [])
        for text in ('    {265, "help_fr.html"},\n', '    {266, "help_en.html"},\n'):
            found = list(help_pages.complaints_about_program(files, {"a.cpp": text}))
            self.assertEqual(len(found), 1, found)


if __name__ == "__main__":
    unittest.main()
