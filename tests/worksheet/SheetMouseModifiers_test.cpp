#include "worksheet/SheetFixture.h"
#include "worksheet/SheetMouse.h"

// Modifier keys that go down, up or repeat themselves while the mouse is held.

namespace ormala {
namespace {

using modifier::alt;
using modifier::ctrl;
using modifier::shift;

/// One stencil that takes the mouse up to x = 100.
class SheetMouseModifiers : public SheetFixture {
  protected:
    void expectLast(int button, int modifiers, float x, float y) const {
        EXPECT_EQ(tool_.input.button, button);
        EXPECT_EQ(tool_.input.shift, modifiers);
        EXPECT_EQ(tool_.input.x, x);
        EXPECT_EQ(tool_.input.y, y);
    }
    [[nodiscard]] int moves() const { return noted(tool_, "mouseMove"); }

    FakeOverlayItem& tool_ = add(stencil, {0, 0, 100, 100});
    SheetMouse mouse_{sheet_};
};

TEST_F(SheetMouseModifiers, OneThatComesBeforeTheFirstMoveGoesOnWithTheDrag) {
    for (const int key : {shift, ctrl, alt}) {
        mouse_.move({mouseButton::none, 0, 90, 90});
        mouse_.press({mouseButton::left, 0, 25, 50});
        mouse_.modifiersHeld(key);
        expectLast(mouseButton::left, key, 25, 50);
        EXPECT_TRUE(mouse_.holding());
        EXPECT_EQ(noted(tool_, "mouseUp"), 0);
        mouse_.release({mouseButton::left, key, 25, 50}, 0);
        log_.clear();
    }
}

TEST_F(SheetMouseModifiers, EachKeyActsWhenItGoesDownAndWhenItIsLetGo) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, 0, 70, 500});
    int told = moves();
    for (const int held : {shift, shift | ctrl, ctrl, ctrl | alt, alt, 0}) {
        mouse_.modifiersHeld(held);
        expectLast(mouseButton::left, held, 70, 500);
        EXPECT_EQ(moves(), ++told);
    }
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, RepetitionsTellNothingNew) {
    mouse_.press({mouseButton::left, shift, 25, 50});
    for (int i = 0; i < 30; ++i) {
        mouse_.modifiersHeld(shift);
    }
    EXPECT_EQ(moves(), 0);
    mouse_.move({mouseButton::left, shift, 70, 50});
    for (int i = 0; i < 30; ++i) {
        mouse_.modifiersHeld(shift);
    }
    EXPECT_EQ(moves(), 1);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, AMoveThatAlreadyToldOfTheKeyIsNotRepeated) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.move({mouseButton::left, ctrl, 70, 50});
    mouse_.modifiersHeld(ctrl);
    EXPECT_EQ(moves(), 1);
}

TEST_F(SheetMouseModifiers, AllHeldButtonsStayHeld) {
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.press({mouseButton::right, 0, 30, 50});
    mouse_.modifiersHeld(shift);
    expectLast(mouseButton::left | mouseButton::right, shift, 30, 50);
    mouse_.release({mouseButton::right, shift, 30, 60}, mouseButton::left);
    mouse_.modifiersHeld(0);
    expectLast(mouseButton::left, 0, 30, 60);
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, WithoutADragTheyMoveNothing) {
    mouse_.move({mouseButton::none, 0, 25, 50});
    log_.clear();
    mouse_.modifiersHeld(shift);
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.release({mouseButton::left, 0, 25, 50}, 0);
    log_.clear();
    mouse_.modifiersHeld(ctrl);
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.lost();
    log_.clear();
    mouse_.modifiersHeld(alt);
    EXPECT_TRUE(log_.empty());
}

TEST_F(SheetMouseModifiers, ADragOnTheBackgroundHearsOfThemToo) {
    std::vector<int> seen;
    const Subscription moved = mouse_.backgroundMove.subscribe([&](const MouseInput& input) {
        seen.push_back(input.shift);
        EXPECT_EQ(input.button, mouseButton::left);
    });
    mouse_.press({mouseButton::left, 0, 250, 50});
    mouse_.modifiersHeld(shift);
    mouse_.modifiersHeld(0);
    EXPECT_EQ(seen, (std::vector<int>{shift, 0}));
    EXPECT_TRUE(mouse_.holding());
}

TEST_F(SheetMouseModifiers, AReleaseThatWasMissedLeavesNoButtonBehind) {
    mouse_.press({mouseButton::right, 0, 25, 50});
    mouse_.move({mouseButton::none, 0, 25, 50});
    mouse_.press({mouseButton::left, 0, 25, 50});
    mouse_.modifiersHeld(shift);
    expectLast(mouseButton::left, shift, 25, 50);
}

}  // namespace
}  // namespace ormala
