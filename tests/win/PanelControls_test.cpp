#include "toolkit/win/PanelControls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "measure/measurePanelDesign.h"
#include "stencil/stencilPanelDesign.h"
#include "support/win/Wait.h"
#include "win/ControlPanel.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/PanelStage.h"

namespace ormala {
namespace {

/// Panels that show the same, on one ground: one that keeps its controls, and one that is without
/// them while it is told what to show, and then gets those of a third panel.
class PanelsThatComeAndGo : public testing::Test {
  protected:
    template <typename Make, typename Tell>
    void compare(const PanelDesign& design, const Make& make, const Tell& tell) {
        const ControlPanel ground({design.size.width, 2 * design.size.height});
        const auto always = make(ground);
        const auto comes = make(ground);
        const auto other = make(ground);
        comes->strip();
        const auto taker = make(ground);
        other->core().setSelected(true);
        other->core().setPause(true);
        other->core().setLineWidth(9);
        other->core().ShowAllProps(true);
        other->strip();
        for (PanelWindow* panel : {always.get(), comes.get()}) {
            tell(*panel);
        }
        ASSERT_FALSE(comes->isEquipped());
        always->place({0, 0, design.size.width, design.size.height});
        comes->place({0, design.size.height, design.size.width, 2 * design.size.height});
        always->setVisible(true);
        comes->setVisible(true);
        comes->equip();
        const PixelMap shown = ground.shown();
        const auto half =
            shown.pixels.begin() + static_cast<std::ptrdiff_t>(shown.pixels.size() / 2);
        EXPECT_TRUE(std::equal(shown.pixels.begin(), half, half));
    }

    EnglishTexts english_;
};

TEST_F(PanelsThatComeAndGo, StencilsLookAsIfTheyHadAlwaysBeenThere) {
    for (const bool selected : {false, true}) {
        for (const bool paused : {false, true}) {
            PanelStage stage;
            std::vector<std::unique_ptr<ctlRatioGrid>> tools;
            const auto make = [&](const ControlPanel& ground) {
                return stage.makePanel(ground.handle(), *tools.emplace_back(stage.makeStencil()));
            };
            compare(stencilPanelDesign(), make, [&](PanelWindow& panel) {
                auto& core = dynamic_cast<ctlSetRatioGrid&>(panel.core());
                dynamic_cast<ctlRatioGrid&>(core.RefControlControl())
                    .setRectBound({2000, 1000, 3617, 1999});
                core.setColor(rgb(255, 159, 0));
                core.setLineWidth(4);
                core.finish();
                core.setDefaultPlace();
                core.setSelected(selected);
                core.setPause(paused);
                core.ShowAllProps(true);
            });
        }
    }
}

TEST_F(PanelsThatComeAndGo, MeasuringToolsLookAsIfTheyHadAlwaysBeenThere) {
    for (const bool selected : {false, true}) {
        for (const bool paused : {false, true}) {
            PanelStage stage;
            std::vector<std::unique_ptr<ctlMeasure>> tools;
            const auto make = [&](const ControlPanel& ground) {
                return stage.makePanel(ground.handle(), *tools.emplace_back(stage.makeMeasure()));
            };
            compare(measurePanelDesign(), make, [&](PanelWindow& panel) {
                auto& core = dynamic_cast<ctlSetMeasure&>(panel.core());
                core.setNumber(31);
                core.setColorA(rgb(31, 31, 127));
                core.setColorB(rgb(255, 230, 0));
                core.setLineWidth(3);
                core.finish();
                core.disconnect();
                core.setSelected(selected);
                core.setPause(paused);
                core.ShowAllProps(true);
            });
        }
    }
}

TEST_F(PanelsThatComeAndGo, APanelThatEndsLeavesItsControlsToTheNext) {
    PanelStage stage;
    const ControlPanel ground;
    const auto first = stage.makeMeasure();
    const auto second = stage.makeMeasure();
    HWND label = nullptr;
    {
        const auto panel = stage.makePanel(ground.handle(), *first);
        label = namedChild(panel->handle(), "lblTitle");
    }
    EXPECT_TRUE(IsWindow(label));
    EXPECT_FALSE(IsWindowVisible(label));
    const auto panel = stage.makePanel(ground.handle(), *second);
    EXPECT_EQ(namedChild(panel->handle(), "lblTitle"), label);
}

TEST_F(PanelsThatComeAndGo, AButtonThatTheMouseIsOverForgetsItWithItsPanel) {
    PanelStage stage;
    const ControlPanel ground;
    const auto tool = stage.makeStencil();
    const auto panel = stage.makePanel(ground.handle(), *tool);
    panel->place({0, 0, 296, 200});
    panel->setVisible(true);
    const HWND button = namedChild(panel->handle(), "cmdSendMouseInput");
    SendMessageW(button, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    // What the button shows while the mouse is over it comes with this timer.
    SendMessageW(panel->handle(), WM_TIMER, 3, 0);
    ASSERT_TRUE(tool->PreviewMouseAction());
    panel->strip();
    EXPECT_FALSE(tool->PreviewMouseAction());
}

/// A stencil's panel on a screen, whose buttons look for the mouse.
class DrawnPanel : public testing::Test {
  protected:
    DrawnPanel() {
        panel_->place(whole_);
        panel_->setVisible(true);
    }
    PixelMap drawn(const PixelRect& part) {
        BackBuffer picture;
        picture.resize({whole_.width(), whole_.height()});
        EXPECT_TRUE(panel_->drawPart(picture.context(), part));
        return readPixels(picture.context(), picture.size());
    }

    EnglishTexts english_;
    PanelStage stage_;
    std::unique_ptr<ctlRatioGrid> tool_ = stage_.makeStencil();
    PixelRect whole_{0, 0, stencilPanelDesign().size.width, stencilPanelDesign().size.height};
    ControlPanel ground_{{whole_.width(), whole_.height()}};
    std::unique_ptr<PanelWindow> panel_ = stage_.makePanel(ground_.handle(), *tool_);
};

TEST_F(DrawnPanel, IsDrawnAsItsWindowsPaintThemselves) {
    panel_->core().ShowAllProps(true);
    const PixelMap shown = ground_.shown();
    EXPECT_EQ(drawn(whole_), shown);
}

TEST_F(DrawnPanel, APartIsDrawnAsInTheWhole) {
    const PixelMap whole = drawn(whole_);
    for (int top = 0; top < whole_.height(); top += 7) {
        const PixelMap part = drawn({0, top, whole_.width(), top + 7});
        for (int y = top; y < std::min(top + 7, whole_.height()); ++y) {
            for (int x = 0; x < whole_.width(); ++x) {
                ASSERT_EQ(part.at(x, y), whole.at(x, y)) << x << ' ' << y;
            }
        }
    }
}

TEST_F(DrawnPanel, AGrownButtonIsLeftToTheSystem) {
    const HWND button = namedChild(panel_->handle(), "cmdMove(4)");
    RECT rest{};
    GetWindowRect(button, &rest);
    SetCursorPos((rest.left + rest.right) / 2, (rest.top + rest.bottom) / 2);
    ASSERT_TRUE(test::waitUntil([&] {
        // The timer of the growth.
        SendMessageW(panel_->handle(), WM_TIMER, 1, 0);
        RECT place{};
        GetWindowRect(button, &place);
        return place.right - place.left > rest.right - rest.left;
    }));
    BackBuffer picture;
    picture.resize({whole_.width(), whole_.height()});
    EXPECT_FALSE(panel_->drawPart(picture.context(), whole_));
}

}  // namespace
}  // namespace ormala
