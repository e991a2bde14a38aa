#include <gtest/gtest.h>

#include <string>

#include "e2e/Dialog.h"
#include "e2e/LensScene.h"
#include "e2e/ToolPanel.h"
#include "e2e/withKeys.h"

// What leaving the options dialog does, or does not do, to the running program.

namespace ormala::test {
namespace {

class OptionsScene {
  public:
    explicit OptionsScene(const SettingsFile& options = {})
        : scene(ToolSet().stencil({650, 350, 750, 430}).file(), options) {}

    /// By its button.
    Dialog open() {
        scene.press("cmdOptions");
        return {scene, "frmOptions"};
    }
    /// On one of its pages.
    Dialog open(int page) {
        Dialog dialog = open();
        dialog.press(indexed("btnTab", page));
        requireSoon("page", [&] { return dialog.control(indexed("picTab", page)).isVisible(); });
        return dialog;
    }
    /// Starts it anew, and returns the options that it had left.
    SettingsFile restarted() {
        scene.restart();
        return SettingsFile::read(scene.data().optionsFile());
    }
    /// The options as the program leaves them at its end.
    SettingsFile closed() {
        EXPECT_EQ(scene.program().close(), 0U);
        return SettingsFile::read(scene.data().optionsFile());
    }

    PanelScene scene;
};

/// The part of an options file that the dialog could change.
std::string optionKeys(const SettingsFile& file) {
    const std::string text = file.text();
    const std::size_t first = text.find("[Options]");
    return text.substr(first, text.find("\n[", first) - first);
}

/// Turns the language, a colour and the magnification.
void changeOneOfEachKind(OptionsScene& options, const Dialog& dialog) {
    dialog.press("optLanguage(1)");
    EXPECT_TRUE(waitUntil([&] { return dialog.isOn("optLanguage(1)"); }));
    dialog.press("btnTab(2)");
    focusByTab(dialog.control("sldMagnification"));
    keyboard::press(VK_RIGHT, Modifiers::None, 3);
    dialog.control("sldMagnification").waitForText("Magnification: 7");
    dialog.press("cmdHotSpotDrawColor");
    const Dialog colors(options.scene, "frmColor");
    const ScreenRect palette = colors.control("ColorPicker").rect();
    options.scene.mouse.click({palette.right - 6, palette.top + 6});
    colors.leave("cmdOK");
}

/// The colour of a button's face.
Color faceOf(const Dialog& dialog, std::string_view button) {
    return screen::waitUntilStill(dialog.control(button).rect())
        .at(dialog.control(button).center());
}

TEST(OptionsDialog, CancelChangesNothingAndTheNextOpeningShowsTheLiveValues) {
    OptionsScene options(withKeys({{"LensVisible", "-1"}}));
    const SettingsFile before = options.restarted();
    const Dialog dialog = options.open(0);
    changeOneOfEachKind(options, dialog);
    EXPECT_EQ(faceOf(dialog, "cmdHotSpotDrawColor"), 0xFFFFFFU);
    dialog.leave("cmdCancel");
    EXPECT_EQ(options.scene.program().window("frmLens").text(), "Magnifier 4 X");
    const Dialog again = options.open(2);
    EXPECT_EQ(again.window().text(), "Ormala Options");
    EXPECT_TRUE(again.isOn("optLanguage(0)"));
    EXPECT_FALSE(again.isOn("optLanguage(1)"));
    again.control("sldMagnification").waitForText("Magnification: 4");
    EXPECT_EQ(faceOf(again, "cmdHotSpotDrawColor"), 0xFF0000U);
    again.leave("cmdCancel");
    EXPECT_EQ(options.scene.settings().text(), "Ormala - Edit");
    EXPECT_EQ(optionKeys(options.closed()), optionKeys(before));
}

TEST(OptionsDialog, OKWithNoChangeLeavesTheFileAsItWas) {
    // Values that no control of the dialog has, too.
    OptionsScene options(withKeys({{"LensHotSpotDrawMode", " 7"},
                                   {"LensGridDrawMode", " 15"},
                                   {"GridSizeX", " 512"},
                                   {"GridOffsetY", "-17"},
                                   {"GridLineWidth", " 9"},
                                   {"GridColor", " 1193046"},
                                   {"LensRulTOrigin", " 9"},
                                   {"GridStyle", " 0"}}));
    const SettingsFile before = options.restarted();
    options.open(0).leave("cmdOK");
    options.open(1).leave("cmdOK");
    options.open(2).leave("cmdOK");
    EXPECT_EQ(optionKeys(options.closed()), optionKeys(before));
    EXPECT_EQ(before.number("Options", "GridSizeX"), 512);
}

TEST(OptionsDialog, APressThatMovesOffChoosesNothing) {
    OptionsScene options;
    const SettingsFile before = options.restarted();
    const Dialog dialog = options.open(0);
    const ScreenPoint ground = dialog.window().at(3, 3);
    const bool border = dialog.isOn("chkTemplateWithBorder");
    for (const char* name : {"btnTab(1)", "btnTab(2)", "optLanguage(0)", "optLanguage(1)",
                             "chkTemplateWithBorder", "cmdOK", "cmdCancel"}) {
        options.scene.mouse.drag(dialog.control(name).center(), ground);
    }
    EXPECT_TRUE(dialog.window().isVisible());
    EXPECT_TRUE(dialog.isOn("btnTab(0)"));
    EXPECT_FALSE(dialog.isOn("btnTab(1)"));
    EXPECT_FALSE(dialog.isOn("btnTab(2)"));
    EXPECT_TRUE(dialog.control("picTab(0)").isVisible());
    EXPECT_TRUE(dialog.isOn("optLanguage(0)"));
    EXPECT_FALSE(dialog.isOn("optLanguage(1)"));
    EXPECT_EQ(dialog.isOn("chkTemplateWithBorder"), border);
    dialog.leave("cmdOK");
    EXPECT_EQ(optionKeys(options.closed()), optionKeys(before));
}

TEST(OptionsDialog, ASizeBeyondItsSliderIsTakenOnceItsSliderIsMovedToTheEnd) {
    OptionsScene options(withKeys({{"GridSizeX", " 512"}, {"GridSizeY", " 40"}}));
    const Dialog dialog = options.open(1);
    focusByTab(dialog.control("sldGridSizeX"));
    keyboard::press(VK_LEFT);
    keyboard::press(VK_RIGHT);
    dialog.leave("cmdOK");
    const SettingsFile kept = options.closed();
    EXPECT_EQ(kept.number("Options", "GridSizeX"), 300);
    EXPECT_EQ(kept.number("Options", "GridSizeY"), 40);
}

TEST(OptionsDialog, OKAppliesWhatWasChangedOnAllPages) {
    OptionsScene options(withKeys({{"LensVisible", "-1"}}));
    const Dialog dialog = options.open(0);
    changeOneOfEachKind(options, dialog);
    dialog.leave("cmdOK");
    options.scene.program().window("frmLens").waitForText("Lupe 7 X");
    options.scene.settings().waitForText("Ormala - Bearbeiten");
    const Dialog again = options.open(2);
    EXPECT_EQ(again.control("cmdCancel").text(), "Abbrechen");
    EXPECT_EQ(again.window().text(), "Ormala Optionen");
    again.escape();
    const SettingsFile kept = options.closed();
    EXPECT_EQ(kept.number("Options", "Language"), 1031);
    EXPECT_EQ(kept.number("Options", "LensFactor"), 7);
    EXPECT_EQ(kept.number("Options", "LensHotSpotColor"), 0xFFFFFF);
}

TEST(OptionsDialog, EnterAppliesAndEscapeAndTheFrameDoNot) {
    OptionsScene options;
    const auto tickBorder = [&] {
        const Dialog dialog = options.open(0);
        EXPECT_FALSE(dialog.isOn("chkTemplateWithBorder"));
        dialog.press("chkTemplateWithBorder");
        EXPECT_TRUE(waitUntil([&] { return dialog.isOn("chkTemplateWithBorder"); }));
        return dialog;
    };
    tickBorder().escape();
    const Dialog closed = tickBorder();
    closed.window().post(WM_SYSCOMMAND, SC_CLOSE);
    closed.window().waitUntilHidden();
    tickBorder().leaveByKey(VK_RETURN);
    EXPECT_TRUE(options.open(0).isOn("chkTemplateWithBorder"));
}

TEST(OptionsDialog, ANewBorderShowsAtOnceInTemplateMode) {
    OptionsScene options(withKeys({{"Mode", " 1"}}));
    const DesktopWindow frame = options.scene.program().window("frmResizer");
    const DesktopWindow settings = options.scene.settings();
    const auto turnBorder = [&] {
        settings.activate();
        keyboard::press(VK_F12);
        const Dialog dialog(options.scene, "frmOptions");
        dialog.press("btnTab(0)");
        const DesktopWindow border = dialog.control("chkTemplateWithBorder");
        const auto former = border.send(BM_GETCHECK);
        dialog.press("chkTemplateWithBorder");
        EXPECT_TRUE(waitUntil([&] { return border.send(BM_GETCHECK) != former; }));
        dialog.leave("cmdOK");
    };
    EXPECT_FALSE(frame.isVisible());
    turnBorder();
    frame.waitUntilVisible();
    EXPECT_EQ(settings.text(), "Ormala - Template");
    EXPECT_TRUE(options.scene.worksheet().isVisible());
    // The window manager may still be placing the frame, also above a dialog that opens meanwhile.
    screen::waitUntilStill(frame.rect(), milliseconds{400});
    turnBorder();
    frame.waitUntilHidden();
    EXPECT_EQ(settings.text(), "Ormala - Template");
    EXPECT_FALSE(settings.isMinimised());
}

TEST(OptionsDialog, EveryPageOpensByTheMouseAlone) {
    OptionsScene options;
    const Dialog dialog = options.open();
    for (const int page : {2, 1, 0, 1, 2}) {
        dialog.press(indexed("btnTab", page));
        for (int each = 0; each < 3; ++each) {
            EXPECT_TRUE(waitUntil([&] {
                return dialog.control(indexed("picTab", each)).isVisible() == (each == page) &&
                       dialog.isOn(indexed("btnTab", each)) == (each == page);
            })) << page;
        }
    }
}

TEST(OptionsDialog, NothingElseTakesTheMouseWhileItIsOpen) {
    OptionsScene options(withKeys({{"LensVisible", "-1"}}));
    const Dialog dialog = options.open();
    options.scene.mouse.click(options.scene.control("chkGrid").center());
    EXPECT_FALSE(options.scene.settings().isEnabled());
    EXPECT_FALSE(options.scene.worksheet().isEnabled());
    EXPECT_FALSE(options.scene.program().window("frmLens").isEnabled());
    EXPECT_TRUE(dialog.window().isTopmost());
    dialog.escape();
    EXPECT_TRUE(options.scene.settings().isEnabled());
    EXPECT_TRUE(options.scene.worksheet().isEnabled());
    EXPECT_EQ(options.closed().number("Options", "GridEnabled"), 0);
}

TEST(OptionsDialog, TheAboutBoxOpensAndLeavesTheDialogOpen) {
    OptionsScene options;
    const Dialog dialog = options.open();
    dialog.press("cmdAbout");
    const Dialog about(options.scene, "frmAbout");
    EXPECT_EQ(about.window().text(), "About Ormala");
    EXPECT_FALSE(dialog.window().isEnabled());
    about.leave("cmdClose");
    dialog.press("cmdAbout");
    Dialog(options.scene, "frmAbout").escape();
    EXPECT_TRUE(dialog.window().isVisible());
    EXPECT_TRUE(waitUntil([&] { return dialog.window().isForeground(); }));
    dialog.escape();
    EXPECT_EQ(options.scene.program().close(), 0U);
}

TEST(OptionsDialog, EscapeInTheColourDialogLeavesTheColourAndTheDialogOpen) {
    OptionsScene options;
    const Dialog dialog = options.open(2);
    dialog.press("cmdLensGridColor");
    const Dialog colors(options.scene, "frmColor");
    const ScreenRect palette = colors.control("ColorPicker").rect();
    options.scene.mouse.click({palette.right - 6, palette.top + 6});
    colors.escape();
    EXPECT_EQ(faceOf(dialog, "cmdLensGridColor"), 0xBFBFBFU);
    dialog.leave("cmdOK");
    EXPECT_EQ(options.closed().number("Options", "LensGridColor"), 0xBFBFBF);
}

}  // namespace
}  // namespace ormala::test
