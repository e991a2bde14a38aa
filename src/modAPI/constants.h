#pragma once

namespace ormala {

// Fifteen digits, not the nearest doubles to the true values: angles are compared against these
// literals as they stand, and stored tools hold angles that were made from them.
inline constexpr double pi = 3.14159265358979;
inline constexpr double halfPi = 1.570796326794895;
inline constexpr double threeHalvesPi = 4.712388980384685;
inline constexpr double twoPi = 6.28318530717958;

/// Infinity in all of the program's numbers: finite, so that it can be stored and compared.
inline constexpr double infinite = 1e308;
inline constexpr double minusInfinite = -1e308;

/// The golden section (sqrt(5) - 1) / 2.
inline constexpr double G = 0.6180339887498949;

/// The ratio of ISO paper, 1 / sqrt(2).
inline constexpr double R = 0.7071067811865475;

}  // namespace ormala
