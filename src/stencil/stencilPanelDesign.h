#pragma once

#include "toolkit/PanelDesign.h"

namespace ormala {

/// Of a stencil's panel.
const PanelDesign& stencilPanelDesign();

}  // namespace ormala
