#include "worksheet/SheetFixture.h"

// Modifier keys that go down, up or repeat themselves while the mouse is held.

namespace ormala {
namespace {

using modifier::alt;
using modifier::ctrl;
using modifier::shift;

/// One stencil that takes the mouse up to x = 100.
class SheetMouseModifiers : public SheetMouseFixture {
  protected:
    void expectLast(int button, int modifiers, float x, float y) const {
        EXPECT_EQ(tool_.input.button, button);
        EXPECT_EQ(tool_.input.shift, modifiers);
        EXPECT_EQ(tool_.input.x, x);
        EXPECT_EQ(tool_.input.y, y);
    }
    [[nodiscard]] int moves() const { return noted(tool_, "mouseMove"); }
    /// One of them went down, up or repeated itself; which one is all the same.
    bool modifiersHeld(int held) { return mouse_.keyChanged(key::ctrl, held); }

    FakeOverlayItem& tool_ = add(stencil, {0, 0, 100, 100});
};

TEST_F(SheetMouseModifiers, OneThatComesBeforeTheFirstMoveGoesOnWithTheDrag) {
    for (const int held : {shift, ctrl, alt}) {
        mouse_.move({mouseButton::none, 0, 90, 90});
        mouse_.press({mouseButton::left, 0, 25, 50});
        EXPECT_TRUE(modifiersHeld(held));
        expectLast(mouseButton::left, held, 25, 50);
        EXPECT_TRUE(mouse_.holding());
        EXPECT_EQ(noted(tool_, "mouseUp"), 0);
        mouse_.release({mouseButton::left, held, 25, 50}, 0);
        log_.clear();
    }
}

TEST_F(SheetMouseModifiers, EachKeyActsWhenItGoesDownAndWhenItIsLetGo) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, 0, 70, 500});
    int told = moves();
    for (const int held : {shift, shift | ctrl, ctrl, ctrl | alt, alt, 0}) {
        modifiersHeld(held);
        expectLast(mouseButton::left, held, 70, 500);
        EXPECT_EQ(moves(), ++told);
    }
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, RepetitionsTellNothingNew) {
    mouse_.press({mouseButton::left, shift, 25, 50});
    for (int i = 0; i < 30; ++i) {
        modifiersHeld(shift);
    }
    EXPECT_EQ(moves(), 0);
    mouse_.move({mouseButton::left, shift, 70, 50});
    for (int i = 0; i < 30; ++i) {
        modifiersHeld(shift);
    }
    EXPECT_EQ(moves(), 1);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, AMoveThatAlreadyToldOfTheKeyIsNotRepeated) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, ctrl, 70, 50});
    modifiersHeld(ctrl);
    EXPECT_EQ(moves(), 1);
}

TEST_F(SheetMouseModifiers, AllHeldButtonsStayHeld) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.press({mouseButton::right, 0, 30, 50});
    modifiersHeld(shift);
    expectLast(mouseButton::left | mouseButton::right, shift, 30, 50);
    mouse_.release({mouseButton::right, shift, 30, 60}, mouseButton::left);
    modifiersHeld(0);
    expectLast(mouseButton::left, 0, 30, 60);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, WithoutADragTheyMoveNothing) {
    mouse_.move({mouseButton::none, 0, 25, 50});
    log_.clear();
    EXPECT_FALSE(modifiersHeld(shift));
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.release({mouseButton::left, 0, 25, 50}, 0);
    log_.clear();
    modifiersHeld(ctrl);
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.lost();
    log_.clear();
    modifiersHeld(alt);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetMouseModifiers, ADragOnTheBackgroundHearsOfThemToo) {
    mouse_.press({mouseButton::left, 0, 250, 50});
    mouse_.move({mouseButton::left, 0, 300, 50});
    log_.clear();
    for (const int held : {shift, 0}) {
        EXPECT_TRUE(modifiersHeld(held));
        expectLast(mouseButton::left, held, 300, 50);
    }
    EXPECT_EQ(noted(tool_, "GlobalMouseMove"), 2);
    EXPECT_EQ(moves(), 0);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, AReleaseThatWasMissedLeavesNoButtonBehind) {
    mouse_.press({mouseButton::right, 0, 25, 50});
    mouse_.move({mouseButton::none, 0, 25, 50});
    mouse_.press({mouseButton::left, 0, 25, 50});
    modifiersHeld(shift);
    expectLast(mouseButton::left, shift, 25, 50);
}

TEST_F(SheetMouseModifiers, EachOfTheThreeKeysIsOneAndNoOther) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    for (const int modifierKey : {key::shift, key::ctrl, key::alt}) {
        EXPECT_TRUE(mouse_.keyChanged(modifierKey, 0)) << modifierKey;
    }
    constexpr int escape = 27;
    for (const int other : {escape, key::left, key::z, key::f2, key::tab}) {
        EXPECT_FALSE(mouse_.keyChanged(other, shift)) << other;
    }
    EXPECT_EQ(moves(), 0) << "what other keys do is not the mouse's matter";
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, EscapeInADragLeavesItWhereItIsAndHeld) {
    constexpr int escape = 27;
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, ctrl, 70, 60});
    log_.clear();
    EXPECT_FALSE(mouse_.keyChanged(escape, ctrl));
    EXPECT_TRUE(log_.empty());
    EXPECT_TRUE(modifiersHeld(0));
    expectLast(mouseButton::left, 0, 70, 60);
}

TEST_F(SheetMouseModifiers, AKeyAfterALostCaptureMovesNothing) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, ctrl, 70, 60});
    mouse_.lost();
    EXPECT_EQ(noted(tool_, "mouseUp"), 1);
    log_.clear();
    EXPECT_FALSE(modifiersHeld(0));
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetMouseModifiers, APressAtTheEndOfADragStartsFromItsOwnPlaceAndModifiers) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, ctrl, 70, 60});
    mouse_.release({mouseButton::left, ctrl, 70, 60}, 0);
    mouse_.press({mouseButton::left, shift, 71, 61});
    log_.clear();
    EXPECT_TRUE(modifiersHeld(shift));
    EXPECT_TRUE(log_.empty()) << "the press already told of it";
    EXPECT_TRUE(modifiersHeld(0));
    expectLast(mouseButton::left, 0, 71, 61);
}

TEST_F(SheetMouseModifiers, APressWhileTheFirstButtonGoesUpKeepsTheDrag) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.press({mouseButton::right, 0, 30, 50});
    mouse_.release({mouseButton::left, 0, 35, 50}, mouseButton::right);
    EXPECT_TRUE(modifiersHeld(alt));
    expectLast(mouseButton::right, alt, 35, 50);
    mouse_.release({mouseButton::right, alt, 40, 50}, 0);
    EXPECT_FALSE(mouse_.holding());
    EXPECT_EQ(noted(tool_, "mouseUp"), 2);
}

TEST_F(SheetMouseModifiers, AToolThatGoesAwayInADragHearsOfNoKey) {
    sheet_.setVisible(tool_, false);
    FakeOverlayItem& second = add(stencil, {0, 0, 100, 100});
    mouse_.press({mouseButton::left, 0, 25, 50});
    sheet_.setVisible(second, false);
    log_.clear();
    EXPECT_TRUE(modifiersHeld(shift));
    EXPECT_TRUE(log_.empty());
    EXPECT_TRUE(mouse_.holding()) << "the background has it now";
}

}  // namespace
}  // namespace ormala
