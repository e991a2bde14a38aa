#include "modAPI/clipping.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ormala {

namespace {

bool isFinite(Point point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

bool isInside(Point point, const Rect& rect) {
    return rect.left <= point.x && point.x <= rect.right && rect.top <= point.y &&
           point.y <= rect.bottom;
}

bool isBeyondOneSide(Point p1, Point p2, const Rect& rect) {
    return std::max(p1.x, p2.x) < rect.left || std::min(p1.x, p2.x) > rect.right ||
           std::max(p1.y, p2.y) < rect.top || std::min(p1.y, p2.y) > rect.bottom;
}

Point transposed(Point point) {
    return {point.y, point.x};
}

/// a * b - c * d with an error of about the result's last bit, also where the products nearly
/// cancel.
double differenceOfProducts(double a, double b, double c, double d) {
    const double product = c * d;
    const double lost = std::fma(-c, d, product);
    return std::fma(a, b, -product) + lost;
}

/// The straight line y = slope * x + offset, at most 45 degrees steep.
struct FlatLine {
    /// With |dx| >= |dy| and dx not 0. The x are scaled to a quarter at most, so that no difference
    /// or product overflows; powers of two keep that exact.
    FlatLine(Point p1, Point p2) {
        int exponent = 0;
        std::frexp(std::max(std::abs(p1.x), std::abs(p2.x)), &exponent);
        const int shift = -exponent - 2;
        const double x1 = std::ldexp(p1.x, shift);
        const double x2 = std::ldexp(p2.x, shift);
        slope = std::ldexp(p2.y / 2 - p1.y / 2, shift + 1) / (x2 - x1);
        offset = differenceOfProducts(p1.y, x2, x1, p2.y) / (x2 - x1);
    }

    double slope = 0;
    double offset = 0;
};

bool isSteep(Point p1, Point p2) {
    const double dx = std::abs(p2.x - p1.x);
    const double dy = std::abs(p2.y - p1.y);
    if (std::isfinite(dx) || std::isfinite(dy)) {
        return dy > dx;
    }
    return std::abs(p2.y / 2 - p1.y / 2) > std::abs(p2.x / 2 - p1.x / 2);
}

/// The end itself if it is inside, else the line's point where it enters the rectangle.
Point clippedEnd(Point end, double x, const FlatLine& line, const Rect& rect) {
    if (isInside(end, rect)) {
        return end;
    }
    const double y = line.slope * x + line.offset;
    return {x, std::clamp(y, rect.top, rect.bottom)};
}

std::optional<Line> clipFlat(Point p1, Point p2, const Rect& rect) {
    const FlatLine line(p1, p2);
    double from = std::max(std::min(p1.x, p2.x), rect.left);
    double to = std::min(std::max(p1.x, p2.x), rect.right);
    if (line.slope != 0) {
        const double atTop = (rect.top - line.offset) / line.slope;
        const double atBottom = (rect.bottom - line.offset) / line.slope;
        from = std::max(from, std::min(atTop, atBottom));
        to = std::min(to, std::max(atTop, atBottom));
    }
    if (!(from <= to)) {
        return std::nullopt;
    }
    if (p1.x > p2.x) {
        std::swap(from, to);
    }
    const Point first = clippedEnd(p1, from, line, rect);
    const Point second = clippedEnd(p2, to, line, rect);
    return Line{first.x, first.y, second.x, second.y};
}

}  // namespace

std::optional<Line> clipSegment(Point p1, Point p2, const Rect& rect) {
    if (!isFinite(p1) || !isFinite(p2) || isBeyondOneSide(p1, p2, rect)) {
        return std::nullopt;
    }
    if (isInside(p1, rect) && isInside(p2, rect)) {
        return Line{p1.x, p1.y, p2.x, p2.y};
    }
    if (!isSteep(p1, p2)) {
        return clipFlat(p1, p2, rect);
    }
    const Rect turned = {rect.top, rect.left, rect.bottom, rect.right};
    auto part = clipFlat(transposed(p1), transposed(p2), turned);
    if (part) {
        part = Line{part->y1, part->x1, part->y2, part->x2};
    }
    return part;
}

}  // namespace ormala
