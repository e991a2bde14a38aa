#pragma once

#include <string_view>
#include <vector>

#include "modAPI/points.h"
#include "pictures/GridFit.h"

namespace ormala {

/// A run of straight lines, in pixels.
struct Contour {
    std::vector<Point> points;
    bool closed = false;
};

/// How a drawing is laid on the field before it is scaled.
enum class Turn { none, quarter, half, threeQuarters, mirrored };

/// Reads a path in units of the field, all places absolute:
///     M x y                  starts a line
///     L x y                  a straight line to that point
///     C x y x y x y          a curve with two control points
///     A x y r from sweep     part of a circle, in degrees clockwise from the right
///     Z                      back to the start
///     O x y r, o x y r       a circle, closed and as a line
///     R left top right bottom
/// Level and upright lines and circles are fitted to the pixels.
std::vector<Contour> readOutlines(std::string_view path, Turn turn, const GridFit& fit);

}  // namespace ormala
