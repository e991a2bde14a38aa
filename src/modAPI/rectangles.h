#pragma once

#include "modAPI/points.h"

namespace ormala {

/// Half open: the right and the bottom edge are outside.
bool PointInRect(const Rect& rect, double x, double y);

Point RectCenter(const Rect& rect);

/// Never negative, also for a `Rect` that is not normalised.
double RectWidth(const Rect& rect);
double RectHeight(const Rect& rect);

/// Width by height; with `normalise` the smaller by the larger. A `Rect` without height has
/// `infinite`, and 0 with `normalise`.
double RectAspect(const Rect& rect, bool normalise);

/// Moves the centre to the point; the signed extents stay.
void CenterRectOn(Rect& rect, Point centre);

/// Exact equality of all four numbers.
bool SameRect(const Rect& a, const Rect& b);
bool SameLine(const Line& a, const Line& b);

}  // namespace ormala
