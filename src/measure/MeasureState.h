#pragma once

#include <array>

#include "modAPI/points.h"

namespace ormala {

/// All of a measuring tool that undo brings back. Line ends are the centres of pixels.
struct MeasureState {
    /// The lines share their second end.
    bool Connected = true;
    Line LineA;
    Line LineB;

    bool operator==(const MeasureState&) const = default;
};

/// In pixels, both end pixels included; at least 1.
double PixelLengthA(const MeasureState& state);
double PixelLengthB(const MeasureState& state);
double RatioAToB(const MeasureState& state);
double RatioBToA(const MeasureState& state);

/// From the direction of line a to that of line b, counter-clockwise on the screen, in radians. The
/// two add up to `twoPi`.
double AngleAToB(const MeasureState& state);
double AngleBToA(const MeasureState& state);
/// Between the line and the vertical, from 0 to `halfPi`.
double AngleVertA(const MeasureState& state);
double AngleVertB(const MeasureState& state);

Point firstEnd(const Line& line);
Point secondEnd(const Line& line);
/// First and second end of line a, first and second end of line b.
std::array<Point, 4> lineEnds(const MeasureState& state);

/// The second end of line a, where connected lines meet.
Point IntersectPoint(const MeasureState& state);

/// Connects or parts the lines: the second end of line b goes to that of line a, or nothing moves.
void connectLines(MeasureState& state, bool connected);
/// The shape of a new tool about its common point, which lies on (0, 0).
void resetLines(MeasureState& state);
void translateLines(MeasureState& state, double dx, double dy);

}  // namespace ormala
