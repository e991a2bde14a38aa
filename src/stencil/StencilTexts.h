#pragma once

#include <string>

#include "modAPI/textForms.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilState.h"

// The read-out beside a grip during a drag.

namespace ormala {

/// Degrees, and radians on a second line.
std::string rotationText(double angle, const TextForm& form);
/// Size and ratio in pixels; a second line names the special ratio, if it is one.
std::string sizeText(const Rect& rectBound, const SpecialRatios& ratios, const TextForm& form);

}  // namespace ormala
