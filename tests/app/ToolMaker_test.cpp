#include "app/ToolMaker.h"

#include <gtest/gtest.h>

#include "measure/ctlMeasure.h"
#include "stencil/ctlRatioGrid.h"
#include "support/FakeSheetPort.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"

namespace ormala {
namespace {

class ToolMakerTest : public testing::Test {
  protected:
    QuietToolHost host_;
    OwnToolSettings settings_;
    SpecialRatios ratios_{[](int, std::string_view text) { return std::string(text); }, {}};
    ToolMaker maker_{settings_, ratios_};
};

TEST_F(ToolMakerTest, MakesAStencil) {
    const auto tool = maker_.makeTool(ToolKind::stencil, host_);
    EXPECT_NE(dynamic_cast<ctlRatioGrid*>(tool.get()), nullptr);
}

TEST_F(ToolMakerTest, MakesAMeasuringTool) {
    const auto tool = maker_.makeTool(ToolKind::measurement, host_);
    EXPECT_NE(dynamic_cast<ctlMeasure*>(tool.get()), nullptr);
}

TEST_F(ToolMakerTest, MakesANewToolEachTime) {
    const auto first = maker_.makeTool(ToolKind::stencil, host_);
    const auto second = maker_.makeTool(ToolKind::stencil, host_);
    EXPECT_NE(first.get(), second.get());
}

TEST_F(ToolMakerTest, MakesNothingOfAnUnknownKind) {
    EXPECT_EQ(maker_.makeTool(static_cast<ToolKind>(2), host_), nullptr);
}

/// A sheet with stencils and measuring tools whose first ends of line a can be dragged.
class MeasuresOnSheetTest : public ToolMakerTest {
  protected:
    MeasuresOnSheetTest() {
        sheet_.makeFirstControl(ToolKind::measurement);
        sheet_.setVisible(*sheet_.GetFirstControl(measurement), true);
        sheet_.AddNewControl(static_cast<int>(ToolKind::stencil));
        sheet_.setEditMode(true);
    }

    ctlMeasure& add(const Line& a, const Line& b) {
        auto& tool = dynamic_cast<ctlMeasure&>(*sheet_.AddNewControl(measurement));
        tool.setEditMode(true);
        tool.setConnected(false);
        tool.setLineA(a);
        tool.setLineB(b);
        return tool;
    }

    /// Where the first end of line a is after a drag there with the Alt key.
    static Point dragged(ctlMeasure& tool, float x, float y) {
        const Point from = firstEnd(tool.LineA());
        const MouseSource source{&tool, &tool, false};
        tool.mouseDown(
            {mouseButton::left, 0, static_cast<float>(from.x), static_cast<float>(from.y)}, source);
        tool.mouseMove({mouseButton::left, modifier::alt, x, y}, source);
        tool.mouseUp({mouseButton::left, modifier::alt, x, y}, source);
        return firstEnd(tool.LineA());
    }

    static constexpr int measurement = static_cast<int>(ToolKind::measurement);

    FakeSheetPort port_;
    Sheet sheet_{port_, host_, maker_};
};

TEST_F(MeasuresOnSheetTest, AltJoinsTheEndsOfVisibleToolsOnly) {
    ctlMeasure& other = add({500, 500, 600, 500}, {500, 600, 600.5, 700});
    ctlMeasure& tool = add({100, 100, 200, 100}, {100, 200, 200, 200});
    maker_.setSheet(sheet_);
    EXPECT_EQ(dragged(tool, 503, 504), (Point{500, 500}));
    EXPECT_EQ(dragged(tool, 597, 503), (Point{600, 500}));
    EXPECT_EQ(dragged(tool, 505, 598), (Point{500, 600}));
    EXPECT_EQ(dragged(tool, 602, 697), (Point{600.5, 700}));
    sheet_.setVisible(other, false);
    EXPECT_EQ(dragged(tool, 503, 504), (Point{503, 504}));
}

TEST_F(MeasuresOnSheetTest, NoToolJoinsItsOwnEnds) {
    ctlMeasure& tool = add({100, 100, 200, 100}, {500, 200, 600, 200});
    maker_.setSheet(sheet_);
    EXPECT_EQ(dragged(tool, 503, 202), (Point{503, 202}));
}

TEST_F(MeasuresOnSheetTest, WithoutASheetNoToolSeesAnother) {
    add({500, 500, 600, 500}, {500, 600, 600, 700});
    ctlMeasure& tool = add({100, 100, 200, 100}, {100, 200, 200, 200});
    EXPECT_EQ(dragged(tool, 503, 504), (Point{503, 504}));
}

}  // namespace
}  // namespace ormala
