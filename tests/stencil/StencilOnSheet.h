#pragma once

#include <string>

#include "language/MlStringModule.h"
#include "stencil/ctlRatioGrid.h"
#include "support/FakeToolHost.h"
#include "support/ManualLanguage.h"
#include "support/OwnToolSettings.h"
#include "support/ToolPlayer.h"
#include "support/stencilGripIndex.h"

namespace ormala {

/// A stencil ready for use on a worksheet of 1000 by 800 pixels.
struct StencilOnSheet : ToolPlayer {
    static constexpr PixelSize sheet{1000, 800};

    explicit StencilOnSheet(PixelSize size = sheet) {
        tool.resize(size);
        tool.CenterToScreen(false, 0, false, true);
        tool.History().Add(true);
        playOn(tool);
        host.forget();
    }

    [[nodiscard]] Point gripAt(StencilGripKind kind, int number = 0) const {
        return stencilGripPoint({kind, number},
                                ComputeCorners({tool.RectBound(), tool.RotationAngle(), {}}));
    }
    [[nodiscard]] const Grip& grip(StencilGripKind kind, int number = 0) const {
        return tool.grips()[indexOfStencilGrip(kind, number)];
    }
    /// One whole drag from one grip.
    void drag(StencilGripKind kind, int number, const Point& by, int shift = 0) {
        dragBy(gripAt(kind, number), by, shift);
    }

    [[nodiscard]] StencilState state() const {
        return {tool.RectBound(), tool.RotationAngle(), tool.PatternList()};
    }

    ManualLanguage english{languageEnglish};
    FakeToolHost host;
    OwnToolSettings settings;
    SpecialRatios ratios{[](int id, std::string_view text) { return MlString(id, text); }, {}};
    ctlRatioGrid tool{host, settings, ratios};
};

}  // namespace ormala
