"""The picture at the side of the installer's last page: the spiral of the icon, upright."""

import math
import struct

# Twice the size on the page at 96 DPI, for finer screens.
WIDTH, HEIGHT = 328, 628
TOP_GREY, BOTTOM_GREY = 0x70, 0x40
SCALE = 2
LEFT, TOP = 38, 110

SPIRAL, FRAME, SECTION = (0xFF, 0xE6, 0x00), (0xBB, 0xA8, 0x00), (0x87, 0x7A, 0x14)

# Of a golden rectangle of 126 by 204: straight lines, and quarters of circles by centre, radius and
# the signs of the quadrant.
SECTIONS = ((0, 126, 126, 126), (78, 126, 78, 204), (78, 156, 126, 156), (96, 126, 96, 156),
            (78, 144, 96, 144))
EDGES = ((0, 0, 126, 0), (126, 0, 126, 204), (126, 204, 0, 204), (0, 204, 0, 0))
ARCS = ((126, 126, 126, -1, -1), (78, 126, 78, -1, 1), (78, 156, 48, 1, 1), (96, 156, 30, 1, -1),
        (96, 144, 18, -1, -1), (90, 144, 12, -1, 1), (90, 150, 6, 1, 1))


def place(x, y):
    return LEFT + SCALE * x, TOP + SCALE * y


class Picture:
    def __init__(self):
        self.rows = []
        for y in range(HEIGHT):
            grey = TOP_GREY + round((BOTTOM_GREY - TOP_GREY) * y / (HEIGHT - 1))
            self.rows.append([(grey, grey, grey)] * WIDTH)

    def stroke(self, box, half_width, colour, distance):
        """Paints the pixels of `box` that lie near enough, their edges blended."""
        left, top, right, bottom = box
        for y in range(math.floor(top - half_width) - 1, math.ceil(bottom + half_width) + 1):
            for x in range(math.floor(left - half_width) - 1, math.ceil(right + half_width) + 1):
                share = min(1, half_width + 0.5 - distance(x + 0.5, y + 0.5))
                if share > 0:
                    self.rows[y][x] = tuple(round(old + (new - old) * share)
                                            for old, new in zip(self.rows[y][x], colour))

    def line(self, ends, half_width, colour):
        x1, y1 = place(*ends[:2])
        x2, y2 = place(*ends[2:])
        left, right, top, bottom = min(x1, x2), max(x1, x2), min(y1, y2), max(y1, y2)
        self.stroke((left, top, right, bottom), half_width, colour, lambda x, y: math.hypot(
            max(left - x, 0, x - right), max(top - y, 0, y - bottom)))

    def arc(self, arc, half_width, colour):
        x0, y0 = place(*arc[:2])
        radius, right, down = arc[2] * SCALE, *arc[3:]

        def distance(x, y):
            if (x - x0) * right >= 0 and (y - y0) * down >= 0:
                return abs(math.hypot(x - x0, y - y0) - radius)
            return min(math.hypot(x - x0 - radius * right, y - y0),
                       math.hypot(x - x0, y - y0 - radius * down))

        ends = sorted((x0, x0 + radius * right)), sorted((y0, y0 + radius * down))
        self.stroke((ends[0][0], ends[1][0], ends[0][1], ends[1][1]), half_width, colour, distance)

    def bitmap(self):
        """The bytes of a file of 24 bits for a pixel, the lowest row first."""
        data = b"".join(bytes(part for pixel in row for part in reversed(pixel))
                        for row in reversed(self.rows))
        header = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(data), 0, 0, 0, 0)
        return struct.pack("<2sIHHI", b"BM", 54 + len(data), 0, 0, 54) + header + data


def side_picture():
    picture = Picture()
    for ends in SECTIONS:
        picture.line(ends, 1, SECTION)
    for ends in EDGES:
        picture.line(ends, 2, FRAME)
    for arc in ARCS:
        picture.arc(arc, 5, SPIRAL)
    return picture.bitmap()
