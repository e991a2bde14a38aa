#pragma once

#include <windows.h>

#include <iosfwd>

namespace ormala::test {

/// A pixel of the screen; the primary monitor's upper left one is 0,0.
struct ScreenPoint {
    int x = 0;
    int y = 0;

    bool operator==(const ScreenPoint&) const = default;
};

constexpr ScreenPoint operator+(ScreenPoint a, ScreenPoint b) {
    return {a.x + b.x, a.y + b.y};
}

constexpr ScreenPoint operator-(ScreenPoint a, ScreenPoint b) {
    return {a.x - b.x, a.y - b.y};
}

/// A rectangle of screen pixels; `right` and `bottom` are the first ones outside.
struct ScreenRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const ScreenRect&) const = default;

    constexpr int width() const { return right - left; }
    constexpr int height() const { return bottom - top; }
    constexpr ScreenPoint origin() const { return {left, top}; }
    constexpr ScreenPoint center() const { return {left + width() / 2, top + height() / 2}; }
    constexpr bool contains(ScreenPoint p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
};

/// The rectangle of the given size about a centre.
constexpr ScreenRect around(ScreenPoint center, int width, int height) {
    const ScreenPoint origin{center.x - width / 2, center.y - height / 2};
    return {origin.x, origin.y, origin.x + width, origin.y + height};
}

ScreenRect screenRect(const RECT& rect);

std::ostream& operator<<(std::ostream& out, ScreenPoint point);
std::ostream& operator<<(std::ostream& out, const ScreenRect& rect);

}  // namespace ormala::test
