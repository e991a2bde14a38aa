#include <gtest/gtest.h>

#include <array>

#include "e2e/ToolPanel.h"
#include "support/exampleToolFile.h"
#include "support/win/fileBytes.h"

// What the user has removed, and takes back at once.

namespace ormala::test {
namespace {

struct Texts {
    const char* language;
    const char* stencilGone;
    const char* measureGone;
    const char* allGone;
    const char* replaced;
    const char* measure;
    const char* loadTitle;
};

constexpr std::array bothLanguages{
    Texts{" 9", "Stencil removed. Ctrl+Z brings it back.",
          "Measurement tool 4 removed. Ctrl+Z brings it back.",
          "All tools removed. Ctrl+Z brings them back.",
          "Tools replaced. Ctrl+Z brings the former ones back.", "Measurement Tool 4",
          "Load Tools"},
    Texts{" 1031", "Schablone entfernt. Strg+Z holt sie zurück.",
          "Messwerkzeug 4 entfernt. Strg+Z holt es zurück.",
          "Alle Werkzeuge entfernt. Strg+Z holt sie zurück.",
          "Werkzeuge ersetzt. Strg+Z holt die vorigen zurück.", "Messwerkzeug 4",
          "Werkzeuge laden"},
};

void undoByKeys() {
    keyboard::press('Z', Modifiers::Ctrl);
}

class RemovedScene {
  public:
    explicit RemovedScene(const Texts& texts)
        : scene(ToolSet()
                    .stencil({100, 100, 300, 300})
                    .measure({{400, 400}, {500, 500}}, {{600, 400}, {500, 500}}, true, 4)
                    .stencil({340, 100, 540, 300})
                    .file(),
                options(texts)) {}

    bool notes(const char* text) const {
        const DesktopWindow note = scene.control("lblInfo");
        return waitUntil([&] { return note.isVisible() && note.text() == text; });
    }
    void remove(std::size_t index) {
        scene.press(PanelScene::control(scene.panel(index), "cmdDelete"));
    }

    PanelScene scene;

  private:
    static SettingsFile options(const Texts& texts) {
        SettingsFile file;
        file.set("Options", "Language", texts.language);
        return file;
    }
};

TEST(RemovedTools, AToolComesBackToItsPlaceWithItsHistory) {
    for (const Texts& texts : bothLanguages) {
        RemovedScene played(texts);
        PanelScene& scene = played.scene;
        ToolPanel(scene, 1).press("cmdDefaultPos");
        ASSERT_TRUE(waitUntil([&] { return ToolPanel(scene, 1).isEnabled("cmdUndo"); }));
        played.remove(1);
        ASSERT_TRUE(scene.waitForPanels(2));
        EXPECT_TRUE(played.notes(texts.measureGone)) << scene.control("lblInfo").text();
        undoByKeys();
        ASSERT_TRUE(scene.waitForPanels(3));
        EXPECT_TRUE(PanelScene::says(scene.panel(1), "lblTitle", texts.measure));
        EXPECT_TRUE(waitUntil([&] { return ToolPanel(scene, 1).isEnabled("cmdUndo"); }));
        EXPECT_TRUE(waitUntil([&] { return scene.control("lblPath").isVisible(); }));
        // The next one goes through its history.
        undoByKeys();
        EXPECT_TRUE(waitUntil([&] { return !ToolPanel(scene, 1).isEnabled("cmdUndo"); }));
        EXPECT_EQ(scene.panels().size(), 3U);
    }
}

TEST(RemovedTools, OneThatComesBackOnTheWorksheetHasTheKeyboard) {
    for (const Texts& texts : bothLanguages) {
        RemovedScene played(texts);
        PanelScene& scene = played.scene;
        scene.mouse.click(scene.onScreen({200, 200}));
        keyboard::press(VK_DELETE);
        ASSERT_TRUE(scene.waitForPanels(2));
        EXPECT_TRUE(played.notes(texts.stencilGone)) << scene.control("lblInfo").text();
        undoByKeys();
        ASSERT_TRUE(scene.waitForPanels(3));
        EXPECT_TRUE(
            PanelScene::says(scene.panel(0), "lblPositionLeft",
                             texts.language == std::string(" 9") ? "left = 100 " : "links = 100 "));
        keyboard::press(VK_RIGHT);
        EXPECT_TRUE(ToolPanel(scene, 0).shows("lblPositionLeft", 101));
    }
}

TEST(RemovedTools, NothingComesBackOnceAnotherToolHasMoved) {
    RemovedScene played(bothLanguages[0]);
    PanelScene& scene = played.scene;
    played.remove(1);
    ASSERT_TRUE(scene.waitForPanels(2));
    ToolPanel(scene, 0).press("cmdMove(1)");
    ASSERT_TRUE(ToolPanel(scene, 0).shows("lblPositionLeft", 101));
    undoByKeys();
    EXPECT_TRUE(ToolPanel(scene, 0).shows("lblPositionLeft", 100));
    EXPECT_EQ(scene.panels().size(), 2U);
}

TEST(RemovedTools, NewAndLoadAreTakenBackAsAWhole) {
    for (const Texts& texts : bothLanguages) {
        RemovedScene played(texts);
        PanelScene& scene = played.scene;
        const std::string noDocument = scene.control("lblPath").text();
        scene.press("cmdNew");
        ASSERT_TRUE(scene.waitForPanels(0));
        EXPECT_TRUE(played.notes(texts.allGone)) << scene.control("lblInfo").text();
        undoByKeys();
        ASSERT_TRUE(scene.waitForPanels(3));
        EXPECT_TRUE(PanelScene::says(scene.settings(), "lblPath", noDocument));
        const auto file = scene.data().path() / "example.OM";
        writeBytes(file, exampleToolFile);
        scene.press("cmdLoad");
        scene.answerFileDialog(texts.loadTitle, file);
        ASSERT_TRUE(scene.waitForPanels(2));
        EXPECT_TRUE(played.notes(texts.replaced)) << scene.control("lblInfo").text();
        undoByKeys();
        ASSERT_TRUE(scene.waitForPanels(3));
        // They come before they are at their places.
        ASSERT_TRUE(waitUntil([&] { return scene.panel(1).className() == "ctlSetMeasure"; }));
        EXPECT_TRUE(PanelScene::says(scene.panel(1), "lblTitle", texts.measure));
        EXPECT_TRUE(PanelScene::says(scene.settings(), "lblPath", noDocument));
        // So nothing is asked.
        EXPECT_EQ(scene.program().close(), 0U);
        EXPECT_TRUE(SettingsFile::read(scene.data().toolsFile()).hasSection("Tool 3"));
    }
}

}  // namespace
}  // namespace ormala::test
