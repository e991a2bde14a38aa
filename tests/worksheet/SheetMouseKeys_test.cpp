#include "worksheet/SheetFixture.h"

// Keys that move the mouse while it holds a grip.

namespace ormala {
namespace {

constexpr int escapeKey = 27;

/// One stencil that takes the mouse up to x = 100.
class SheetMouseKeys : public SheetMouseFixture {
  protected:
    void hold() { mouse_.press({mouseButton::left, 0, 25, 50}); }
    void letGo() { mouse_.release({mouseButton::left, 0, 25, 50}, 0); }
    [[nodiscard]] const std::vector<PixelPoint>& moves() const { return window_.pointerMoves; }

    FakeOverlayItem& tool_ = add(stencil, {0, 0, 100, 100});
};

TEST_F(SheetMouseKeys, ArrowsMoveTheMouseByAPixelWhileAGripIsHeld) {
    hold();
    for (const int arrow : {key::left, key::right, key::up, key::down}) {
        EXPECT_TRUE(mouse_.keyPressed(arrow, 0)) << arrow;
    }
    EXPECT_EQ(moves(), (std::vector<PixelPoint>{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}));
}

TEST_F(SheetMouseKeys, CtrlMakesItTenAndShiftAndAltDoNot) {
    hold();
    mouse_.keyPressed(key::right, modifier::ctrl);
    mouse_.keyPressed(key::up, modifier::ctrl | modifier::shift);
    mouse_.keyPressed(key::right, modifier::shift);
    mouse_.keyPressed(key::right, modifier::alt);
    EXPECT_EQ(moves(), (std::vector<PixelPoint>{{10, 0}, {0, -10}, {1, 0}, {1, 0}}));
}

TEST_F(SheetMouseKeys, AHeldKeyGoesOnStepByStep) {
    hold();
    for (int i = 0; i < 30; ++i) {
        EXPECT_TRUE(mouse_.keyPressed(key::down, 0));
    }
    EXPECT_EQ(moves(), std::vector<PixelPoint>(30, {0, 1}));
}

TEST_F(SheetMouseKeys, TheToolHearsOfTheMouseWhereItIsBeforeTheFirstStep) {
    hold();
    log_.clear();
    mouse_.keyPressed(key::right, 0);
    EXPECT_EQ(noted(tool_, "mouseMove"), 1);
    EXPECT_EQ(tool_.input.x, 25);
    EXPECT_EQ(tool_.input.button, mouseButton::left);
    mouse_.keyPressed(key::right, 0);
    EXPECT_EQ(noted(tool_, "mouseMove"), 1) << "a repetition needs none";
}

TEST_F(SheetMouseKeys, HomeAndDeleteRest) {
    hold();
    EXPECT_TRUE(mouse_.keyPressed(key::home, 0));
    EXPECT_TRUE(mouse_.keyPressed(key::remove, 0));
    EXPECT_TRUE(moves().empty());
}

TEST_F(SheetMouseKeys, AllOtherKeysGoOnToWhomTheyAreFor) {
    hold();
    for (const int other : {key::pageUp, key::end, key::tab, key::f2, key::z, escapeKey}) {
        EXPECT_FALSE(mouse_.keyPressed(other, 0)) << other;
    }
    EXPECT_TRUE(moves().empty());
}

TEST_F(SheetMouseKeys, WithoutAGripTheKeysAreTheTools) {
    for (const int own : {key::left, key::home, key::remove}) {
        EXPECT_FALSE(mouse_.keyPressed(own, 0)) << own;
    }
    mouse_.press({mouseButton::left, 0, 500, 50});
    EXPECT_FALSE(mouse_.keyPressed(key::left, 0)) << "the background is held";
    mouse_.release({mouseButton::left, 0, 500, 50}, 0);
    mouse_.press({mouseButton::right, 0, 25, 50});
    EXPECT_FALSE(mouse_.keyPressed(key::left, 0)) << "the right button drags nothing";
    EXPECT_TRUE(moves().empty());
}

TEST_F(SheetMouseKeys, AKeyThatOutlastsTheGripRestsUntilItIsLetGo) {
    hold();
    mouse_.keyPressed(key::right, 0);
    mouse_.keyPressed(key::remove, 0);
    letGo();
    EXPECT_TRUE(mouse_.keyPressed(key::right, 0));
    EXPECT_TRUE(mouse_.keyPressed(key::remove, 0));
    EXPECT_FALSE(mouse_.keyPressed(key::left, 0)) << "it was never down in the drag";
    EXPECT_EQ(moves().size(), 1U);
    mouse_.keyReleased(key::right);
    mouse_.keyReleased(key::remove);
    EXPECT_FALSE(mouse_.keyPressed(key::right, 0));
    EXPECT_FALSE(mouse_.keyPressed(key::remove, 0));
}

TEST_F(SheetMouseKeys, AKeyWhoseEndNobodyTellsOfRestsNoLonger) {
    hold();
    mouse_.keyPressed(key::right, 0);
    mouse_.lost();
    mouse_.keyboardLost();
    EXPECT_FALSE(mouse_.keyPressed(key::right, 0));
}

}  // namespace
}  // namespace ormala
