#include "modAPI/transforms.h"

#include <cmath>

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// 22.5 degrees, pi / 8.
constexpr double sixteenDirections = 0.39269908169872375;

double snapped(double value, int step, int origin) {
    return step == 0 ? value : RoundHalfAway((value - origin) / step) * step + origin;
}

}  // namespace

Point MakePoint(double x, double y) {
    return {x, y};
}

// The y axis points down, so the turn is made by the negative angle.
Rotation::Rotation(double angle) : cosine_(std::cos(-angle)), sine_(std::sin(-angle)) {}

Point Rotation::apply(Point centre, Point point) const {
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    return {cosine_ * dx - sine_ * dy + centre.x, sine_ * dx + cosine_ * dy + centre.y};
}

Point RotatePoint(double cx, double cy, double x, double y, double angle) {
    return RotatePoint(Point{cx, cy}, Point{x, y}, angle);
}

Point RotatePoint(Point centre, Point point, double angle) {
    return Rotation(angle).apply(centre, point);
}

void RotateLineAboutMiddle(Line& line, double angle) {
    const Point middle = PointOnLine(line, 0.5);
    const Rotation turn(angle);
    const Point first = turn.apply(middle, {line.x1, line.y1});
    const Point second = turn.apply(middle, {line.x2, line.y2});
    line = {first.x, first.y, second.x, second.y};
}

void TranslateLine(Line& line, double dx, double dy) {
    line = {line.x1 + dx, line.y1 + dy, line.x2 + dx, line.y2 + dy};
}

void RoundPoint(Point& point, int digits) {
    point = {RoundHalfAway(point.x, digits), RoundHalfAway(point.y, digits)};
}

Point Interpolate(Point p1, Point p2, double t) {
    return {p1.x + (p2.x - p1.x) * t, p1.y + (p2.y - p1.y) * t};
}

Point PointOnLine(const Line& line, double t) {
    return Interpolate({line.x1, line.y1}, {line.x2, line.y2}, t);
}

Point SnapToDirection(Point from, Point target) {
    const double distance = Distance(from.x, from.y, target.x, target.y);
    double angle = RoundHalfAway(AngleOf(from.x, from.y, target.x, target.y) / sixteenDirections) *
                   sixteenDirections;
    // A hair below the full turn is the same direction as 0.
    if (SameSignificant(angle, twoPi, 3)) {
        angle = 0;
    }
    return {std::cos(angle) * distance + from.x, from.y - std::sin(angle) * distance};
}

void SnapToGrid(double& x, double& y, const Grid& grid) {
    x = snapped(x, grid.stepX, grid.originX);
    y = snapped(y, grid.stepY, grid.originY);
}

void SnapToGrid(Point& point, const Grid& grid) {
    SnapToGrid(point.x, point.y, grid);
}

}  // namespace ormala
