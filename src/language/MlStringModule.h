#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "language/LanguageSupport.h"

namespace ormala {

/// The two languages, by the numbers that Windows and the options file give them.
constexpr int languageEnglish = 9;
constexpr int languageGerman = 1031;

/// The language in force, one for the whole process. 0 until it is first set.
int& CurrentLanguage();

/// The text of that number in the current language, or the default if that language has none. Empty
/// as long as the current language is none of the two.
std::string MlString(int Id, std::string_view DefaultText);

/// Makes a language current; an unknown one gives English. Nothing reads the second argument.
void MlSetLanguage(int LanguageId, std::string_view Ignored);

/// The languages there are.
std::vector<int> MlLanguages();

/// Replaces each "%n" by a carriage return and line feed, then each "%0" by the first argument,
/// each
/// "%1" by the second and so on. The steps follow each other on the growing text: what an argument
/// brings in is open to the later ones, but not to the line breaks.
std::string MlFormat(std::string_view Template, std::span<const std::string> Args);

/// The language to start with, from the name that the user's language has in English.
int languageForLocaleName(std::string_view englishName);

/// Tells all windows of a change of language. The same object at each call.
LanguageSupport& GetLanguageSupport();

}  // namespace ormala
