#pragma once

#include <gtest/gtest.h>

#include <string>

#include "language/MlStringModule.h"

namespace ormala {

/// In which language and for which resolution a picture is taken.
struct LanguageAndDpi {
    int language;
    int dpi;

    [[nodiscard]] std::string name() const {
        return (language == languageGerman ? "german_" : "english_") + std::to_string(dpi);
    }
    static std::string nameOfTest(const testing::TestParamInfo<LanguageAndDpi>& info) {
        return info.param.name();
    }
};

inline constexpr LanguageAndDpi languagesAndDpis[] = {
    {languageEnglish, 96}, {languageEnglish, 192}, {languageGerman, 96}, {languageGerman, 192}};

}  // namespace ormala
