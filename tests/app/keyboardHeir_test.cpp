#include "app/keyboardHeir.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr TopWindow program{.shown = true, .enabled = true};

TEST(KeyboardHeir, IsAWindowOfAnotherProgramThatIsShown) {
    EXPECT_TRUE(inheritsKeyboard(program));
}

TEST(KeyboardHeir, IsNoWindowThatCouldNotUseTheKeyboard) {
    for (const auto property :
         {&TopWindow::ofThisProgram, &TopWindow::minimised, &TopWindow::standsAside}) {
        TopWindow window = program;
        window.*property = true;
        EXPECT_FALSE(inheritsKeyboard(window));
    }
    for (const auto property : {&TopWindow::shown, &TopWindow::enabled}) {
        TopWindow window = program;
        window.*property = false;
        EXPECT_FALSE(inheritsKeyboard(window));
    }
}

}  // namespace
}  // namespace ormala
