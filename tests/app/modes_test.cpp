#include "app/modes.h"

#include <gtest/gtest.h>

#include "support/ManualLanguage.h"

namespace ormala {
namespace {

TEST(Modes, TheCaptionIsTheTitleAndTheMode) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(captionOfMode(Mode::edit), "Ormala - Edit");
    EXPECT_EQ(captionOfMode(Mode::templateMode), "Ormala - Template");
    EXPECT_EQ(captionOfMode(Mode::pause), "Ormala - Pause");
}

TEST(Modes, TheCaptionFollowsTheLanguage) {
    const ManualLanguage language(languageGerman);
    EXPECT_EQ(captionOfMode(Mode::edit), "Ormala - Bearbeiten");
    EXPECT_EQ(captionOfMode(Mode::templateMode), "Ormala - Vorlage");
    EXPECT_EQ(captionOfMode(Mode::pause), "Ormala - Pause");
}

TEST(Modes, ANumberWithoutAModeHasNoTexts) {
    const ManualLanguage language(languageEnglish);
    for (const Mode mode : {static_cast<Mode>(-1), static_cast<Mode>(3)}) {
        EXPECT_EQ(captionOfMode(mode), "Ormala");
        EXPECT_EQ(nameOfMode(mode), "");
    }
}

TEST(Modes, TheEntriesOfTheSystemMenuSayTheirModes) {
    const ManualLanguage language(languageEnglish);
    EXPECT_EQ(nameOfMode(Mode::edit), "Edit");
    EXPECT_EQ(nameOfMode(Mode::templateMode), "Template");
    EXPECT_EQ(nameOfMode(Mode::pause), "Pause");
}

TEST(Modes, AButtonThatIsOnIsLit) {
    EXPECT_EQ(colorOfToggle(true), roleColor(0x00A8BB, ColorRole::highlight));
    EXPECT_EQ(colorOfToggle(false), roleColor(0x707070, ColorRole::buttonFace));
}

TEST(Modes, TheSystemMenuNumbersGoByMode) {
    EXPECT_EQ(menuCommandOfMode(Mode::edit), 1010);
    EXPECT_EQ(menuCommandOfMode(Mode::templateMode), 1011);
    EXPECT_EQ(menuCommandOfMode(Mode::pause), 1012);
}

TEST(Modes, AnEntryOfTheSystemMenuAsksForItsMode) {
    EXPECT_EQ(commandOfSystemMenu(1010), Command::editMode);
    EXPECT_EQ(commandOfSystemMenu(1011), Command::templateMode);
    EXPECT_EQ(commandOfSystemMenu(1012), Command::pauseMode);
    for (const int other : {0, 1009, 1013, 0xF060}) {
        EXPECT_EQ(commandOfSystemMenu(other), std::nullopt);
    }
}

TEST(WindowsOfMode, EditModeShowsTheWorksheetInItsFrame) {
    for (const bool withBorder : {false, true}) {
        EXPECT_EQ(windowsOfMode(Mode::edit, false, withBorder),
                  (ModeWindows{true, true, true, false}));
    }
}

TEST(WindowsOfMode, EditModeHidesTheFrameOfAFullScreenWorksheet) {
    for (const bool withBorder : {false, true}) {
        EXPECT_EQ(windowsOfMode(Mode::edit, true, withBorder),
                  (ModeWindows{true, true, false, true}));
    }
}

TEST(WindowsOfMode, TemplateModePassesTheMouseOnAndKeepsTheFrameIfWanted) {
    EXPECT_EQ(windowsOfMode(Mode::templateMode, false, true),
              (ModeWindows{true, false, true, false}));
    EXPECT_EQ(windowsOfMode(Mode::templateMode, false, false),
              (ModeWindows{true, false, false, false}));
}

TEST(WindowsOfMode, TemplateModeLetsAFullScreenWorksheetBackOnlyWithTheBorder) {
    EXPECT_EQ(windowsOfMode(Mode::templateMode, true, true),
              (ModeWindows{true, false, false, true}));
    EXPECT_EQ(windowsOfMode(Mode::templateMode, true, false),
              (ModeWindows{true, false, false, false}));
}

TEST(WindowsOfMode, PauseShowsNothing) {
    for (const bool maxSized : {false, true}) {
        for (const bool withBorder : {false, true}) {
            EXPECT_EQ(windowsOfMode(Mode::pause, maxSized, withBorder), ModeWindows{});
        }
    }
}

}  // namespace
}  // namespace ormala
