#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "measure/MeasureOnSheet.h"
#include "support/RepaintWatch.h"

// What a measuring tool reports to its sheet as changed, against what has changed.

namespace ormala {
namespace {

constexpr PixelSize smallSheet{400, 300};

struct Dice {
    std::mt19937 random{43};

    int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    Point place() {
        return {static_cast<double>(whole(-40, smallSheet.width + 40)),
                static_cast<double>(whole(-40, smallSheet.height + 40))};
    }
    Line line() {
        const Point from = place();
        const Point to = place();
        return {from.x, from.y, to.x, to.y};
    }
};

void dress(MeasureOnSheet& stage, Dice& dice) {
    stage.tool.setLineA(dice.line());
    stage.tool.setLineB(dice.line());
    stage.tool.setConnected(dice.whole(0, 1) == 1);
    stage.tool.setLineWidth(dice.whole(0, 7));
    stage.tool.setColorA(dice.whole(1, 1000));
    stage.tool.setColorB(dice.whole(1, 1000));
    stage.tool.setNumber(dice.whole(1, 99));
}

TEST(CtlMeasureRepaint, CoversEveryPixelThatADragChanges) {
    Dice dice;
    for (int i = 0; i < 60; ++i) {
        MeasureOnSheet stage(smallSheet);
        dress(stage, dice);
        RepaintWatch watch(stage.tool, stage.host, smallSheet);
        const auto grip = static_cast<MeasureGrip>(i % measureGripCount);
        if (!stage.grip(grip).inUse()) {
            stage.tool.setConnected(!stage.tool.Connected());
            EXPECT_EQ(watch.missed(), 0) << "connection " << i;
        }
        const Point from = stage.gripAt(grip);
        stage.hover(from);
        EXPECT_EQ(watch.missed(), 0) << "hover " << i;
        stage.press(from);
        EXPECT_EQ(watch.missed(), 0) << "press " << i;
        for (int step = 0; step < 4; ++step) {
            stage.dragTo(dice.place(), dice.whole(0, 7));
            EXPECT_EQ(watch.missed(), 0) << "step " << i;
            EXPECT_EQ(watch.beyondFootprint(), 0) << "step " << i;
        }
        stage.release(from);
        EXPECT_EQ(watch.missed(), 0) << "release " << i;
        stage.hover({-30, -30});
        EXPECT_EQ(watch.missed(), 0) << "leave " << i;
        EXPECT_EQ(watch.beyondFootprint(), 0) << "leave " << i;
    }
}

TEST(CtlMeasureRepaint, CoversTheRingAroundWhatIsJoined) {
    MeasureOnSheet stage(smallSheet);
    stage.others.ends = {{100, 100}, {220, 160}};
    RepaintWatch watch(stage.tool, stage.host, smallSheet);
    stage.press(stage.gripAt(MeasureGrip::endA1));
    for (const Point to : {Point{99, 102}, Point{130, 120}, Point{221, 161}, Point{222, 158}}) {
        stage.dragTo(to, modifier::alt);
        EXPECT_EQ(watch.missed(), 0) << to.x;
        EXPECT_EQ(watch.beyondFootprint(), 0) << to.x;
    }
    stage.release({222, 158});
    EXPECT_EQ(watch.missed(), 0);
    EXPECT_EQ(watch.beyondFootprint(), 0);
}

TEST(CtlMeasureRepaint, SeveralChangesAtOnceAreLaidOutAtTheirEndAndLookAsOneByOne) {
    Dice dice;
    Dice sameDice;
    for (int i = 0; i < 30; ++i) {
        MeasureOnSheet stage(smallSheet);
        MeasureOnSheet oneByOne(smallSheet);
        RepaintWatch watch(stage.tool, stage.host, smallSheet);
        {
            const ToolChanges changes(stage.tool);
            const ToolChanges more(stage.tool);
            dress(stage, dice);
            EXPECT_EQ(stage.host.repaints, 0) << i;
        }
        EXPECT_GT(stage.host.repaints, 0) << i;
        EXPECT_EQ(watch.missed(), 0) << i;
        EXPECT_EQ(watch.beyondFootprint(), 0) << i;
        dress(oneByOne, sameDice);
        RasterCanvas atOnce(smallSheet);
        RasterCanvas inSteps(smallSheet);
        stage.tool.draw(atOnce);
        oneByOne.tool.draw(inSteps);
        EXPECT_EQ(atOnce.differences(inSteps, {0, 0, smallSheet.width, smallSheet.height}), 0) << i;
    }
}

TEST(CtlMeasureRepaint, CoversLinesThatComeForwardOverEachOther) {
    MeasureOnSheet stage(smallSheet, false);
    stage.tool.setLineA({50, 50, 350, 250});
    stage.tool.setLineB({50, 250, 350, 50});
    stage.tool.setColorA(1);
    stage.tool.setColorB(2);
    stage.tool.setLineWidth(9);
    RepaintWatch watch(stage.tool, stage.host, smallSheet);
    for (const MeasureGrip grip : {MeasureGrip::endA1, MeasureGrip::endB1, MeasureGrip::endA2}) {
        stage.hover(stage.gripAt(grip));
        EXPECT_EQ(watch.missed(), 0);
    }
}

TEST(CtlMeasureRepaint, GrowthRepaintsTheGripAlone) {
    MeasureOnSheet stage;
    stage.hover({500, 400});
    EXPECT_EQ(stage.host.repainted.bounds(), (PixelRect{490, 390, 511, 411}));
}

TEST(CtlMeasureRepaint, CoversEveryPixelThatASettingChanges) {
    Dice dice;
    MeasureOnSheet stage(smallSheet);
    ctlMeasure& tool = stage.tool;
    RepaintWatch watch(tool, stage.host, smallSheet);
    const std::vector<std::function<void()>> changes = {
        [&] { dress(stage, dice); },
        [&] { tool.setSelected(!tool.Selected()); },
        [&] { tool.gotFocus(); },
        [&] { tool.LoseFocus(); },
        [&] { tool.keyDown(key::home, 0); },
        [&] { tool.setEditMode(!tool.EditMode()); },
        [&] { tool.setLineWidth(9); },
        [&] { tool.setConnected(!tool.Connected()); },
        [&] { tool.setLabelsAngleVisible(!tool.LabelsAngleVisible()); },
        [&] { tool.setLabelsLengthVisible(!tool.LabelsLengthVisible()); },
        [&] { tool.setColorA(dice.whole(1, 0xFFFFFF)); },
        [&] { tool.History().Add(false); },
        [&] { tool.History().Undo(); },
        [&] { tool.CenterToScreen(false, 20, true); },
        [&] { tool.SetDefaultProperties(); },
    };
    for (int i = 0; i < 300; ++i) {
        const int which = dice.whole(0, static_cast<int>(changes.size()) - 1);
        changes[static_cast<std::size_t>(which)]();
        EXPECT_EQ(watch.missed(), 0) << "change " << which;
        EXPECT_EQ(watch.beyondFootprint(), 0) << "change " << which;
    }
}

}  // namespace
}  // namespace ormala
