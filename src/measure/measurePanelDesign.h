#pragma once

#include "widgets/PanelDesign.h"

namespace ormala {

/// Of a measuring tool's panel.
const PanelDesign& measurePanelDesign();

}  // namespace ormala
