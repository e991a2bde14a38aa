#include "widgets/ButtonModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ormala {
namespace {

constexpr MouseArguments inside{mouseButton::left, 0, 10, 10};
constexpr MouseArguments beside{mouseButton::left, 0, 60, 10};
constexpr KeyArguments spaceBar{key::space, 0};

/// The window of a button of 40 by 22 pixels.
class TestButton final : public ButtonEvents, private ButtonSurface {
  public:
    TestButton() {
        model.resize({40, 22});
        note(Click, "Click");
        note(DblClick, "DblClick");
        note(KeyDown, "KeyDown");
        note(KeyUp, "KeyUp");
        note(MouseDown, "MouseDown");
        note(MouseMove, "MouseMove");
        note(MouseUp, "MouseUp");
        note(MouseEnter, "MouseEnter");
        note(MouseExit, "MouseExit");
        note(gotFocus, "gotFocus");
        note(lostFocus, "lostFocus");
    }

    void refresh() override { ++refreshes; }
    void watchMouse(bool on) override { watching = on; }
    void captureMouse() override { captured = true; }

    /// What has been raised since the last call.
    std::vector<std::string> taken() { return std::exchange(raised_, {}); }

    ButtonModel model{*this, *this};
    int refreshes = 0;
    bool watching = false;
    bool captured = false;

  private:
    template <typename... Args>
    void note(Event<Args...>& event, const char* name) {
        subscriptions_.push_back(
            event.subscribe([this, name](Args...) { raised_.emplace_back(name); }));
    }

    std::vector<std::string> raised_;
    std::vector<Subscription> subscriptions_;
};

using Names = std::vector<std::string>;

TEST(ButtonModel, ClickComesBeforeTheMouseUp) {
    TestButton button;
    button.model.mouseDown(inside);
    EXPECT_TRUE(button.model.state().pressed);
    button.model.mouseUp(inside);
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "Click", "MouseUp"}));
}

TEST(ButtonModel, PressMovedOffAndReleasedThereRaisesNoClick) {
    TestButton button;
    button.model.mouseMove(inside);
    button.model.mouseDown(inside);
    button.model.mouseMove(beside);
    button.model.mouseIsElsewhere(0);
    button.model.mouseUp(beside);
    EXPECT_EQ(button.taken(),
              (Names{"MouseEnter", "MouseMove", "MouseDown", "MouseMove", "MouseExit", "MouseUp"}));
}

TEST(ButtonModel, RightButtonShowsNothingAndRaisesNoClick) {
    TestButton button;
    const MouseArguments right{mouseButton::right, 0, 10, 10};
    button.model.mouseDown(right);
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_EQ(button.refreshes, 0);
    button.model.mouseUp(right);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseUp"}));
}

TEST(ButtonModel, MiddleButtonClicks) {
    TestButton button;
    button.model.mouseDown({mouseButton::middle, 0, 1, 1});
    button.model.mouseUp({mouseButton::middle, 0, 1, 1});
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "Click", "MouseUp"}));
}

TEST(ButtonModel, ReleaseWithoutAPressMeansNothing) {
    TestButton button;
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), Names{});
}

TEST(ButtonModel, LastPixelIsInsideAndTheNextOneIsNot) {
    TestButton button;
    button.model.mouseDown(inside);
    button.model.mouseUp({mouseButton::left, 0, 39, 21});
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "Click", "MouseUp"}));
    button.model.mouseDown(inside);
    button.model.mouseUp({mouseButton::left, 0, 40, 21});
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseUp"}));
}

TEST(ButtonModel, PressThatMovesOffAndComesBackClicks) {
    TestButton button;
    button.model.mouseMove(inside);
    button.model.mouseDown(inside);
    button.model.mouseMove(beside);
    button.model.mouseIsElsewhere(0);
    button.model.mouseMove(inside);
    button.taken();
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"Click", "MouseUp"}));
}

TEST(ButtonModel, PressOnTheSpotBesideTheButtonIsNoClickHoweverTheMouseWent) {
    for (const MouseArguments& off : {MouseArguments{mouseButton::left, 0, -1, 10},
                                      MouseArguments{mouseButton::left, 0, 40, 10},
                                      MouseArguments{mouseButton::left, 0, 10, -1},
                                      MouseArguments{mouseButton::left, 0, 10, 22}}) {
        TestButton button;
        button.model.mouseDown(inside);
        button.model.mouseUp(off);
        EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseUp"})) << off.x << ", " << off.y;
    }
}

TEST(ButtonModel, AnotherMouseButtonLeavesThePressThatGoesOn) {
    constexpr MouseArguments right{mouseButton::right, 0, 10, 10};
    TestButton button;
    button.model.mouseDown(inside);
    button.model.mouseDown(right);
    button.model.mouseUp(right);
    EXPECT_TRUE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseDown", "MouseUp"}));
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"Click", "MouseUp"}));
}

TEST(ButtonModel, TheLeftButtonPressesThoughTheRightOneIsHeld) {
    constexpr MouseArguments right{mouseButton::right, 0, 10, 10};
    TestButton button;
    button.model.mouseDown(right);
    button.model.mouseDown(inside);
    EXPECT_TRUE(button.model.state().pressed);
    button.model.mouseUp(right);
    EXPECT_TRUE(button.model.state().pressed);
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseDown", "MouseUp", "Click", "MouseUp"}));
}

TEST(ButtonModel, SpaceMeansNothingWhileTheMouseHoldsTheButton) {
    TestButton button;
    button.model.mouseDown(inside);
    button.model.keyDown(spaceBar);
    button.model.keyUp(spaceBar);
    EXPECT_TRUE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "KeyDown", "KeyUp"}));
}

TEST(ButtonModel, TheMouseTakesOverWhatSpaceHasBegun) {
    TestButton button;
    button.model.keyDown(spaceBar);
    button.model.mouseDown(inside);
    button.model.keyUp(spaceBar);
    EXPECT_TRUE(button.model.state().pressed);
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"KeyDown", "MouseDown", "KeyUp", "Click", "MouseUp"}));
}

TEST(ButtonModel, DoubleClickGivesTwoPressesWithTheirReleasesAndOneDblClickBetween) {
    TestButton button;
    button.model.mouseDown(inside);
    button.model.mouseUp(inside);
    button.taken();
    button.model.doubleClick();
    EXPECT_TRUE(button.captured);
    EXPECT_TRUE(button.model.state().pressed);
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "DblClick", "Click", "MouseUp"}));
}

TEST(ButtonModel, DoubleClickRepeatsTheStoredPress) {
    TestButton button;
    const MouseArguments at{mouseButton::left, modifier::ctrl, 7, 8};
    button.model.mouseDown(at);
    button.model.mouseUp(at);
    std::vector<MouseArguments> presses;
    const Subscription noting =
        button.MouseDown.subscribe([&](const MouseArguments& press) { presses.push_back(press); });
    button.model.doubleClick();
    EXPECT_EQ(presses, std::vector{at});
}

TEST(ButtonModel, HoverBeginsWithTheFirstMoveAndIsWatchedUntilTheMouseIsElsewhere) {
    TestButton button;
    button.model.mouseMove(inside);
    button.model.mouseMove(inside);
    EXPECT_TRUE(button.model.state().hover);
    EXPECT_TRUE(button.watching);
    EXPECT_EQ(button.taken(), (Names{"MouseEnter", "MouseMove", "MouseMove"}));
    button.model.mouseIsElsewhere(0);
    EXPECT_FALSE(button.model.state().hover);
    EXPECT_FALSE(button.watching);
    EXPECT_EQ(button.taken(), Names{"MouseExit"});
    button.model.mouseIsElsewhere(0);
    EXPECT_EQ(button.taken(), Names{});
}

TEST(ButtonModel, CapturedMoveOutsideDoesNotBeginHover) {
    TestButton button;
    button.model.mouseMove(beside);
    EXPECT_FALSE(button.model.state().hover);
    EXPECT_EQ(button.taken(), Names{"MouseMove"});
}

TEST(ButtonModel, PressedButtonIsShownUpWhileTheMouseIsOutsideAndDownAgainWhenItIsBack) {
    TestButton button;
    button.model.mouseMove(inside);
    button.model.mouseDown(inside);
    button.model.mouseIsElsewhere(0);
    EXPECT_FALSE(button.model.state().pressed);
    button.model.mouseMove(inside);
    EXPECT_TRUE(button.model.state().pressed);
    button.taken();
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), (Names{"Click", "MouseUp"}));
}

TEST(ButtonModel, HoldingSpaceGivesOneClickOnReleaseHoweverLongTheKeyRepeats) {
    TestButton button;
    for (int i = 0; i < 30; ++i) {
        button.model.keyDown(spaceBar);
    }
    EXPECT_TRUE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), Names(30, "KeyDown"));
    EXPECT_EQ(button.refreshes, 1);
    button.model.keyUp(spaceBar);
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), (Names{"Click", "KeyUp"}));
}

TEST(ButtonModel, OtherKeysDoNotPress) {
    TestButton button;
    button.model.keyDown({key::up, 0});
    EXPECT_FALSE(button.model.state().pressed);
    button.model.keyUp({key::up, 0});
    EXPECT_EQ(button.taken(), (Names{"KeyDown", "KeyUp"}));
}

TEST(ButtonModel, SpaceThatWentDownElsewhereClicksNothing) {
    TestButton button;
    button.model.gainFocus();
    button.taken();
    button.model.keyUp(spaceBar);
    EXPECT_EQ(button.taken(), Names{"KeyUp"});
}

TEST(ButtonModel, NoButtonStaysDownWhenTheFocusGoesAway) {
    TestButton button;
    button.model.gainFocus();
    EXPECT_TRUE(button.model.state().focused);
    button.model.mouseDown(inside);
    button.model.loseFocus();
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_FALSE(button.model.state().focused);
    EXPECT_EQ(button.taken(), (Names{"gotFocus", "MouseDown", "MouseUp", "lostFocus"}));
    button.model.keyDown(spaceBar);
    button.model.loseFocus();
    EXPECT_FALSE(button.model.state().pressed);
    button.taken();
    button.model.keyUp(spaceBar);
    EXPECT_EQ(button.taken(), Names{"KeyUp"});
}

TEST(ButtonModel, PressEndsWithoutAClickWhenTheMouseIsTakenAway) {
    TestButton button;
    button.model.mouseDown(inside);
    button.model.cancelPress();
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "MouseUp"}));
}

TEST(ButtonModel, DisablingEndsPressAndLook) {
    TestButton button;
    button.model.mouseMove(inside);
    button.model.mouseDown(inside);
    button.model.setEnabled(false);
    EXPECT_EQ(button.model.state(), (ButtonState{false, false, false, false}));
    button.taken();
    button.model.mouseUp(inside);
    EXPECT_EQ(button.taken(), Names{});
}

TEST(ButtonModel, AccessKeyClicksOnlyAnEnabledButton) {
    TestButton button;
    EXPECT_TRUE(button.model.pressAccessKey());
    EXPECT_EQ(button.taken(), Names{"Click"});
    button.model.setEnabled(false);
    EXPECT_FALSE(button.model.pressAccessKey());
    EXPECT_EQ(button.taken(), Names{});
}

TEST(ButtonModel, ToggleFollowsItsValueAndNeverChangesIt) {
    TestButton button;
    button.model.setValue(true);
    EXPECT_FALSE(button.model.state().pressed);
    for (const int type : {1, 2}) {
        button.model.setControlType(type);
        EXPECT_TRUE(button.model.state().pressed) << type;
        EXPECT_TRUE(button.model.checked()) << type;
    }
    button.model.clickOnce();
    EXPECT_TRUE(button.model.Value());
    button.model.setValue(false);
    EXPECT_FALSE(button.model.state().pressed);
}

TEST(ButtonModel, ToggleWithAlwaysUpShowsNoPressedFace) {
    TestButton button;
    button.model.setControlType(1);
    button.model.setValue(true);
    button.model.setAlwaysUp(true);
    EXPECT_FALSE(button.model.state().pressed);
    button.model.mouseDown(inside);
    EXPECT_FALSE(button.model.state().pressed);
    EXPECT_TRUE(button.model.checked());
}

TEST(ButtonModel, SettersOfTheSameValueDoNotRepaint) {
    TestButton button;
    button.model.setValue(false);
    button.model.setAlwaysUp(false);
    button.model.setEnabled(true);
    EXPECT_EQ(button.refreshes, 0);
    button.model.setValue(true);
    button.model.setAlwaysUp(true);
    EXPECT_EQ(button.refreshes, 2);
}

TEST(ButtonModel, ClickOnceIsAWholePress) {
    TestButton button;
    button.model.clickOnce();
    EXPECT_EQ(button.taken(), (Names{"MouseDown", "Click", "MouseUp"}));
}

/// Whatever is done to a button, the first handler that destroys it is the last one called.
template <typename... Args>
void destroyedBy(Event<Args...> ButtonEvents::*event, void (*act)(ButtonModel&)) {
    auto button = std::make_unique<TestButton>();
    button->model.mouseMove(inside);
    button->model.mouseIsElsewhere(0);
    const Subscription ending =
        ((*button).*event).subscribe([&button](Args...) { button.reset(); });
    act(button->model);
    EXPECT_EQ(button, nullptr);
}

TEST(ButtonModel, HandlerOfAnyEventMayDestroyTheButton) {
    const auto click = [](ButtonModel& model) { model.clickOnce(); };
    const auto type = [](ButtonModel& model) {
        model.keyDown(spaceBar);
        model.keyUp(spaceBar);
    };
    destroyedBy(&ButtonEvents::Click, click);
    destroyedBy(&ButtonEvents::MouseDown, click);
    destroyedBy(&ButtonEvents::MouseUp, click);
    destroyedBy(&ButtonEvents::Click, type);
    destroyedBy(&ButtonEvents::KeyUp, type);
    destroyedBy(&ButtonEvents::MouseDown, [](ButtonModel& model) { model.doubleClick(); });
    destroyedBy(&ButtonEvents::DblClick, [](ButtonModel& model) { model.doubleClick(); });
    destroyedBy(&ButtonEvents::KeyDown, [](ButtonModel& model) { model.keyDown(spaceBar); });
    destroyedBy(&ButtonEvents::MouseEnter, [](ButtonModel& model) { model.mouseMove(inside); });
    destroyedBy(&ButtonEvents::gotFocus, [](ButtonModel& model) { model.gainFocus(); });
    destroyedBy(&ButtonEvents::lostFocus, [](ButtonModel& model) { model.loseFocus(); });
    destroyedBy(&ButtonEvents::MouseExit, [](ButtonModel& model) {
        model.mouseMove(inside);
        model.mouseIsElsewhere(0);
    });
}

}  // namespace
}  // namespace ormala
