#pragma once

#include "modAPI/points.h"

namespace ormala {

// Angles are radians, counter-clockwise as seen on the screen: 0 points right, pi/2 up. A
// degenerate input never fails: two equal points have the angle 0 and the slope `infinite`.

double Distance(double x1, double y1, double x2, double y2);
double LineLength(const Line& line);

/// The direction of P1 to P2, never negative and at most 2 pi.
double AngleOf(double x1, double y1, double x2, double y2);
double AngleOfLine(const Line& line);

/// The unsigned angle to the horizontal, from 0 to pi/2.
double AcuteAngleOf(double x1, double y1, double x2, double y2);
double AcuteAngleOfLine(const Line& line);

/// Rise over run, up being positive. A vertical line has plus or minus `infinite`.
double SlopeOf(double x1, double y1, double x2, double y2);
double SlopeOfLine(const Line& line);

/// The perpendicular distance of P3 from the ray P1 to P2, positive if P3 lies to the right of the
/// direction of travel as seen on the screen. With P1 = P2 the ray is the horizontal through P1.
double DistanceFromLine(double x1, double y1, double x2, double y2, double x3, double y3);

bool IsInfinite(double value);

/// a / b; for b = 0 plus or minus `infinite` by the sign of a, and 0 for 0 / 0.
double SafeDivide(double a, double b);

}  // namespace ormala
