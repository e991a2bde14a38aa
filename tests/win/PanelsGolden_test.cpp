#include <gtest/gtest.h>

#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include "language/MlStringModule.h"
#include "measure/measurePanelDesign.h"
#include "scene/dpi.h"
#include "stencil/stencilPanelDesign.h"
#include "support/win/Golden.h"
#include "win/ControlPanel.h"
#include "win/EnglishTexts.h"
#include "win/LanguageAndDpi.h"
#include "win/PanelStage.h"

namespace ormala {
namespace {

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
    void show(PanelWindow& panel, int look) const {
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
    PixelSize size_;
    std::unique_ptr<ControlPanel> ground_;
};

TEST_P(PanelsGolden, StencilsLookAsTheyAlwaysDid) {
    PanelStage stage;
    std::vector<std::unique_ptr<ctlRatioGrid>> tools;
    std::vector<std::unique_ptr<PanelWindow>> panels;
    open(stencilPanelDesign());
    for (int look = 0; look < looks; ++look) {
        auto& tool = *tools.emplace_back(stage.makeStencil());
        auto& window = *panels.emplace_back(stage.makePanel(ground_->handle(), tool));
        auto& panel = dynamic_cast<ctlSetRatioGrid&>(window.core());
        // Numbers as long as they come: a golden rectangle on a second monitor.
        tool.setRectBound({2000, 1000, 3617, 1999});
        panel.setColor(rgb(255, 159, 0));
        panel.setLineWidth(2 + look);
        panel.finish();
        tool.setRotationAngle(348.75 * std::numbers::pi / 180);
        panel.AddHistoryStep();
        show(window, look);
    }
    expectGolden("stencil_panel");
}

TEST_P(PanelsGolden, MeasuringToolsLookAsTheyAlwaysDid) {
    PanelStage stage;
    std::vector<std::unique_ptr<ctlMeasure>> tools;
    std::vector<std::unique_ptr<PanelWindow>> panels;
    open(measurePanelDesign());
    for (int look = 0; look < looks; ++look) {
        auto& tool = *tools.emplace_back(stage.makeMeasure());
        auto& window = *panels.emplace_back(stage.makePanel(ground_->handle(), tool));
        auto& panel = dynamic_cast<ctlSetMeasure&>(window.core());
        panel.setNumber(31 + look);
        panel.setColorA(rgb(31, 31, 127));
        panel.setColorB(rgb(255, 230, 0));
        panel.setLineWidth(3 + look);
        panel.setUnits({0, 1, 1.5, "mm"});
        tool.resize({4000, 3000});
        tool.CenterToScreen(false, 0, true);
        panel.finish();
        panel.disconnect();
        show(window, look);
    }
    expectGolden("measure_panel");
}

INSTANTIATE_TEST_SUITE_P(Looks, PanelsGolden, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);

}  // namespace
}  // namespace ormala
