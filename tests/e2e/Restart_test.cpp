#include <gtest/gtest.h>

#include "e2e/SheetScene.h"
#include "support/win/fileBytes.h"

namespace ormala::test {
namespace {

TEST(Restart, BringsBackModeAndLanguage) {
    SheetScene scene([](SettingsFile& file) { file.set("Options", "Language", " 1031"); });
    EXPECT_EQ(scene.settings().text(), "Ormala - Bearbeiten");
    scene.settings().post(WM_SYSCOMMAND, 1012);
    scene.settings().waitForText("Ormala - Pause");
    scene.restart();
    EXPECT_EQ(scene.settings().text(), "Ormala - Pause");
    EXPECT_FALSE(scene.worksheet().isVisible());
    scene.settings().post(WM_SYSCOMMAND, 1011);
    scene.settings().waitForText("Ormala - Vorlage");
    scene.restart();
    EXPECT_EQ(scene.settings().text(), "Ormala - Vorlage");
}

TEST(Restart, KeepsEveryOptionAndWhatItDoesNotKnow) {
    const std::string options =
        "; a note of the user\r\n[Options]\r\nShowReferenceLines= 0\r\nTemplateWithBorder=-1\r\n"
        "CircleCompass= 0\r\nMode= 0\r\nTransparencyEditMode= 40\r\nTransparencyTemplateMode= 10\r\n"
        "Language= 9\r\nEditModeFormHeight= 3000\r\nDefaultAngleMode= 1\r\nDefaultLengthMode= 2\r\n"
        "DefaultLengthFactor= 3\r\nDefaultLengthUnit=cm\r\nWorksheetColor= 255\r\n"
        "CrossHairEnabled=-1\r\nGridEnabled=-1\r\nGridStyle= 1\r\nGridLineWidth= 0\r\n"
        "GridColor= 65280\r\nGridSizeX= 12\r\nGridSizeY= 34\r\nGridOffsetX=-5\r\nGridOffsetY= 6\r\n"
        "LensVisible=-1\r\nLensFactor= 7\r\nLensSticked=-1\r\nLensCursorOn= 0\r\nLensHotSpotOn= 0\r\n"
        "LensHotSpotColor= 1\r\nLensHotSpotStyle= 3\r\nLensHotSpotDrawMode= 4\r\nLensGridOn= 0\r\n"
        "LensGridColor= 2\r\nLensGridDrawMode= 5\r\nLensRulTOn= 0\r\nLensRulBOn= 0\r\n"
        "LensRulTOrigin= 2\r\nLensRulBOrigin= 3\r\nLogicalPixels= 0\r\nKeyOfANewerVersion=something\r\n";
    SheetScene scene;
    EXPECT_EQ(scene.program().close(), 0U);
    writeBytes(scene.data().optionsFile(), options);
    Program again(scene.data());
    again.waitUntilReady();
    EXPECT_EQ(again.close(), 0U);
    const std::string kept = bytesOf(scene.data().optionsFile());
    EXPECT_EQ(kept.substr(0, options.size()), options);
}

TEST(Restart, BringsTheControlWindowBackToItsPlace) {
    SheetScene scene;
    const ScreenRect first = scene.settings().rect();
    SetWindowPos(scene.settings().handle(), nullptr, 333, 222, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().left == 333; }));
    const ScreenRect moved = scene.settings().rect();
    scene.restart();
    EXPECT_EQ(scene.settings().rect(), moved);
    EXPECT_NE(scene.settings().rect(), first);
}

TEST(Restart, CutsAHeightThatReachesBelowTheScreen) {
    SheetScene scene([](SettingsFile& file) {
        file.set("Options", "Mode", " 1");
        file.set("Options", "EditModeFormHeight", " 90000");
    });
    scene.settings().post(WM_SYSCOMMAND, 1010);
    scene.settings().waitForText("Ormala - Edit");
    const int bottom = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().bottom == bottom; }))
        << scene.settings().rect().bottom;
}

TEST(Restart, SecondCopyStandsBesideTheFirst) {
    SheetScene scene;
    scene.restart();
    const ScreenRect first = scene.settings().rect();
    Program second(scene.data());
    second.waitUntilReady();
    const ScreenRect shifted = second.settings().rect();
    EXPECT_EQ(shifted.left, first.left + 20);
    EXPECT_EQ(shifted.top, first.top + 20);
    EXPECT_FALSE(MessageBoxWindow::isShown(second.process().id(), "Ormala"));
    EXPECT_EQ(second.close(), 0U);
    EXPECT_EQ(scene.program().close(), 0U);
}

}  // namespace
}  // namespace ormala::test
