#pragma once

#include "toolkit/PanelDesign.h"

namespace ormala {

/// The controls of a measuring tool's panel that it speaks to.
enum class MeasureControl : ControlNumber {
    lblLengthA = static_cast<ControlNumber>(CommonControl::firstOfKind),
    lblLengthB,
    lblRatioA,
    lblRatioB,
    lblAngleA,
    lblAngleB,
    lblAngleVertA,
    lblAngleVertB,
    cmdColorA,
    cmdColorB,
    optConnect,
    optDisconnect,
    chkShowLength,
    chkShowAngle,
};

/// Of a measuring tool's panel.
const PanelDesign& measurePanelDesign();

}  // namespace ormala
