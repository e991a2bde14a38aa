#pragma once

#include "scene/PixelImage.h"
#include "widgets/lookColors.h"

namespace ormala {

/// How a panel is filled. Colours may be system colours.
struct GradientDesign {
    Color ColorTopLeft = systemHighlight;
    Color ColorBottomRight = systemShadow;
    /// 1 from top to bottom, any other from left to right.
    int Orientation = 1;
    /// 100 is the plain linear mix; see `GradientColor`.
    double Reduce = 100;
};

/// The panel in that size; a side of one pixel along the gradient shows `ColorTopLeft` alone.
PixelImage gradientImage(const GradientDesign& design, PixelSize size,
                         SystemColorLookup systemColor);

}  // namespace ormala
