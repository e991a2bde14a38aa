#pragma once

#include "modAPI/colors.h"

namespace ormala {

/// The system colours that the controls start with.
constexpr Color systemSelection = static_cast<Color>(0x8000000DU);
constexpr Color systemButtonFace = static_cast<Color>(0x8000000FU);
constexpr Color systemShadow = static_cast<Color>(0x80000010U);
constexpr Color systemButtonText = static_cast<Color>(0x80000012U);
constexpr Color systemHighlight = static_cast<Color>(0x80000014U);

}  // namespace ormala
