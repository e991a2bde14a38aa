"""Sections of tool-settings files, for the pictures of the help. Places and sizes are in pixels at
96 DPI."""

from help_scene import SCALE

# 0x00BBGGRR
ORANGE, YELLOW, CYAN, WHITE, BLUE, RED = 0x1F9FFF, 0x00E6FF, 0xFFFF00, 0xFFFFFF, 0xFF7838, 0x4646FF
GREEN, AMBER = 0x50FF50, 0x00A0FF
# A line of SCALE pixels, as files number line styles.
SOLID = f" {SCALE + 1}"
# Patterns, as files number them.
BOUNDARY, THIRDS, SIMPLE, DOUBLE, SECTIONS, SQUARES, ELLIPSES, SPIRAL, STAR, DIAGONALS = (
    1, 3, 5, 6, 7, 10, 13, 14, 16, 19)


def number(value):
    return f" {value}" if value >= 0 else f"{value}"


def on_screen(value):
    return number(round(value * SCALE))


def stencil(left, top, width, height, *patterns, angle=0.0, color=ORANGE):
    """A stencil by its place in the worksheet."""
    values = {"Type": " 0", "RectBoundTop": on_screen(top),
              "RectBoundRight": number(round((left + width) * SCALE) - 1),
              "RectBoundBottom": number(round((top + height) * SCALE) - 1),
              "RectBoundLeft": on_screen(left), "RotationAngle": number(angle),
              "Color": number(color), "LineWidth": SOLID}
    for slot in range(5):
        pattern = patterns[slot] if slot < len(patterns) else -1
        values[f"PatternID{slot + 1}"] = number(pattern)
        values[f"PatternPreRotation{slot + 1}"] = " 0"
    return values | {"Hide": " 0"}


def measure(a, common, b, start=None, which=1, colors=(BLUE, RED), unit=None, angle=True):
    """A measuring tool; `start` is the other end of b where it is apart. `unit` is the length of a
    with the name of the unit. `angle` says whether the label of the angle shows."""
    other = start or common
    ends = dict(zip(("AX1", "AY1", "AX2", "AY2", "BX1", "BY1", "BX2", "BY2"),
                    (*a, *common, *b, *other)))
    factor, name = unit or (1, "m")
    return ({"Type": " 1", "Connected": " 0" if start else "-1"}
            | {name: on_screen(value) for name, value in ends.items()}
            | {"LineWidth": SOLID, "ColorA": number(colors[0]), "ColorB": number(colors[1]),
               "AngleMode": " 0", "LengthMode": number(2 if unit else 0),
               "LengthFactor": number(factor), "LengthUnit": name, "LabelsLengthVisible": "-1",
               "LabelsAngleVisible": "-1" if angle else " 0", "Number": number(which), "Hide": " 0"})
