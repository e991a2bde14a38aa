#!/usr/bin/env python3
"""Writes the reference tables beside this file: python3 tests/reference/make_reference.py

Everything is computed with fifty digits from the exact values of the double inputs, independently of
the program's arithmetic. A case whose exact result lies so near to a rounding tie or a threshold that
double arithmetic may fall on the other side is left out. The seeds are fixed, so a run writes the same
tables again.
"""

import math
import pathlib
import random
from decimal import ROUND_DOWN, ROUND_FLOOR, ROUND_HALF_UP, Decimal, getcontext

getcontext().prec = 60
getcontext().Emin = -9999
getcontext().Emax = 9999

HERE = pathlib.Path(__file__).parent
ZERO, ONE, TWO, HALF = Decimal(0), Decimal(1), Decimal(2), Decimal("0.5")

# The program's own literals are data, not results: angles are defined by them.
PI = Decimal(3.14159265358979)
HALF_PI = Decimal(1.570796326794895)
THREE_HALVES_PI = Decimal(4.712388980384685)
TWO_PI = Decimal(6.28318530717958)
INFINITE = Decimal(1e308)
G = (Decimal(5).sqrt() - 1) / 2
R = 1 / Decimal(2).sqrt()


def arctan(x):
    if x < 0:
        return -arctan(-x)
    halvings = 0
    while x > Decimal("0.05"):
        x = x / (1 + (1 + x * x).sqrt())
        halvings += 1
    total, power, n = ZERO, x, 1
    while abs(power) > Decimal("1e-58"):
        total += power / n
        power *= -x * x
        n += 2
    return total * 2**halvings


TRUE_PI = 4 * arctan(ONE)


def sine_cosine(angle):
    angle = angle % (2 * TRUE_PI)
    angle /= 1024
    sine, cosine, term, n = ZERO, ZERO, ONE, 0
    while abs(term) > Decimal("1e-64"):
        if n % 2 == 0:
            cosine += term if n % 4 == 0 else -term
        else:
            sine += term if n % 4 == 1 else -term
        n += 1
        term *= angle / n
    for _ in range(10):
        sine, cosine = 2 * sine * cosine, cosine * cosine - sine * sine
    return sine, cosine


def sin(angle):
    return sine_cosine(angle)[0]


def cos(angle):
    return sine_cosine(angle)[1]


def angle_of(x1, y1, x2, y2):
    dx, dy = x2 - x1, y1 - y2
    if dx == 0:
        return ZERO if dy == 0 else (HALF_PI if dy > 0 else THREE_HALVES_PI)
    angle = arctan(dy / dx)
    if dx < 0:
        return angle + PI
    return angle + TWO_PI if dy < 0 else angle


def acute_angle_of(x1, y1, x2, y2):
    dx, dy = abs(x2 - x1), abs(y1 - y2)
    if dx == 0:
        return ZERO if dy == 0 else HALF_PI
    return arctan(dy / dx)


def slope_of(x1, y1, x2, y2):
    dx, dy = x2 - x1, y1 - y2
    if dx == 0:
        return -INFINITE if dy < 0 else INFINITE
    return dy / dx


def distance(x1, y1, x2, y2):
    return ((x1 - x2) ** 2 + (y1 - y2) ** 2).sqrt()


def distance_from_line(x1, y1, x2, y2, x3, y3):
    turn = angle_of(x1, y1, x2, y2) - angle_of(x1, y1, x3, y3)
    return cos(HALF_PI - turn) * distance(x1, y1, x3, y3)


def rotate(cx, cy, x, y, turn):
    """turn: sine and cosine of the angle."""
    sine, cosine = -turn[0], turn[1]
    dx, dy = x - cx, y - cy
    return cosine * dx - sine * dy + cx, sine * dx + cosine * dy + cy


class Tie(Exception):
    """Too near to a rounding tie for double arithmetic to decide it as exact arithmetic does."""


def truncate(x):
    return x.to_integral_value(ROUND_DOWN)


def floor(x):
    return x.to_integral_value(ROUND_FLOOR)


def guarded(x, margin):
    """x, unless it is nearly but not exactly whole."""
    nearest = x.to_integral_value(ROUND_HALF_UP)
    if x != nearest and abs(x - nearest) <= margin * max(ONE, abs(x)):
        raise Tie
    return x


def round_half_away(x, digits, margin=Decimal("1e-13")):
    scale = Decimal(10) ** max(digits, 0)
    sign = (x > 0) - (x < 0)
    return truncate(guarded(sign * HALF + scale * x, margin)) / scale


def integer_digits(x):
    power = abs(x).log10()
    return int(floor(guarded(power, Decimal("1e-12")))) + 1


def round_significant(x, digits, keep):
    if x == 0:
        return ZERO
    e = integer_digits(x)
    if keep and e > digits:
        digits = e
    p = Decimal(10) ** e
    first = round_half_away(x / p, digits + 1, Decimal("1e-10"))
    # After the first step a tie is a tie of decimal digits. It goes away from zero, as far as the
    # double nearest to it, scaled, is the tie itself.
    if (first * 10**digits) % 1 in (HALF, -HALF):
        if float(first) * float(10**digits) % 1.0 != 0.5:
            raise Tie
    return round_half_away(first, digits) * p


def fifteen_digits(x):
    return Decimal("%.14e" % x)


def format_number(x, least_whole, least, most):
    """x: a double or a Decimal that is the value before it became one."""
    x = float(x)
    shown = fifteen_digits(x).quantize(Decimal(1).scaleb(-most), ROUND_HALF_UP)
    text = "%f" % 0 if shown == 0 else format(abs(shown), "f")
    whole, _, fraction = text.partition(".")
    whole = whole.lstrip("0").rjust(least_whole, "0")
    fraction = fraction.ljust(most, "0")[:most]
    while len(fraction) > least and fraction.endswith("0"):
        fraction = fraction[:-1]
    return ("-" if shown < 0 else "") + whole + "." + fraction


def guard_digits(x, decimals):
    """The double nearest to x must round to the same decimals as x itself."""
    scaled = abs(x) * 10**decimals
    if abs((scaled % 1) - HALF) < Decimal("1e-10") * max(ONE, scaled):
        raise Tie


def format_ratio(x):
    if abs(x) >= INFINITE:
        return "infinite"
    rounded = round_significant(x, 4, True)
    if rounded >= 10:
        return format_number(rounded, 1, 2, 2)
    if rounded > Decimal("0.9999999999"):
        return format_number(rounded, 1, 3, 3)
    guard_digits(rounded, 7)
    return format_number(rounded, 1, 4, 7)


def format_angle(angle, unit):
    if unit == 1:
        guard_digits(angle, 4)
        return format_number(angle, 1, 4, 4) + " rad"
    degrees = angle * 180 / PI
    guard_digits(degrees, 2)
    return format_number(degrees, 1, 2, 2) + "°"


def format_length(x, mode, factor, unit, reference):
    if mode not in (1, 2):
        guard_digits(x, 1)
        return format_number(x, 1, 1, 1)
    shown = x * factor if mode == 1 else (x / reference * factor if reference else ZERO)
    rounded = round_significant(shown, 5, True)
    guard_digits(rounded, 14)
    return (format_number(rounded, 1, 1, 14) + " " + unit).strip(" ")


SPECIAL_RATIOS = [
    ONE, Decimal(4) / 5, Decimal("8.5") / 11, Decimal(3) / 4, 9 / Decimal("12.5"), R,
    Decimal(2) / 3, Decimal(5) / 8, G, Decimal(3) / 5, Decimal(9) / 16, Decimal(9) / 17, HALF,
    Decimal(9) / 21, Decimal(2) / 5, Decimal(1) / 3, Decimal(1) / 4, Decimal(1) / 5,
]  # fmt: skip


def nearest_special_ratio(ratio):
    sought = abs(ratio)
    if abs(sought - Decimal("0.9999999999")) < Decimal("1e-15"):
        raise Tie
    inverted = sought > Decimal("0.9999999999")
    if inverted:
        sought = 1 / sought
    order = sorted((abs(value - sought), i) for i, value in enumerate(SPECIAL_RATIOS))
    if order[1][0] - order[0][0] < Decimal("1e-13"):
        raise Tie
    return order[0][1], inverted


def snap_to_special_ratio(w, h):
    ratio = w / h if h else ZERO
    index, inverted = nearest_special_ratio(ratio)
    value = SPECIAL_RATIOS[index]
    value = 1 / value if inverted else value
    return ratio, index, inverted, -value if ratio < 0 else value


# The patterns of the unit square: lists of segments and of ellipses (cx, cy, rx, ry).

FRAME = [(0, 0, 1, 0), (1, 0, 1, 1), (1, 1, 0, 1), (0, 1, 0, 0)]


def divided(*places):
    return FRAME + [line for a in places for line in ((a, 0, a, 1), (0, a, 1, a))]


def square(v):
    a, b = HALF - v, HALF + v
    return [(a, a, b, a), (b, a, b, b), (b, b, a, b), (a, b, a, a)]


def section_multiple():
    lines = []
    for i in range(9):
        lines += [(G**i, 1, G**i, 0), (0, G**i, 1, G**i)]
    return lines + [(0, 0, 0, 1), (1, 0, 0, 0)]


def spiral():
    def point(t):
        radius = HALF / ((t / HALF_PI) * (1 + G).ln()).exp()
        sine, cosine = sine_cosine(t + PI)
        return cosine * radius + HALF, sine * radius + HALF

    lines, phi = [], ZERO
    while True:
        e = (phi / (PI / 3)) * (1 - G)
        delta = PI / (100 * (G.ln() * e).exp())
        lines.append(point(phi) + point(phi + delta))
        phi += delta
        if not 3 * PI * 2 > phi:
            return lines


def mirrored(lines):
    return [(1 - x1, y1, 1 - x2, y2) for x1, y1, x2, y2 in lines]


def pentagram():
    def point(t):
        sine, cosine = sine_cosine(t)
        return cosine / 2 + HALF, sine / 2 + HALF

    lines = []
    for i in range(5):
        a = i * TWO_PI / 5
        lines.append(point(a - PI / 10) + point(a + 3 * PI / 10))
        lines.append(point(a - PI / 10) + point(a + 7 * PI / 10))
    return lines


def circles(*radii):
    return [(HALF, HALF, radius, radius) for radius in radii]


def patterns():
    third = ONE / 3
    left = spiral()
    outer = square(HALF)
    return [
        (divided(), []),
        (divided(HALF), []),
        (divided(third, 2 * third), []),
        (divided(HALF / 2, HALF, HALF + HALF / 2), []),
        (divided(1 - G), []),
        (divided(1 - G, G), []),
        (section_multiple(), []),
        (left, []),
        (outer + square((1 - G) / 2), []),
        (outer + square(G / 2), []),
        ([line for i in range(6) for line in square(G**i / 2)], []),
        (mirrored(left), []),
        ([], circles(HALF, (1 - G) / 2)),
        ([], circles(HALF, G / 2)),
        ([], circles(*(G**i / 2 for i in range(6)))),
        (pentagram(), []),
        (divided(1 - R), []),
        (divided(1 - R, R), []),
        ([(0, 0, 1, 1), (1, 0, 0, 1)], []),
    ]


def bezier_points(cx, cy, rx, ry):
    k = Decimal("0.551784")
    arc = [(0, -1), (k, -1), (1, -k), (1, 0), (1, k), (k, 1), (0, 1)]
    arc += [(-k, 1), (-1, k), (-1, 0), (-1, -k), (-k, -1), (0, -1)]
    return [(cx + x * rx, cy + y * ry) for x, y in arc]


class Placement:
    """A stencil's rectangle, the pattern's turn inside it and the stencil's own."""

    def __init__(self, rect, pre_rotation, angle):
        self.left, self.top, self.right, self.bottom = (Decimal(v) for v in rect)
        self.pre = sine_cosine(Decimal(pre_rotation))
        self.turn = sine_cosine(Decimal(angle)) if angle is not None else None

    def __call__(self, x, y):
        x, y = rotate(HALF, HALF, Decimal(x), Decimal(y), self.pre)
        x = x * (self.right - self.left) + self.left
        y = y * (self.bottom - self.top) + self.top
        if self.turn is None:
            return x, y
        cx, cy = (self.left + self.right) / 2, (self.top + self.bottom) / 2
        return rotate(cx, cy, x, y, self.turn)


# Writing.


def text_of(value):
    if isinstance(value, bool):
        return "1" if value else "0"
    if isinstance(value, float):
        return repr(value)
    if isinstance(value, Decimal):
        return "%.17g" % value
    return str(value)


def write(name, header, rows):
    with open(HERE / name, "w", encoding="utf-8", newline="\n") as out:
        out.write(header + "\n")
        for row in rows:
            out.write(",".join(text_of(value) for value in row) + "\n")


def cases(count, make):
    """`count` rows of those that `make` does not give up."""
    rows = []
    while len(rows) < count:
        try:
            rows.append(make())
        except Tie:
            pass
    return rows


def coordinate(rng):
    kind = rng.randrange(4)
    if kind == 0:
        return float(rng.randint(-5, 5))
    if kind == 1:
        return float(rng.randint(-3000, 3000))
    if kind == 2:
        return rng.uniform(-4000, 4000)
    return rng.uniform(-1, 1) * 10 ** rng.randint(-3, 6)


def exact(values):
    return [Decimal(value) for value in values]


def ordinary_number(rng):
    """Mostly numbers as users meet them, some very large and very small."""
    kind = rng.randrange(5)
    if kind == 0:
        return round(rng.uniform(-2000, 2000), rng.randint(0, 5))
    if kind == 1:
        return rng.choice([-1, 1]) * 10 ** rng.uniform(-7, 9)
    if kind == 2:
        return rng.randint(-4000, 4000) / rng.randint(1, 4000)
    if kind == 3:
        return rng.uniform(-20, 20)
    return rng.uniform(0, 1)


def write_angles():
    rng = random.Random(101)

    def make():
        given = [coordinate(rng) for _ in range(4)]
        if rng.randrange(8) == 0:
            given[2] = given[0]
        if rng.randrange(8) == 0:
            given[3] = given[1]
        e = exact(given)
        return given + [angle_of(*e), acute_angle_of(*e), slope_of(*e), distance(*e)]

    write("angles.csv", "x1,y1,x2,y2,angle,acute,slope,distance", cases(3000, make))


def write_line_distances():
    rng = random.Random(102)

    def make():
        given = [coordinate(rng) for _ in range(6)]
        return given + [distance_from_line(*exact(given))]

    write("line_distances.csv", "x1,y1,x2,y2,x3,y3,distance", cases(1500, make))


def write_rotations():
    rng = random.Random(103)

    def make():
        given = [coordinate(rng) for _ in range(4)] + [rng.uniform(-10, 10)]
        e = exact(given)
        x, y = rotate(*e[:4], sine_cosine(e[4]))
        return given + [x, y]

    write("rotations.csv", "cx,cy,x,y,angle,rotatedX,rotatedY", cases(2000, make))


def write_rounding():
    rng = random.Random(104)

    def half_away():
        value, digits = ordinary_number(rng), rng.randint(-2, 6)
        return [value, digits, round_half_away(Decimal(value), digits)]

    ties = [[n + 0.5, 0, round_half_away(Decimal(n + 0.5), 0)] for n in range(-200, 200)]
    write("round_half_away.csv", "value,digits,rounded", ties + cases(2000, half_away))

    def significant():
        value, digits, keep = ordinary_number(rng), rng.randint(0, 8), rng.random() < 0.5
        return [value, digits, keep, round_significant(Decimal(value), digits, keep)]

    write("round_significant.csv", "value,digits,keep,rounded", cases(3000, significant))


def write_aspects():
    rng = random.Random(105)

    def make():
        given = [coordinate(rng) for _ in range(4)]
        left, top, right, bottom = exact(given)
        if bottom == top:
            return given + [INFINITE, ZERO]
        aspect = abs((right - left) / (bottom - top))
        return given + [aspect, 1 / aspect if aspect > 1 else aspect]

    write("aspects.csv", "left,top,right,bottom,aspect,normalised", cases(1500, make))


def write_texts():
    rng = random.Random(106)

    def ratio():
        value = ordinary_number(rng)
        return [value, format_ratio(Decimal(value))]

    infinities = [[1e308, "infinite"], [-1e308, "infinite"], [1.7e308, "infinite"]]
    write("ratio_texts.csv", "value,text", infinities + cases(3000, ratio))

    def angle():
        value, unit = rng.uniform(-7, 7), rng.randint(0, 1)
        return [value, unit, format_angle(Decimal(value), unit)]

    write("angle_texts.csv", "angle,unit,text", cases(2000, angle))

    def length():
        mode = rng.randint(0, 2)
        factor = rng.choice([1.0, 0.0264583333333333, 2.54, 10.0, rng.uniform(0.001, 100)])
        unit = rng.choice(["", "cm", "mm", " in ", "µm", "px²"])
        value = abs(ordinary_number(rng))
        reference = 0.0 if rng.randrange(10) == 0 else abs(ordinary_number(rng)) + 0.001
        text = format_length(Decimal(value), mode, Decimal(factor), unit, Decimal(reference))
        return [value, mode, factor, unit, reference, text]

    write("length_texts.csv", "length,mode,factor,unit,reference,text", cases(3000, length))


def write_special_ratios():
    rng = random.Random(107)

    def make():
        w, h = float(rng.randint(-3000, 3000)), float(rng.randint(-3000, 3000))
        if rng.randrange(20) == 0:
            h = 0.0
        if rng.randrange(10) == 0:
            w = h * rng.choice([1, -1, 0.75, 0.5, 0.2, 2.5])
        ratio, index, inverted, snapped = snap_to_special_ratio(Decimal(w), Decimal(h))
        return [w, h, ratio, index, inverted, snapped]

    write("special_ratios.csv", "w,h,ratio,index,inverted,snapped", cases(3000, make))


def short(value):
    return "%.13g" % value


def write_patterns(catalogue):
    lines = [[i, "line"] + [short(Decimal(v)) for v in line]
             for i, (segments, _) in enumerate(catalogue) for line in segments]
    ellipses = [[i, "ellipse"] + [short(v) for v in ellipse]
                for i, (_, found) in enumerate(catalogue) for ellipse in found]
    write("patterns.csv", "index,kind,a,b,c,d", lines + ellipses)


def write_placed_patterns(catalogue):
    rng = random.Random(108)
    turns = [ZERO, ONE / 8, ONE / 4, ONE / 3, ONE * 3 / 8, HALF, ONE * 5 / 8, ONE * 2 / 3,
             ONE * 3 / 4, ONE * 7 / 8, ONE / 20, ONE * 2 / 20, ONE * 3 / 20]
    rows = []
    for case in range(160):
        index = case % len(catalogue)
        left, top = coordinate(rng), coordinate(rng)
        rect = [left, top, left + rng.uniform(20, 2000), top + rng.uniform(20, 2000)]
        turn = floor(rng.choice(turns) * 1000000) / 1000000
        pre = float(turn * 2 * PI)
        angle = None if rng.randrange(4) == 0 else rng.uniform(0, 6.28)
        place = Placement(rect, pre, angle)
        segments, ellipses = catalogue[index]
        if len(segments) > 60:
            first = rng.randrange(len(segments) - 40)
        else:
            first = 0
        rows.append(["placement", case, index, first] + rect + [pre, "" if angle is None else angle])
        for x1, y1, x2, y2 in segments[first : first + 40]:
            rows.append(["line", case] + [short(v) for v in place(x1, y1) + place(x2, y2)])
        for ellipse in ellipses:
            points = [place(x, y) for x, y in bezier_points(*ellipse)]
            rows.append(["bezier", case] + [short(v) for point in points for v in point])
    header = "kind,case,values"
    write("placed_patterns.csv", header, rows)


def write_clipping():
    rng = random.Random(109)

    def clip(p1, p2, rect):
        low, high = ZERO, ONE
        for a, b, least, most in ((p1[0], p2[0], rect[0], rect[2]), (p1[1], p2[1], rect[1], rect[3])):
            if a == b:
                if not least <= a <= most:
                    return None
                continue
            t1, t2 = sorted(((least - a) / (b - a), (most - a) / (b - a)))
            low, high = max(low, t1), min(high, t2)
        if low > high:
            return None
        length = abs(p2[0] - p1[0]) + abs(p2[1] - p1[1])
        if (high - low) * length < Decimal("1e-6"):
            raise Tie
        return [p1[i] + (p2[i] - p1[i]) * t for t in (low, high) for i in (0, 1)]

    def far(value):
        return value * 10.0 ** rng.choice([0, 0, 0, 1, 5, 20, 150, 303])

    def make():
        rect = [0.0, 0.0, float(rng.randint(1, 2000)), float(rng.randint(1, 2000))]
        p1, p2 = [far(coordinate(rng)), far(coordinate(rng))], [far(coordinate(rng)), far(coordinate(rng))]
        kind = rng.randrange(4)
        if kind == 0:
            # Through the window from far outside, where only exact inputs tell where it passes.
            size = 10.0 ** rng.randint(3, 307)
            p1 = [-size, -size * rng.choice([0.25, 0.5, 1.0])]
            p2 = [-p1[0], -p1[1]]
        if kind == 1:
            p2[1] = p1[1]
        if kind == 2:
            p1 = [rng.uniform(-50, rect[2] + 50), rng.uniform(-50, rect[3] + 50)]
        if max(map(abs, p1 + p2)) > 1e308:
            raise Tie
        part = clip(exact(p1), exact(p2), exact(rect))
        narrow = None
        if part is None:
            # A miss must be a clear one.
            wide = [Decimal("-1e-6"), Decimal("-1e-6")] + [Decimal(v) + Decimal("1e-6") for v in rect[2:]]
            narrow = clip(exact(p1), exact(p2), wide)
            if narrow is not None:
                raise Tie
        found = [short(v) for v in part] if part else ["", "", "", ""]
        return p1 + p2 + rect + found

    write("clipping.csv", "x1,y1,x2,y2,left,top,right,bottom,cx1,cy1,cx2,cy2", cases(3000, make))


def main():
    getcontext().prec = 60
    catalogue = patterns()
    write_angles()
    write_line_distances()
    write_rotations()
    write_rounding()
    write_aspects()
    write_texts()
    write_special_ratios()
    write_patterns(catalogue)
    write_placed_patterns(catalogue)
    getcontext().prec = 700
    write_clipping()


if __name__ == "__main__":
    main()
