#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// What a scroll bar is made of.
enum class ScrollPart { none, topLeft, bottomRight, thumb, track };

/// What a scroll bar shows: a value between two ends, which may be in either order, and how much of
/// the whole is in sight, in the units of the value.
struct ScrollRange {
    int Min = 0;
    int Max = 100;
    int Value = 0;
    int LargeChange = 1;
};

/// Where the parts of a scroll bar stand, in its own pixels. Neighbours share their outlines, so
/// the thumb at an end lies over the edge of the arrow there.
struct ScrollLayout {
    /// A bar that is wider than high lies; any other stands.
    bool horizontal = false;
    PixelRect cmdTL;
    PixelRect cmdBR;
    /// Empty where there is no room for one.
    PixelRect cmdMove;
    /// All between the ends that the thumb can reach.
    PixelRect shapeMiddle;

    [[nodiscard]] ScrollPart partAt(PixelPoint point) const;
    /// The coordinate that counts along the bar.
    [[nodiscard]] int along(PixelPoint point) const { return horizontal ? point.x : point.y; }
    [[nodiscard]] int thumbStart() const { return horizontal ? cmdMove.left : cmdMove.top; }
    [[nodiscard]] int thumbEnd() const { return horizontal ? cmdMove.right : cmdMove.bottom; }
    [[nodiscard]] int trackStart() const { return horizontal ? shapeMiddle.left : shapeMiddle.top; }
    /// How far the thumb can go.
    [[nodiscard]] int free() const;

    bool operator==(const ScrollLayout&) const = default;
};

/// Any size will do; a bar without room has empty parts.
ScrollLayout layoutScroll(PixelSize size, int dpi, const ScrollRange& range);

}  // namespace ormala
