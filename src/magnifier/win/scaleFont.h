#pragma once

#include "magnifier/ScaleGlyphs.h"

namespace ormala {

/// The signs of the scales' font, the type of all windows of controls, at a resolution.
ScaleGlyphs scaleGlyphs(int dpi);

}  // namespace ormala
