#pragma once

#include <string>
#include <string_view>

#include "stencil/SpecialRatios.h"

namespace ormala {

/// The texts that ratios are written with.
inline std::string english(int /*id*/, std::string_view defaultText) {
    return std::string(defaultText);
}

inline const SpecialRatios& englishRatios() {
    static const SpecialRatios ratios(english, TextForm{});
    return ratios;
}

}  // namespace ormala
