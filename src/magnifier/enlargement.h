#pragma once

#include "scene/PixelView.h"

namespace ormala {

/// Makes a square of `factor` times `factor` of each pixel, from the upper left on. What of them
/// lies outside `to` is cut, and what of `to` lies outside them stays. `factor` is at least 1.
void enlarge(const PixelView& to, const PixelView& from, int factor);

}  // namespace ormala
