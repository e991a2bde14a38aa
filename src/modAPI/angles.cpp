#include "modAPI/angles.h"

#include <cmath>

#include "modAPI/constants.h"

namespace ormala {

double Distance(double x1, double y1, double x2, double y2) {
    return std::sqrt(std::pow(x1 - x2, 2.0) + std::pow(y1 - y2, 2.0));
}

double LineLength(const Line& line) {
    return Distance(line.x1, line.y1, line.x2, line.y2);
}

double AngleOf(double x1, double y1, double x2, double y2) {
    const double dx = x2 - x1;
    const double dy = y1 - y2;
    if (dx == 0) {
        if (dy == 0) {
            return 0;
        }
        return dy > 0 ? halfPi : threeHalvesPi;
    }
    const double angle = std::atan(dy / dx);
    if (dx < 0) {
        return angle + pi;
    }
    return dy < 0 ? angle + twoPi : angle;
}

double AngleOfLine(const Line& line) {
    return AngleOf(line.x1, line.y1, line.x2, line.y2);
}

double AcuteAngleOf(double x1, double y1, double x2, double y2) {
    const double dx = std::abs(x2 - x1);
    const double dy = std::abs(y1 - y2);
    if (dx != 0) {
        return std::atan(dy / dx);
    }
    return dy != 0 ? halfPi : 0;
}

double AcuteAngleOfLine(const Line& line) {
    return AcuteAngleOf(line.x1, line.y1, line.x2, line.y2);
}

double SlopeOf(double x1, double y1, double x2, double y2) {
    const double dx = x2 - x1;
    const double dy = y1 - y2;
    if (dx == 0) {
        return dy < 0 ? minusInfinite : infinite;
    }
    return dy / dx;
}

double SlopeOfLine(const Line& line) {
    return SlopeOf(line.x1, line.y1, line.x2, line.y2);
}

double DistanceFromLine(double x1, double y1, double x2, double y2, double x3, double y3) {
    const double toPoint = AngleOf(x1, y1, x3, y3);
    const double alongRay = AngleOf(x1, y1, x2, y2);
    return std::cos(halfPi - (alongRay - toPoint)) * Distance(x1, y1, x3, y3);
}

bool IsInfinite(double value) {
    return value <= minusInfinite || value >= infinite;
}

double SafeDivide(double a, double b) {
    if (b != 0) {
        return a / b;
    }
    if (a == 0) {
        return 0;
    }
    return a > 0 ? infinite : minusInfinite;
}

}  // namespace ormala
