#include <gtest/gtest.h>

#include "e2e/EndedByForce.h"
#include "e2e/ToolPanel.h"
#include "support/win/fileBytes.h"

// What is written while the program runs, and what stays of it when it is ended by force.

namespace ormala::test {
namespace {

/// Three seconds, and what a busy machine takes for noticing.
constexpr milliseconds soon{6000};

SettingsFile languageOf(const char* language) {
    SettingsFile options;
    options.set("Options", "Language", language);
    return options;
}

SettingsFile keptStencil() {
    return ToolSet().stencil({100, 100, 300, 300}).file();
}

std::filesystem::path beside(const std::filesystem::path& file, const char* word) {
    std::filesystem::path path = file;
    return path.replace_filename(file.stem().string() + " (" + word + ").ini");
}

class LostScene : public PanelScene {
  public:
    explicit LostScene(const char* language = " 9")
        : PanelScene(keptStencil(), languageOf(language)) {}

    [[nodiscard]] double left() const {
        return fileNumber(data().toolsFile(), "Tool 1", "RectBoundLeft");
    }
    [[nodiscard]] double option(const char* key) const {
        return fileNumber(data().optionsFile(), "Options", key);
    }
};

/// A change to the mode that there is, which writes at once.
void chooseEditMode(const DesktopWindow& settings) {
    settings.send(WM_SYSCOMMAND, 1010);
}

TEST(NothingLost, ChangesAreThereAgainAfterTheProgramIsKilled) {
    LostScene scene(" 1031");
    ToolPanel(scene).press("cmdMove(1)");
    scene.press("chkGrid");
    EXPECT_TRUE(
        waitUntil([&] { return scene.left() == 101 && scene.option("GridEnabled") == -1; }, soon))
        << scene.left();
    EXPECT_FALSE(scene.control("lblInfo").isVisible()) << "nothing is said of it";
    // Of the run before.
    const auto previous = beside(scene.data().toolsFile(), "previous");
    EXPECT_EQ(bytesOf(previous), keptStencil().text());
    EXPECT_EQ(fileNumber(beside(scene.data().optionsFile(), "previous"), "Options", "Language"),
              1031);
    endByForce(scene.program());
    scene.startAgain();
    EXPECT_TRUE(ToolPanel(scene).shows("lblPositionLeft", 101));
    EXPECT_EQ(scene.control("chkGrid").send(BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(bytesOf(previous), keptStencil().text()) << "once a day";
}

TEST(NothingLost, WhileAButtonIsHeldNothingIsWritten) {
    LostScene scene;
    scene.mouse.moveTo(scene.onScreen({200, 200}));
    scene.mouse.press();
    // The first move that arrives only begins the drag.
    const ToolPanel panel(scene);
    EXPECT_TRUE(waitUntil([&] {
        scene.mouse.moveTo(scene.onScreen({229, 200}));
        scene.mouse.moveTo(scene.onScreen({230, 200}));
        return panel.number("lblPositionLeft") == 130;
    }));
    EXPECT_FALSE(waitUntil([&] { return scene.left() != 100; }, milliseconds{3200}));
    scene.mouse.release();
    EXPECT_TRUE(waitUntil([&] { return scene.left() == 130; }, soon)) << scene.left();
}

TEST(NothingLost, AChangeOfModeWritesAtOnce) {
    LostScene scene;
    scene.settings().activate();
    ToolPanel(scene).press("cmdMove(1)");
    keyboard::press(VK_F4);
    EXPECT_TRUE(waitUntil([&] { return scene.left() == 101 && scene.option("Mode") == 1; },
                          milliseconds{2000}));
}

TEST(NothingLost, ASecondCopyKeepsWhatTheFirstHasWritten) {
    LostScene scene;
    const auto file = scene.data().toolsFile();
    const auto top = [](const std::filesystem::path& path) {
        return fileNumber(path, "Tool 1", "RectBoundTop");
    };
    Program second(scene.data());
    second.waitUntilReady();
    PanelScene::control(scene.panel(0), "cmdMove(3)").send(BM_CLICK);
    chooseEditMode(scene.settings());
    ASSERT_TRUE(waitUntil([&] { return top(file) == 101; })) << top(file);
    second.settings().child("ctlSetRatioGrid").named("cmdMove(1)").send(BM_CLICK);
    chooseEditMode(second.settings());
    ASSERT_TRUE(waitUntil([&] { return scene.left() == 101; }));
    const auto other = beside(file, "other");
    EXPECT_EQ(top(other), 101);
    EXPECT_EQ(second.close(), 0U);
    EXPECT_EQ(scene.program().close(), 0U);
    EXPECT_EQ(top(file), 101) << "the one that ends last";
    EXPECT_EQ(fileNumber(other, "Tool 1", "RectBoundLeft"), 101);
}

}  // namespace
}  // namespace ormala::test
