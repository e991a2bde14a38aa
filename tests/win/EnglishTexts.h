#pragma once

#include "language/MlStringModule.h"

namespace ormala {

/// The language of a test, and of all that follow it.
class EnglishTexts {
  public:
    EnglishTexts() { MlSetLanguage(languageEnglish, {}); }
    EnglishTexts(const EnglishTexts&) = delete;
    EnglishTexts& operator=(const EnglishTexts&) = delete;
    ~EnglishTexts() { MlSetLanguage(languageEnglish, {}); }
};

}  // namespace ormala
