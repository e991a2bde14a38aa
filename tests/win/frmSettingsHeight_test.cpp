#include <gtest/gtest.h>

#include <string>

#include "platform/win/PlaceAcrossDpi.h"
#include "win/ModesStage.h"

// The height of the control window through modes, minimising and starts.

namespace ormala {
namespace {

class ControlHeight : public ModesStage {
  protected:
    static constexpr int pulled = 345;

    void startPulled() {
        start();
        SetWindowPos(settings_->handle(), nullptr, 0, 0, widthOf(settings_->rectangle()), pulled,
                     SWP_NOMOVE | SWP_NOZORDER);
    }
};

TEST_F(ControlHeight, ShiftF4ShrinksTheWindowAndMinimisesIt) {
    startPulled();
    {
        const HeldKeys held{VK_SHIFT};
        press(VK_F4);
    }
    EXPECT_EQ(program_->modes().GetMode(), Mode::templateMode);
    EXPECT_TRUE(IsIconic(settings_->handle()));
    EXPECT_TRUE(program_->worksheet().isVisible()) << "the tools stay";
    ShowWindow(settings_->handle(), SW_RESTORE);
    EXPECT_TRUE(test::waitUntil([&] { return height() == shortHeight(); }));
    press(VK_F2);
    EXPECT_TRUE(test::waitUntil([&] { return height() == pulled; }));
}

TEST_F(ControlHeight, ChangeBySystemMenuWhileMinimisedTakesEffectWhenTheWindowComesBack) {
    start();
    const int before = height();
    ShowWindow(settings_->handle(), SW_MINIMIZE);
    SendMessageW(settings_->handle(), WM_SYSCOMMAND, 1012, 0);
    EXPECT_EQ(program_->modes().GetMode(), Mode::pause);
    EXPECT_TRUE(IsIconic(settings_->handle()));
    ShowWindow(settings_->handle(), SW_RESTORE);
    EXPECT_TRUE(test::waitUntil([&] { return height() == shortHeight(); }));
    EXPECT_LT(shortHeight(), before);
}

TEST_F(ControlHeight, ChangeBySystemMenuWhileMinimisedLosesNoHeight) {
    startPulled();
    ShowWindow(settings_->handle(), SW_MINIMIZE);
    SendMessageW(settings_->handle(), WM_SYSCOMMAND, 1011, 0);
    ShowWindow(settings_->handle(), SW_RESTORE);
    ASSERT_TRUE(test::waitUntil([&] { return height() == shortHeight(); }));
    press(VK_F2);
    EXPECT_TRUE(test::waitUntil([&] { return height() == pulled; })) << height();
}

TEST_F(ControlHeight, AMinimisedWindowComesBackWithTheHeightThatItWasGiven) {
    start();
    const RECT before = settings_->rectangle();
    ShowWindow(settings_->handle(), SW_MINIMIZE);
    setHeight(settings_->handle(), pulled);
    EXPECT_TRUE(IsIconic(settings_->handle()));
    ShowWindow(settings_->handle(), SW_RESTORE);
    EXPECT_TRUE(test::waitUntil([&] { return height() == pulled; })) << height();
    EXPECT_EQ(settings_->rectangle().top, before.top);
    EXPECT_EQ(widthOf(settings_->rectangle()), widthOf(before));
}

TEST_F(ControlHeight, AProgramThatEndsMinimisedAndShortKnowsItsHeight) {
    startPulled();
    ShowWindow(settings_->handle(), SW_MINIMIZE);
    SendMessageW(settings_->handle(), WM_SYSCOMMAND, 1011, 0);
    const auto dpi = static_cast<int>(GetDpiForWindow(settings_->handle()));
    EXPECT_EQ(end().number("Options", "EditModeFormHeight"), twipsOfPixels(pulled, dpi));
}

TEST_F(ControlHeight, AControlWindowStoredAtHalfTheResolutionIsWhollyOnTheScreen) {
    start();
    const int width = widthOf(settings_->rectangle());
    program_.reset();
    const int right = GetSystemMetrics(SM_CXSCREEN);
    option("FormSettings", "Left", std::to_string(right - width / 2));
    option("FormSettings", "Top", "100");
    option("FormSettings", "Right", std::to_string(right));
    option("FormSettings", "Bottom", "500");
    start();
    EXPECT_EQ(settings_->rectangle().right, right);
    EXPECT_EQ(widthOf(settings_->rectangle()), width);
}

}  // namespace
}  // namespace ormala
