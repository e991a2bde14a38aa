#pragma once

#include <optional>

#include "modAPI/points.h"

namespace ormala {

/// The part of a segment that lies in the closed rectangle (left <= right, top <= bottom), in the
/// same direction, or nothing. An end inside stays bit for bit. Coordinates may have any finite
/// size: a tool's points can lie as far out as its file says, and what is visible of it is still
/// exact. Coordinates that are not finite give nothing.
std::optional<Line> clipSegment(Point p1, Point p2, const Rect& rect);

}  // namespace ormala
