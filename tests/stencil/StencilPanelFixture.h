#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "stencil/StencilPanel.h"
#include "support/FakePanelCommands.h"
#include "support/FakePanelView.h"
#include "support/FakeToolHost.h"
#include "support/ManualLanguage.h"
#include "support/OwnToolSettings.h"

namespace ormala {

/// The panel of a stencil on a worksheet of 1000 by 800 pixels.
class StencilPanelFixture : public testing::Test {
  protected:
    StencilPanelFixture() {
        tool_.resize({1000, 800});
        panel_->finish();
        later(1);
    }

    void later(float seconds) { clock_.now += seconds; }
    /// As a drag on the worksheet does.
    void change(const Rect& rect) {
        tool_.setRectBound(rect);
        tool_.events().change.raise();
    }
    /// The state from which the panel counts steps of undo.
    void start(const Rect& rect, double angle = 0) {
        tool_.setRectBound(rect);
        tool_.setRotationAngle(angle);
        panel_->InitializeFinished();
    }
    void turnTo(double angle) {
        tool_.setRotationAngle(angle);
        panel_->AddHistoryStep();
    }
    void tick(int times) {
        for (int i = 0; i < times; ++i) {
            tmrFast_.raise();
        }
    }
    void click(int index, int shift = 0) {
        panel_->pressMove(index, shift);
        panel_->release();
    }
    [[nodiscard]] int undoSteps() { return tool_.History().current(); }

    ManualLanguage language_{languageEnglish};
    FakeToolHost host_;
    OwnToolSettings settings_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, {}};
    ctlRatioGrid tool_{host_, settings_, ratios_};
    FakePanelView view_;
    FakeToolVisibility visibility_;
    ManualDayClock clock_;
    FakeStencilCommands commands_;
    Event<> tmrFast_;
    std::unique_ptr<StencilPanel> panel_ = std::make_unique<StencilPanel>(
        tool_, PanelPorts{view_, visibility_, clock_}, StencilPorts{commands_, commands_, tmrFast_},
        settings_, ratios_);
};

}  // namespace ormala
