#pragma once

#include "toolkit/PanelDesign.h"

namespace ormala {

/// Of a measuring tool's panel.
const PanelDesign& measurePanelDesign();

}  // namespace ormala
