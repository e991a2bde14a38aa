#pragma once

#include <span>

#include "modAPI/points.h"
#include "scene/Canvas.h"

// From exact coordinates of any size to the whole pixels of a canvas. What lies far outside the
// canvas is cut off first, so that no coordinate overflows and no stroke costs more than its
// visible part.

namespace ormala {

/// From p1 to p2, each coordinate rounded with halves away from zero.
void DrawSegment(Canvas& canvas, const Pen& pen, const Point& p1, const Point& p2);
void DrawSegment(Canvas& canvas, const Pen& pen, const Line& line);

/// The points are whole numbers. A style of dots or dashes runs on along the visible stretch.
void drawPolyline(Canvas& canvas, const Pen& pen, std::span<const Point> points);

/// 3n + 1 control points, rounded with halves away from zero.
void drawBezier(Canvas& canvas, const Pen& pen, std::span<const Point> points);

/// The smallest rectangle of whole pixels around a stroke from p1 to p2 of that pen's width, cut
/// to `area`.
PixelRect strokeBounds(const Pen& pen, const Point& p1, const Point& p2, const PixelRect& area);

/// `rect` as the pixels that it touches, cut to `area`; empty if they do not meet.
PixelRect pixelsOf(const Rect& rect, const PixelRect& area);

}  // namespace ormala
