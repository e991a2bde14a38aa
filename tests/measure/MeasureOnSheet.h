#pragma once

#include "measure/ManualMeasures.h"
#include "measure/ctlMeasure.h"
#include "support/FakeToolHost.h"
#include "support/OwnToolSettings.h"
#include "support/ToolPlayer.h"

namespace ormala {

/// A measuring tool ready for use on a worksheet of 1000 by 800 pixels; its common point lies on
/// (500, 400), the first ends on (469, 201) and (597, 478).
struct MeasureOnSheet : ToolPlayer {
    static constexpr PixelSize sheet{1000, 800};

    explicit MeasureOnSheet(PixelSize size = sheet, bool connected = true) {
        tool.resize(size);
        tool.setConnected(connected);
        tool.CenterToScreen(false, 0, true);
        tool.History().Add(true);
        playOn(tool);
        host.forget();
    }

    [[nodiscard]] Point gripAt(MeasureGrip grip) const {
        return measureGripPoint(grip, tool.state());
    }
    [[nodiscard]] const Grip& grip(MeasureGrip grip) const {
        return tool.grips()[static_cast<int>(grip)];
    }
    /// One whole drag from one grip.
    void drag(MeasureGrip grip, const Point& by, int shift = 0) { dragBy(gripAt(grip), by, shift); }

    FakeToolHost host;
    OwnToolSettings settings;
    ManualMeasures others;
    ctlMeasure tool{host, settings, others};
};

}  // namespace ormala
