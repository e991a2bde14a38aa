#include "measure/MeasureDrag.h"

#include <cmath>

#include "modAPI/angles.h"
#include "scene/Input.h"

namespace ormala {

namespace {

bool ofLineA(MeasureGrip grip) {
    return grip == MeasureGrip::endA1 || grip == MeasureGrip::endA2 || grip == MeasureGrip::centerA;
}

bool isFirstEnd(MeasureGrip grip) {
    return grip == MeasureGrip::endA1 || grip == MeasureGrip::endB1;
}

Line& lineOf(MeasureState& state, MeasureGrip grip) {
    return ofLineA(grip) ? state.LineA : state.LineB;
}

/// Where the mouse has brought what was at `from` at the press.
Point moved(const Point& from, const MeasureDrag& drag) {
    return {from.x + drag.dx, from.y + drag.dy};
}

/// On the ray of the line's present direction, as far from `other` as the mouse is.
Point alongLine(const Line& line, const Point& other, const Point& mouse, bool first) {
    const double length = Distance(other.x, other.y, mouse.x, mouse.y) * (first ? -1 : 1);
    const double angle = AngleOfLine(line);
    return {other.x + std::cos(angle) * length, other.y - std::sin(angle) * length};
}

bool tooNear(const Point& a, const Point& b) {
    return static_cast<float>(Distance(a.x, a.y, b.x, b.y)) < smallestLength;
}

void setEnd(Line& line, bool first, const Point& point) {
    (first ? line.x1 : line.x2) = point.x;
    (first ? line.y1 : line.y2) = point.y;
}

}  // namespace

Point DragEndGrip(MeasureState& state, const MeasureDrag& drag, const EndSnap& snap) {
    const bool first = isFirstEnd(drag.grip);
    Line& line = lineOf(state, drag.grip);
    const Point other = first ? secondEnd(line) : firstEnd(line);
    Point target = moved(measureGripPoint(drag.grip, drag.press), drag);
    if ((drag.shift & modifier::shift) != 0) {
        target = alongLine(line, other, target, first);
    } else {
        RoundPoint(target);
    }
    if (!tooNear(other, target)) {
        if (drag.shift == modifier::alt) {
            snap(target);
        }
        setEnd(line, first, target);
    }
    return target;
}

Point DragCenterGrip(MeasureState& state, const MeasureDrag& drag, const Grid& grid) {
    const Point center = measureGripPoint(drag.grip, drag.press);
    Point target = moved(center, drag);
    if ((drag.shift & modifier::shift) != 0) {
        target = SnapToDirection(center, target);
    }
    if ((drag.shift & modifier::ctrl) != 0) {
        SnapToGrid(target, grid);
    }
    Line& line = lineOf(state, drag.grip);
    line = ofLineA(drag.grip) ? drag.press.LineA : drag.press.LineB;
    TranslateLine(line, target.x - center.x, target.y - center.y);
    return target;
}

Point DragIntersectGrip(MeasureState& state, const MeasureDrag& drag, const Grid& grid,
                        const EndSnap& snap) {
    const Point common = IntersectPoint(drag.press);
    Point target = moved(common, drag);
    if ((drag.shift & modifier::shift) != 0) {
        target = SnapToDirection(common, target);
    } else {
        RoundPoint(target);
    }
    if ((drag.shift & modifier::ctrl) != 0) {
        SnapToGrid(target, grid);
    }
    if (drag.shift == modifier::alt) {
        snap(target);
    }
    RoundPoint(target);
    state.LineA = drag.press.LineA;
    state.LineB = drag.press.LineB;
    translateLines(state, target.x - common.x, target.y - common.y);
    return target;
}

}  // namespace ormala
