#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "e2e/PanelScene.h"

// The user changes the language in the options while everything is open.

namespace ormala::test {
namespace {

/// What a control says in each language; the class alone names a window.
struct Text {
    const char* window;
    const char* control;
    const char* english;
    const char* german;
};

constexpr Text texts[] = {
    {"frmSettings", "", "Ormala - Edit", "Ormala - Bearbeiten"},
    {"frmSettings", "btnMode(0)", "Edit", "Bearbeiten"},
    {"frmSettings", "btnMode(1)", "Template", "Vorlage"},
    {"frmSettings", "btnMode(2)", "Pause", "Pause"},
    {"frmSettings", "cmdOptions", "Options", "Optionen"},
    {"frmSettings", "lblTransparency", "Transparency", "Transparenz"},
    {"frmSettings", "sldTransEditMode", "Edit: 25", "Bearbeiten: 25"},
    {"frmSettings", "sldTransTemplateMode", "Template: 50", "Vorlage: 50"},
    {"ctlSetRatioGrid", "lblTitle", "Stencil Tool", "Schablonenwerkzeug"},
    {"ctlSetRatioGrid", "cmdUndo", "Undo", "Rückgängig"},
    {"ctlSetRatioGrid", "lblSizeWidth", "W = 201 ", "B = 201 "},
    {"ctlSetMeasure", "lblTitle", "Measurement Tool 1", "Messwerkzeug 1"},
    {"frmResizer", "", "Ormala Worksheet", "Ormala Arbeitsblatt"},
    {"frmLens", "", "Magnifier 4 X", "Lupe 4 X"},
};

/// What the options dialog says.
constexpr Text dialogTexts[] = {
    {"frmOptions", "", "Ormala Options", "Ormala Optionen"},
    {"frmOptions", "btnTab(0)", "General", "Allgemein"},
    {"frmOptions", "btnTab(2)", "Magnifier", "Lupe"},
    {"frmOptions", "sldGridSizeX", "Grid size X: 50", "Raster-Abstand X: 50"},
    {"frmOptions", "cmdCancel", "Cancel", "Abbrechen"},
};

enum class Language { english, german };

class LanguageScene {
  public:
    LanguageScene() : scene(tools(), options()) {}

    [[nodiscard]] DesktopWindow openOptions() {
        scene.settings().activate();
        keyboard::press(VK_F12);
        return scene.program().waitForWindow("frmOptions");
    }
    void leaveOptions(const DesktopWindow& dialog, const char* button) {
        scene.press(PanelScene::control(dialog, button));
        dialog.waitUntilHidden();
    }
    void choose(Language language) {
        const DesktopWindow dialog = openOptions();
        pick(dialog, language);
        leaveOptions(dialog, "cmdOK");
    }
    void pick(const DesktopWindow& dialog, Language language) {
        const DesktopWindow option = PanelScene::control(
            dialog, language == Language::german ? "optLanguage(1)" : "optLanguage(0)");
        // A dialog that has just come up may not have got its place on the display yet.
        screen::waitUntilStill(dialog.rect());
        scene.press(option);
        ASSERT_TRUE(waitUntil([&] { return option.send(BM_GETCHECK) == BST_CHECKED; }));
    }
    void expect(Language language) {
        for (const Text& text : texts) {
            EXPECT_EQ(find(text).text(), in(language, text)) << text.window << " " << text.control;
        }
    }
    void expectDialog(Language language) {
        const DesktopWindow dialog = openOptions();
        for (const Text& text : dialogTexts) {
            EXPECT_EQ(find(text).text(), in(language, text)) << text.window << " " << text.control;
        }
        const DesktopWindow own = PanelScene::control(
            dialog, language == Language::german ? "optLanguage(1)" : "optLanguage(0)");
        EXPECT_EQ(own.send(BM_GETCHECK), BST_CHECKED);
        leaveOptions(dialog, "cmdCancel");
    }

    PanelScene scene;

  private:
    static SettingsFile tools() {
        return ToolSet()
            .stencil({200, 150, 400, 250})
            .measure({{200, 300}, {300, 300}}, {{200, 360}, {260, 360}}, false)
            .file();
    }
    static SettingsFile options() {
        SettingsFile file;
        file.set("Options", "LensVisible", "-1");
        return file;
    }
    static const char* in(Language language, const Text& text) {
        return language == Language::german ? text.german : text.english;
    }
    /// A panel is a child of the control window.
    [[nodiscard]] DesktopWindow find(const Text& text) {
        const std::string_view name = text.window;
        const DesktopWindow window =
            name.starts_with("ctl") ? shownPanel(name) : scene.program().window(name);
        return *text.control == '\0' ? window : PanelScene::control(window, text.control);
    }
    [[nodiscard]] DesktopWindow shownPanel(std::string_view className) const {
        for (const DesktopWindow& panel : scene.panels()) {
            if (panel.className() == className) {
                return panel;
            }
        }
        return {};
    }
};

TEST(Language, ChosenInTheOptionsItIsThereAtOnceAndAtTheNextStart) {
    LanguageScene user;
    user.expect(Language::english);
    for (const Language language : {Language::german, Language::english}) {
        user.choose(language);
        user.expect(language);
        user.expectDialog(language);
        user.scene.restart();
        user.expect(language);
    }
}

TEST(Language, CancelLeavesEverythingAsItWas) {
    LanguageScene user;
    const DesktopWindow dialog = user.openOptions();
    user.pick(dialog, Language::german);
    user.leaveOptions(dialog, "cmdCancel");
    user.expect(Language::english);
    user.expectDialog(Language::english);
    user.scene.program().close();
    const SettingsFile kept = SettingsFile::read(user.scene.data().optionsFile());
    EXPECT_EQ(kept.number("Options", "Language"), 9);
}

TEST(Language, TheTextsOnTheScreenChangeAtOnce) {
    LanguageScene user;
    const DesktopWindow button = user.scene.control("btnMode(1)");
    const Picture english = screen::waitUntilStill(button.rect());
    user.choose(Language::german);
    user.scene.mouse.moveTo(user.scene.onScreen({20, 20}));
    EXPECT_FALSE(difference(english, screen::waitUntilStill(button.rect())).empty());
    user.choose(Language::english);
    user.scene.mouse.moveTo(user.scene.onScreen({20, 20}));
    EXPECT_TRUE(difference(english, screen::waitUntilStill(button.rect())).empty());
}

}  // namespace
}  // namespace ormala::test
