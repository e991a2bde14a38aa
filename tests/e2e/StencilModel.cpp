#include "e2e/StencilModel.h"

#include <algorithm>
#include <cmath>

namespace ormala::test {

namespace {

constexpr double goldenSection = 0.6180339887498949;
constexpr double leastHalf = 11;

double rounded(double value) {
    return value < 0 ? std::ceil(value - 0.5) : std::floor(value + 0.5);
}

}  // namespace

StencilModel StencilModel::ofFirstStart(int width, int height) {
    StencilModel model;
    const double high = (1 - goldenSection) * height;
    model.center = {std::floor(width / 2.0), std::floor(height / 2.0)};
    model.halfHeight = (high - 1) / 2;
    model.halfWidth = (high / goldenSection - 1) / 2;
    return model;
}

Spot StencilModel::right() const {
    return {std::cos(angle), -std::sin(angle)};
}

Spot StencilModel::down() const {
    return {std::sin(angle), std::cos(angle)};
}

Spot StencilModel::at(double x, double y) const {
    const double along = x * halfWidth;
    const double across = y * halfHeight;
    return {center.x + along * right().x + across * down().x,
            center.y + along * right().y + across * down().y};
}

ScreenPoint StencilModel::gripPixel(double x, double y) const {
    const Spot spot = at(x, y);
    return {static_cast<int>(rounded(spot.x)), static_cast<int>(rounded(spot.y))};
}

Spot StencilModel::own(Spot point) const {
    const double dx = point.x - center.x;
    const double dy = point.y - center.y;
    return {dx * right().x + dy * right().y, dx * down().x + dy * down().y};
}

Spot StencilModel::held(Spot shares, int dx, int dy) const {
    // A grown grip is 21 pixels wide, so its centre lies half a pixel off its middle pixel's place.
    const ScreenPoint pixel = gripPixel(shares.x, shares.y);
    return {pixel.x + dx + 0.5, pixel.y + dy + 0.5};
}

void StencilModel::moveCenter(double alongRight, double alongDown) {
    center = {center.x + alongRight * right().x + alongDown * down().x,
              center.y + alongRight * right().y + alongDown * down().y};
}

void StencilModel::dragCenter(int dx, int dy) {
    const ScreenPoint pixel = gripPixel(0, 0);
    center = {static_cast<double>(pixel.x + dx), static_cast<double>(pixel.y + dy)};
}

void StencilModel::dragSide(Spot shares, int dx, int dy, bool symmetric, double ratioSnap) {
    const Spot mouse = own(held(shares, dx, dy));
    const bool horizontal = shares.x != 0;
    const double sign = horizontal ? shares.x : shares.y;
    double& half = horizontal ? halfWidth : halfHeight;
    const double reach = (horizontal ? mouse.x : mouse.y) * sign;
    if (symmetric) {
        half = std::max((half + reach) / 2, leastHalf);
        return;
    }
    double size = std::max(reach + half, 2 * leastHalf);
    if (ratioSnap != 0) {
        const double other = 2 * (horizontal ? halfHeight : halfWidth) + 1;
        size *= ratioSnap / ((size + 1) / other);
    }
    const double moved = (size - 2 * half) / 2 * sign;
    half = size / 2;
    moveCenter(horizontal ? moved : 0, horizontal ? 0 : moved);
}

void StencilModel::dragCorner(Spot shares, int dx, int dy, bool symmetric) {
    const double wide = halfWidth + 0.5;
    const double high = halfHeight + 0.5;
    Spot mouse = own(held(shares, dx, dy));
    mouse = {mouse.x + 0.5 * shares.x, mouse.y + 0.5 * shares.y};
    const double length = std::hypot(wide, high);
    const Spot diagonal{shares.x * wide / length, shares.y * high / length};
    const double along = mouse.x * diagonal.x + mouse.y * diagonal.y;
    // From the centre, or from the opposite corner on the other side of it.
    const double shorter = std::min(wide, high);
    const double least = symmetric ? leastHalf / shorter : 2 * leastHalf / shorter - 1;
    const double scale = std::max(along / length, least);
    if (symmetric) {
        halfWidth = wide * scale - 0.5;
        halfHeight = high * scale - 0.5;
        return;
    }
    moveCenter(shares.x * wide * (scale - 1) / 2, shares.y * high * (scale - 1) / 2);
    halfWidth = wide * (scale + 1) / 2 - 0.5;
    halfHeight = high * (scale + 1) / 2 - 0.5;
}

void StencilModel::dragRotation(Spot shares, int dx, int dy, double step) {
    const Spot inside{shares.x * rotationShare, shares.y * rotationShare};
    const Spot mouse = held(inside, dx, dy);
    const double cornerX = std::trunc(center.x + shares.x * halfWidth) - center.x;
    const double cornerY = std::trunc(center.y + shares.y * halfHeight) - center.y;
    constexpr double fullTurn = 6.283185307179586;
    double turned =
        std::atan2(-(mouse.y - center.y), mouse.x - center.x) - std::atan2(-cornerY, cornerX);
    turned = std::fmod(turned + 2 * fullTurn, fullTurn);
    if (step != 0) {
        turned = rounded(turned / step) * step;
    }
    angle = turned > fullTurn - 1e-3 ? 0 : turned;
}

}  // namespace ormala::test
