#pragma once

#include <algorithm>

namespace ormala {

struct PixelPoint {
    int x = 0;
    int y = 0;

    bool operator==(const PixelPoint&) const = default;
};

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

/// Whole pixels, half open: the pixels of column `right` and row `bottom` are outside.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const PixelRect&) const = default;

    [[nodiscard]] constexpr bool empty() const { return right <= left || bottom <= top; }
    [[nodiscard]] constexpr int width() const { return right - left; }
    [[nodiscard]] constexpr int height() const { return bottom - top; }

    [[nodiscard]] constexpr bool contains(PixelPoint point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }

    [[nodiscard]] constexpr PixelRect intersected(const PixelRect& other) const {
        return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                std::min(bottom, other.bottom)};
    }

    [[nodiscard]] constexpr bool meets(const PixelRect& other) const {
        return !intersected(other).empty();
    }

    /// The smallest rectangle around both; an empty one counts for nothing.
    [[nodiscard]] constexpr PixelRect united(const PixelRect& other) const {
        if (empty()) {
            return other;
        }
        if (other.empty()) {
            return *this;
        }
        return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
                std::max(bottom, other.bottom)};
    }

    [[nodiscard]] constexpr PixelRect grown(int by) const {
        return {left - by, top - by, right + by, bottom + by};
    }
};

}  // namespace ormala
