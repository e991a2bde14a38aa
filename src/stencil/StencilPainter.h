#pragma once

#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilState.h"

namespace ormala {

/// Null for a slot without a pattern.
const PatternRecord* patternOfSlot(const PatternSetting& slot);

/// Draws the patterns of all slots, in their order. `turned` false leaves the rectangle unturned.
void drawPatterns(Canvas& canvas, const StencilState& state, const Pen& pen, bool turned);

/// Adds the pixels that `drawPatterns` can touch, cut to `area`.
void addPatternsTo(DirtyRegion& region, const StencilState& state, const Pen& pen, bool turned,
                   const PixelRect& area);

}  // namespace ormala
