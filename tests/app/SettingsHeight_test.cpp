#include "app/SettingsHeight.h"

#include <gtest/gtest.h>

#include <limits>

namespace ormala {
namespace {

constexpr int shortHeight = 62;
constexpr int editHeight = 500;

SettingsHeight::Present standing(int height) {
    return {WindowState::normal, height, shortHeight};
}

SettingsHeight::Present in(WindowState state) {
    return {state, editHeight, shortHeight};
}

TEST(SettingsHeight, LeavingEditModeKeepsTheHeightAndShrinks) {
    for (const Mode mode : {Mode::templateMode, Mode::pause}) {
        SettingsHeight height;
        EXPECT_EQ(height.adjust(mode, Mode::edit, standing(editHeight)), shortHeight);
        EXPECT_EQ(height.editModeHeight(), editHeight);
    }
}

TEST(SettingsHeight, ChangingBetweenTheShortModesKeepsTheFormerEditHeight) {
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    EXPECT_EQ(height.adjust(Mode::pause, Mode::templateMode, standing(shortHeight)), shortHeight);
    EXPECT_EQ(height.adjust(Mode::templateMode, Mode::pause, standing(300)), shortHeight);
    EXPECT_EQ(height.editModeHeight(), editHeight);
}

TEST(SettingsHeight, EditModeBringsTheHeightBack) {
    SettingsHeight height;
    height.adjust(Mode::pause, Mode::edit, standing(editHeight));
    EXPECT_EQ(height.adjust(Mode::edit, Mode::pause, standing(shortHeight)), editHeight);
}

TEST(SettingsHeight, AWindowPulledToAnotherHeightKeepsItInEditMode) {
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    EXPECT_EQ(height.adjust(Mode::edit, Mode::pause, standing(shortHeight + 1)), std::nullopt);
    EXPECT_EQ(height.adjust(Mode::edit, Mode::pause, standing(300)), std::nullopt);
}

TEST(SettingsHeight, WithoutAKeptHeightEditModeLeavesTheWindowAlone) {
    SettingsHeight height;
    EXPECT_EQ(height.adjust(Mode::edit, Mode::templateMode, standing(shortHeight)), std::nullopt);
    height.setEditModeHeight(-5);
    EXPECT_EQ(height.adjust(Mode::edit, Mode::templateMode, standing(shortHeight)), std::nullopt);
}

TEST(SettingsHeight, RepeatingEditModeChangesNothing) {
    SettingsHeight height;
    EXPECT_EQ(height.adjust(Mode::edit, Mode::edit, standing(editHeight)), std::nullopt);
    EXPECT_EQ(height.editModeHeight(), 0);
}

TEST(SettingsHeight, RepeatingAShortModeShrinksAWindowThatWasPulledAndKeepsNothing) {
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    EXPECT_EQ(height.adjust(Mode::pause, Mode::pause, standing(350)), shortHeight);
    EXPECT_EQ(height.editModeHeight(), editHeight);
}

TEST(SettingsHeight, AnUnknownModeLeavesTheWindowAlone) {
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    EXPECT_EQ(height.adjust(static_cast<Mode>(7), Mode::pause, standing(shortHeight)),
              std::nullopt);
    EXPECT_EQ(height.editModeHeight(), editHeight);
}

TEST(SettingsHeight, AMinimisedWindowOnlyNotesThatARestoreIsPending) {
    SettingsHeight height;
    EXPECT_EQ(height.adjust(Mode::pause, Mode::edit, in(WindowState::minimised)), std::nullopt);
    EXPECT_TRUE(height.RestoreHeightPending());
}

TEST(SettingsHeight, LeavingEditModeWhileMinimisedKeepsTheHeightForTheNextStart) {
    SettingsHeight height;
    height.adjust(Mode::templateMode, Mode::edit, in(WindowState::minimised));
    EXPECT_EQ(height.editModeHeight(), editHeight);
    SettingsHeight unknown;
    unknown.adjust(Mode::templateMode, Mode::edit, {WindowState::minimised, 0, shortHeight});
    EXPECT_EQ(unknown.editModeHeight(), 0);
}

TEST(SettingsHeight, LeavingEditModeWhileMinimisedGivesTheHeightBackAfterTheRestore) {
    for (const Mode last : {Mode::templateMode, Mode::pause}) {
        SettingsHeight height;
        height.resized(WindowState::minimised);
        height.adjust(Mode::templateMode, Mode::edit, {WindowState::minimised, 0, shortHeight});
        height.adjust(last, Mode::templateMode, {WindowState::minimised, 0, shortHeight});
        ASSERT_TRUE(height.resized(WindowState::normal));
        EXPECT_EQ(height.adjust(last, last, standing(editHeight)), shortHeight);
        EXPECT_EQ(height.adjust(Mode::edit, last, standing(shortHeight)), editHeight);
    }
}

TEST(SettingsHeight, LeavingAShortModeWhileMinimisedKeepsNothingOfTheShortWindow) {
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    height.adjust(Mode::pause, Mode::templateMode, {WindowState::minimised, 300, shortHeight});
    EXPECT_EQ(height.adjust(Mode::pause, Mode::pause, standing(300)), shortHeight);
    EXPECT_EQ(height.editModeHeight(), editHeight);
}

TEST(SettingsHeight, AShortWindowIsShortAtItsNewResolutionAndGrowsAgain) {
    constexpr int doubleShort = 2 * shortHeight - 7;
    SettingsHeight height;
    height.setEditModeHeight(editHeight);
    // The system suggests twice the old height, frame and all.
    EXPECT_EQ(height.movedToDpi(96, 192, standing(shortHeight), 2 * shortHeight, doubleShort),
              doubleShort);
    EXPECT_EQ(
        height.adjust(Mode::edit, Mode::pause, {WindowState::normal, doubleShort, doubleShort}),
        2 * editHeight);
}

TEST(SettingsHeight, AnyOtherWindowTakesTheSuggestedHeightIfItIsEnough) {
    SettingsHeight height;
    EXPECT_EQ(height.movedToDpi(96, 192, standing(editHeight), 990, 117), 990);
    EXPECT_EQ(height.movedToDpi(192, 96, standing(70), 35, 62), 62);
}

TEST(SettingsHeight, AMinimisedWindowIsSizedForItsNewResolutionWhenItComesBack) {
    SettingsHeight height;
    height.resized(WindowState::minimised);
    EXPECT_EQ(height.movedToDpi(96, 192, in(WindowState::minimised), 990, 117), std::nullopt);
    ASSERT_TRUE(height.resized(WindowState::normal));
    EXPECT_EQ(height.adjust(Mode::pause, Mode::pause, {WindowState::normal, 62, 117}), 117);
}

TEST(SettingsHeight, AMaximisedWindowKeepsItsHeightAndNothingIsPending) {
    SettingsHeight height;
    EXPECT_EQ(height.adjust(Mode::pause, Mode::edit, in(WindowState::maximised)), std::nullopt);
    EXPECT_FALSE(height.RestoreHeightPending());
    EXPECT_EQ(height.editModeHeight(), 0);
}

TEST(SettingsHeight, TheNextChangeInNormalStateEndsThePendingOne) {
    SettingsHeight height;
    height.adjust(Mode::pause, Mode::edit, in(WindowState::minimised));
    height.adjust(Mode::pause, Mode::pause, standing(editHeight));
    EXPECT_FALSE(height.RestoreHeightPending());
}

TEST(SettingsHeight, AChangeWhileMinimisedIsDueWhenTheWindowComesBack) {
    SettingsHeight height;
    EXPECT_FALSE(height.resized(WindowState::minimised));
    height.adjust(Mode::pause, Mode::edit, in(WindowState::minimised));
    EXPECT_FALSE(height.resized(WindowState::minimised));
    EXPECT_TRUE(height.resized(WindowState::normal));
    EXPECT_EQ(height.adjust(Mode::pause, Mode::pause, standing(editHeight)), shortHeight);
    EXPECT_FALSE(height.resized(WindowState::normal));
}

TEST(SettingsHeight, ComingBackWithoutAChangeOfModeIsNotDue) {
    SettingsHeight height;
    EXPECT_FALSE(height.resized(WindowState::minimised));
    EXPECT_FALSE(height.resized(WindowState::normal));
}

TEST(SettingsHeight, TemplateModeThatMinimisesShrinksFirstAndEditModeGivesTheHeightBack) {
    SettingsHeight height;
    EXPECT_EQ(height.adjust(Mode::templateMode, Mode::edit, standing(editHeight)), shortHeight);
    EXPECT_FALSE(height.resized(WindowState::normal));
    EXPECT_FALSE(height.resized(WindowState::minimised));
    EXPECT_FALSE(height.resized(WindowState::normal));
    EXPECT_EQ(height.adjust(Mode::edit, Mode::templateMode, standing(shortHeight)), editHeight);
}

TEST(SettingsHeight, EditModeChosenWhileMinimisedGivesTheHeightBackOnRestore) {
    SettingsHeight height;
    height.adjust(Mode::templateMode, Mode::edit, standing(editHeight));
    height.resized(WindowState::minimised);
    height.adjust(Mode::edit, Mode::templateMode, in(WindowState::minimised));
    ASSERT_TRUE(height.resized(WindowState::normal));
    EXPECT_EQ(height.adjust(Mode::edit, Mode::edit, standing(shortHeight)), editHeight);
}

TEST(Twips, AreFifteenInAPixelAt96Dpi) {
    EXPECT_EQ(twipsOfPixels(500, 96), 7500);
    EXPECT_EQ(pixelsOfTwips(7500, 96), 500);
}

TEST(Twips, FollowTheDpiOfTheMonitor) {
    EXPECT_EQ(twipsOfPixels(500, 144), 5000);
    EXPECT_EQ(pixelsOfTwips(7500, 192), 1000);
}

TEST(Twips, AreRoundedWithHalvesAwayFromZero) {
    EXPECT_EQ(twipsOfPixels(1, 192), 8);
    EXPECT_EQ(pixelsOfTwips(7, 96), 0);
    EXPECT_EQ(pixelsOfTwips(8, 96), 1);
    EXPECT_EQ(pixelsOfTwips(-8, 96), -1);
}

TEST(Twips, OfAnyPixelHeightComeBackAsThatHeight) {
    for (const int dpi : {96, 120, 144, 168, 192, 240, 288}) {
        for (int pixels = 0; pixels <= 3000; ++pixels) {
            ASSERT_EQ(pixelsOfTwips(twipsOfPixels(pixels, dpi), dpi), pixels) << dpi;
        }
    }
}

TEST(Twips, ThatAreTooManyStayAtTheLargestNumber) {
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(twipsOfPixels(most, 96), most);
    EXPECT_EQ(twipsOfPixels(least, 96), least);
    EXPECT_EQ(pixelsOfTwips(most, 2880), most);
}

}  // namespace
}  // namespace ormala
