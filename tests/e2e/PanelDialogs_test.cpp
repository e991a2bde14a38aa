#include <gtest/gtest.h>

#include <numbers>
#include <optional>

#include "e2e/Dialog.h"
#include "e2e/ToolPanel.h"

namespace ormala::test {
namespace {

constexpr double fullTurn = 2 * std::numbers::pi;

/// What the dialog of patterns is to be given, and what the file keeps of it.
struct Slot {
    int pattern;
    /// A row of the list of rotations, which begins with none.
    int rotationRow;
    int id;
    double rotation;
};

/// Halves, diagonals at an eighth, a small circle, thirds at a twentieth, root(2) at a quarter.
constexpr Slot chosen[] = {{1, 0, 2, 0},
                           {18, 1, 19, fullTurn / 8},
                           {12, 0, 11, 0},
                           {2, 10, 3, fullTurn / 20},
                           {16, 2, 17, fullTurn / 4}};

SettingsFile oneStencil() {
    return ToolSet().stencil({205, 155, 365, 257}).file();
}

SettingsFile oneMeasure() {
    return ToolSet().measure({{200, 300}, {300, 300}}, {{200, 360}, {260, 360}}, false).file();
}

class PanelDialogs : public testing::Test {
  protected:
    /// Where the stencil is, with the mouse where it touches nothing.
    static Picture stencilPicture(PanelScene& scene) {
        scene.mouse.moveTo(scene.onScreen({150, 330}));
        const ScreenPoint corner = scene.onScreen({190, 140});
        return screen::waitUntilStill({corner.x, corner.y, corner.x + 190, corner.y + 130});
    }
    static void choose(const Dialog& dialog, int tab, const Slot& slot) {
        // Keys go to whatever has the focus when they arrive, so each click is waited for.
        const auto pressDown = [&](const std::string& name) {
            dialog.press(name);
            EXPECT_TRUE(waitUntil([&] { return dialog.isOn(name); })) << name;
        };
        pressDown(indexed("btnTab", tab));
        pressDown(indexed("optPattern", slot.pattern));
        if (slot.rotationRow > 0) {
            const DesktopWindow rotation = dialog.control("cboRotation");
            focusByTab(rotation);
            keyboard::press(VK_DOWN, Modifiers::None, slot.rotationRow);
            EXPECT_TRUE(waitUntil([&] { return rotation.send(CB_GETCURSEL) == slot.rotationRow; }));
        }
    }
    static SettingsFile withSlots(SettingsFile file) {
        int slot = 1;
        for (const Slot& each : chosen) {
            file.set("Tool 1", "PatternID" + std::to_string(slot), " " + std::to_string(each.id));
            file.set("Tool 1", "PatternPreRotation" + std::to_string(slot),
                     " " + std::to_string(each.rotation));
            ++slot;
        }
        return file;
    }
};

TEST_F(PanelDialogs, TheStencilShowsThePatternsChosenInAllSlots) {
    Picture shown;
    {
        PanelScene scene(oneStencil(), userOptions());
        const ToolPanel panel(scene);
        const Picture before = stencilPicture(scene);
        panel.press("cmdSelectPattern");
        const Dialog dialog(scene, "frmPatternSelect");
        for (int tab = 0; tab < 5; ++tab) {
            choose(dialog, tab, chosen[tab]);
        }
        dialog.leave("cmdOK");
        shown = stencilPicture(scene);
        EXPECT_FALSE(difference(shown, before).empty());
        EXPECT_TRUE(waitUntil([&] { return panel.isEnabled("cmdUndo"); }));
        panel.press("cmdUndo");
        EXPECT_TRUE(difference(stencilPicture(scene), before).empty());
        panel.press("cmdRedo");
        EXPECT_TRUE(difference(stencilPicture(scene), shown).empty());
        EXPECT_EQ(scene.program().close(), 0U);
        const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
        int slot = 1;
        for (const Slot& each : chosen) {
            EXPECT_EQ(kept.number("Tool 1", "PatternID" + std::to_string(slot)), each.id);
            EXPECT_NEAR(
                kept.number("Tool 1", "PatternPreRotation" + std::to_string(slot)).value_or(-1),
                each.rotation, 1e-5);
            ++slot;
        }
    }
    PanelScene other(withSlots(oneStencil()), userOptions());
    EXPECT_TRUE(difference(stencilPicture(other), shown).empty());
}

TEST_F(PanelDialogs, HalvesAreLinesThroughTheMiddle) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    panel.pressByKeys("cmdSelectPattern");
    const Dialog dialog(scene, "frmPatternSelect");
    dialog.press("optPattern(1)");
    dialog.leave("cmdOK");
    const Picture picture = stencilPicture(scene);
    const Color ground = picture.at(picture.rect().origin());
    const auto isLine = [&](int x, int y) { return picture.at(scene.onScreen({x, y})) != ground; };
    // Between the grips, also where those are twice as large.
    for (const int y : {185, 190, 223, 228}) {
        for (int x = 245; x < 325; ++x) {
            EXPECT_EQ(isLine(x, y), x == 285) << x << ", " << y;
        }
    }
    for (const int x : {245, 260, 310, 325}) {
        for (int y = 180; y < 232; ++y) {
            EXPECT_EQ(isLine(x, y), y == 206) << x << ", " << y;
        }
    }
}

TEST_F(PanelDialogs, EscapeLeavesThePatternsAsTheyWere) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    const Picture before = stencilPicture(scene);
    panel.press("imgPattern");
    const Dialog dialog(scene, "frmPatternSelect");
    dialog.press("optPattern(15)");
    dialog.escape();
    EXPECT_TRUE(difference(stencilPicture(scene), before).empty());
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
}

TEST_F(PanelDialogs, ARowOfTheRatiosIsAppliedToTheWidth) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    EXPECT_EQ(panel.control("lblRatioDescription").text(), "");
    panel.press("cmdEditRatio");
    const Dialog dialog(scene, "frmRatio");
    scene.mouse.click(dialog.row("lstRatio", 3));
    dialog.leave("cmdOK");
    // 4:3 of 103 pixels about the same centre.
    EXPECT_TRUE(panel.shows("lblPositionLeft", 217));
    EXPECT_TRUE(panel.shows("lblPositionRight", 353));
    EXPECT_TRUE(panel.shows("lblSizeHeight", 103));
    EXPECT_TRUE(panel.shows("lblRatioWH", 1.333));
    EXPECT_TRUE(panel.shows("lblRatioDescription", 4));
    panel.press("cmdUndo");
    EXPECT_TRUE(panel.shows("lblPositionLeft", 205));
}

TEST_F(PanelDialogs, ADoubleClickOnARowAppliesIt) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    panel.pressByKeys("cmdEditRatio");
    const Dialog dialog(scene, "frmRatio");
    dialog.press("optInvert(0)");
    scene.mouse.doubleClick(dialog.row("lstRatio", 12));
    // 1:2 of 103 pixels.
    EXPECT_TRUE(panel.shows("lblRatioWH", 0.5));
    EXPECT_TRUE(panel.shows("lblPositionTop", 155));
    EXPECT_TRUE(panel.shows("lblPositionBottom", 257));
}

TEST_F(PanelDialogs, EscapeLeavesTheRatioAsItWas) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    panel.press("cmdEditRatio");
    const Dialog dialog(scene, "frmRatio");
    scene.mouse.click(dialog.row("lstRatio", 0));
    dialog.escape();
    EXPECT_TRUE(panel.shows("lblPositionLeft", 205));
    EXPECT_TRUE(panel.shows("lblPositionRight", 365));
    EXPECT_FALSE(panel.isEnabled("cmdUndo"));
}

/// The colour that the closed program has kept for its stencil.
std::optional<double> keptColor(PanelScene& scene) {
    EXPECT_EQ(scene.program().close(), 0U);
    return SettingsFile::read(scene.data().toolsFile()).number("Tool 1", "Color");
}

constexpr double white = 0xFFFFFF;
constexpr double black = 0;

TEST_F(PanelDialogs, ADragOutOfThePaletteEndsOnItsNearestColor) {
    PanelScene scene(oneStencil(), userOptions());
    ToolPanel(scene).press("cmdColor");
    const Dialog dialog(scene, "frmColor");
    const ScreenRect palette = dialog.control("ColorPicker").rect();
    scene.mouse.drag(palette.center(), {palette.right - 6, palette.bottom + 40});
    dialog.leave("cmdOK");
    EXPECT_EQ(keptColor(scene), black);
}

TEST_F(PanelDialogs, ADoubleClickOnAColorPicksItAndClosesTheDialog) {
    PanelScene scene(oneStencil(), userOptions());
    ToolPanel(scene).pressByKeys("cmdColor");
    const Dialog dialog(scene, "frmColor");
    const ScreenRect palette = dialog.control("ColorPicker").rect();
    scene.mouse.doubleClick({palette.right - 6, palette.top + 6});
    dialog.window().waitUntilHidden();
    EXPECT_EQ(keptColor(scene), white);
}

TEST_F(PanelDialogs, EscapeLeavesTheColorAsItWas) {
    PanelScene scene(oneStencil(), userOptions());
    ToolPanel(scene).press("cmdColor");
    const Dialog dialog(scene, "frmColor");
    const ScreenRect palette = dialog.control("ColorPicker").rect();
    scene.mouse.click({palette.right - 6, palette.top + 6});
    dialog.escape();
    constexpr double ofTheFile = 0xFFFF00;
    EXPECT_EQ(keptColor(scene), ofTheFile);
}

TEST_F(PanelDialogs, ALineStyleIsPickedByADoubleClick) {
    PanelScene scene(oneStencil(), userOptions());
    ToolPanel(scene).press("cmdLineStyle");
    const Dialog dialog(scene, "frmLineStyle");
    const ScreenRect lines = dialog.control("LineSelect").rect();
    // The last of five rows is three pixels wide.
    scene.mouse.doubleClick({lines.center().x, lines.bottom - lines.height() / 10});
    dialog.window().waitUntilHidden();
    EXPECT_EQ(scene.program().close(), 0U);
    EXPECT_EQ(SettingsFile::read(scene.data().toolsFile()).number("Tool 1", "LineWidth"), 4);
}

TEST_F(PanelDialogs, APressOnAButtonThatMovesOffLeavesTheDialogOpen) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    for (const auto& [button, name] :
         {std::pair("cmdColor", "frmColor"), std::pair("cmdLineStyle", "frmLineStyle")}) {
        panel.press(button);
        const Dialog dialog(scene, name);
        scene.mouse.drag(dialog.control("cmdOK").center(), dialog.window().at(2, 2));
        EXPECT_TRUE(dialog.window().isVisible()) << name;
        dialog.escape();
    }
    scene.mouse.drag(panel.control("cmdDelete").center(), panel.control("lblTitle").center());
    scene.mouse.drag(scene.control("cmdAddGrid").center(), scene.control("lblPath").center());
    scene.press("cmdAddMeasure");
    EXPECT_TRUE(scene.waitForPanels(2));
}

TEST_F(PanelDialogs, TheListOfUnitsProposesAndChangesTheTextOnlyByAChoice) {
    PanelScene scene(oneMeasure(), userOptions());
    const ToolPanel panel(scene);
    panel.press("cmdUnits");
    const Dialog dialog(scene, "frmUnit");
    dialog.press("optLengthUnit(1)");
    const DesktopWindow unit = dialog.control("cboUnit");
    const auto isDropped = [&] { return unit.send(CB_GETDROPPEDSTATE) == TRUE; };
    const ScreenPoint arrow{unit.rect().right - 8, unit.center().y};
    dialog.enter("cboUnit", "m");
    scene.mouse.click(arrow);
    ASSERT_TRUE(waitUntil(isDropped));
    EXPECT_EQ(unit.text(), "m");
    keyboard::press(VK_DOWN);
    keyboard::press(VK_ESCAPE);
    ASSERT_TRUE(waitUntil([&] { return !isDropped(); }));
    EXPECT_EQ(unit.text(), "m");
    keyboard::press(VK_DOWN, Modifiers::Alt);
    ASSERT_TRUE(waitUntil(isDropped));
    EXPECT_EQ(unit.text(), "m");
    keyboard::press(VK_ESCAPE);
    ASSERT_TRUE(waitUntil([&] { return !isDropped(); }));
    EXPECT_EQ(unit.text(), "m");
    keyboard::press(VK_F4);
    ASSERT_TRUE(waitUntil(isDropped));
    keyboard::press(VK_DOWN);
    keyboard::press(VK_RETURN);
    unit.waitForText("km");
    keyboard::type(" \u00b5");
    keyboard::press(VK_F4);
    ASSERT_TRUE(waitUntil(isDropped));
    // The third row, below the field.
    const auto row = static_cast<int>(unit.send(CB_GETITEMHEIGHT).value_or(0));
    scene.mouse.click({unit.center().x, unit.rect().bottom + 2 * row + row / 2});
    unit.waitForText("mm");
    dialog.leave("cmdOK");
    EXPECT_TRUE(waitUntil([&] { return panel.control("lblLengthA").text().ends_with(" mm "); }));
}

TEST_F(PanelDialogs, EscapeInTheListOfRotationsKeepsFieldAndPattern) {
    PanelScene scene(oneStencil(), userOptions());
    const ToolPanel panel(scene);
    const Picture before = stencilPicture(scene);
    panel.press("cmdSelectPattern");
    const Dialog dialog(scene, "frmPatternSelect");
    const DesktopWindow list = dialog.control("cboRotation");
    scene.mouse.click(list.center());
    ASSERT_TRUE(waitUntil([&] { return list.send(CB_GETDROPPEDSTATE) == TRUE; }));
    keyboard::press(VK_DOWN, Modifiers::None, 3);
    keyboard::press(VK_ESCAPE);
    ASSERT_TRUE(waitUntil([&] { return list.send(CB_GETDROPPEDSTATE) == FALSE; }));
    EXPECT_TRUE(waitUntil([&] { return list.send(CB_GETCURSEL) == 0; }));
    dialog.leave("cmdOK");
    EXPECT_TRUE(difference(stencilPicture(scene), before).empty());
}

TEST_F(PanelDialogs, UnitsAreThoseOfTheToolAndByDefaultOfNewOnes) {
    PanelScene scene(oneMeasure(), userOptions());
    const ToolPanel panel(scene);
    panel.press("cmdUnits");
    const Dialog dialog(scene, "frmUnit");
    dialog.press("optLengthUnit(1)");
    dialog.enter("txnFactor", localised("2.7"));
    dialog.enter("cboUnit", "km");
    dialog.press("optAngleUnit(1)");
    dialog.press("chkDefault");
    dialog.leave("cmdOK");
    EXPECT_TRUE(panel.shows("lblLengthA", 272.7));
    EXPECT_TRUE(panel.shows("lblLengthB", 164.7));
    const auto endsWith = [](const ToolPanel& of, const char* label, const char* unit) {
        return waitUntil([&] { return of.control(label).text().ends_with(unit); });
    };
    EXPECT_TRUE(endsWith(panel, "lblLengthA", " km "));
    EXPECT_TRUE(endsWith(panel, "lblAngleA", " rad "));
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(2));
    const ToolPanel added(scene, 1);
    EXPECT_TRUE(endsWith(added, "lblLengthA", " km "));
    EXPECT_TRUE(endsWith(added, "lblAngleA", " rad "));
    EXPECT_EQ(scene.program().close(), 0U);
    const SettingsFile options = SettingsFile::read(scene.data().optionsFile());
    EXPECT_EQ(options.number("Options", "DefaultLengthMode"), 1);
    // The options keep whole numbers.
    EXPECT_EQ(options.number("Options", "DefaultLengthFactor"), 3);
    EXPECT_EQ(options.number("Options", "DefaultAngleMode"), 1);
    const SettingsFile kept = SettingsFile::read(scene.data().toolsFile());
    EXPECT_EQ(kept.number("Tool 1", "LengthFactor"), 2.7);
    EXPECT_EQ(kept.number("Tool 2", "LengthFactor"), 2.7);
}

TEST_F(PanelDialogs, EscapeLeavesTheUnitsAsTheyWere) {
    PanelScene scene(oneMeasure(), userOptions());
    const ToolPanel panel(scene);
    panel.pressByKeys("cmdUnits");
    const Dialog dialog(scene, "frmUnit");
    dialog.press("optLengthUnit(2)");
    dialog.enter("txnFactor", "7");
    dialog.press("chkDefault");
    dialog.escape();
    EXPECT_TRUE(panel.shows("lblLengthA", 101));
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(2));
    // The length of a new tool's line, which is no end of a unit.
    EXPECT_TRUE(ToolPanel(scene, 1).shows("lblLengthA", 202.4));
}

}  // namespace
}  // namespace ormala::test
