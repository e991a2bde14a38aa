#pragma once

namespace ormala {

/// The y axis points down; tool coordinates are pixels of the worksheet.
struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// Two points in that order.
struct Line {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;

    bool operator==(const Line&) const = default;
};

/// Not normalised: right may be less than left, bottom less than top.
struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    bool operator==(const Rect&) const = default;
};

}  // namespace ormala
