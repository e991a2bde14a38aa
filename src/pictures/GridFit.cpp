#include "pictures/GridFit.h"

#include <cmath>

namespace ormala {

double GridFit::fitted(double coordinate) const {
    const double middle = side_ / 2.0;
    const double offset = plain(coordinate) - middle;
    const bool onMiddle = (side_ - width_) % 2 == 0;
    const double distance =
        onMiddle ? std::round(std::abs(offset)) : std::floor(std::abs(offset)) + 0.5;
    return middle + (offset > 0 ? distance : -distance);
}

double GridFit::fittedRadius(double radius) const {
    return std::round(2 * plain(radius)) / 2;
}

Point GridFit::fittedMiddle(Point middle, double radius) const {
    const double pixels = fittedRadius(radius);
    const auto place = [&](double at) {
        return at == field / 2 ? plain(at) : fitted(at - radius) + pixels;
    };
    return {place(middle.x), place(middle.y)};
}

}  // namespace ormala
