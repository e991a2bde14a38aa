#include <gtest/gtest.h>

#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include "language/MlStringModule.h"
#include "measure/ManualMeasures.h"
#include "measure/measurePanelDesign.h"
#include "measure/win/ctlSetMeasure.h"
#include "scene/dpi.h"
#include "stencil/stencilPanelDesign.h"
#include "stencil/win/ctlSetRatioGrid.h"
#include "support/FakePanelCommands.h"
#include "support/FakePanelView.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "support/win/Golden.h"
#include "win/ControlPanel.h"
#include "win/EnglishTexts.h"
#include "win/LanguageAndDpi.h"

namespace ormala {
namespace {

class QuietPanelHost : public PanelHost {
    void panelSelected(PanelWindow& /*panel*/) override {}
    void panelGotFocus(PanelWindow& /*panel*/) override {}
    void removePanel(PanelWindow& /*panel*/, bool /*byMouse*/) override {}
};

/// A panel in each of its looks: at rest, of the selected tool, and both paused.
class PanelsGolden : public testing::TestWithParam<LanguageAndDpi> {
  protected:
    static constexpr int looks = 4;
    static constexpr int columns = 2;

    PanelsGolden() { MlSetLanguage(GetParam().language, {}); }

    /// Makes room for the looks of a panel.
    void open(const PanelDesign& design) {
        size_ = {scaledLength(design.size.width, GetParam().dpi),
                 scaledLength(design.size.height, GetParam().dpi)};
        ground_ = std::make_unique<ControlPanel>(
            PixelSize{columns * size_.width, looks / columns * size_.height});
    }
    [[nodiscard]] PanelWindow::Ports ports() {
        return {ground_->handle(), ++made_, host_, visibility_, clock_, tmrFast_, fontSizeChange_};
    }
    void show(PanelWindow& panel, int look) {
        panel.setDpi(GetParam().dpi);
        const int left = look % columns * size_.width;
        const int top = look / columns * size_.height;
        panel.place({left, top, left + size_.width, top + size_.height});
        panel.core().setSelected(look % 2 == 1);
        panel.core().setPause(look >= 2);
        panel.core().ShowAllProps(true);
        panel.setVisible(true);
    }
    void expectGolden(const std::string& name) {
        const PixelMap map = ground_->shown();
        const test::Picture picture({0, 0, map.size.width, map.size.height},
                                    {map.pixels.begin(), map.pixels.end()});
        EXPECT_EQ(test::goldenComplaint(picture, name + "_" + GetParam().name()), "");
    }

    EnglishTexts english_;
    QuietToolHost toolHost_;
    OwnToolSettings settings_;
    QuietPanelHost host_;
    FakeToolVisibility visibility_;
    ManualDayClock clock_;
    Event<> tmrFast_;
    Event<int> fontSizeChange_;
    PixelSize size_;
    std::unique_ptr<ControlPanel> ground_;
    int made_ = 0;
};

TEST_P(PanelsGolden, StencilsLookAsTheyAlwaysDid) {
    const SpecialRatios ratios([](int id, std::string_view text) { return MlString(id, text); },
                               settings_.textForm);
    FakeStencilCommands commands;
    std::vector<std::unique_ptr<ctlRatioGrid>> tools;
    std::vector<std::unique_ptr<ctlSetRatioGrid>> panels;
    open(stencilPanelDesign());
    for (int look = 0; look < looks; ++look) {
        auto& tool =
            *tools.emplace_back(std::make_unique<ctlRatioGrid>(toolHost_, settings_, ratios));
        auto& panel = *panels.emplace_back(
            std::make_unique<ctlSetRatioGrid>(tool, ports(), commands, settings_, ratios));
        // Numbers as long as they come: a golden rectangle on a second monitor.
        tool.setRectBound({2000, 1000, 3617, 1999});
        panel.core().setColor(rgb(255, 159, 0));
        panel.core().setLineWidth(2 + look);
        panel.core().finish();
        tool.setRotationAngle(348.75 * std::numbers::pi / 180);
        panel.core().AddHistoryStep();
        show(panel, look);
    }
    expectGolden("stencil_panel");
}

TEST_P(PanelsGolden, MeasuringToolsLookAsTheyAlwaysDid) {
    const ManualMeasures others;
    FakeMeasureCommands commands;
    std::vector<std::unique_ptr<ctlMeasure>> tools;
    std::vector<std::unique_ptr<ctlSetMeasure>> panels;
    open(measurePanelDesign());
    for (int look = 0; look < looks; ++look) {
        auto& tool =
            *tools.emplace_back(std::make_unique<ctlMeasure>(toolHost_, settings_, others));
        auto& panel = *panels.emplace_back(
            std::make_unique<ctlSetMeasure>(tool, ports(), commands, settings_));
        panel.core().setNumber(31 + look);
        panel.core().setColorA(rgb(31, 31, 127));
        panel.core().setColorB(rgb(255, 230, 0));
        panel.core().setLineWidth(3 + look);
        panel.core().setUnits({0, 1, 1.5, "mm"});
        tool.resize({4000, 3000});
        tool.CenterToScreen(false, 0, true);
        panel.core().finish();
        panel.core().connect(false);
        show(panel, look);
    }
    expectGolden("measure_panel");
}

INSTANTIATE_TEST_SUITE_P(Looks, PanelsGolden, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);

}  // namespace
}  // namespace ormala
