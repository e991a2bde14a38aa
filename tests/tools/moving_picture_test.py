"""The moving picture of the README, and that its frames come out as they went in."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

PROJECT = pathlib.Path(sys.argv[1]).resolve()
sys.path.insert(0, str(PROJECT / "tools"))

import moving_picture  # noqa: E402

WIDTH, HEIGHT = 40, 30


def frame(folder, number, spot):
    """Grey, with one white pixel."""
    pixels = bytearray(b"\x40\x40\x40" * WIDTH * HEIGHT)
    at = 3 * (spot[1] * WIDTH + spot[0])
    pixels[at:at + 3] = b"\xff\xff\xff"
    path = folder / f"{number}.ppm"
    path.write_bytes(b"P6\n%d %d\n255\n" % (WIDTH, HEIGHT) + bytes(pixels))
    return moving_picture.Frame(path, 100)


def controls(data):
    """(left, top, width, height, operation) of each frame."""
    found = []
    for kind, content in moving_picture.chunks(data):
        if kind == b"fcTL":
            _, width, height, left, top = struct.unpack_from(">5I", content)
            found.append((left, top, width, height, content[25]))
    return found


class MovingPicture(unittest.TestCase):
    def setUp(self):
        self.work = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.work.name)
        self.addCleanup(self.work.cleanup)

    def test_a_frame_holds_what_differs_from_the_one_before(self):
        data = moving_picture.assembled([frame(self.folder, n, spot) for n, spot in
                                         enumerate([(5, 5), (9, 7), (9, 7)])])
        self.assertEqual(controls(data), [(0, 0, WIDTH, HEIGHT, 0), (5, 5, 5, 3, 1),
                                          (0, 0, 1, 1, 1)])
        self.assertEqual(moving_picture.length_of(data), 300)

    def test_only_the_changed_pixels_are_not_clear(self):
        first, second = (frame(self.folder, n, spot) for n, spot in enumerate([(5, 5), (9, 7)]))
        box = moving_picture.changed_box(moving_picture.rows_of(first.picture),
                                         moving_picture.rows_of(second.picture))
        moving_picture.compressed(second.picture, first.picture, box, self.folder)
        answer = subprocess.run(["convert", str(self.folder / "frame.png"), "-depth", "8",
                                 "rgba:-"], check=True, capture_output=True, timeout=60).stdout
        solid = {(n % 5, n // 5): answer[4 * n:4 * n + 3] for n in range(15)
                 if answer[4 * n + 3] == 255}
        self.assertEqual(solid, {(0, 0): b"\x40\x40\x40", (4, 2): b"\xff\xff\xff"})
        self.assertTrue(all(answer[4 * n + 3] in (0, 255) for n in range(15)))

    def test_a_picture_that_does_not_move_has_no_length(self):
        data = moving_picture.SIGNATURE + moving_picture.chunk(b"IEND", b"")
        self.assertEqual(moving_picture.length_of(data), 0)

    def test_the_readme_shows_ten_seconds_in_less_than_two_megabytes(self):
        self.assertIn("](docs/ormala.png)", (PROJECT / "README.md").read_text(encoding="utf-8"))
        data = (PROJECT / "docs" / "ormala.png").read_bytes()
        self.assertLess(len(data), 2_000_000)
        self.assertAlmostEqual(moving_picture.length_of(data), 10_000, delta=1_500)
        self.assertGreater(len(controls(data)), 30)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
