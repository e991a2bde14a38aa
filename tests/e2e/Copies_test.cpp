#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "e2e/LensScene.h"
#include "e2e/clickToFront.h"
#include "e2e/support/Clipboard.h"
#include "e2e/withKeys.h"

// Numbers that leave the program by Ctrl+C, pasted by another one.

namespace ormala::test {
namespace {

bool told(const PanelScene& scene, std::string_view note) {
    const DesktopWindow info = scene.control("lblInfo");
    return waitUntil([&] { return info.isVisible() && info.text() == note; });
}

bool isPasted(const std::string& text) {
    return waitUntil([&] { return clipboard::text() == text; });
}

SettingsFile copiedTools() {
    return ToolSet()
        .stencil({100, 100, 300, 233})
        .measure({{400, 300}, {499, 300}}, {{400, 360}, {449, 360}}, false, 1)
        .file();
}

TEST(Copies, ReadOutsOfTheSelectedToolFromTheWorksheetAndFromTheList) {
    PanelScene scene(copiedTools());
    clipboard::clear();
    // The centre of the stencil.
    ASSERT_TRUE(clickToFront(scene.mouse, scene.worksheet(), scene.onScreen({200, 166})));
    keyboard::press('C', Modifiers::Ctrl);
    EXPECT_TRUE(told(scene, "13 values copied to the clipboard"));
    EXPECT_TRUE(
        isPasted(localised("Center X\t199.5\r\nCenter Y\t166.0\r\n"
                           "Size W\t201\r\nSize H\t134\r\n"
                           "Position left\t100\r\nPosition right\t300\r\n"
                           "Position top\t100\r\nPosition bottom\t233\r\n"
                           "Angle\t0.0\u00b0\r\nAngle\t0.000 rad\r\n"
                           "Ratio W:H\t1.500\r\nRatio H:W\t0.6667\r\n"
                           "Ratio\t3:2  (chemical photo)")))
        << clipboard::text();
    scene.press(PanelScene::control(scene.panel(1), "lblTitle"));
    keyboard::press('C', Modifiers::Ctrl);
    EXPECT_TRUE(told(scene, "8 values copied to the clipboard"));
    EXPECT_TRUE(
        isPasted(localised("Length a\t100.0\r\nLength b\t50.0\r\n"
                           "Ratio a:b\t2.000\r\nRatio b:a\t0.5000\r\n"
                           "Angle ab\t0.00\u00b0\r\nAngle ba\t360.00\u00b0\r\n"
                           "Vertical angle a\t90.00\u00b0\r\n"
                           "Vertical angle b\t90.00\u00b0")))
        << clipboard::text();
}

TEST(Copies, ReadOutsInGerman) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).file(),
                     withKeys({{"Language", " 1031"}}));
    clipboard::clear();
    scene.settings().activate();
    keyboard::press('C', Modifiers::Ctrl);
    EXPECT_TRUE(told(scene, "13 Werte in die Zwischenablage kopiert"));
    EXPECT_TRUE(clipboard::text().starts_with(localised("Mittelpunkt X\t199.5\r\n")))
        << clipboard::text();
    EXPECT_NE(clipboard::text().find("Gr\u00f6\u00dfe B\t201\r\n"), std::string::npos);
}

TEST(Copies, TheColourUnderTheMagnifiersHotSpotWhileAnotherProgramLetsGoAndNotBefore) {
    LensScene scene(bareLens());
    clipboard::clear();
    scene.lens.window().activate();
    const Color color = scene.scene.backdrop().colorAt(LensScene::spot);
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02X%02X%02X", color & 0xFFU, color >> 8U & 0xFFU,
                  color >> 16U & 0xFFU);
    {
        const clipboard::Held held;
        keyboard::press('C', Modifiers::Ctrl);
        EXPECT_TRUE(told(scene.scene, "The clipboard is in use by another program."));
    }
    EXPECT_EQ(clipboard::text(), "");
    keyboard::press('C', Modifiers::Ctrl);
    EXPECT_TRUE(told(scene.scene, std::string(text.data()) + " copied to the clipboard"));
    EXPECT_TRUE(isPasted(text.data())) << clipboard::text();
}

}  // namespace
}  // namespace ormala::test
