#pragma once

#include <string>

#include "modAPI/textForms.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilGrips.h"
#include "stencil/StencilState.h"

// What a stencil's panel and the read-out beside a grip during a drag have in common, the latter,
// and what stencil and grips are called where they are read aloud.

namespace ormala {

/// An angle given in radians.
std::string degreesText(double angle, const TextForm& form);
std::string radiansText(double angle, const TextForm& form);
/// Degrees, and radians on a second line.
std::string rotationText(double angle, const TextForm& form);
/// What the special ratio is called that is equal to this one; empty if there is none.
std::string specialRatioText(double ratio, const SpecialRatios& ratios);
/// Size and ratio in pixels; a second line names the special ratio, if it is one.
std::string sizeText(const Rect& rectBound, const SpecialRatios& ratios, const TextForm& form);
/// The same with the name of the special ratio that is nearest, whether it is one or not.
std::string sizeTextNearRatio(const Rect& rectBound, const SpecialRatios& ratios,
                              const TextForm& form);

/// Stencils are counted from 1.
std::string stencilName(int ordinal);
/// A turned stencil's sides and corners are still called after where they were.
std::string stencilGripName(StencilGrip grip);

}  // namespace ormala
