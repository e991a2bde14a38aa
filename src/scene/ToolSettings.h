#pragma once

#include "modAPI/textForms.h"
#include "modAPI/transforms.h"

namespace ormala {

/// What all tools share and the user sets. One object, owned by the application, which also owns
/// the options that it refers to; the tools read it.
struct ToolSettings {
    const Grid& grid;
    const bool& showReferenceLines;
    TextForm textForm;
};

}  // namespace ormala
