"""Writes the tables of the stencil's drags beside this file: python3 tests/reference/make_drag_reference.py

Each case is worked out by geometry on the screen - the stencil's own two directions as vectors, points
as multiples of them - and not by turning the mouse back and forth. Cases near a rounding tie are left
out. The seeds are fixed, so a run writes the same tables again.
"""

import math
import random
from decimal import Decimal

from make_reference import (
    SPECIAL_RATIOS,
    TWO_PI,
    Tie,
    cases,
    format_number,
    format_ratio,
    guard_digits,
    nearest_special_ratio,
    round_significant,
    write,
)

SHIFT, CTRL, ALT = 1, 2, 4
MOVE, ROTATE, SIDE, CORNER = 0, 1, 2, 3
TURN = 2 * math.pi
LEAST = 22

CAPTIONS = [
    ("1:1", "1:1", "square"), ("4:5", "5:4", ""), ("8.5:11", "11:8.5", "letter"),
    ("3:4", "4:3", "digital photo, TV, monitor"), ("9:12.5", "12.5:9", "35mm movie"),
    ("1:root(2)", "root(2):1", "ISO paper"), ("2:3", "3:2", "chemical photo"),
    ("5:8", "8:5", "wide screen monitor"),
    ("(root(5)-1):2", "2:(root(5)-1)", "golden section"), ("3:5", "5:3", "cinema"),
    ("9:16", "16:9", "HDTV"), ("9:17", "17:9", "cinema"), ("1:2", "2:1", ""),
    ("9:21", "21:9", "Cinemascope"), ("2:5", "5:2", ""), ("1:3", "3:1", ""), ("1:4", "4:1", ""),
    ("1:5", "5:1", ""),
]  # fmt: skip


def half_up(value):
    """To the nearest whole number, away from zero at the half; exact halves only."""
    distance = abs(abs(value) % 1 - 0.5)
    if 0 < distance < 1e-7:
        raise Tie
    return math.copysign(math.floor(abs(value) + 0.5), value)


class Stencil:
    """Centre, size from first to last pixel, and the screen directions of its right and its down."""

    def __init__(self, rect, angle):
        left, top, right, bottom = rect
        self.center = complex((left + right) / 2, (top + bottom) / 2)
        self.size = [right - left, bottom - top]
        self.angle = angle
        self.axes = (
            complex(math.cos(angle), -math.sin(angle)),
            complex(math.sin(angle), math.cos(angle)),
        )

    def own(self, point):
        """How far right and down of the centre a point of the screen lies, in the stencil's directions."""
        away = point - self.center
        return [(away * axis.conjugate()).real for axis in self.axes]

    def on_screen(self, right, down):
        return self.center + right * self.axes[0] + down * self.axes[1]

    def rect(self):
        w, h = self.size
        return [
            self.center.real - w / 2, self.center.imag - h / 2,
            self.center.real + w / 2, self.center.imag + h / 2,
        ]  # fmt: skip


def direction(point):
    """The angle of a vector of the screen, from 0 to a full turn."""
    if point == 0:
        return 0.0
    angle = math.atan2(-point.imag, point.real) % TURN
    if min(angle, TURN - angle) < 1e-9 and not (point.imag == 0 and point.real > 0):
        raise Tie
    return angle


def to_step(angle, step):
    steps = half_up(angle / step)
    return 0.0 if round(steps * step / TURN, 9) == 1 else steps * step


def to_grid(value, step, origin):
    return half_up((value - origin) / step) * step + origin if step else value


def drag_move(stencil, case):
    def held(mouse):
        return mouse - case.grab + complex(case.grip // 2, case.grip // 2)

    target = held(case.mouse)
    if case.shift & SHIFT:
        start = held(case.press)
        angle = to_step(direction(target - start), TURN / 16)
        away = abs(target - start) * complex(math.cos(angle), -math.sin(angle))
        target = complex(half_up((start + away).real), half_up((start + away).imag))
    if case.shift & CTRL:
        steps, origin = case.grid[:2], case.grid[2:]
        target = complex(
            to_grid(target.real, steps[0], origin[0]), to_grid(target.imag, steps[1], origin[1])
        )
    stencil.center = target
    return "X = %d  Y = %d" % (math.floor(target.real), math.floor(target.imag))


def drag_rotate(stencil, case):
    left, top, right, bottom = (math.trunc(v) for v in case.rect)
    corner = [complex(right, top), complex(right, bottom), complex(left, bottom), complex(left, top)]
    own = direction(corner[case.number] - stencil.center)
    angle = (direction(case.held() - stencil.center) - own) % TURN
    if min(angle, TURN - angle) < 1e-9:
        raise Tie
    for bit, parts in ((CTRL, 40), (SHIFT, 32), (ALT, 8)):
        if case.shift & bit:
            angle = to_step(angle, TURN / parts)
            break
    stencil.angle = angle
    degrees, radians = Decimal(math.degrees(angle)), Decimal(angle)
    guard_digits(degrees, 1)
    guard_digits(radians, 3)
    return format_number(degrees, 1, 1, 1) + "°|" + format_number(radians, 1, 3, 3) + " rad"


def special(ratio):
    index, inverted = nearest_special_ratio(Decimal(ratio))
    value = float(SPECIAL_RATIOS[index])
    return 1 / value if inverted else value


def drag_side(stencil, case):
    # Top, right, bottom, left: the axis that is dragged and which way out is.
    axis = 1 if case.number in (0, 2) else 0
    outward = 1 if case.number in (1, 2) else -1
    before = stencil.size[axis]
    pulled = stencil.own(case.held())[axis] * outward - before / 2
    after = before + pulled
    if abs(after - LEAST) < 1e-7:
        raise Tie
    after = max(after, LEAST)
    if case.shift & SHIFT:
        ratio = (after + 1) / (stencil.size[1 - axis] + 1)
        after *= special(ratio) / ratio
    stencil.size[axis] = after
    if not case.shift & CTRL:
        stencil.center += (after - before) / 2 * outward * stencil.axes[axis]
    return size_text(stencil)


def drag_corner(stencil, case):
    toward = [complex(1, -1), complex(1, 1), complex(-1, 1), complex(-1, -1)][case.number]
    # Half the size from outer edge to outer edge of the pixels, signed toward the grip.
    half = [(stencil.size[0] + 1) / 2 * toward.real, (stencil.size[1] + 1) / 2 * toward.imag]
    right, down = stencil.own(case.held())
    right, down = right + toward.real / 2, down + toward.imag / 2
    # What stays: the centre with Ctrl, else the opposite corner. The arm runs from there to the grip's
    # corner, and the mouse's foot on its line has reached this share of it.
    stays = [0, 0] if case.shift & CTRL else [-half[0], -half[1]]
    arm = [half[0] - stays[0], half[1] - stays[1]]
    foot = (right - stays[0]) * arm[0] + (down - stays[1]) * arm[1]
    share = foot / (arm[0] ** 2 + arm[1] ** 2)
    # Of the smaller extent the arm keeps 22 from the opposite corner, or 11 from the centre.
    least = (LEAST / 2 if case.shift & CTRL else LEAST) / min(abs(arm[0]), abs(arm[1]))
    if abs(share - least) < 1e-9:
        raise Tie
    share = max(share, least)
    if not case.shift & CTRL:
        stencil.center = stencil.on_screen(
            stays[0] + arm[0] * share / 2, stays[1] + arm[1] * share / 2
        )
    stencil.size = [2 * abs(extent) * share - 1 for extent in half]
    return size_text(stencil)


def size_text(stencil):
    left, top, right, bottom = stencil.rect()
    for value in (left, top, right, bottom):
        if abs(abs(value) % 1 - 0.5) < 1e-7:
            raise Tie
    width = int(half_up(right) - half_up(left)) + 1
    height = int(half_up(bottom) - half_up(top)) + 1
    ratio = Decimal(stencil.size[0] + 1) / Decimal(stencil.size[1] + 1)
    text = "%d x %d  ratio = %s" % (width, height, format_ratio(ratio))
    index, inverted = nearest_special_ratio(ratio)
    shown = round_significant(min(ratio, 1 / ratio), 3, False)
    if shown == round_significant(SPECIAL_RATIOS[index], 3, False):
        caption, inverse, usage = CAPTIONS[index]
        text += "|" + (inverse if inverted else caption) + ("  (%s)" % usage if usage else "")
    return text


class Case:
    def __init__(self, rng):
        self.kind = rng.randrange(4)
        self.number = 0 if self.kind == MOVE else rng.randrange(4)
        self.shift = rng.choice([0, 0, 0, 1, 2, 3, 4, 5, 6, 7])
        self.grip = 25 if self.kind == MOVE else 21
        self.rect = self.some_rect(rng)
        steps = [0.0, math.pi / 6, math.pi / 2, math.pi / 4, 3.0]
        self.angle = rng.choice([rng.choice(steps), rng.uniform(0, TURN)])
        self.grab = complex(rng.randint(0, self.grip - 1), rng.randint(0, self.grip - 1))
        stencil = Stencil(self.rect, self.angle)
        w, h = stencil.size
        at = {
            MOVE: [(0, 0)],
            ROTATE: [(0.35, -0.35), (0.35, 0.35), (-0.35, 0.35), (-0.35, -0.35)],
            SIDE: [(0, -0.5), (0.5, 0), (0, 0.5), (-0.5, 0)],
            CORNER: [(0.5, -0.5), (0.5, 0.5), (-0.5, 0.5), (-0.5, -0.5)],
        }[self.kind][self.number]
        grip = stencil.on_screen(at[0] * w, at[1] * h)
        corner = complex(round(grip.real) - self.grip // 2, round(grip.imag) - self.grip // 2)
        self.press = corner + self.grab
        far = rng.choice([3, 30, 300, 2000])
        self.mouse = self.press + complex(rng.randint(-far, far), rng.randint(-far, far))
        self.grid = [rng.choice([0, 1, 10, 50, 37]), rng.choice([1, 10, 50, 21])]
        self.grid += [rng.randint(-50, 50), rng.randint(-50, 50)]

    @staticmethod
    def some_rect(rng):
        left, top = rng.randint(-300, 900), rng.randint(-300, 700)
        width, height = rng.randint(22, 900), rng.randint(22, 700)
        if rng.randrange(4) == 0:
            width, height = rng.randint(22, 30), rng.randint(22, 60)
        rect = [left, top, left + width, top + height]
        shape = rng.randrange(3)
        if shape == 0:
            return [v + 0.5 for v in rect]
        if shape == 1:
            dx, dy = rng.uniform(0, 1), rng.uniform(0, 1)
            return [rect[0] + dx, rect[1] + dy, rect[2] + rng.uniform(1, 2), rect[3] + rng.uniform(1, 2)]
        return [float(v) for v in rect]

    def held(self):
        return self.mouse - self.grab + complex(self.grip / 2, self.grip / 2)


def write_drags():
    rng = random.Random(401)
    drags = {MOVE: drag_move, ROTATE: drag_rotate, SIDE: drag_side, CORNER: drag_corner}

    def make():
        case = Case(rng)
        stencil = Stencil(case.rect, case.angle)
        text = drags[case.kind](stencil, case)
        given = [case.kind, case.number, case.shift, *case.rect, case.angle]
        mouse = [v for p in (case.mouse, case.press, case.grab) for v in (int(p.real), int(p.imag))]
        return given + mouse + [case.grip, *case.grid] + stencil.rect() + [stencil.angle, text]

    write(
        "stencil_drags.csv",
        "kind,number,shift,left,top,right,bottom,angle,x,y,pressX,pressY,grabX,grabY,grip,"
        "stepX,stepY,originX,originY,newLeft,newTop,newRight,newBottom,newAngle,text",
        cases(4000, make),
    )


def write_angle_steps():
    rng = random.Random(402)

    def make():
        angle = rng.choice([rng.uniform(0, TURN), rng.randrange(40) * TURN / 40, 0.0])
        negative, kind = rng.random() < 0.5, rng.randrange(4)
        step = [math.radians(1), math.radians(0.1), TURN / 40, TURN / 32][kind]
        after = angle - step if negative else angle + step
        if kind >= 2:
            after = half_up(after / step) * step
        if -1e-9 < after < 0 or abs(after - TURN) < 1e-9:
            after = 0.0
        after %= TURN
        if round_significant(Decimal(after), 4, False) == round_significant(TWO_PI, 4, False):
            after = 0.0
        return [angle, negative, kind, after]

    write("angle_steps.csv", "angle,negative,kind,after", cases(1000, make))


if __name__ == "__main__":
    write_drags()
    write_angle_steps()
