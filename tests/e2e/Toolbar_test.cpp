#include <gtest/gtest.h>

#include <cstdlib>

#include "e2e/PanelScene.h"
#include "support/win/TemporaryFolder.h"

// Every button, slider and swatch of the toolbar does its work and shows its state.

namespace ormala::test {
namespace {

constexpr Color onColor = 0x00A8BB;

SettingsFile options(std::string_view key, std::string_view value) {
    SettingsFile file;
    file.set("Options", key, value);
    return file;
}

bool isOn(const PanelScene& scene, std::string_view name) {
    return scene.control(name).send(BM_GETCHECK) == BST_CHECKED;
}

/// A place of a slider that has the keyboard follow a click and moves nothing.
ScreenPoint captionOf(const PanelScene& scene, std::string_view slider) {
    const ScreenRect rect = scene.control(slider).rect();
    return {rect.left + rect.width() / 8, rect.center().y};
}

/// The face of a button that is on has the colour of it somewhere.
bool looksOn(const PanelScene& scene, std::string_view name) {
    return screen::capture(scene.control(name).rect()).count(onColor, 24) > 40;
}

TEST(Toolbar, TogglesShowTheirStateAndKeepIt) {
    PanelScene scene(SettingsFile{});
    const auto toggles = {"chkLens", "chkGrid", "chkCrossHair", "chkReferenceLines",
                          "chkCircleCompass"};
    for (const char* name : toggles) {
        const bool former = isOn(scene, name);
        scene.press(name);
        EXPECT_TRUE(waitUntil([&] { return isOn(scene, name) != former; })) << name;
    }
    EXPECT_TRUE(isOn(scene, "chkLens"));
    EXPECT_TRUE(isOn(scene, "chkGrid"));
    EXPECT_TRUE(isOn(scene, "chkCrossHair"));
    EXPECT_FALSE(isOn(scene, "chkReferenceLines"));
    EXPECT_FALSE(isOn(scene, "chkCircleCompass"));
    scene.mouse.moveTo(scene.settings().center());
    EXPECT_TRUE(waitUntil([&] { return looksOn(scene, "chkGrid"); }));
    EXPECT_FALSE(looksOn(scene, "chkCircleCompass"));
    scene.restart();
    EXPECT_TRUE(isOn(scene, "chkLens"));
    EXPECT_TRUE(scene.program().window("frmLens").isVisible());
    EXPECT_TRUE(isOn(scene, "chkGrid"));
    EXPECT_TRUE(isOn(scene, "chkCrossHair"));
    EXPECT_FALSE(isOn(scene, "chkReferenceLines"));
    EXPECT_FALSE(isOn(scene, "chkCircleCompass"));
}

TEST(Toolbar, AToggleIsSeenOnTheWorksheetAtOnce) {
    PanelScene scene(SettingsFile{});
    const ScreenRect strip{scene.onScreen({20, 20}).x, scene.onScreen({20, 20}).y,
                           scene.onScreen({120, 40}).x, scene.onScreen({120, 40}).y};
    const Picture bare = screen::waitUntilStill(strip);
    scene.press("chkGrid");
    ASSERT_TRUE(waitUntil([&] { return isOn(scene, "chkGrid"); }));
    const Difference lines = difference(bare, screen::waitUntilStill(strip));
    // The lines at 50 and 100 of the first grid.
    EXPECT_EQ(lines.places.size(), 2U * 20U);
    scene.press("chkGrid");
    ASSERT_TRUE(waitUntil([&] { return !isOn(scene, "chkGrid"); }));
    EXPECT_TRUE(difference(bare, screen::waitUntilStill(strip)).empty());
}

TEST(Toolbar, SmallButtonsGrowUnderTheMouseAndFallBack) {
    PanelScene scene(SettingsFile{});
    const DesktopWindow save = scene.control("cmdSave");
    const ScreenRect atRest = save.rect();
    scene.mouse.moveTo(save.center());
    EXPECT_TRUE(waitUntil([&] { return save.rect().width() > atRest.width(); }));
    scene.mouse.moveTo(scene.onScreen({100, 200}));
    EXPECT_TRUE(waitUntil([&] { return save.rect() == atRest; }));
}

TEST(Toolbar, AClickCountsDuringWhichItsButtonGrows) {
    PanelScene scene(SettingsFile{});
    for (const char* name : {"chkReferenceLines", "chkGrid", "chkLens"}) {
        const DesktopWindow button = scene.control(name);
        const ScreenRect atRest = button.rect();
        const bool former = isOn(scene, name);
        scene.mouse.moveTo(atRest.center());
        scene.mouse.press();
        EXPECT_TRUE(waitUntil([&] { return button.rect().width() > atRest.width(); })) << name;
        scene.mouse.release();
        EXPECT_TRUE(waitUntil([&] { return isOn(scene, name) != former; })) << name;
    }
}

TEST(Toolbar, AGrownButtonFallsBackWhenADialogOpens) {
    PanelScene scene(SettingsFile{});
    const DesktopWindow help = scene.control("cmdOptions");
    const ScreenRect atRest = help.rect();
    scene.mouse.moveTo(help.center());
    ASSERT_TRUE(waitUntil([&] { return help.rect().width() > atRest.width(); }));
    scene.mouse.click(help.center());
    const DesktopWindow dialog = scene.program().waitForWindow("frmOptions");
    EXPECT_TRUE(waitUntil([&] { return help.rect() == atRest; }));
    keyboard::press(VK_ESCAPE);
    dialog.waitUntilHidden();
}

TEST(Toolbar, TheSlidersSetTheTransparencyOfTheirMode) {
    SettingsFile file = options("TransparencyEditMode", " 2");
    file.set("Options", "TransparencyTemplateMode", " 98");
    PanelScene scene(SettingsFile{}, file);
    EXPECT_EQ(scene.worksheet().layering().alpha, 250);
    scene.mouse.click(captionOf(scene, "sldTransEditMode"));
    keyboard::press(VK_LEFT, Modifiers::None, 3);
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().layering().alpha == 255; }));
    keyboard::press(VK_RIGHT, Modifiers::None, 3);
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().layering().alpha == 247; }));
    scene.press("btnMode(1)");
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().layering().alpha == 5; }));
    scene.mouse.click(captionOf(scene, "sldTransTemplateMode"));
    keyboard::press(VK_RIGHT, Modifiers::None, 3);
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().layering().alpha == 0; }));
    scene.program().close();
    const SettingsFile kept = SettingsFile::read(scene.data().optionsFile());
    EXPECT_EQ(kept.number("Options", "TransparencyEditMode"), 3);
    EXPECT_EQ(kept.number("Options", "TransparencyTemplateMode"), 100);
}

/// A field of the palette for the worksheet, which has 13 by 8.
ScreenPoint paletteField(const PanelScene& scene, int column, int row) {
    const ScreenRect rect = scene.control("colorWorksheet").rect();
    return {rect.left + (2 * column + 1) * rect.width() / 26,
            rect.top + (2 * row + 1) * rect.height() / 16};
}

TEST(Toolbar, TheColourOfTheWorksheetChangesAtOnceInEditMode) {
    PanelScene scene(SettingsFile{});
    const ScreenPoint place = scene.onScreen({50, 50});
    scene.mouse.click(paletteField(scene, 12, 0));
    EXPECT_TRUE(waitUntil([&] { return screen::pixel(place) == 0xFFFFFF; }));
    scene.mouse.click(paletteField(scene, 12, 7));
    EXPECT_TRUE(waitUntil([&] { return screen::pixel(place) == blended(0, 0xFFFFFF, 191); }));
    scene.program().close();
    EXPECT_EQ(SettingsFile::read(scene.data().optionsFile()).number("Options", "WorksheetColor"),
              0);
}

TEST(Toolbar, InTemplateModeTheColourWaitsForEditMode) {
    PanelScene scene(SettingsFile{}, options("Mode", " 0"));
    scene.press("btnMode(1)");
    ASSERT_TRUE(waitUntil([&] { return scene.worksheet().layering().key == 0x4F4F4FU; }));
    scene.mouse.click(paletteField(scene, 12, 0));
    // The click has been handled once the next one shows.
    scene.press("chkReferenceLines");
    ASSERT_TRUE(waitUntil([&] { return !isOn(scene, "chkReferenceLines"); }));
    EXPECT_EQ(scene.worksheet().layering().key, 0x4F4F4FU);
    scene.press("btnMode(0)");
    EXPECT_TRUE(waitUntil([&] { return screen::pixel(scene.onScreen({50, 50})) == 0xFFFFFF; }));
    scene.press("btnMode(1)");
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().layering().key == 0xFFFFFFU; }));
}

TEST(Toolbar, PauseLeavesTheMagnifierTheModesOptionsAndHelp) {
    PanelScene scene(SettingsFile{}, options("Mode", " 2"));
    for (const char* name :
         {"cmdAddGrid", "cmdAddMeasure", "cmdNew", "cmdLoad", "cmdSave", "cmdSaveAs",
          "cmdScreenshot", "chkGrid", "chkCircleCompass", "chkCrossHair", "chkReferenceLines"}) {
        EXPECT_FALSE(scene.control(name).isEnabled()) << name;
    }
    for (const char* name :
         {"btnMode(0)", "btnMode(1)", "btnMode(2)", "chkLens", "cmdOptions", "cmdHelp"}) {
        EXPECT_TRUE(scene.control(name).isEnabled()) << name;
    }
    scene.press("chkLens");
    EXPECT_TRUE(waitUntil([&] { return scene.program().window("frmLens").isVisible(); }));
}

TEST(Toolbar, HelpPausesTheWorksheetUntilAModeIsChosen) {
    PanelScene scene(SettingsFile{});
    scene.press("cmdHelp");
    scene.settings().waitForText("Ormala - Pause");
    scene.worksheet().waitUntilHidden();
    scene.settings().activate();
    keyboard::press(VK_F2);
    scene.worksheet().waitUntilVisible();
}

/// A copy of the program in a folder of its own, without the help beside it. The next programs are
/// started from there.
class ProgramWithoutHelp {
  public:
    ProgramWithoutHelp() {
        namespace fs = std::filesystem;
        const fs::path original = testProgramFolder().parent_path().parent_path() / "Ormala.exe";
        const fs::path copy = folder_.path() / "Ormala.exe";
        fs::copy_file(original, copy);
        _wputenv_s(L"ORMALA_EXE", copy.c_str());
    }
    ProgramWithoutHelp(const ProgramWithoutHelp&) = delete;
    ProgramWithoutHelp& operator=(const ProgramWithoutHelp&) = delete;
    ~ProgramWithoutHelp() { _wputenv_s(L"ORMALA_EXE", L""); }

  private:
    TemporaryFolder folder_;
};

TEST(Toolbar, HelpThatIsNotThereIsSaidAndLeavesTheMode) {
    for (const auto& [language, text] :
         {std::pair{" 9", "The help could not be opened:\r\nhelp_en.html"},
          {" 1031", "Die Hilfe konnte nicht ge\u00f6ffnet werden:\r\nhelp_de.html"}}) {
        const ProgramWithoutHelp program;
        SettingsFile options;
        options.set("Options", "Language", language);
        PanelScene scene(SettingsFile{}, options);
        const std::string caption = scene.settings().text();
        scene.settings().activate();
        keyboard::press(VK_F1);
        const MessageBoxWindow box = scene.program().waitForMessageBox("Ormala");
        EXPECT_EQ(box.text(), text);
        box.answer(IDOK);
        EXPECT_EQ(scene.settings().text(), caption);
        EXPECT_TRUE(scene.worksheet().isVisible());
        EXPECT_EQ(scene.program().close(), 0U);
    }
}

TEST(Toolbar, TheTabKeyGoesThroughItInItsOrder) {
    PanelScene scene(SettingsFile{});
    // Growing must not change the order.
    scene.mouse.moveTo(scene.control("chkGrid").center());
    scene.mouse.moveTo(scene.control("cmdSave").center());
    scene.mouse.moveTo(scene.onScreen({100, 200}));
    scene.mouse.click(scene.control("btnMode(0)").center());
    const auto focusName = [&] {
        GUITHREADINFO facts{};
        facts.cbSize = sizeof facts;
        GetGUIThreadInfo(GetWindowThreadProcessId(scene.settings().handle(), nullptr), &facts);
        return DesktopWindow(facts.hwndFocus).name();
    };
    for (const char* name :
         {"btnMode(0)", "btnMode(1)", "btnMode(2)", "cmdTemplateMin", "cmdPauseMin", "cmdAddGrid",
          "cmdAddMeasure", "cmdNew", "cmdLoad", "cmdSave", "cmdSaveAs", "chkLens", "chkGrid",
          "chkCrossHair", "chkReferenceLines", "chkCircleCompass", "cmdScreenshot"}) {
        EXPECT_TRUE(waitUntil([&] { return focusName() == name; })) << name << focusName();
        keyboard::press(VK_TAB);
    }
}

}  // namespace
}  // namespace ormala::test
