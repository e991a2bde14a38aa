#pragma once

#include "scene/ToolSettings.h"

namespace ormala {

/// The settings of tools with options of their own.
struct OwnToolSettings {
    OwnToolSettings() = default;
    OwnToolSettings(const OwnToolSettings&) = delete;
    OwnToolSettings& operator=(const OwnToolSettings&) = delete;
    operator const ToolSettings&() const { return shared; }

    Grid grid;
    bool showReferenceLines = true;
    ToolSettings shared{grid, showReferenceLines, {}};
    TextForm& textForm = shared.textForm;
};

}  // namespace ormala
