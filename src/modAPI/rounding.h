#pragma once

namespace ormala {

/// To `digits` decimals, halves away from zero; a negative count rounds to whole numbers. A value
/// too large to be scaled by that many digits stays as it is.
double RoundHalfAway(double value, int digits = 0);

/// The whole number next to a value that an int can hold, halves away from zero.
int RoundToInt(double value);

/// To `digits` significant digits, in two steps: first to one digit more, then to `digits`, so that
/// 0.12345 to 3 digits gives 0.124. With `keepIntegerDigits` no digit before the point is ever
/// lost. An infinite value stays as it is.
double RoundSignificant(double value, int digits, bool keepIntegerDigits);

/// Equal to that many significant digits.
bool SameSignificant(double a, double b, int digits);

}  // namespace ormala
