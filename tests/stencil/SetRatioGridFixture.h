#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "stencil/ctlSetRatioGrid.h"
#include "stencil/stencilPanelDesign.h"
#include "support/FakePanelCommands.h"
#include "support/FakePanelView.h"
#include "support/FakeToolHost.h"
#include "support/ManualLanguage.h"
#include "support/OwnToolSettings.h"
#include "support/PanelDesignCheck.h"

namespace ormala {

/// The panel of a stencil on a worksheet of 1000 by 800 pixels.
class SetRatioGridFixture : public testing::Test {
  protected:
    SetRatioGridFixture() {
        tool_.resize({1000, 800});
        panel_->finish();
        later(1);
    }

    void later(float seconds) { now_ += seconds; }
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
            tmrFast_.tick();
        }
    }
    /// The mouse goes down on a button that steps, or the space bar on it.
    void press(const std::string& name, int shift = 0) {
        panel_->press(test::controlNamed(panel_->design(), name), shift);
    }
    void pressKey(const std::string& name) {
        panel_->pressKey(test::controlNamed(panel_->design(), name), 0);
    }
    void step(const std::string& name, int shift = 0) {
        press(name, shift);
        panel_->release();
    }
    void click(const std::string& name, int shift = 0) { test::clickOn(*panel_, name, shift); }
    void hover(bool over) {
        test::controlNamed(panel_->design(), "cmdSendMouseInput").hover.perform(*panel_, over);
    }
    [[nodiscard]] bool previewIsComing() const {
        return view_.timers.contains(PanelTimer::tmrDelayMousePreview);
    }
    [[nodiscard]] int patternPictures() { return view_.pictureChanges[StencilControl::imgPattern]; }
    [[nodiscard]] int undoSteps() { return tool_.History().current(); }

    ManualLanguage language_{languageEnglish};
    FakeToolHost host_;
    OwnToolSettings settings_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, {}};
    ctlRatioGrid tool_{host_, settings_, ratios_};
    FakePanelView view_;
    std::map<const OverlayItem*, bool> visible_;
    float now_ = 36000;
    FakePanelCommands commands_;
    Clock tmrFast_{[](bool) {}};
    std::unique_ptr<ctlSetRatioGrid> panel_ = std::make_unique<ctlSetRatioGrid>(
        tool_,
        PanelPorts{view_, commands_, tmrFast_,
                   [this](const OverlayItem& tool, bool shown) { visible_[&tool] = shown; },
                   [this] { return now_; }},
        commands_, settings_, ratios_);
};

}  // namespace ormala
