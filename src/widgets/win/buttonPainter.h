#pragma once

#include "platform/win/handles.h"
#include "scene/PixelImage.h"
#include "widgets/ButtonDesign.h"
#include "widgets/ButtonModel.h"
#include "widgets/buttonShape.h"

namespace ormala {

/// All that the painting of a button needs to know.
struct ButtonFaceLook {
    const ButtonDesign& design;
    ButtonState state;
    PixelSize size;
    int dpi = 96;
    HFONT font = nullptr;
    /// Empty for none.
    const PixelImage& picture;
};

/// Where picture and caption stand.
ButtonContent layOutButton(HDC context, const ButtonFaceLook& look);

/// Paints the whole button, its origin at that of the device context.
void paintButton(HDC context, const ButtonFaceLook& look);

}  // namespace ormala
