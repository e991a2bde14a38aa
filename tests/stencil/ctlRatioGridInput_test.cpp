#include <gtest/gtest.h>

#include <cmath>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/StencilOnSheet.h"
#include "stencil/ctlRatioGrid.h"

// Mouse and keyboard of the stencil.

namespace ormala {
namespace {

TEST(CtlRatioGridInput, OnlyGripsTakeTheMouse) {
    StencilOnSheet stage;
    const Point move = stage.gripAt(StencilGripKind::move);
    EXPECT_TRUE(stage.tool.HitTest(move.x, move.y));
    EXPECT_FALSE(stage.tool.HitTest(move.x + 40, move.y + 40));
    EXPECT_FALSE(stage.tool.HitTest(5, 5));
}

TEST(CtlRatioGridInput, EndOfEditModeEndsADrag) {
    StencilOnSheet stage;
    const Point move = stage.gripAt(StencilGripKind::move);
    stage.press(move);
    stage.dragTo({move.x + 30, move.y});
    stage.tool.setEditMode(false);
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_FALSE(stage.tool.aids().lblInfo().visible());
    EXPECT_FALSE(stage.tool.aids().lineHelper()[0]);
    EXPECT_TRUE(stage.tool.History().UndoPossible());
    const StencilState now = stage.state();
    stage.dragTo({move.x + 90, move.y});
    EXPECT_EQ(stage.state(), now);
    stage.release({move.x + 90, move.y});
    stage.tool.setEditMode(true);
    EXPECT_FALSE(stage.grip(StencilGripKind::move).pressed);
    EXPECT_FALSE(stage.grip(StencilGripKind::move).grown());
}

TEST(CtlRatioGridInput, OneDragIsOneUndoStep) {
    StencilOnSheet stage;
    const StencilState before = stage.state();
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    for (int i = 1; i <= 20; ++i) {
        stage.dragTo({from.x + i, from.y + 2 * i});
    }
    stage.release({from.x + 20, from.y + 40});
    EXPECT_EQ(stage.tool.History().newest(), 1);
    const StencilState after = stage.state();
    stage.tool.History().Undo();
    EXPECT_EQ(stage.state(), before);
    EXPECT_FALSE(stage.tool.History().UndoPossible());
    stage.tool.History().Redo();
    EXPECT_EQ(stage.state(), after);
}

TEST(CtlRatioGridInput, ReleaseOfADragThatChangedNothingStoresAndRaisesNothing) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::size, 1);
    const StencilState before = stage.state();
    stage.press(from);
    EXPECT_TRUE(stage.tool.grips().active());
    stage.release(from);
    EXPECT_EQ(stage.changes, 0);
    EXPECT_EQ(stage.mouseUps, 1);
    EXPECT_EQ(stage.tool.History().newest(), 0);
    EXPECT_EQ(stage.state(), before);
}

TEST(CtlRatioGridInput, EachStepOfADragAndItsEndTellThePanel) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    EXPECT_EQ(stage.changes, 0);
    stage.dragTo({from.x + 5, from.y});
    stage.dragTo({from.x + 9, from.y});
    EXPECT_EQ(stage.changes, 2);
    stage.release({from.x + 9, from.y});
    EXPECT_EQ(stage.changes, 3);
    EXPECT_EQ(stage.mouseUps, 1);
}

TEST(CtlRatioGridInput, MoveWithoutAButtonMakesUpForALostRelease) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    stage.dragTo({from.x + 50, from.y});
    const StencilState now = stage.state();
    stage.hover({from.x + 200, from.y});
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_EQ(stage.state(), now);
    EXPECT_EQ(stage.tool.History().newest(), 1);
    EXPECT_EQ(stage.mouseUps, 1);
    EXPECT_EQ(stage.grip(StencilGripKind::move).borderWidth, 1);
}

TEST(CtlRatioGridInput, FirstMoveAfterTheFocusIsNoMoveOfTheHand) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.hover(from);
    stage.tool.gotFocus();
    stage.press(from);
    const StencilState before = stage.state();
    stage.tool.gotFocus();
    stage.dragTo({from.x + 3, from.y + 3});
    EXPECT_EQ(stage.state(), before);
    stage.dragTo({from.x + 3, from.y + 3});
    EXPECT_NE(stage.state(), before);
}

TEST(CtlRatioGridInput, OnlyTheLeftButtonTakesAGrip) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.hover(from);
    stage.tool.mouseDown(StencilOnSheet::inputAt(from, mouseButton::right), {&stage.tool});
    EXPECT_FALSE(stage.tool.grips().active());
    EXPECT_EQ(stage.grip(StencilGripKind::move).borderWidth, 1);
}

TEST(CtlRatioGridInput, PressedGripIsSolidUntilTheRelease) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::sizeCorner, 2);
    stage.press(from);
    const Grip& grip = stage.grip(StencilGripKind::sizeCorner, 2);
    EXPECT_TRUE(grip.pressed);
    EXPECT_EQ(grip.borderWidth, 3);
    stage.release(from);
    EXPECT_FALSE(grip.pressed);
    EXPECT_EQ(grip.borderWidth, 1);
}

TEST(CtlRatioGridInput, GripStaysUnderTheMouseThatHoldsIt) {
    for (const double angle : {0.0, pi / 6}) {
        for (int number = 0; number < 4; ++number) {
            StencilOnSheet stage;
            stage.tool.setRotationAngle(angle);
            const Point from = stage.gripAt(StencilGripKind::rotate, number);
            const Point held{from.x + 3, from.y - 2};
            stage.press(held);
            const Point center = RectCenter(stage.tool.RectBound());
            const Point to{center.x + 120, center.y + 90};
            stage.dragTo(to);
            // On the ray from the centre through the mouse, but for the rounded corner.
            const Point now = stage.gripAt(StencilGripKind::rotate, number);
            const double away = std::atan2(now.y - center.y, now.x - center.x) -
                                std::atan2(to.y + 2 - center.y, to.x - 3 - center.x);
            EXPECT_LT(std::abs(std::sin(away)), 0.02) << number;
            EXPECT_GT(std::cos(away), 0) << number;
        }
    }
}

TEST(CtlRatioGridInput, ReadOutStandsBesideTheGripDuringADragOnly) {
    StencilOnSheet stage;
    const ctlLabel& info = stage.tool.aids().lblInfo();
    EXPECT_FALSE(info.visible());
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    EXPECT_TRUE(info.visible());
    EXPECT_EQ(info.Caption(), "");
    stage.dragTo({from.x + 20, from.y - 40});
    EXPECT_EQ(info.Caption(), "X = 520  Y = 360");
    EXPECT_EQ(info.box().right, 520 - 12);
    EXPECT_LE(std::abs(info.box().top + info.box().bottom - 2 * 360), 1);
    stage.release(from);
    EXPECT_FALSE(info.visible());
}

TEST(CtlRatioGridInput, ReadOutsNameWhatEachGripChanges) {
    StencilOnSheet stage;
    stage.tool.setRectBound({300, 300, 599, 499});
    const auto textOf = [&](StencilGripKind kind, const Point& by) {
        const Point from = stage.gripAt(kind, 1);
        stage.press(from);
        stage.dragTo({from.x + by.x, from.y + by.y});
        const std::string text = stage.tool.aids().lblInfo().Caption();
        stage.release(from);
        stage.tool.setRotationAngle(0);
        return text;
    };
    EXPECT_NE(textOf(StencilGripKind::rotate, {100, -100}).find(" rad"), std::string::npos);
    EXPECT_NE(textOf(StencilGripKind::size, {50, 0}).find("  ratio = "), std::string::npos);
    EXPECT_NE(textOf(StencilGripKind::sizeCorner, {50, 0}).find(" x "), std::string::npos);
}

TEST(CtlRatioGridInput, ReferenceLinesAndCircleOnlyIfTheUserWantsThem) {
    for (const bool wanted : {true, false}) {
        StencilOnSheet stage;
        stage.settings.showReferenceLines = wanted;
        const Point from = stage.gripAt(StencilGripKind::rotate, 0);
        stage.press(from);
        EXPECT_EQ(stage.tool.aids().shpCircle().has_value(), wanted);
        stage.dragTo({from.x - 30, from.y});
        for (const auto& line : stage.tool.aids().lineHelper()) {
            EXPECT_EQ(line.has_value(), wanted);
        }
        stage.release(from);
        EXPECT_FALSE(stage.tool.aids().shpCircle());
        EXPECT_FALSE(stage.tool.aids().lineHelper()[0]);
    }
}

TEST(CtlRatioGridInput, ShowsTheTipOfTheGripUnderTheMouseOnce) {
    StencilOnSheet stage;
    stage.hover(stage.gripAt(StencilGripKind::move));
    stage.hover(stage.gripAt(StencilGripKind::move));
    stage.hover(stage.gripAt(StencilGripKind::rotate, 1));
    stage.hover(stage.gripAt(StencilGripKind::size, 2));
    stage.hover(stage.gripAt(StencilGripKind::sizeCorner, 3));
    stage.hover({5, 5});
    EXPECT_EQ(stage.host.tips, (std::vector<TipId>{320, 321, 322, 323, 0}));
}

TEST(CtlRatioGridInput, ADragHasNoTipAndItsEndTheOneOfTheGripUnderTheMouse) {
    StencilOnSheet stage;
    stage.tool.setRectBound({300, 300, 599, 499});
    stage.host.forget();
    const Point side = stage.gripAt(StencilGripKind::size, 1);
    stage.press(side);
    EXPECT_EQ(stage.host.tips, (std::vector<TipId>{322, 0}));
    stage.host.forget();
    stage.dragTo({side.x + 30, side.y});
    stage.dragTo({side.x + 40, side.y}, modifier::ctrl);
    stage.dragTo({side.x + 40, side.y});
    EXPECT_TRUE(stage.host.tips.empty());
    stage.release({side.x + 40, side.y});
    EXPECT_EQ(stage.host.tips, std::vector<TipId>{322});
}

TEST(CtlRatioGridInput, ADragThatStoppedBeforeTheMouseLeavesNoTip) {
    StencilOnSheet stage;
    stage.tool.setRectBound({300, 300, 599, 499});
    const Point side = stage.gripAt(StencilGripKind::size, 1);
    stage.press(side);
    stage.dragTo({20, side.y});
    stage.host.forget();
    stage.release({20, side.y});
    EXPECT_TRUE(stage.host.tips.empty());
    EXPECT_FALSE(stage.grip(StencilGripKind::size, 1).grown());
}

TEST(CtlRatioGridInput, EndOfEditModeTakesTheTipAway) {
    StencilOnSheet stage;
    const Point move = stage.gripAt(StencilGripKind::move);
    stage.hover(move);
    stage.tool.setEditMode(false);
    stage.tool.setEditMode(true);
    stage.hover(move);
    EXPECT_EQ(stage.host.tips, (std::vector<TipId>{320, 0, 320}));
}

TEST(CtlRatioGridInput, AModifierIsNoMoveThatComesWithTheFocus) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::rotate, 0);
    stage.hover(from);
    stage.tool.gotFocus();
    stage.press(from);
    stage.dragTo(from, modifier::alt);
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption().substr(0, 1), "0");
    EXPECT_TRUE(stage.tool.grips().active());
}

TEST(CtlRatioGridInput, AReleaseThatWasLostEndsTheDragAlsoWhenTheFocusHasJustCome) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    stage.tool.gotFocus();
    stage.hover({from.x + 3, from.y});
    EXPECT_FALSE(stage.tool.grips().active());
}

TEST(CtlRatioGridInput, MovesOfOtherToolsAndTheirDragsLightNoGrip) {
    StencilOnSheet stage;
    StencilOnSheet other;
    const MouseInput input =
        StencilOnSheet::inputAt(stage.gripAt(StencilGripKind::move), mouseButton::none);
    stage.tool.GlobalMouseMove(input, {&other.tool, nullptr, false});
    stage.tool.GlobalMouseMove(input, {nullptr, &other.tool, false});
    stage.tool.GlobalMouseMove(input, {nullptr, nullptr, true});
    EXPECT_FALSE(stage.grip(StencilGripKind::move).grown());
    stage.tool.GlobalMouseMove(input, {nullptr, nullptr, false});
    EXPECT_TRUE(stage.grip(StencilGripKind::move).grown());
}

TEST(CtlRatioGridInput, ArrowsMoveTheCentreByAPixel) {
    StencilOnSheet stage;
    stage.tool.keyDown(key::up, 0);
    stage.tool.keyDown(key::left, modifier::shift);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{499, 399}));
    stage.tool.keyDown(key::down, modifier::alt);
    stage.tool.keyDown(key::right, 0);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{500, 400}));
    EXPECT_EQ(stage.changes, 4);
    EXPECT_EQ(stage.tool.History().newest(), 0);
}

TEST(CtlRatioGridInput, ATurnByKeysInADragStays) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    const Point center = RectCenter(stage.tool.RectBound());
    stage.press(from);
    stage.dragTo({from.x + 5, from.y});
    stage.tool.keyDown(key::pageUp, 0);
    stage.dragTo({from.x + 9, from.y});
    EXPECT_NEAR(stage.tool.RotationAngle(), pi / 180, 1e-12);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{center.x + 9, center.y}));
    stage.release({from.x + 9, from.y});
    EXPECT_NEAR(stage.tool.RotationAngle(), pi / 180, 1e-12);
    EXPECT_EQ(stage.tool.History().newest(), 1);
}

TEST(CtlRatioGridInput, CtrlArrowsMoveTheCentreAlongTheGrid) {
    StencilOnSheet stage;
    stage.settings.grid = {70, 30, 5, 7};
    stage.tool.keyDown(key::right, modifier::ctrl);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{565, 397}));
    stage.tool.keyDown(key::up, modifier::ctrl);
    EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{565, 367}));
}

TEST(CtlRatioGridInput, HomeCentersAndWithAModifierOnTheGrid) {
    StencilOnSheet stage;
    stage.settings.grid = {70, 70, 5, 5};
    stage.tool.setRectBound({10, 10, 110, 60});
    stage.tool.keyDown(key::home, 0);
    EXPECT_EQ(stage.tool.RectBound(), (Rect{450, 375, 550, 425}));
    for (const int any : {modifier::shift, modifier::ctrl, modifier::alt}) {
        stage.tool.keyDown(key::home, any);
        EXPECT_EQ(RectCenter(stage.tool.RectBound()), (Point{495, 425}));
    }
}

TEST(CtlRatioGridInput, PageKeysTurn) {
    StencilOnSheet stage;
    stage.tool.keyDown(key::pageUp, 0);
    EXPECT_NEAR(stage.tool.RotationAngle(), pi / 180, 1e-12);
    stage.tool.keyDown(key::pageUp, modifier::alt);
    EXPECT_NEAR(stage.tool.RotationAngle(), pi / 180 * 1.1, 1e-12);
    stage.tool.keyDown(key::pageUp, modifier::shift);
    EXPECT_NEAR(stage.tool.RotationAngle(), pi / 16, 1e-12);
    stage.tool.keyDown(key::pageDown, modifier::ctrl | modifier::shift);
    EXPECT_NEAR(stage.tool.RotationAngle(), 0, 1e-12);
    EXPECT_EQ(stage.changes, 4);
}

TEST(CtlRatioGridInput, EndAndDeleteGoToThePanelAndOtherKeysNowhere) {
    StencilOnSheet stage;
    const StencilState before = stage.state();
    stage.tool.keyDown(key::end, modifier::shift);
    stage.tool.keyDown(key::remove, 0);
    stage.tool.keyDown(key::f2, 0);
    stage.tool.keyDown(key::tab, 0);
    EXPECT_EQ(stage.keys,
              (std::vector<std::pair<int, int>>{{key::end, modifier::shift}, {key::remove, 0}}));
    EXPECT_EQ(stage.changes, 0);
    EXPECT_EQ(stage.state(), before);
}

TEST(CtlRatioGridSpoken, TellsWhereItIsAndWhatItsGripsHaveMade) {
    StencilOnSheet stage;
    stage.settings.textForm.decimalSeparator = ",";
    stage.tool.setRectBound({100, 50, 399, 249});
    const SpokenTool said = stage.tool.spoken(2);
    EXPECT_EQ(said.name, "Stencil 2");
    EXPECT_EQ(said.value, "X = 249  Y = 149");
    EXPECT_EQ(said.description, "300 x 200  ratio = 1,500, 3:2  (chemical photo), 0,0°, 0,000 rad");
    EXPECT_EQ(said.grips, stencilGripCount);
    const auto grips = stage.tool.spokenGrips(2);
    ASSERT_EQ(grips.size(), static_cast<std::size_t>(stencilGripCount));
    EXPECT_EQ(grips[0].name, "Stencil 2, center grip");
    EXPECT_EQ(grips[0].value, "X = 249  Y = 149");
    EXPECT_EQ(grips[0].place, stage.grip(StencilGripKind::move).pixels());
    EXPECT_EQ(grips[1].value, "300 x 200  ratio = 1,500, 3:2  (chemical photo)");
    EXPECT_EQ(grips[stencilGripCount - 1].value, "0,0°, 0,000 rad");
    EXPECT_FALSE(grips[0].held);
}

TEST(CtlRatioGridSpoken, ValueIsThatOfTheReadOutAndFollowsTheArrowKeys) {
    StencilOnSheet stage;
    const Point from = stage.gripAt(StencilGripKind::move);
    stage.press(from);
    stage.dragTo({from.x + 7, from.y});
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption(), stage.tool.spoken(1).value);
    EXPECT_TRUE(stage.tool.spokenGrips(1)[0].held);
    stage.release({from.x + 7, from.y});
    stage.tool.setRectBound({100, 50, 399, 249});
    stage.tool.keyDown(key::right, 0);
    EXPECT_EQ(stage.tool.spoken(1).value, "X = 250  Y = 149");
}

TEST(CtlRatioGridSpoken, HasNoGripsOutsideEditMode) {
    StencilOnSheet stage;
    stage.tool.setEditMode(false);
    EXPECT_EQ(stage.tool.spoken(1).grips, 0);
    EXPECT_TRUE(stage.tool.spokenGrips(1).empty());
}

TEST(CtlRatioGridInput, TheCrossingOfTheGridThatCtrlFindsCarriesARing) {
    StencilOnSheet stage;
    const Point centre = stage.gripAt(StencilGripKind::move);
    stage.press(centre);
    stage.dragTo({321, 277}, modifier::ctrl);
    const auto& ring = stage.tool.aids().ring().face();
    ASSERT_TRUE(ring.has_value());
    EXPECT_EQ(ring->box.intersected({300, 300, 301, 301}), (PixelRect{300, 300, 301, 301}));
    EXPECT_EQ(ring->box.left + ring->box.right - 1, 600);
    stage.dragTo({321, 277}, 0);
    EXPECT_FALSE(ring.has_value());
    stage.dragTo({321, 277}, modifier::ctrl);
    stage.release({321, 277});
    EXPECT_FALSE(ring.has_value());
    stage.press(stage.gripAt(StencilGripKind::size, 1));
    stage.dragTo({700, 300}, modifier::ctrl);
    EXPECT_FALSE(ring.has_value()) << "a side is symmetric with Ctrl";
}

TEST(CtlRatioGridInput, AShiftPressAtASideNamesTheRatioThatIsNearBeforeItSnaps) {
    StencilOnSheet stage;
    stage.tool.setRectBound({100, 100, 298, 233});
    const auto said = [&] { return stage.tool.aids().lblInfo().Caption(); };
    const Point side = stage.gripAt(StencilGripKind::size, 1);
    stage.press(side, modifier::shift);
    EXPECT_EQ(said(), "199 x 134  ratio = 1.485\r\n3:2  (chemical photo)");
    EXPECT_EQ(stage.tool.RectBound().right, 298) << "nothing has snapped yet";
    stage.dragTo({side.x + 1, side.y}, modifier::shift);
    EXPECT_NEAR(PixelRatio(stage.tool.RectBound(), false), 1.5, 0.01);
    EXPECT_EQ(said().substr(said().find('\n') + 1), "3:2  (chemical photo)");
    stage.release({side.x + 1, side.y});
    stage.press(stage.gripAt(StencilGripKind::size, 1));
    EXPECT_EQ(said(), "");
}

TEST(CtlRatioGridInput, AShiftDragOfASmallStencilNamesItsRatioThoughPixelsAreTooCoarse) {
    StencilOnSheet stage;
    stage.tool.setRectBound({100, 100, 131, 123});
    const Point side = stage.gripAt(StencilGripKind::size, 1);
    stage.press(side);
    stage.dragTo({side.x + 4, side.y}, modifier::shift);
    EXPECT_EQ(stage.tool.aids().lblInfo().Caption().find("\r\n3:2"),
              stage.tool.aids().lblInfo().Caption().find('\r'));
}

}  // namespace
}  // namespace ormala
