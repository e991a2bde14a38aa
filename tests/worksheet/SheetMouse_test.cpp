#include "worksheet/SheetMouse.h"

#include "support/mouseInput.h"
#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

/// A stencil at the left, a measurement over its right half, and free background from x = 200 on.
class SheetMouseTest : public SheetMouseFixture {
  protected:
    FakeOverlayItem& left_ = add(stencil, {0, 0, 100, 100});
    FakeOverlayItem& right_ = add(measurement, {50, 0, 150, 100});
};

TEST_F(SheetMouseTest, APressGoesToTheForemostToolThatTakesThePoint) {
    mouse_.press(at(mouseButton::left, 75, 50));
    EXPECT_EQ(noted(right_, "mouseDown"), 1);
    EXPECT_EQ(noted(left_, "mouseDown"), 0);
}

TEST_F(SheetMouseTest, TheToolInFrontChangesWithTheSelection) {
    sheet_.SelectControl(left_);
    mouse_.press(at(mouseButton::left, 75, 50));
    EXPECT_EQ(noted(left_, "mouseDown"), 1);
    EXPECT_EQ(noted(right_, "mouseDown"), 0);
}

TEST_F(SheetMouseTest, APressBesideTheForemostToolReachesTheOneBehind) {
    mouse_.press(at(mouseButton::left, 25, 50));
    EXPECT_EQ(noted(left_, "mouseDown"), 1);
}

TEST_F(SheetMouseTest, AHiddenToolTakesNoPress) {
    sheet_.setVisible(right_, false);
    mouse_.press(at(mouseButton::left, 125, 50));
    EXPECT_EQ(noted(right_, "mouseDown"), 0);
    EXPECT_TRUE(mouse_.holding());
    EXPECT_EQ(window_.lensRaises, std::vector<bool>{false}) << "it is the background's";
}

TEST_F(SheetMouseTest, APressSelectsTheToolAndGivesItTheFocus) {
    mouse_.press(at(mouseButton::left, 25, 50));
    EXPECT_EQ(sheet_.selected(), &left_);
    EXPECT_EQ(sheet_.focused(), &left_);
    EXPECT_EQ(sheet_.front(), &left_);
}

TEST_F(SheetMouseTest, APressSelectsAlsoWhenItActivatesTheWindow) {
    sheet_.SelectControl(right_);
    port_.inFront = false;
    mouse_.press(at(mouseButton::left, 25, 50));
    EXPECT_EQ(sheet_.selected(), &left_);
}

TEST_F(SheetMouseTest, APressWithAnyButtonSelects) {
    mouse_.press(at(mouseButton::middle, 25, 50));
    EXPECT_EQ(left_.input.button, mouseButton::middle);
    EXPECT_EQ(sheet_.selected(), &left_);
}

TEST_F(SheetMouseTest, APressThatNoToolTakesIsTheBackgrounds) {
    mouse_.press(at(mouseButton::right, 250, 50));
    EXPECT_EQ(sheet_.selected(), nullptr);
    EXPECT_TRUE(mouse_.holding());
    mouse_.release(at(mouseButton::right, 250, 50), 0);
    EXPECT_EQ(window_.menus, 1);
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseTest, AHeldToolKeepsTheMouseOverOthersAndOutside) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.move(at(mouseButton::left, 125, 50));
    mouse_.move(at(mouseButton::left, -40, 900));
    mouse_.release(at(mouseButton::left, 125, 50), 0);
    EXPECT_EQ(noted(left_, "mouseMove"), 2);
    EXPECT_EQ(noted(left_, "mouseUp"), 1);
    EXPECT_EQ(noted(right_, "mouseMove"), 0);
    EXPECT_EQ(noted(right_, "mouseUp"), 0);
    EXPECT_EQ(window_.controlRaises, 0);
}

TEST_F(SheetMouseTest, TheHeldBackgroundKeepsTheMouseOverTools) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.move(at(mouseButton::left, 25, 50));
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(noted(left_, "mouseMove"), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 0);
    EXPECT_EQ(window_.controlRaises, 1);
}

TEST_F(SheetMouseTest, FurtherButtonsGoToTheToolThatIsHeld) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.press(at(mouseButton::right, 125, 50));
    EXPECT_EQ(noted(left_, "mouseDown"), 2);
    EXPECT_EQ(noted(right_, "mouseDown"), 0);
    mouse_.release(at(mouseButton::right, 125, 50), mouseButton::left);
    EXPECT_EQ(left_.input.button, mouseButton::right);
    EXPECT_TRUE(mouse_.holding());
    mouse_.release(at(mouseButton::left, 125, 50), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 2);
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseTest, FurtherButtonsGoToTheBackgroundThatIsHeld) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.press(at(mouseButton::right, 25, 50));
    EXPECT_EQ(noted(left_, "mouseDown"), 0);
    mouse_.release(at(mouseButton::right, 25, 50), mouseButton::left);
    EXPECT_EQ(noted(left_, "mouseUp"), 0);
    EXPECT_EQ(window_.menus, 1);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseTest, ReleasingTheFirstOfTwoButtonsHoldsOn) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.press(at(mouseButton::right, 25, 50));
    mouse_.release(at(mouseButton::left, 25, 50), mouseButton::right);
    mouse_.move(at(mouseButton::right, 125, 50));
    EXPECT_EQ(noted(left_, "mouseMove"), 1);
    EXPECT_EQ(noted(right_, "mouseMove"), 0);
}

TEST_F(SheetMouseTest, AMoveOverAToolIsToldToAllBeforeItReachesTheTool) {
    mouse_.move(at(mouseButton::none, 25, 50));
    EXPECT_EQ(log_, (ToolLog{"stencil 0 GlobalMouseMove", "measure 0 GlobalMouseMove",
                             "stencil 0 mouseMove"}));
    EXPECT_EQ(right_.input.x, 25);
    EXPECT_EQ(right_.input.y, 50);
}

TEST_F(SheetMouseTest, AMoveOverAToolNamesTheToolAsItsSource) {
    mouse_.move(at(mouseButton::none, 25, 50));
    EXPECT_EQ(right_.source.tool, &left_.control());
    EXPECT_EQ(right_.source.holder, nullptr);
    EXPECT_FALSE(right_.source.heldByOther);
    EXPECT_EQ(left_.source.tool, &left_.control());
}

TEST_F(SheetMouseTest, AMoveOverTheBackgroundNamesTheWorksheetAsItsSource) {
    mouse_.move(at(mouseButton::none, 250, 50));
    EXPECT_EQ(log_, (ToolLog{"stencil 0 GlobalMouseMove", "measure 0 GlobalMouseMove"}));
    EXPECT_EQ(left_.source.tool, nullptr);
}

TEST_F(SheetMouseTest, AHiddenToolHearsNothingOfTheMouse) {
    sheet_.setVisible(left_, false);
    mouse_.move(at(mouseButton::none, 25, 50));
    EXPECT_EQ(noted(left_, "GlobalMouseMove"), 0);
    EXPECT_EQ(noted(right_, "GlobalMouseMove"), 1);
}

TEST_F(SheetMouseTest, AllToolsHearWhichOneHoldsTheMouse) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.move(at(mouseButton::left, 125, 50));
    EXPECT_EQ(right_.source.holder, &left_.control());
    EXPECT_TRUE(right_.source.heldAwayFrom(&right_.control()));
    EXPECT_FALSE(left_.source.heldAwayFrom(&left_.control()));
}

TEST_F(SheetMouseTest, AllToolsHearThatTheBackgroundHoldsTheMouse) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.move(at(mouseButton::left, 25, 50));
    EXPECT_TRUE(left_.source.heldAwayFrom(&left_.control()));
    EXPECT_TRUE(right_.source.heldAwayFrom(&right_.control()));
    EXPECT_EQ(left_.source.tool, nullptr);
}

TEST_F(SheetMouseTest, ALostCaptureEndsTheDragOfTheTool) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.lost();
    EXPECT_EQ(noted(left_, "mouseUp"), 1);
    EXPECT_EQ(left_.input.button, mouseButton::none);
    EXPECT_LT(left_.input.x, -1000) << "over no grip";
    EXPECT_LT(left_.input.y, -1000);
    EXPECT_FALSE(mouse_.holding());
    mouse_.move(at(mouseButton::none, 125, 50));
    EXPECT_EQ(noted(right_, "mouseMove"), 1);
}

TEST_F(SheetMouseTest, ALostCaptureOfTheBackgroundReleasesNothing) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.lost();
    EXPECT_EQ(window_.controlRaises, 0);
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseTest, AReleaseThatWasMissedEndsTheHoldWithTheNextMove) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.move(at(mouseButton::none, 125, 50));
    EXPECT_EQ(noted(left_, "mouseMove"), 1);
    EXPECT_FALSE(mouse_.holding());
    mouse_.press(at(mouseButton::left, 125, 50));
    EXPECT_EQ(noted(right_, "mouseDown"), 1);
}

TEST_F(SheetMouseTest, AReleaseWithoutAPressGoesToTheToolUnderIt) {
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 1);
}

TEST_F(SheetMouseTest, AToolDestroyedInADragIsForgotten) {
    FakeOverlayItem& third = add(stencil, {160, 0, 180, 100});
    mouse_.press(at(mouseButton::left, 170, 50));
    ASSERT_EQ(noted(third, "mouseDown"), 1);
    sheet_.RemoveControl(third);
    log_.clear();
    mouse_.move(at(mouseButton::left, 25, 50));
    EXPECT_EQ(log_, (ToolLog{"stencil 0 GlobalMouseMove", "measure 0 GlobalMouseMove"}));
    EXPECT_TRUE(left_.source.heldAwayFrom(&left_.control()));
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 0);
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseTest, ALossOfTheCaptureAfterAToolIsGoneReachesNobody) {
    FakeOverlayItem& third = add(stencil, {160, 0, 180, 100});
    mouse_.press(at(mouseButton::left, 170, 50));
    sheet_.RemoveControl(third);
    log_.clear();
    mouse_.lost();
    EXPECT_TRUE(log_.empty());
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseTest, RemovingAnotherToolLeavesTheHoldAlone) {
    FakeOverlayItem& third = add(stencil);
    mouse_.press(at(mouseButton::left, 25, 50));
    sheet_.RemoveControl(third);
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 1);
}

/// A mouse that the system has taken outside the worksheet.
class SheetMouseOutside : public SheetMouseTest {
  protected:
    SheetMouseOutside() {
        sheet_.setEditMode(true);
        window_.mouse.at = {70, 950};
    }
};

TEST_F(SheetMouseOutside, IsToldToEveryToolWithoutAButton) {
    mouse_.tick();
    EXPECT_EQ(log_, (ToolLog{"stencil 0 GlobalMouseMove", "measure 0 GlobalMouseMove"}));
    EXPECT_EQ(left_.input.button, mouseButton::none);
    EXPECT_EQ(left_.input.x, -30);
    EXPECT_EQ(left_.input.y, 900);
    EXPECT_EQ(left_.source.tool, nullptr);
    EXPECT_FALSE(left_.source.heldAwayFrom(&left_.control()));
}

TEST_F(SheetMouseOutside, IsLookedForTenTimesASecond) {
    int told = 0;
    for (int tick = 0; tick < 50; ++tick) {
        window_.time += Aids::crossHairInterval / 1000.0F;
        log_.clear();
        mouse_.tick();
        told += noted(left_, "GlobalMouseMove");
    }
    EXPECT_GE(told, 8);
    EXPECT_LE(told, 10);
}

TEST_F(SheetMouseOutside, TheClockIsSlowAndStandsStillWhereTheWorksheetDoesNotTakeTheMouse) {
    EXPECT_GE(mouse_.interval(), 100);
    EXPECT_LE(mouse_.interval(), 200);
    sheet_.setEditMode(false);
    EXPECT_EQ(mouse_.interval(), 0);
}

TEST_F(SheetMouseOutside, ThatHasRestedForASecondIsLookedForLessOftenUntilItMoves) {
    const auto lookOnce = [this] {
        window_.time += 0.2F;
        mouse_.tick();
    };
    const int usual = mouse_.interval();
    for (int look = 0; look < 10; ++look) {
        lookOnce();
        EXPECT_EQ(mouse_.interval(), usual) << look;
    }
    lookOnce();
    const int atRest = mouse_.interval();
    EXPECT_GT(atRest, usual);
    EXPECT_LE(atRest, 500);
    window_.mouse.at.x += 1;
    lookOnce();
    EXPECT_EQ(mouse_.interval(), usual);
}

TEST_F(SheetMouseOutside, ThatHasRestedIsLookedForAsOftenAsUsualOnceItHasMovedOnTheWorksheet) {
    const int usual = mouse_.interval();
    for (int look = 0; look < 20; ++look) {
        window_.time += 0.2F;
        mouse_.tick();
    }
    ASSERT_GT(mouse_.interval(), usual);
    mouse_.move(at(mouseButton::none, 25, 50));
    EXPECT_EQ(mouse_.interval(), usual);
}

TEST_F(SheetMouseOutside, ReachesNoToolWhileTheWorksheetDoesNotTakeTheMouse) {
    sheet_.setEditMode(false);
    mouse_.tick();
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetMouseOutside, IsNoneWithinTheWorksheet) {
    const PixelRect& sheet = window_.mouse.worksheet;
    for (const PixelPoint at :
         {PixelPoint{sheet.left, sheet.top}, PixelPoint{sheet.right - 1, sheet.bottom - 1}}) {
        window_.time += 1;
        window_.mouse.at = at;
        mouse_.tick();
        EXPECT_TRUE(log_.empty());
    }
    window_.time += 1;
    window_.mouse.at = {sheet.right, sheet.bottom - 1};
    mouse_.tick();
    EXPECT_EQ(noted(left_, "GlobalMouseMove"), 1);
}

TEST_F(SheetMouseOutside, MayBeHeldByAnotherWindow) {
    window_.mouse.held = true;
    mouse_.tick();
    EXPECT_TRUE(left_.source.heldAwayFrom(&left_.control()));
}

TEST_F(SheetMouseOutside, IsStillHeldByTheToolInADrag) {
    window_.mouse.held = true;
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.tick();
    EXPECT_TRUE(mouse_.holding());
    EXPECT_EQ(right_.source.holder, &left_.control());
    EXPECT_FALSE(left_.source.heldAwayFrom(&left_.control()));
}

/// What the window is asked for.
class SheetMouseWindow : public SheetMouseTest {};

TEST_F(SheetMouseWindow, APressWithTheLeftButtonOnTheBackgroundAsksForTheMagnifier) {
    mouse_.press(at(mouseButton::right, 250, 50));
    EXPECT_TRUE(window_.lensRaises.empty());
    mouse_.press(at(mouseButton::left, 250, 50));
    EXPECT_EQ(window_.lensRaises, std::vector<bool>{false}) << "sticked or not";
}

TEST_F(SheetMouseWindow, WithoutTheMagnifierWhatIsUppermostIsRaised) {
    mouse_.press(at(mouseButton::left, 250, 50));
    EXPECT_EQ(window_.worksheetRaises, std::vector<bool>{false});
    options_.crossHair = true;
    mouse_.press(at(mouseButton::left, 250, 50));
    EXPECT_EQ(window_.worksheetRaises, (std::vector<bool>{false, true}));
    window_.lensShown = true;
    mouse_.press(at(mouseButton::left, 250, 50));
    EXPECT_EQ(window_.worksheetRaises.size(), 2U);
}

TEST_F(SheetMouseWindow, AReleaseOnAToolRaisesAStickedMagnifier) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(window_.lensRaises, std::vector<bool>{true});
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.lost();
    EXPECT_EQ(window_.lensRaises, (std::vector<bool>{true, true}));
    EXPECT_EQ(window_.controlRaises, 0);
}

TEST_F(SheetMouseWindow, AReleaseOnTheBackgroundMayBeMeantForTheControlWindow) {
    mouse_.press(at(mouseButton::left, 250, 50));
    EXPECT_EQ(window_.controlRaises, 0);
    mouse_.release(at(mouseButton::left, 250, 50), 0);
    EXPECT_EQ(window_.controlRaises, 1);
    EXPECT_EQ(window_.menus, 0) << "only the right button shows the menu";
}

TEST_F(SheetMouseWindow, TheMouseIsFreeWhenTheMenuComes) {
    mouse_.press(at(mouseButton::right, 250, 50));
    mouse_.release(at(mouseButton::right, 250, 50), 0);
    EXPECT_EQ(window_.menus, 1);
    EXPECT_FALSE(mouse_.holding());
}

TEST_F(SheetMouseWindow, EveryMoveTakesTheCrossHairAlong) {
    options_.crossHair = true;
    sheet_.setEditMode(true);
    for (const float x : {25.0F, 250.0F}) {
        window_.time += 1;
        mouse_.move(at(mouseButton::none, x, 50));
    }
    EXPECT_EQ(window_.crossHairs.size(), 2U);
}

TEST_F(SheetMouseWindow, ADragOnTheBackgroundOpensTheCompass) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.move(at(mouseButton::left, 350, 50));
    EXPECT_TRUE(window_.repainted.meets({350, 50, 351, 51}));
    window_.repainted.clear();
    mouse_.lost();
    EXPECT_TRUE(window_.repainted.meets({350, 50, 351, 51}));
}

TEST_F(SheetMouseWindow, ADragOfAToolOpensNone) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.move(at(mouseButton::left, 250, 50));
    EXPECT_TRUE(window_.repainted.empty());
}

}  // namespace
}  // namespace ormala
