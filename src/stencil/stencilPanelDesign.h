#pragma once

#include "widgets/PanelDesign.h"

namespace ormala {

/// Of a stencil's panel.
const PanelDesign& stencilPanelDesign();

}  // namespace ormala
