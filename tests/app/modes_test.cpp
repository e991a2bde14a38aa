#include "app/modes.h"

#include <gtest/gtest.h>

#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(Modes, TheCaptionIsTheTitleAndTheMode) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(captionOfMode(mode::edit), "Ormala - Edit");
    EXPECT_EQ(captionOfMode(mode::templateMode), "Ormala - Template");
    EXPECT_EQ(captionOfMode(mode::pause), "Ormala - Pause");
}

TEST(Modes, TheCaptionFollowsTheLanguage) {
    const ManualLanguage language(languageGerman);
    EXPECT_EQ(captionOfMode(mode::edit), "Ormala - Bearbeiten");
    EXPECT_EQ(captionOfMode(mode::templateMode), "Ormala - Vorlage");
    EXPECT_EQ(captionOfMode(mode::pause), "Ormala - Pause");
}

TEST(Modes, ANumberWithoutAModeHasNoTexts) {
    const ManualLanguage language(languageEnglish);
    for (const int mode : {-1, 3}) {
        EXPECT_EQ(captionOfMode(mode), "Ormala");
        EXPECT_EQ(nameOfMode(mode), "");
    }
}

TEST(Modes, TheEntriesOfTheSystemMenuSayTheirModes) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(nameOfMode(mode::edit), "Edit");
    EXPECT_EQ(nameOfMode(mode::templateMode), "Template");
    EXPECT_EQ(nameOfMode(mode::pause), "Pause");
}

TEST(Modes, AButtonThatIsOnIsLit) {
    EXPECT_EQ(colorOfToggle(true), 0x00A8BB);
    EXPECT_EQ(colorOfToggle(false), 0x707070);
}

TEST(Modes, TheSystemMenuNumbersGoByMode) {
    EXPECT_EQ(menuCommandOfMode(mode::edit), 1010);
    EXPECT_EQ(menuCommandOfMode(mode::templateMode), 1011);
    EXPECT_EQ(menuCommandOfMode(mode::pause), 1012);
}

TEST(WindowsOfMode, EditModeShowsTheWorksheetInItsFrame) {
    for (const bool withBorder : {false, true}) {
        EXPECT_EQ(windowsOfMode(mode::edit, false, withBorder),
                  (ModeWindows{true, true, true, false}));
    }
}

TEST(WindowsOfMode, EditModeHidesTheFrameOfAFullScreenWorksheet) {
    for (const bool withBorder : {false, true}) {
        EXPECT_EQ(windowsOfMode(mode::edit, true, withBorder),
                  (ModeWindows{true, true, false, true}));
    }
}

TEST(WindowsOfMode, TemplateModePassesTheMouseOnAndKeepsTheFrameIfWanted) {
    EXPECT_EQ(windowsOfMode(mode::templateMode, false, true),
              (ModeWindows{true, false, true, false}));
    EXPECT_EQ(windowsOfMode(mode::templateMode, false, false),
              (ModeWindows{true, false, false, false}));
}

TEST(WindowsOfMode, TemplateModeLetsAFullScreenWorksheetBackOnlyWithTheBorder) {
    EXPECT_EQ(windowsOfMode(mode::templateMode, true, true),
              (ModeWindows{true, false, false, true}));
    EXPECT_EQ(windowsOfMode(mode::templateMode, true, false),
              (ModeWindows{true, false, false, false}));
}

TEST(WindowsOfMode, PauseShowsNothing) {
    for (const bool maxSized : {false, true}) {
        for (const bool withBorder : {false, true}) {
            EXPECT_EQ(windowsOfMode(mode::pause, maxSized, withBorder), ModeWindows{});
        }
    }
}

}  // namespace
}  // namespace ormala
