#include <gtest/gtest.h>

#include "measure/MeasureOnSheet.h"
#include "modAPI/angles.h"
#include "support/RecordingCanvas.h"

// Mouse and keyboard of the measuring tool.

namespace ormala {
namespace {

using enum MeasureGrip;

constexpr PixelSize sheet = MeasureOnSheet::sheet;

TEST(CtlMeasureInput, OnlyGripsTakeTheMouse) {
    MeasureOnSheet stage;
    EXPECT_TRUE(stage.tool.HitTest(500, 400));
    EXPECT_TRUE(stage.tool.HitTest(469, 201));
    EXPECT_FALSE(stage.tool.HitTest(484, 300));  // on line a
    EXPECT_FALSE(stage.tool.HitTest(597, 400));
    stage.tool.setConnected(false);
    EXPECT_TRUE(stage.tool.HitTest(484, 300));
}

TEST(CtlMeasureInput, GripWithTheNearerCentreIsTaken) {
    MeasureOnSheet stage(sheet, false);
    stage.tool.setLineB({597, 478, 506, 400});
    stage.press({504, 400});
    EXPECT_EQ(stage.tool.grips().active(), static_cast<int>(endB2));
    stage.release({504, 400});
    stage.hover({10, 10});
    stage.press({502, 400});
    EXPECT_EQ(stage.tool.grips().active(), static_cast<int>(endA2));
}

TEST(CtlMeasureInput, FirstInTheOrderIsTakenAtEqualDistance) {
    MeasureOnSheet stage;
    stage.tool.setConnected(false);  // both second ends lie on the same point
    stage.press({501, 401});
    EXPECT_EQ(stage.tool.grips().active(), static_cast<int>(endA2));
}

TEST(CtlMeasureInput, RestingGripIsCaughtSixPixelsOutside) {
    MeasureOnSheet stage;
    // The common point's grip covers 496 to 504.
    const auto pressed = [&](const Point& at) {
        stage.hover({10, 10});
        stage.tool.mouseDown(ToolPlayer::inputAt(at, mouseButton::left), {&stage.tool});
        const bool hit = stage.tool.grips().active().has_value();
        stage.tool.mouseUp(ToolPlayer::inputAt(at, mouseButton::left), {&stage.tool});
        return hit;
    };
    EXPECT_TRUE(pressed({490, 390}));
    EXPECT_TRUE(pressed({510, 410}));
    EXPECT_FALSE(pressed({489, 400}));
    EXPECT_FALSE(pressed({511, 400}));
}

TEST(CtlMeasureInput, GrownGripTakesExactlyItsArea) {
    MeasureOnSheet stage;
    stage.hover({500, 400});
    ASSERT_EQ(stage.grip(intersect).pixels(), (PixelRect{490, 390, 511, 411}));
    EXPECT_TRUE(stage.tool.HitTest(490, 390));
    EXPECT_TRUE(stage.tool.HitTest(510, 410));
    EXPECT_FALSE(stage.tool.HitTest(511, 400));
    EXPECT_FALSE(stage.tool.HitTest(489, 400));
}

TEST(CtlMeasureInput, GrownOvalGripTakesItsCircle) {
    MeasureOnSheet stage;
    stage.hover({469, 201});
    ASSERT_TRUE(stage.grip(endA1).grown());
    EXPECT_TRUE(stage.tool.HitTest(469 + 10, 201));
    EXPECT_FALSE(stage.tool.HitTest(469 + 8, 201 + 8));  // within the square, outside the circle
    EXPECT_FALSE(stage.tool.HitTest(469 + 11, 201));
}

TEST(CtlMeasureInput, GripsShrinkWhenTheMouseHasLeft) {
    MeasureOnSheet stage(sheet, false);
    stage.hover(stage.gripAt(endA1));
    stage.hover(stage.gripAt(centerB));
    stage.tool.GlobalMouseMove(ToolPlayer::inputAt({10, 10}, mouseButton::none), {});
    for (int i = 0; i < measureGripCount; ++i) {
        EXPECT_EQ(stage.tool.grips()[i].box.width, 9) << i;
    }
}

TEST(CtlMeasureInput, ActiveGripStaysGrownWhereverTheMouseIs) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(endA1));
    stage.tool.GlobalMouseMove(ToolPlayer::inputAt({10, 10}, mouseButton::left),
                               {&stage.tool, &stage.tool, false});
    EXPECT_EQ(stage.grip(endA1).box.width, 21);
    EXPECT_EQ(stage.grip(intersect).box.width, 9);
}

TEST(CtlMeasureInput, PressGivesABorderOfThreeUntilTheRelease) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(endA1));
    EXPECT_EQ(stage.grip(endA1).borderWidth, 3);
    EXPECT_EQ(stage.grip(endB1).borderWidth, 1);
    stage.release(stage.gripAt(endA1));
    EXPECT_EQ(stage.grip(endA1).borderWidth, 1);
}

TEST(CtlMeasureInput, OnlyTheLeftButtonTakesAGrip) {
    MeasureOnSheet stage;
    stage.hover({500, 400});
    stage.tool.mouseDown(ToolPlayer::inputAt({500, 400}, mouseButton::right), {&stage.tool});
    EXPECT_FALSE(stage.tool.grips().active());
}

TEST(CtlMeasureInput, EachGripMovesWhatBelongsToIt) {
    MeasureOnSheet stage(sheet, false);
    const MeasureState before = stage.tool.state();
    stage.drag(endA1, {10, 20});
    EXPECT_EQ(stage.tool.LineA(), (Line{479, 221, 500, 400}));
    stage.drag(endB2, {-10, 5});
    EXPECT_EQ(stage.tool.LineB(), (Line{597, 478, 500, 405}));
    stage.tool.History().Undo();
    stage.tool.History().Undo();
    EXPECT_EQ(stage.tool.state(), before);
    stage.drag(centerB, {1, 2});
    EXPECT_EQ(stage.tool.LineB(), (Line{598, 480, 511, 402}));
    EXPECT_EQ(stage.tool.LineA(), before.LineA);
}

TEST(CtlMeasureInput, CommonPointMovesTheWholeTool) {
    MeasureOnSheet stage;
    stage.drag(intersect, {30, -40});
    EXPECT_EQ(stage.tool.LineA(), (Line{499, 161, 530, 360}));
    EXPECT_EQ(stage.tool.LineB(), (Line{627, 438, 530, 360}));
}

TEST(CtlMeasureInput, EndStopsBeforeTheOtherEndWhileTheReadOutFollowsTheMouse) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(endA1));
    stage.dragTo({500, 390});
    stage.dragTo({501, 400});
    EXPECT_EQ(stage.tool.LineA(), (Line{501, 398, 500, 400}));
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption(), "X = 501  Y = 400");
    stage.dragTo({500, 402});
    EXPECT_EQ(stage.tool.LineA(), (Line{500, 402, 500, 400}));
}

TEST(CtlMeasureInput, WithShiftTheMouseMayCircleTheOtherEnd) {
    MeasureOnSheet stage;
    const double angle = AngleOfLine(stage.tool.LineA());
    stage.press(stage.gripAt(endA1));
    for (const Point& to : {Point{500, 200}, {700, 400}, {500, 600}, {300, 400}}) {
        stage.dragTo(to, modifier::shift);
        EXPECT_NEAR(AngleOfLine(stage.tool.LineA()), angle, 1e-9);
        EXPECT_NEAR(LineLength(stage.tool.LineA()), 200, 1e-9);
    }
}

TEST(CtlMeasureInput, AltJoinsTheEndsOfOtherToolsWithinEightPixels) {
    MeasureOnSheet stage;
    stage.others.ends = {{300.5, 300.25}};
    const auto end = [&](const Point& to, int shift) {
        stage.press(stage.gripAt(endA1));
        stage.dragTo(to, shift);
        stage.release(to);
        EXPECT_EQ(stage.others.asked, shift == modifier::alt ? &stage.tool : nullptr);
        stage.others.asked = nullptr;
        return firstEnd(stage.tool.LineA());
    };
    EXPECT_EQ(end({305, 305}, modifier::alt), (Point{300.5, 300.25}));
    EXPECT_EQ(end({310, 305}, modifier::alt), (Point{310, 305}));
    EXPECT_EQ(end({305, 305}, modifier::alt | modifier::ctrl), (Point{305, 305}));
    EXPECT_EQ(end({302, 302}, 0), (Point{302, 302}));
}

TEST(CtlMeasureInput, ReadOutAndReferenceLineShowDuringADragOnly) {
    MeasureOnSheet stage;
    EXPECT_FALSE(stage.tool.aids().lblInfo().visible());
    stage.press(stage.gripAt(intersect));
    EXPECT_TRUE(stage.tool.aids().lblInfo().visible());
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption(), "");
    EXPECT_EQ(stage.tool.aids().lineHelper(), (Line{500, 400, 500, 400}));
    stage.dragTo({540, 380});
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption(), "X = 540  Y = 380");
    EXPECT_EQ(stage.tool.aids().lblInfo().box().right, 540 - 12);
    EXPECT_EQ(stage.tool.aids().lineHelper(), (Line{540, 380, 500, 400}));
    stage.release({540, 380});
    EXPECT_FALSE(stage.tool.aids().lblInfo().visible());
    EXPECT_FALSE(stage.tool.aids().lineHelper());
}

TEST(CtlMeasureInput, ReferenceLineOnlyIfTheUserWantsIt) {
    MeasureOnSheet stage;
    stage.settings.showReferenceLines = false;
    stage.press(stage.gripAt(intersect));
    EXPECT_FALSE(stage.tool.aids().lineHelper());
}

TEST(CtlMeasureInput, PressAndReleaseWithoutAMoveAddNoStep) {
    MeasureOnSheet stage;
    const MeasureState before = stage.tool.state();
    stage.press(stage.gripAt(endB1));
    stage.release(stage.gripAt(endB1));
    EXPECT_EQ(stage.tool.History().newest(), 0);
    EXPECT_EQ(stage.changes, 0);
    EXPECT_EQ(stage.mouseUps, 1);
    EXPECT_EQ(stage.tool.state(), before);
}

TEST(CtlMeasureInput, OneDragIsOneStepAndEachMoveTellsThePanel) {
    MeasureOnSheet stage;
    const MeasureState before = stage.tool.state();
    stage.press(stage.gripAt(endB1));
    stage.dragTo({600, 480});
    stage.dragTo({610, 490});
    EXPECT_EQ(stage.changes, 2);
    stage.release({610, 490});
    EXPECT_EQ(stage.changes, 3);
    EXPECT_EQ(stage.tool.History().newest(), 1);
    stage.tool.History().Undo();
    EXPECT_EQ(stage.tool.state(), before);
}

TEST(CtlMeasureInput, MoveWithoutAButtonMakesUpForALostRelease) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(endB1));
    stage.dragTo({610, 490});
    const MeasureState now = stage.tool.state();
    stage.hover({700, 500});
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_EQ(stage.tool.state(), now);
    EXPECT_EQ(stage.tool.History().newest(), 1);
    EXPECT_EQ(stage.mouseUps, 1);
}

TEST(CtlMeasureInput, EndOfEditModeEndsADrag) {
    MeasureOnSheet stage;
    stage.press(stage.gripAt(endB1));
    stage.dragTo({610, 490});
    stage.tool.setEditMode(false);
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_FALSE(stage.tool.aids().lblInfo().visible());
    EXPECT_TRUE(stage.tool.History().UndoPossible());
}

TEST(CtlMeasureInput, GripThatVanishesFromUnderTheMouseIsLetGo) {
    MeasureOnSheet stage(sheet, false);
    stage.press(stage.gripAt(centerA));
    stage.dragTo({500, 310});
    stage.tool.setConnected(true);
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_FALSE(stage.tool.aids().lblInfo().visible());
    const MeasureState now = stage.tool.state();
    stage.dragTo({600, 310});
    stage.release({600, 310});
    EXPECT_EQ(stage.tool.state(), now);
    stage.hover({10, 10});
    stage.tool.setConnected(false);
    EXPECT_EQ(stage.grip(centerA).box.width, 9);
    EXPECT_EQ(stage.grip(centerA).borderWidth, 1);
}

TEST(CtlMeasureInput, MovesOfOtherToolsAndTheirDragsLightNoGrip) {
    MeasureOnSheet stage;
    MeasureOnSheet other;
    const MouseInput input = ToolPlayer::inputAt({500, 400}, mouseButton::none);
    stage.tool.GlobalMouseMove(input, {&other.tool, nullptr, false});
    stage.tool.GlobalMouseMove(input, {nullptr, &other.tool, false});
    stage.tool.GlobalMouseMove(input, {nullptr, nullptr, true});
    EXPECT_FALSE(stage.grip(intersect).grown());
    stage.tool.GlobalMouseMove(input, {nullptr, nullptr, false});
    EXPECT_TRUE(stage.grip(intersect).grown());
}

TEST(CtlMeasureInput, GripsHaveNoTips) {
    MeasureOnSheet stage;
    stage.hover({500, 400});
    stage.hover({469, 201});
    stage.hover({10, 10});
    EXPECT_TRUE(stage.host.tips.empty());
}

TEST(CtlMeasureInput, HomeCentersWithoutAStepAndWithAModifierOnTheGrid) {
    MeasureOnSheet stage;
    stage.settings.grid = {70, 70, 5, 5};
    stage.tool.setLineA({0, 0, 50, 50});
    stage.tool.keyDown(key::home, 0);
    EXPECT_EQ(stage.tool.LineA(), (Line{450, 350, 500, 400}));
    EXPECT_EQ(stage.changes, 1);
    EXPECT_EQ(stage.tool.History().newest(), 0);
    for (const int any : {modifier::shift, modifier::ctrl, modifier::alt}) {
        stage.tool.keyDown(key::home, any);
        EXPECT_EQ(stage.tool.IntersectPoint(), (Point{495, 425}));
    }
}

TEST(CtlMeasureInput, DeleteGoesToThePanelAndOtherKeysNowhere) {
    MeasureOnSheet stage;
    const MeasureState before = stage.tool.state();
    stage.tool.keyDown(key::remove, modifier::shift);
    for (const int key : {key::end, key::left, key::pageUp, key::f2}) {
        stage.tool.keyDown(key, 0);
    }
    EXPECT_EQ(stage.keys, (std::vector<std::pair<int, int>>{{key::remove, modifier::shift}}));
    EXPECT_EQ(stage.changes, 0);
    EXPECT_EQ(stage.tool.state(), before);
}

/// The centre of the ring that is shown; none while there is none.
std::optional<PixelPoint> ringIn(const MeasureOnSheet& stage) {
    const auto& face = stage.tool.aids().ring().face();
    return face ? std::optional(PixelPoint{(face->box.left + face->box.right - 1) / 2,
                                           (face->box.top + face->box.bottom - 1) / 2})
                : std::nullopt;
}

TEST(CtlMeasureInput, TheEndThatAltJoinsCarriesARingAslongAsItIsJoined) {
    MeasureOnSheet stage;
    stage.others.ends = {{300.5, 300.25}, {900, 700}};
    const Point from = stage.gripAt(MeasureGrip::endA1);
    stage.press(from);
    const auto drag = [&](const Point& to, int shift) {
        stage.dragTo(to, shift);
        return ringIn(stage);
    };
    EXPECT_EQ(drag({305, 305}, modifier::alt), (PixelPoint{301, 300}));
    EXPECT_EQ(drag({310, 305}, modifier::alt), std::nullopt);
    EXPECT_EQ(drag({305, 305}, 0), std::nullopt);
    EXPECT_EQ(drag({305, 305}, modifier::alt | modifier::shift), std::nullopt);
    EXPECT_EQ(drag({898, 702}, modifier::alt), (PixelPoint{900, 700}));
    stage.release({898, 702});
    EXPECT_EQ(ringIn(stage), std::nullopt);
}

TEST(CtlMeasureInput, TheCrossingOfTheGridThatCtrlFindsCarriesARing) {
    MeasureOnSheet stage;
    for (const MeasureGrip grip : {MeasureGrip::centerA, MeasureGrip::intersect}) {
        if (!stage.grip(grip).inUse()) {
            continue;
        }
        const Point from = stage.gripAt(grip);
        stage.press(from);
        stage.dragTo({321, 277}, modifier::ctrl);
        EXPECT_EQ(ringIn(stage), (PixelPoint{300, 300}));
        stage.dragTo({321, 277}, 0);
        EXPECT_EQ(ringIn(stage), std::nullopt);
        stage.release({321, 277});
    }
    stage.press(stage.gripAt(MeasureGrip::endA1));
    stage.dragTo({321, 277}, modifier::ctrl);
    EXPECT_EQ(ringIn(stage), std::nullopt) << "an end knows no grid";
}

}  // namespace
}  // namespace ormala
