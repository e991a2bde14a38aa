"""Writes measure_layouts.csv beside this file: python3 tests/reference/make_measure_reference.py

The layout of a measuring tool, worked out from what the eye expects of it: a label of an angle
stands outside the circle, a label of a length on the side of its line that faces away from the
other line, with its nearest corner at the place that it belongs to. Quantities have fifty digits.
Cases near a rounding tie are left out, as are directions and angles too near to where two rules
meet. The seed is fixed, so a run writes the same table again.
"""

import random
from decimal import Decimal

from make_reference import (
    HALF,
    HALF_PI,
    PI,
    TWO_PI,
    Tie,
    angle_of,
    arctan,
    cases,
    cos,
    distance,
    exact,
    floor,
    format_angle,
    format_length,
    format_ratio,
    guarded,
    round_half_away,
    sin,
    write,
)

CIRCLE = 61
GAP = Decimal(18).sqrt()  # 6 along the diagonal
NEAR = Decimal("1e-9")
LETTER, LINE, HALO = 6, 13, 4  # the font of the tests


def apart(value):
    if abs(value) < NEAR:
        raise Tie
    return value


def from_vertical(line):
    across, down = abs(line[2] - line[0]), abs(line[3] - line[1])
    if down == 0:
        return HALF_PI if across else Decimal(0)
    return arctan(across / down)


def middle(p, q):
    return (p[0] + q[0]) * HALF, (p[1] + q[1]) * HALF


def size_of(text):
    lines = text.split("|")
    return LETTER * max(len(line.encode()) for line in lines) + HALO, LINE * len(lines) + HALO


def beside(text, point, side, gap):
    """The label that stretches from `point` to that side: signs of x and y, 0 for centred."""
    width, height = size_of(text)
    place = []
    for at, extent, towards in zip(point, (width, height), side):
        if towards == 0:
            start = at - Decimal(extent) / 2
        elif towards > 0:
            start = at + gap
        else:
            start = at - gap - extent + 1
        place.append(int(floor(guarded(start, Decimal("1e-10")))))
    return place + [{-1: "r", 0: "c", 1: "l"}[side[0]]]


def side_of_line(line, here, other):
    """The normal of the line that points away from the other line's middle."""
    dx, dy = line[2] - line[0], line[1] - line[3]
    rising = dy >= 0 if dx == 0 else dy / dx >= 0
    if dx != 0 and abs(dy) <= abs(dx):
        down = 1 if here[1] >= other[1] else -1
        return (down if rising else -down), down
    right = 1 if here[0] >= other[0] else -1
    return right, (right if rising else -right)


class Layout:
    def __init__(self, a, b, number, angle_mode, length_mode, factor, unit):
        self.a, self.b = a, b
        self.number = number
        self.angle_mode = angle_mode
        angle_a, angle_b = angle_of(*a), angle_of(*b)
        self.half = (angle_a + angle_b) / 2
        self.b_first = apart(angle_b - angle_a) < 0 if a != b else False
        self.a_to_b = angle_b - angle_a + (TWO_PI if self.b_first else 0)
        self.b_to_a = TWO_PI - self.a_to_b
        lengths = [distance(*line) + 1 for line in (a, b)]
        ratios = [lengths[0] / lengths[1], lengths[1] / lengths[0]]
        self.quantities = [self.a_to_b, self.b_to_a, from_vertical(a), from_vertical(b)]
        self.quantities += lengths + ratios
        self.length_texts = [
            f"{number} {name} = {format_length(length, length_mode, factor, unit, lengths[0])}"
            f"|{names} = {format_ratio(ratio)}"
            for name, names, length, ratio in zip("ab", ("a:b", "b:a"), lengths, ratios)
        ]

    def angle_text(self, angle):
        return format_angle(angle, self.angle_mode)

    def lengths(self):
        middles = [middle(line[:2], line[2:]) for line in (self.a, self.b)]
        row = []
        for line, here, other, text in zip(
            (self.a, self.b), middles, reversed(middles), self.length_texts
        ):
            slope = line[2] - line[0], line[3] - line[1]
            if slope[0] and abs(slope[0]) != abs(slope[1]):
                apart(abs(slope[1] / slope[0]) - 1)
            row += [text] + beside(text, here, side_of_line(line, here, other), GAP)
        return row

    def connected(self):
        """What stands at the common point: circle, and both labels on it, of which one is shown."""
        center = self.a[2:]
        shown = 1 if apart(self.b_to_a - self.a_to_b) < 0 else 2
        circle = [int(round_half_away(at - CIRCLE // 2, 0)) for at in center]
        row = [shown] + circle
        # If b comes first, the first label lies where the bisector does not point.
        for angle, first in ((self.b_to_a, True), (self.a_to_b, False)):
            turn = self.half if first == self.b_first else self.half + PI
            out = -cos(turn), sin(turn)
            side = [1 if apart(v) > 0 else -1 for v in out]
            point = [c + v * CIRCLE / 2 for c, v in zip(center, out)]
            text = f"{self.number}|{self.angle_text(angle)}"
            row += [text] + beside(text, point, side, 0)
        return row

    def separate(self):
        middles = [middle(line[:2], line[2:]) for line in (self.a, self.b)]
        text = f"{self.number}|{self.angle_text(self.b_to_a)} ({self.angle_text(self.a_to_b)})"
        return [1, 0, 0, text] + beside(text, middle(*middles), (0, 0), 0) + ["", 0, 0, "l"]


def coordinate(rng):
    kind = rng.randrange(5)
    if kind == 0:
        return float(rng.randint(-4, 4))
    if kind == 1:
        return rng.randint(-40, 3000) / 2
    if kind == 2:
        return rng.uniform(-1, 1) * 10 ** rng.randint(-3, 5)
    return float(rng.randint(-100, 2000))


def main():
    rng = random.Random(401)

    def make():
        connected = rng.randrange(3) > 0
        a = [coordinate(rng) for _ in range(4)]
        b = [coordinate(rng) for _ in range(4)]
        kind = rng.randrange(12)
        if kind == 0:
            b[2], b[3] = b[0], b[1]
        if kind == 1:
            a[2] = a[0]
        if kind == 2:
            b[3] = b[1]
        if connected:
            b[2:] = a[2:]
        number = rng.randint(0, 1111)
        angle_mode, length_mode = rng.randint(0, 1), rng.randint(0, 2)
        factor = rng.choice([1.0, 5.0, 0.0254, rng.uniform(0.01, 50)])
        unit = rng.choice(["", "m", "µm", "mi"])
        given = [connected, *a, *b, number, angle_mode, length_mode, factor, unit]
        layout = Layout(
            exact(a), exact(b), number, angle_mode, length_mode, Decimal(factor), unit
        )
        angles = layout.connected() if connected else layout.separate()
        return given + [+q for q in layout.quantities] + layout.lengths() + angles

    header = (
        "connected,ax1,ay1,ax2,ay2,bx1,by1,bx2,by2,number,anglemode,lengthmode,factor,unit,"
        "ab,ba,verta,vertb,lengtha,lengthb,ratioab,ratioba,"
        "texta,lefta,topa,aligna,textb,leftb,topb,alignb,"
        "shown,circleleft,circletop,text1,left1,top1,align1,text2,left2,top2,align2"
    )
    write("measure_layouts.csv", header, cases(3000, make))


if __name__ == "__main__":
    main()
