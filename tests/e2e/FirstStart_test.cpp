#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "e2e/SheetScene.h"

namespace ormala::test {
namespace {

/// The user's language by the system's own word; under Wine it follows the stage's locale, of which
/// the whole suite is run with an English and a German one.
bool userSpeaksGerman() {
    return PRIMARYLANGID(GetUserDefaultLangID()) == LANG_GERMAN;
}

TEST(FirstStart, MakesItsFolderAndKeepsEveryOptionAtTheEnd) {
    SheetScene scene;
    EXPECT_TRUE(std::filesystem::is_directory(scene.data().optionsFile().parent_path()));
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile file = SettingsFile::read(scene.data().optionsFile());
    const auto sections = file.sectionNames();
    for (const char* name : {"General", "Options", "FormSettings"}) {
        EXPECT_NE(std::ranges::find(sections, name), sections.end()) << name;
    }
    EXPECT_EQ(file.value("General", "Software"), "Ormala");
    EXPECT_EQ(file.value("General", "Version"), "1.0.0");
    EXPECT_EQ(file.value("Options", "Mode"), " 0");
    EXPECT_EQ(file.value("Options", "TransparencyEditMode"), " 25");
    EXPECT_EQ(file.value("Options", "WorksheetColor"), " 5197647");
    EXPECT_EQ(file.value("Options", "ShowReferenceLines"), "-1");
    EXPECT_EQ(file.value("Options", "LensRulBOrigin"), " 1");
}

TEST(FirstStart, RunsInTheLanguageThatTheStageAskedFor) {
    const wchar_t* asked = _wgetenv(L"LC_ALL");
    if (asked != nullptr && std::wstring_view(asked).starts_with(L"de")) {
        EXPECT_TRUE(userSpeaksGerman());
    } else {
        EXPECT_EQ(asked == nullptr && userSpeaksGerman(), userSpeaksGerman());
    }
}

TEST(FirstStart, SpeaksTheLanguageOfTheUser) {
    SheetScene scene;
    EXPECT_EQ(scene.settings().text(),
              userSpeaksGerman() ? "Ormala - Bearbeiten" : "Ormala - Edit");
    EXPECT_EQ(scene.program().close(), 0U);
    EXPECT_EQ(SettingsFile::read(scene.data().optionsFile()).value("Options", "Language"),
              userSpeaksGerman() ? " 1031" : " 9");
}

TEST(FirstStart, ShowsTheStencilOnItsExactPixels) {
    SheetScene scene;
    scene.expectPattern();
    EXPECT_TRUE(scene.worksheet().isTopmost());
    EXPECT_TRUE(scene.settings().isTopmost());
}

TEST(FirstStart, ShowsTheTwoLinesOfAMeasuringTool) {
    SheetScene scene;
    const Picture picture = scene.picture();
    constexpr Color lineA = 0xFF0000;
    constexpr Color lineB = 0x0000FF;
    for (const Color color : {lineA, lineB}) {
        EXPECT_GT(picture.count(blended(color, SheetScene::backdropColor, 191), 2), 70U)
            << ShownColor{color};
    }
}

TEST(FirstStart, WorksheetStandsInItsFrame) {
    SheetScene scene;
    const DesktopWindow frame = scene.program().window("frmResizer");
    ASSERT_TRUE(frame.isVisible());
    const ScreenRect inside = frame.clientRect();
    const ScreenRect sheet = scene.worksheet().rect();
    EXPECT_EQ(sheet.origin(), inside.origin() + (ScreenPoint{5, 5}));
    EXPECT_EQ(sheet.width(), inside.width() - 10);
    EXPECT_EQ(sheet.height(), inside.height() - 10);
}

}  // namespace
}  // namespace ormala::test
