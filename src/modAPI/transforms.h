#pragma once

#include "modAPI/points.h"

namespace ormala {

Point MakePoint(double x, double y);

/// A turn about a centre, counter-clockwise on the screen for a positive angle; for many points
/// that are turned by the same angle.
class Rotation {
  public:
    explicit Rotation(double angle);

    Point apply(Point centre, Point point) const;

  private:
    double cosine_;
    double sine_;
};

Point RotatePoint(double cx, double cy, double x, double y, double angle);
Point RotatePoint(Point centre, Point point, double angle);

void RotateLineAboutMiddle(Line& line, double angle);
void TranslateLine(Line& line, double dx, double dy);

/// Both coordinates through `RoundHalfAway`.
void RoundPoint(Point& point, int digits = 0);

/// p1 for t = 0, p2 for t = 1; t may lie outside.
Point Interpolate(Point p1, Point p2, double t);
Point PointOnLine(const Line& line, double t);

/// The background grid of the worksheet, in pixels.
struct Grid {
    int stepX = 50;
    int stepY = 50;
    int originX = 0;
    int originY = 0;

    bool operator==(const Grid&) const = default;
};

/// `target` brought to the nearest of the sixteen directions from `from`, at its true distance.
Point SnapToDirection(Point from, Point target);

/// Moves to the nearest crossing of the grid. A step of 0 leaves that coordinate alone.
void SnapToGrid(double& x, double& y, const Grid& grid);
void SnapToGrid(Point& point, const Grid& grid);

}  // namespace ormala
