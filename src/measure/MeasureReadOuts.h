#pragma once

#include <vector>

#include "measure/MeasureState.h"
#include "modAPI/textForms.h"
#include "toolkit/MeasureUnits.h"
#include "toolkit/PanelView.h"

namespace ormala {

/// The texts of the panel's labels that show what is measured.
std::vector<ControlText> measureReadOuts(const MeasureState& state, const MeasureUnits& units,
                                         const TextForm& form);

}  // namespace ormala
