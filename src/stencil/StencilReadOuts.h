#pragma once

#include <vector>

#include "modAPI/textForms.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilState.h"
#include "toolkit/PanelView.h"

namespace ormala {

/// The texts of the panel's labels that show a stencil's numbers, in the user's language.
std::vector<ControlText> stencilReadOuts(const Rect& rectBound, double rotationAngle,
                                         const SpecialRatios& ratios, const TextForm& form);

}  // namespace ormala
