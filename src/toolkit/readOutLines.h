#pragma once

#include <string>
#include <vector>

#include "toolkit/PanelDesign.h"
#include "toolkit/PanelView.h"

namespace ormala {

/// What a panel reads out, for other programs: lines of a name, a tab and a value, parted by
/// "\r\n". A name is that of the row in the current language with what stands before the value, as
/// "Center X", and the value is as the panel shows it. A value that is empty has no line.
std::string readOutLines(const PanelDesign& design, const std::vector<ControlText>& texts);

}  // namespace ormala
