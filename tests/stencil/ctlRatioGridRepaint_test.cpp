#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

#include "modAPI/constants.h"
#include "stencil/StencilOnSheet.h"
#include "stencil/ctlRatioGrid.h"
#include "support/RepaintWatch.h"

// What a stencil reports to its sheet as changed, against what has changed.

namespace ormala {
namespace {

constexpr PixelSize sheet{400, 300};

RepaintWatch watchOf(StencilOnSheet& stage) {
    return {stage.tool, stage.host, sheet};
}

struct Dice {
    std::mt19937 random{71};

    int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    Point place() {
        return {static_cast<double>(whole(-40, sheet.width + 40)),
                static_cast<double>(whole(-40, sheet.height + 40))};
    }
};

void dress(StencilOnSheet& stage, Dice& dice) {
    PatternList patterns;
    patterns[0].Pattern = dice.whole(-1, 18);
    patterns[1].Pattern = dice.whole(-1, 18);
    patterns[1].PreRotation = dice.whole(0, 7) * twoPi / 8;
    stage.tool.setPatternList(patterns);
    stage.tool.setLineWidth(dice.whole(0, 7));
    stage.tool.setColor(dice.whole(1, 1000));
    stage.tool.setRotationAngle(dice.whole(0, 2) * pi / 6);
    const double left = dice.whole(0, 300);
    const double top = dice.whole(0, 200);
    stage.tool.setRectBound({left, top, left + dice.whole(25, 200), top + dice.whole(25, 150)});
}

TEST(CtlRatioGridRepaint, SeveralChangesAtOnceAreRepaintedAtTheirEnd) {
    Dice dice;
    for (int i = 0; i < 30; ++i) {
        StencilOnSheet stage(sheet);
        dress(stage, dice);
        RepaintWatch watch = watchOf(stage);
        const int before = stage.host.repaints;
        {
            const ToolChanges changes(stage.tool);
            const ToolChanges more(stage.tool);
            dress(stage, dice);
            stage.tool.setSelected(i % 2 == 0);
            EXPECT_EQ(stage.host.repaints, before) << i;
        }
        EXPECT_EQ(stage.host.repaints, before + 1) << i;
        EXPECT_EQ(watch.missed(), 0) << i;
        EXPECT_EQ(watch.beyondFootprint(), 0) << i;
    }
}

TEST(CtlRatioGridRepaint, CoversEveryPixelThatADragChanges) {
    Dice dice;
    for (int i = 0; i < 40; ++i) {
        StencilOnSheet stage(sheet);
        dress(stage, dice);
        RepaintWatch watch = watchOf(stage);
        const StencilGrip grip = stencilGrip(i % stencilGripCount);
        const Point from = stage.gripAt(grip.kind, grip.number);
        stage.hover(from);
        EXPECT_EQ(watch.missed(), 0) << "hover " << i;
        stage.press(from);
        EXPECT_EQ(watch.missed(), 0) << "press " << i;
        for (int step = 0; step < 4; ++step) {
            const Point to = dice.place();
            stage.dragTo(to, dice.whole(0, 7));
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

TEST(CtlRatioGridRepaint, CoversEveryPixelThatASettingChanges) {
    Dice dice;
    StencilOnSheet stage(sheet);
    RepaintWatch watch = watchOf(stage);
    const std::vector<std::function<void()>> changes = {
        [&] { dress(stage, dice); },
        [&] { stage.tool.setSelected(!stage.tool.Selected()); },
        [&] { stage.tool.gotFocus(); },
        [&] { stage.tool.LoseFocus(); },
        [&] { stage.tool.keyDown(key::left, modifier::ctrl); },
        [&] { stage.tool.keyDown(key::pageUp, modifier::shift); },
        [&] { stage.tool.keyDown(key::home, 0); },
        [&] { stage.tool.setEditMode(!stage.tool.EditMode()); },
        [&] { stage.tool.setPreviewMouseAction(!stage.tool.PreviewMouseAction()); },
        [&] { stage.tool.setLineWidth(9); },
        [&] { stage.tool.History().Add(false); },
        [&] { stage.tool.History().Undo(); },
        [&] { stage.tool.CenterToScreen(false, 20, true, false); },
        [&] { stage.tool.SetDefaultProperties(); },
    };
    for (int i = 0; i < 200; ++i) {
        const int which = dice.whole(0, static_cast<int>(changes.size()) - 1);
        changes[static_cast<std::size_t>(which)]();
        EXPECT_EQ(watch.missed(), 0) << "change " << which;
        EXPECT_EQ(watch.beyondFootprint(), 0) << "change " << which;
    }
}

TEST(CtlRatioGridRepaint, CoversTheMouseAction) {
    StencilOnSheet stage(sheet);
    stage.tool.setRotationAngle(0.4);
    RepaintWatch watch = watchOf(stage);
    stage.tool.ShowMouseAction();
    EXPECT_EQ(watch.missed(), 0);
    for (int n = 1; n <= 33; ++n) {
        stage.host.ticking->tick();
        EXPECT_EQ(watch.missed(), 0) << n;
    }
}

TEST(CtlRatioGridRepaint, HoverThatChangesNoGripReportsNothing) {
    StencilOnSheet stage;
    const Point move = stage.gripAt(StencilGripKind::move);
    stage.hover(move);
    EXPECT_EQ(stage.host.repaints, 1);
    stage.hover({move.x + 3, move.y + 2});
    EXPECT_EQ(stage.host.repaints, 1);
    stage.hover({move.x + 60, move.y + 60});
    EXPECT_EQ(stage.host.repaints, 2);
    stage.hover({move.x + 70, move.y + 60});
    EXPECT_EQ(stage.host.repaints, 2);
}

TEST(CtlRatioGridRepaint, HoverReportsTheGripsAndNotTheStencil) {
    StencilOnSheet stage;
    stage.hover(stage.gripAt(StencilGripKind::move));
    EXPECT_EQ(stage.host.repainted.bounds().width(), 25);
    EXPECT_EQ(stage.host.repainted.bounds().height(), 25);
}

TEST(CtlRatioGridRepaint, TenThousandMovesLeaveTheFootprintSmall) {
    StencilOnSheet stage;
    Dice dice;
    std::size_t most = 0;
    const Point from = stage.gripAt(StencilGripKind::rotate, 0);
    const auto step = [&](const std::function<void(const Point&)>& move) {
        move({static_cast<double>(dice.whole(0, 999)), static_cast<double>(dice.whole(0, 799))});
        most = std::max(
            {most, stage.tool.footprint().rects().size(), stage.host.repainted.rects().size()});
        stage.host.forget();
    };
    for (int i = 0; i < 5000; ++i) {
        step([&](const Point& to) { stage.hover(to); });
    }
    stage.press(from);
    for (int i = 0; i < 5000; ++i) {
        step([&](const Point& to) { stage.dragTo(to); });
    }
    EXPECT_GT(most, static_cast<std::size_t>(stencilGripCount));
    EXPECT_LT(most, 150U);
    stage.release(from);
    EXPECT_LT(stage.tool.footprint().rects().size(), 20U);
}

}  // namespace
}  // namespace ormala
