#pragma once

#include "modAPI/textForms.h"
#include "modAPI/transforms.h"

namespace ormala {

/// What all tools share and the user sets. One object, owned by the application; the tools read it.
struct ToolSettings {
    Grid grid;
    bool showReferenceLines = true;
    TextForm textForm;
};

}  // namespace ormala
