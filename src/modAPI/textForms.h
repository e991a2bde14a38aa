#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// Of numbers in files and in texts: what a double holds for sure.
inline constexpr int significantDigits = 15;
/// Of texts on several lines and of settings files.
inline constexpr const char* lineBreak = "\r\n";
inline constexpr std::string_view hexDigits = "0123456789ABCDEF";

/// The lines as parts of a sentence.
std::string onOneLine(std::string text);

/// What the user's locale, language and options put into the text of a number.
struct TextForm {
    std::string decimalSeparator = ".";
    std::string infinite = "infinite";
    /// The resolution of the worksheet's monitor where lengths are counted in its logical pixels,
    /// of which there are 96 to the inch; 0 where they are counted in pixels of the screen.
    int logicalDpi = 0;
};

/// By a pattern of "0" (a digit always shown), "#" (a digit shown if needed) and one ".": the
/// number at 15 significant digits, halves away from zero. A value that rounds to zero has no minus
/// sign. A value that is not finite is `form.infinite`.
std::string formatNumber(double value, std::string_view pattern, const TextForm& form);

/// A place or a length in pixels of the screen: by that pattern, or in logical ones with one
/// decimal if the form wants these.
std::string formatPixels(double pixels, std::string_view pattern, const TextForm& form);

/// With the word for infinity from 1e308 on, else at four significant digits or more.
std::string FormatRatio(double value, const TextForm& form);

/// The angle in radians; unit 1 shows radians, any other degrees.
std::string FormatAngle(double angle, int unit, const TextForm& form);

/// A length in pixels. Mode 1 multiplies it by the factor, mode 2 relates it to the reference first
/// (0 for a reference of 0), any other shows pixels and neither factor nor unit.
std::string FormatLength(double length, int mode, double factor, std::string_view unitName,
                         double reference, const TextForm& form);

/// True if both have the same 15 significant digits: equal after a round trip through a file.
bool SameNumberText(double a, double b);

}  // namespace ormala
