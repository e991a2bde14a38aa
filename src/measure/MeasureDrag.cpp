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

bool stands(const MeasureDrag& drag) {
    return drag.dx == 0 && drag.dy == 0;
}

bool tooNear(const Point& a, const Point& b) {
    return static_cast<float>(Distance(a.x, a.y, b.x, b.y)) < smallestLength;
}

/// A free end on its way from the press.
class EndWay {
  public:
    EndWay(const Line& press, const Point& other, bool first, const MeasureDrag& drag)
        : from_(first ? firstEnd(press) : secondEnd(press)),
          other_(other),
          angle_(AngleOfLine(press)),
          sign_(first ? -1 : 1),
          drag_(drag) {}

    /// The end at that share of the mouse's way. With Shift the line keeps its direction and is as
    /// long as the mouse is far from its other end.
    [[nodiscard]] Point at(double share) const {
        Point mouse{from_.x + drag_.dx * share, from_.y + drag_.dy * share};
        if ((drag_.shift & modifier::shift) != 0) {
            return onRay(Distance(other_.x, other_.y, mouse.x, mouse.y));
        }
        RoundPoint(mouse);
        return mouse;
    }

    /// The last place that is far enough from the other end; where the end began, if there is none.
    [[nodiscard]] Point last() const {
        if (!tooNear(other_, at(1))) {
            return at(1);
        }
        if ((drag_.shift & modifier::shift) != 0) {
            return tooNear(other_, from_) ? from_ : onRay(smallestLength);
        }
        // Back along the way, in steps that miss no pixel; the other end is soon left.
        constexpr double step = 0.25;
        const double length = std::hypot(drag_.dx, drag_.dy);
        for (double back = step; back < length; back += step) {
            const Point place = at(1 - back / length);
            if (!tooNear(other_, place)) {
                return place;
            }
        }
        return from_;
    }

  private:
    [[nodiscard]] Point onRay(double length) const {
        return {other_.x + std::cos(angle_) * sign_ * length,
                other_.y - std::sin(angle_) * sign_ * length};
    }

    Point from_;
    Point other_;
    double angle_;
    /// Which way the line runs from its other end.
    double sign_;
    const MeasureDrag& drag_;
};

void setEnd(Line& line, bool first, const Point& point) {
    (first ? line.x1 : line.x2) = point.x;
    (first ? line.y1 : line.y2) = point.y;
}

}  // namespace

bool bindsToGrid(const MeasureDrag& drag) {
    const bool free = drag.grip == MeasureGrip::centerA || drag.grip == MeasureGrip::centerB ||
                      drag.grip == MeasureGrip::intersect;
    return free && (drag.shift & modifier::ctrl) != 0;
}

Point DragEndGrip(MeasureState& state, const MeasureDrag& drag, const EndSnap& snap) {
    const bool first = isFirstEnd(drag.grip);
    Line& line = lineOf(state, drag.grip);
    const Point other = first ? secondEnd(line) : firstEnd(line);
    const EndWay way(ofLineA(drag.grip) ? drag.press.LineA : drag.press.LineB, other, first, drag);
    const Point target = way.at(1);
    Point end = stands(drag) ? measureGripPoint(drag.grip, drag.press) : way.last();
    const bool stopped = tooNear(other, target);
    if (drag.shift == modifier::alt) {
        snap(end);
    }
    setEnd(line, first, end);
    return stopped ? target : end;
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
    } else if (!stands(drag)) {
        RoundPoint(target);
    }
    if ((drag.shift & modifier::ctrl) != 0) {
        SnapToGrid(target, grid);
    }
    if (drag.shift == modifier::alt) {
        snap(target);
    }
    if (!stands(drag) || target != common) {
        RoundPoint(target);
    }
    state.LineA = drag.press.LineA;
    state.LineB = drag.press.LineB;
    translateLines(state, target.x - common.x, target.y - common.y);
    return target;
}

}  // namespace ormala
