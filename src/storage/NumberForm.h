#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ormala {

/// The text that stands for a number in a settings file, the same under every locale: a blank or a
/// minus sign, at most 15 significant digits, a point as decimal separator, no zero before it, and
/// an exponent as in " 1E+20" for the very large and the very small. What is no finite number is
/// written as 0.
std::string numberText(double value);

/// The number that the longest prefix of the text stands for, blanks in front of it dropped; 0 if
/// there is no such prefix, as in "inf" or "abc". Nothing if the number is too large to be finite.
std::optional<double> numberFromText(std::string_view text);

}  // namespace ormala
