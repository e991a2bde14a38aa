#include "worksheet/SheetMouse.h"

#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

MouseInput at(int button, float x, float y) {
    return {button, 0, x, y};
}

/// A stencil at the left, a measurement over its right half, and free background from x = 200 on.
class SheetMouseTest : public SheetFixture {
  protected:
    SheetMouseTest()
        : down_(mouse_.backgroundDown.subscribe(
              [this](const MouseInput& input) { downs_.push_back(input.button); })),
          up_(mouse_.backgroundUp.subscribe(
              [this](const MouseInput& input) { ups_.push_back(input.button); })) {}

    FakeOverlayItem& left_ = add(stencil, {0, 0, 100, 100});
    FakeOverlayItem& right_ = add(measurement, {50, 0, 150, 100});
    SheetMouse mouse_{sheet_};
    std::vector<int> downs_;
    std::vector<int> ups_;
    Subscription down_;
    Subscription up_;
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
    EXPECT_EQ(downs_, std::vector<int>{mouseButton::left});
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
    EXPECT_EQ(downs_, std::vector<int>{mouseButton::right});
    EXPECT_EQ(sheet_.selected(), nullptr);
    EXPECT_TRUE(mouse_.holding());
    mouse_.release(at(mouseButton::right, 250, 50), 0);
    EXPECT_EQ(ups_, std::vector<int>{mouseButton::right});
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
    EXPECT_TRUE(ups_.empty());
}

TEST_F(SheetMouseTest, TheHeldBackgroundKeepsTheMouseOverTools) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.move(at(mouseButton::left, 25, 50));
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(noted(left_, "mouseMove"), 0);
    EXPECT_EQ(noted(left_, "mouseUp"), 0);
    EXPECT_EQ(ups_, std::vector<int>{mouseButton::left});
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
    EXPECT_EQ(downs_, (std::vector<int>{mouseButton::left, mouseButton::right}));
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
    EXPECT_FALSE(mouse_.holding());
    mouse_.move(at(mouseButton::none, 125, 50));
    EXPECT_EQ(noted(right_, "mouseMove"), 1);
}

TEST_F(SheetMouseTest, ALostCaptureOfTheBackgroundReleasesNothing) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.lost();
    EXPECT_TRUE(ups_.empty());
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

TEST_F(SheetMouseTest, TheMouseOutsideIsToldToEveryToolWithoutAButton) {
    mouse_.outside(-30, 900, false);
    EXPECT_EQ(log_, (ToolLog{"stencil 0 GlobalMouseMove", "measure 0 GlobalMouseMove"}));
    EXPECT_EQ(left_.input.button, mouseButton::none);
    EXPECT_EQ(left_.input.x, -30);
    EXPECT_EQ(left_.input.y, 900);
    EXPECT_EQ(left_.source.tool, nullptr);
    EXPECT_FALSE(left_.source.heldAwayFrom(&left_.control()));
}

TEST_F(SheetMouseTest, TheMouseOutsideReachesNoToolAsAMoveOfItsOwn) {
    mouse_.outside(25, 50, false);
    EXPECT_EQ(noted(left_, "mouseMove"), 0);
}

TEST_F(SheetMouseTest, OutsideAnotherWindowMayHoldTheMouse) {
    mouse_.outside(25, 50, true);
    EXPECT_TRUE(left_.source.heldAwayFrom(&left_.control()));
}

TEST_F(SheetMouseTest, OutsideTheToolInADragStillHoldsTheMouse) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.outside(-30, 50, false);
    EXPECT_TRUE(mouse_.holding());
    EXPECT_EQ(right_.source.holder, &left_.control());
}

/// What the worksheet hears of the mouse besides presses and releases of the background.
class SheetMouseEventsTest : public SheetMouseTest {
  protected:
    int moves_ = 0;
    int losses_ = 0;
    int toolUps_ = 0;
    int broadcasts_ = 0;

  private:
    Subscription move_ = mouse_.backgroundMove.subscribe([this](const MouseInput&) { ++moves_; });
    Subscription lost_ = mouse_.backgroundLost.subscribe([this] { ++losses_; });
    Subscription toolUp_ = mouse_.toolUp.subscribe([this] { ++toolUps_; });
    Subscription broadcast_ = mouse_.broadcast.subscribe([this] { ++broadcasts_; });
};

TEST_F(SheetMouseEventsTest, AMoveOverTheBackgroundIsTheBackgrounds) {
    mouse_.move(at(mouseButton::none, 250, 50));
    EXPECT_EQ(moves_, 1);
    mouse_.move(at(mouseButton::none, 25, 50));
    EXPECT_EQ(moves_, 1);
}

TEST_F(SheetMouseEventsTest, TheHeldBackgroundHearsMovesOverTools) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.move(at(mouseButton::left, 25, 50));
    EXPECT_EQ(moves_, 1);
}

TEST_F(SheetMouseEventsTest, MovesOfAHeldToolAreNotTheBackgrounds) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.move(at(mouseButton::left, 250, 50));
    EXPECT_EQ(moves_, 0);
}

TEST_F(SheetMouseEventsTest, EveryBroadcastIsToldOnceAllToolsHaveHeardIt) {
    mouse_.move(at(mouseButton::none, 25, 50));
    mouse_.move(at(mouseButton::none, 250, 50));
    mouse_.outside(-30, 50, false);
    EXPECT_EQ(broadcasts_, 3);
}

TEST_F(SheetMouseEventsTest, AReleaseOnAToolIsTold) {
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.release(at(mouseButton::left, 25, 50), 0);
    EXPECT_EQ(toolUps_, 1);
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.release(at(mouseButton::left, 250, 50), 0);
    EXPECT_EQ(toolUps_, 1);
}

TEST_F(SheetMouseEventsTest, ALostCaptureOfTheBackgroundIsTold) {
    mouse_.press(at(mouseButton::left, 250, 50));
    mouse_.lost();
    EXPECT_EQ(losses_, 1);
    mouse_.press(at(mouseButton::left, 25, 50));
    mouse_.lost();
    EXPECT_EQ(losses_, 1);
    EXPECT_EQ(toolUps_, 1);
}

}  // namespace
}  // namespace ormala
