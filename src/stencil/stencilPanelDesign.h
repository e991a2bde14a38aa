#pragma once

#include "toolkit/PanelDesign.h"

namespace ormala {

/// The controls of a stencil's panel that it speaks to.
enum class StencilControl : ControlNumber {
    lblCenterX = static_cast<ControlNumber>(CommonControl::firstOfKind),
    lblCenterY,
    lblSizeWidth,
    lblSizeHeight,
    lblPositionLeft,
    lblPositionRight,
    lblPositionTop,
    lblPositionBottom,
    lblAngle1,
    lblAngle2,
    lblRatioWH,
    lblRatioHW,
    lblRatioDescription,
    imgPattern,
    cmdColor,
};

/// Of a stencil's panel.
const PanelDesign& stencilPanelDesign();

}  // namespace ormala
