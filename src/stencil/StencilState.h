#pragma once

#include <array>

#include "modAPI/points.h"
#include "stencil/PatternSetting.h"

namespace ormala {

constexpr int patternSlots = 5;

using PatternList = std::array<PatternSetting, patternSlots>;

/// All of a stencil that undo brings back; colour and line style are no part of it.
struct StencilState {
    /// Before rotation, the coordinates of the first and the last pixel of each side.
    Rect RectBound;
    /// Radians about the rectangle's centre, counter-clockwise on the screen.
    double RotationAngle = 0;
    ormala::PatternList PatternList;

    bool operator==(const StencilState&) const = default;
};

/// A drag leaves at least this between opposite sides.
constexpr double smallestSide = 22;

/// Sizes counted in pixels, both end pixels included.
double PixelWidth(const Rect& rectBound);
double PixelHeight(const Rect& rectBound);
/// How many whole pixels a side has, from that of its first end to that of its last.
double CountedPixels(double first, double last);
/// Width by height in pixels; normalised the smaller by the larger.
double PixelRatio(const Rect& rectBound, bool normalise);
double PixelRatioReciprocal(const Rect& rectBound);

/// The rotated corners in the order (left, top), (right, top), (left, bottom), (right, bottom).
using StencilCorners = std::array<Point, 4>;
StencilCorners ComputeCorners(const StencilState& state);

/// 38.2 percent of the worksheet's height, as wide as the pattern's height-to-width ratio asks.
Rect defaultRectBound(double worksheetHeight, double defaultRatio);

}  // namespace ormala
