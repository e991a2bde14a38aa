#include <gtest/gtest.h>

#include <string>

#include "e2e/Dialog.h"
#include "e2e/LensScene.h"
#include "e2e/ToolPanel.h"
#include "e2e/withKeys.h"

// The pages of the options dialog: what their controls do to the worksheet and to the magnifier.

namespace ormala::test {
namespace {

constexpr Color dark = 0x4F4F4F;

/// An opaque worksheet with a grid.
SettingsFile shownGrid() {
    return withKeys({{"TransparencyEditMode", " 0"},
                     {"GridEnabled", "-1"},
                     {"GridStyle", " 1"},
                     {"GridLineWidth", " 2"},
                     {"GridSizeX", " 50"},
                     {"GridSizeY", " 50"}});
}

Dialog openOn(PanelScene& scene, int page) {
    scene.press("cmdOptions");
    Dialog dialog(scene, "frmOptions");
    dialog.press(indexed("btnTab", page));
    requireSoon("page", [&] { return dialog.control(indexed("picTab", page)).isVisible(); });
    return dialog;
}

SettingsFile closed(PanelScene& scene) {
    EXPECT_EQ(scene.program().close(), 0U);
    return SettingsFile::read(scene.data().optionsFile());
}

/// Puts a slider to a value near by.
void step(const Dialog& dialog, std::string_view slider, WORD key, int times) {
    focusByTab(dialog.control(slider));
    keyboard::press(key, Modifiers::None, times);
}

/// A slider's value, which stands at the end of its caption.
int valueOf(const Dialog& dialog, std::string_view slider) {
    const std::string text = dialog.control(slider).text();
    return std::stoi(text.substr(text.rfind(' ') + 1));
}

bool shows(const Dialog& dialog, std::string_view slider, int value) {
    return waitUntil([&] { return valueOf(dialog, slider) == value; });
}

/// Drags on the track of a slider, from one share of its length to another.
void dragSlider(PanelScene& scene, const Dialog& dialog, std::string_view slider, double from,
                double to) {
    const ScreenRect rect = dialog.control(slider).rect();
    const auto at = [&](double share) {
        return ScreenPoint{rect.left + static_cast<int>(rect.width() * share),
                           rect.bottom - rect.height() / 4};
    };
    scene.mouse.drag(at(from), at(to));
}

TEST(OptionsDialog, AnotherGridIsOnTheWorksheetAtOnce) {
    PanelScene scene(ToolSet().stencil({650, 350, 750, 430}).file(), shownGrid());
    const Dialog dialog = openOn(scene, 1);
    dialog.press("optGridMode(2)");
    dialog.press("chkSameGridSizeXY");
    step(dialog, "sldGridSizeX", VK_RIGHT, 10);
    step(dialog, "sldGridSizeY", VK_LEFT, 10);
    dialog.press("chkSameGridOffsetXY");
    step(dialog, "sldGridOffsetX", VK_RIGHT, 7);
    step(dialog, "sldGridOffsetY", VK_RIGHT, 9);
    const ScreenRect lines = dialog.control("GridLineSelect").rect();
    scene.mouse.click({lines.center().x, lines.bottom - lines.height() / 10});
    const ScreenRect palette = dialog.control("colpicGrid").rect();
    // White, in the corner of the palette.
    scene.mouse.click({palette.right - 4, palette.top + 4});
    dialog.leave("cmdOK");
    scene.mouse.moveTo(scene.onScreen({560, 40}));
    const ScreenPoint origin = scene.onScreen({0, 0});
    const Picture seen =
        screen::waitUntilStill({origin.x, origin.y, origin.x + 420, origin.y + 300});
    int wrong = 0;
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 420; ++x) {
            // Lines three pixels wide about 7 + n * 60 and 9 + n * 40.
            const bool down = x >= 6 && (x - 6) % 60 < 3;
            const bool along = y >= 8 && (y - 8) % 40 < 3;
            wrong +=
                seen.at(origin + ScreenPoint{x, y}) == (down || along ? 0xFFFFFF : dark) ? 0 : 1;
        }
    }
    EXPECT_EQ(wrong, 0);
    // Snapping follows: from the centre at (700, 390) to beside 7 + 12 * 60 and 9 + 9 * 40.
    scene.mouse.drag(scene.onScreen({700, 390}), scene.onScreen({721, 375}), 8, Modifiers::Ctrl);
    const SettingsFile kept = closed(scene);
    EXPECT_EQ(kept.number("Options", "GridSizeX"), 60);
    EXPECT_EQ(kept.number("Options", "GridSizeY"), 40);
    EXPECT_EQ(kept.number("Options", "GridStyle"), 2);
    EXPECT_EQ(kept.number("Options", "GridLineWidth"), 4);
    const SettingsFile tools = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(tools.number("Tool 1", "RectBoundLeft"), 727 - 50);
    EXPECT_EQ(tools.number("Tool 1", "RectBoundTop"), 369 - 40);
}

TEST(OptionsDialog, CoupledSlidersMoveTogetherByMouseAndKeys) {
    PanelScene scene(ToolSet().stencil({650, 350, 750, 430}).file(), shownGrid());
    const Dialog dialog = openOn(scene, 1);
    for (const char* const kind : {"Size", "Offset"}) {
        const std::string x = std::string("sldGrid") + kind + "X";
        const std::string y = std::string("sldGrid") + kind + "Y";
        const std::string same = std::string("chkSameGrid") + kind + "XY";
        EXPECT_TRUE(dialog.isOn(same)) << "equal ones begin coupled";
        dragSlider(scene, dialog, x, 0.4, 0.6);
        const int dragged = valueOf(dialog, x);
        EXPECT_NEAR(dragged, 180, 12);
        EXPECT_TRUE(shows(dialog, y, dragged));
        step(dialog, y, VK_LEFT, 4);
        EXPECT_TRUE(shows(dialog, y, dragged - 4));
        EXPECT_TRUE(shows(dialog, x, dragged - 4));
        // Without the tick nothing moves, and then each alone.
        dialog.press(same);
        EXPECT_TRUE(waitUntil([&] { return !dialog.isOn(same); }));
        EXPECT_EQ(valueOf(dialog, x), dragged - 4);
        EXPECT_EQ(valueOf(dialog, y), dragged - 4);
        dragSlider(scene, dialog, y, 0.8, 0.9);
        const int alone = valueOf(dialog, y);
        EXPECT_NEAR(alone, 270, 12);
        EXPECT_EQ(valueOf(dialog, x), dragged - 4);
        // The tick takes the first one over.
        dialog.press(same);
        EXPECT_TRUE(shows(dialog, y, dragged - 4));
    }
    const int size = valueOf(dialog, "sldGridSizeX");
    const int offset = valueOf(dialog, "sldGridOffsetX");
    dialog.leave("cmdOK");
    const SettingsFile kept = closed(scene);
    for (const char* const key : {"GridSizeX", "GridSizeY"}) {
        EXPECT_EQ(kept.number("Options", key), size);
    }
    for (const char* const key : {"GridOffsetX", "GridOffsetY"}) {
        EXPECT_EQ(kept.number("Options", key), offset);
    }
}

constexpr const char* lensTicks[] = {"chkCursorVisible", "chkHotSpotVisible", "chkLensGridVisible",
                                     "chkTopLeftVisible", "chkBottomRightVisible"};

/// By the submenu of the worksheet's menu.
void chooseOnWorksheet(PanelScene& scene, LensEntry entry) {
    constexpr int magnifierSubmenu = 7;
    scene.mouse.click(scene.onScreen({40, 40}), MouseButton::Right);
    const ShownMenus menus = scene.menus();
    const DesktopWindow menu = menus.wait();
    menus.walkDown(magnifierSubmenu);
    menus.press(VK_RIGHT);
    menus.walkDown(static_cast<int>(entry) - 1);
    keyboard::press(VK_RETURN);
    menu.waitUntilHidden();
}

TEST(OptionsDialog, ThePageOfTheMagnifierSetsWhatItsMenuSets) {
    LensScene lens(withKeys({{"LensVisible", "-1"}}));
    PanelScene& scene = lens.scene;
    const DesktopWindow window = lens.lens.window();
    {
        const Dialog dialog = openOn(scene, 2);
        for (const char* const tick : lensTicks) {
            EXPECT_TRUE(dialog.isOn(tick)) << tick;
            dialog.press(tick);
        }
        step(dialog, "sldMagnification", VK_RIGHT, 1);
        dialog.press("chkStick");
        dialog.leave("cmdOK");
    }
    EXPECT_TRUE(waitUntil([&] { return window.text().empty(); }));
    EXPECT_FALSE(lens.lens.part("picRulTop").isVisible());
    EXPECT_FALSE(lens.lens.part("picRulRight").isVisible());
    // The menus turn each back on, as their check marks have followed. A window beside the mouse
    // can't be clicked, but the worksheet has the same menu.
    chooseOnWorksheet(scene, LensEntry::stick);
    window.waitForText("Magnifier 5 X");
    lens.lens.moveTo({20, 500});
    for (const LensEntry entry : {LensEntry::cursor, LensEntry::hotSpot, LensEntry::grid,
                                  LensEntry::topLeftScales, LensEntry::bottomRightScales}) {
        lens.choose(entry);
    }
    EXPECT_TRUE(waitUntil([&] { return lens.lens.part("picRulRight").isVisible(); }));
    EXPECT_TRUE(lens.lens.part("picRulTop").isVisible());
    lens.chooseFactor(8);
    const Dialog dialog = openOn(scene, 2);
    for (const char* const tick : lensTicks) {
        EXPECT_TRUE(dialog.isOn(tick)) << tick;
    }
    EXPECT_FALSE(dialog.isOn("chkStick"));
    EXPECT_EQ(valueOf(dialog, "sldMagnification"), 8);
    dialog.leave("cmdOK");
    const SettingsFile kept = closed(scene);
    EXPECT_EQ(kept.number("Options", "LensFactor"), 8);
    for (const char* key :
         {"LensCursorOn", "LensHotSpotOn", "LensGridOn", "LensRulTOn", "LensRulBOn"}) {
        EXPECT_EQ(kept.number("Options", key), -1) << key;
    }
}

TEST(OptionsDialog, EveryOptionOfTheMagnifierIsKept) {
    PanelScene scene(ToolSet().stencil({650, 350, 750, 430}).file());
    const Dialog dialog = openOn(scene, 2);
    for (const char* const option :
         {"optHotSpotStyle(6)", "optHotSpotDrawMode(2)", "optLensGridDrawMode(0)",
          "optTopLeftRef(3)", "optBottomRightRef(2)"}) {
        dialog.press(option);
        EXPECT_TRUE(waitUntil([&] { return dialog.isOn(option); })) << option;
    }
    dialog.leave("cmdOK");
    const SettingsFile kept = closed(scene);
    EXPECT_EQ(kept.number("Options", "LensHotSpotStyle"), 6);
    EXPECT_EQ(kept.number("Options", "LensHotSpotDrawMode"), 13);
    EXPECT_EQ(kept.number("Options", "LensGridDrawMode"), 6);
    EXPECT_EQ(kept.number("Options", "LensRulTOrigin"), 3);
    EXPECT_EQ(kept.number("Options", "LensRulBOrigin"), 2);
}

/// Walks once around by the Tab key and expects it to reach exactly these on its way.
void expectTabOrder(const Dialog& dialog, std::initializer_list<const char*> names) {
    for (const char* const name : names) {
        EXPECT_TRUE(waitUntil([&] { return focusedWindow().name() == name; }))
            << focusedWindow().name() << " instead of " << name;
        const DesktopWindow former = focusedWindow();
        keyboard::press(VK_TAB);
        EXPECT_TRUE(waitUntil([&] { return focusedWindow() != former; }));
    }
    EXPECT_TRUE(waitUntil([&] { return focusedWindow() == dialog.control(*names.begin()); }));
}

TEST(OptionsDialog, IsUsedByTheKeyboardAlone) {
    PanelScene scene(ToolSet().stencil({650, 350, 750, 430}).file());
    scene.settings().activate();
    focusByTab(scene.control("cmdOptions"));
    keyboard::press(VK_SPACE);
    const Dialog dialog(scene, "frmOptions");
    expectTabOrder(dialog, {"optLanguage(0)", "chkTemplateWithBorder", "chkLogicalPixels",
                            "cmdAbout", "cmdOK", "cmdCancel", "btnTab(0)"});
    focusByTab(dialog.control("btnTab(0)"));
    keyboard::press(VK_RIGHT);
    EXPECT_TRUE(waitUntil([&] { return dialog.control("picTab(1)").isVisible(); }));
    expectTabOrder(
        dialog, {"btnTab(1)", "optGridMode(2)", "sldGridSizeX", "sldGridSizeY", "chkSameGridSizeXY",
                 "sldGridOffsetX", "sldGridOffsetY", "chkSameGridOffsetXY", "GridLineSelect",
                 "colpicGrid", "cmdAbout", "cmdOK", "cmdCancel"});
    keyboard::press(VK_RIGHT);
    EXPECT_TRUE(waitUntil([&] { return dialog.control("picTab(2)").isVisible(); }));
    expectTabOrder(
        dialog,
        {"btnTab(2)", "chkCursorVisible", "chkStick", "sldMagnification", "chkHotSpotVisible",
         "optHotSpotStyle(2)", "optHotSpotDrawMode(1)", "cmdHotSpotDrawColor", "chkLensGridVisible",
         "optLensGridDrawMode(1)", "cmdLensGridColor", "chkTopLeftVisible", "optTopLeftRef(0)",
         "chkBottomRightVisible", "optBottomRightRef(1)", "cmdAbout", "cmdOK", "cmdCancel"});
    // Arrows choose within a group, and go around in it.
    focusByTab(dialog.control("optBottomRightRef(1)"));
    keyboard::press(VK_DOWN, Modifiers::None, 3);
    EXPECT_TRUE(waitUntil([&] { return dialog.isOn("optBottomRightRef(0)"); }));
    focusByTab(dialog.control("chkTopLeftVisible"));
    keyboard::press(VK_SPACE);
    EXPECT_TRUE(waitUntil([&] { return !dialog.isOn("chkTopLeftVisible"); }));
    focusByTab(dialog.control("cmdLensGridColor"));
    keyboard::press(VK_SPACE);
    Dialog(scene, "frmColor").leaveByKey(VK_RETURN);
    focusByTab(dialog.control("cmdOK"));
    dialog.leaveByKey(VK_SPACE);
    EXPECT_TRUE(waitUntil([&] { return focusedWindow() == scene.control("cmdOptions"); }));
    const SettingsFile kept = closed(scene);
    EXPECT_EQ(kept.number("Options", "LensRulBOrigin"), 0);
    EXPECT_EQ(kept.number("Options", "LensRulTOn"), 0);
}

}  // namespace
}  // namespace ormala::test
