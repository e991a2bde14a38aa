#pragma once

#include "modAPI/colors.h"
#include "scene/PixelImage.h"
#include "stencil/StencilState.h"

namespace ormala {

/// A picture of that size of the patterns of all slots together, in lines of that width. Their
/// segments fill it: the first and the last lines lie on its outermost pixels. Slots without a
/// pattern are skipped, and a selection without any is a picture of the ground alone. Both colours
/// are plain ones.
PixelImage GetPatternPicture(const PatternList& patterns, PixelSize size, Color backColor,
                             Color color, int lineWidth = 1);

/// The same lines on a transparent ground, for a button that has its own.
PixelImage patternLines(const PatternList& patterns, PixelSize size, Color color,
                        int lineWidth = 1);

/// Where the unit square comes to lie in such a picture, for segments whose ends are in `extent`,
/// so that the segments fill it. Nothing is stretched along an axis without any extent, and
/// segments that have none lie in the middle.
Rect pictureRect(const Rect& extent, PixelSize size, int lineWidth);

}  // namespace ormala
