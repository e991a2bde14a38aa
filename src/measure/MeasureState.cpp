#include "measure/MeasureState.h"

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/transforms.h"

namespace ormala {

namespace {

double pixelLength(const Line& line) {
    return LineLength(line) + 1;
}

double angleToVertical(Line line) {
    RotateLineAboutMiddle(line, halfPi);
    return AcuteAngleOfLine(line);
}

}  // namespace

double PixelLengthA(const MeasureState& state) {
    return pixelLength(state.LineA);
}

double PixelLengthB(const MeasureState& state) {
    return pixelLength(state.LineB);
}

double RatioAToB(const MeasureState& state) {
    return SafeDivide(PixelLengthA(state), PixelLengthB(state));
}

double RatioBToA(const MeasureState& state) {
    return SafeDivide(PixelLengthB(state), PixelLengthA(state));
}

double AngleAToB(const MeasureState& state) {
    const double a = AngleOfLine(state.LineA);
    const double b = AngleOfLine(state.LineB);
    return b < a ? twoPi - (a - b) : b - a;
}

double AngleBToA(const MeasureState& state) {
    return twoPi - AngleAToB(state);
}

double AngleVertA(const MeasureState& state) {
    return angleToVertical(state.LineA);
}

double AngleVertB(const MeasureState& state) {
    return angleToVertical(state.LineB);
}

Point firstEnd(const Line& line) {
    return {line.x1, line.y1};
}

Point secondEnd(const Line& line) {
    return {line.x2, line.y2};
}

std::array<Point, 4> lineEnds(const MeasureState& state) {
    return {firstEnd(state.LineA), secondEnd(state.LineA), firstEnd(state.LineB),
            secondEnd(state.LineB)};
}

Point IntersectPoint(const MeasureState& state) {
    return secondEnd(state.LineA);
}

void connectLines(MeasureState& state, bool connected) {
    state.Connected = connected;
    if (connected) {
        state.LineB.x2 = state.LineA.x2;
        state.LineB.y2 = state.LineA.y2;
    }
}

void resetLines(MeasureState& state) {
    state.LineA = {-31, -199, 0, 0};
    state.LineB = {97, 78, state.Connected ? 0.0 : 10.0, 0};
}

void translateLines(MeasureState& state, double dx, double dy) {
    TranslateLine(state.LineA, dx, dy);
    TranslateLine(state.LineB, dx, dy);
}

}  // namespace ormala
