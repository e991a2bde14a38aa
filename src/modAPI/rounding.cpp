#include "modAPI/rounding.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "modAPI/constants.h"

namespace ormala {

namespace {

/// The doubles nearest to the powers of ten wherever that matters: a library's `pow` may be off by
/// its last bit.
double powerOfTen(int exponent) {
    constexpr std::array<double, 23> exact = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                              1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    const auto magnitude = static_cast<std::size_t>(std::abs(exponent));
    if (magnitude >= exact.size()) {
        return std::pow(10.0, exponent);
    }
    return exponent < 0 ? 1 / exact[magnitude] : exact[magnitude];
}

}  // namespace

double RoundHalfAway(double value, int digits) {
    const double scale = digits >= 1 ? powerOfTen(digits) : 1;
    const double half = value == 0 ? 0 : std::copysign(0.5, value);
    const double rounded = std::trunc(half + scale * value) / scale;
    return std::isfinite(rounded) ? rounded : value;
}

int RoundToInt(double value) {
    return static_cast<int>(RoundHalfAway(value));
}

double RoundSignificant(double value, int digits, bool keepIntegerDigits) {
    const bool isOrdinary = std::abs(value) < infinite;
    if (value == 0 || !isOrdinary) {
        return value;
    }
    const double magnitude = std::floor(std::log(std::abs(value)) / std::log(10.0)) + 1;
    const auto integerDigits = static_cast<int>(magnitude);
    if (keepIntegerDigits && integerDigits > digits) {
        digits = integerDigits;
    }
    const double power = powerOfTen(integerDigits);
    if (!std::isfinite(power)) {
        return value;
    }
    return RoundHalfAway(RoundHalfAway(value / power, digits + 1), digits) * power;
}

bool SameSignificant(double a, double b, int digits) {
    return RoundSignificant(a, digits, false) == RoundSignificant(b, digits, false);
}

}  // namespace ormala
