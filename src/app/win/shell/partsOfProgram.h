#pragma once

#include <vector>

#include "app/WindowPart.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/tools/ToolsPane.h"
#include "magnifier/win/frmLens.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

/// The toolbar, the list of panels, the worksheet with its frame, and the magnifier. All must
/// outlive the parts.
std::vector<WindowPart> partsOfProgram(frmSettings& settings, ToolsPane& tools,
                                       frmWorksheet& worksheet, frmResizer& resizer, frmLens& lens);

}  // namespace ormala
