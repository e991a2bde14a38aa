#pragma once

#include <vector>

#include "scene/ToolControl.h"
#include "support/FakeTextMeter.h"

namespace ormala {

/// A worksheet that only remembers what its tools told it.
class FakeToolHost : public ToolHost {
  public:
    DirtyRegion repainted;
    int repaints = 0;
    std::vector<TipId> tips;
    bool timerRuns = false;
    int timerInterval = 0;
    Ticking* ticking = nullptr;
    FakeTextMeter meter;

    void repaint(const OverlayItem&, const DirtyRegion& region) override {
        ++repaints;
        repainted.add(region);
    }
    void showTip(const OverlayItem&, TipId tip) override { tips.push_back(tip); }
    [[nodiscard]] const TextMeter& textMeter() const override { return meter; }
    void runTimer(Ticking& timed, int interval, bool running) override {
        ticking = &timed;
        timerInterval = interval;
        timerRuns = running;
    }

    void forget() {
        repainted.clear();
        repaints = 0;
        tips.clear();
    }
};

}  // namespace ormala
