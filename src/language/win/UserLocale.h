#pragma once

#include <string>

namespace ormala {

/// The two locale numbers that the program asks with: the user's own, and the language's English
/// name.
constexpr int localeUserDefault = 1024;
constexpr int localeEnglishLanguageName = 4097;

/// A text of the system's locale data, empty if the system doesn't know it.
std::string MlGetLocaleInfo(int Locale, int InfoType);

/// What the user writes between the whole part and the fraction of a number; "." if the system
/// doesn't tell.
std::string decimalSeparator();

}  // namespace ormala
