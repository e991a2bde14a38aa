#include <gtest/gtest.h>

#include "e2e/PanelScene.h"
#include "support/exampleToolFile.h"
#include "support/win/fileBytes.h"

namespace ormala::test {
namespace {

constexpr const char* noDocument = "(No tool settings file opened or created yet)";
constexpr const char* newDocument = "(New tool settings file)";
constexpr const char* question = "Do you want to save the changes?";
constexpr const char* saveTitle = "Save Tools As";
constexpr const char* loadTitle = "Load Tools";

/// Without the line that tells the time of saving.
std::string withoutTime(std::string text) {
    const std::size_t at = text.find("Time=");
    const std::size_t end = text.find('\n', at);
    return at == std::string::npos ? text : text.erase(at, end - at);
}

SettingsFile oneStencil() {
    return ToolSet().stencil({100, 100, 300, 300}).file();
}

class Documents : public testing::Test {
  protected:
    PanelScene scene_{oneStencil()};

    std::filesystem::path file(const std::string& name) { return scene_.data().path() / name; }

    bool pathLineSays(const std::string& text) {
        return PanelScene::says(scene_.settings(), "lblPath", text);
    }

    void saveAs(const std::filesystem::path& path) {
        scene_.press("cmdSaveAs");
        scene_.answerFileDialog(saveTitle, path);
        const std::filesystem::path named =
            path.has_extension() ? path : std::filesystem::path(path) += ".OM";
        EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(named); }));
    }

    void load(const std::filesystem::path& path) {
        scene_.press("cmdLoad");
        scene_.answerFileDialog(loadTitle, path);
    }

    void answer(int button) {
        const auto message = scene_.program().waitForMessageBox("Ormala");
        EXPECT_EQ(message.text(), question);
        message.answer(button);
    }

    void addStencil() {
        const std::size_t before = scene_.panels().size();
        scene_.press("cmdAddGrid");
        EXPECT_TRUE(scene_.waitForPanels(before + 1));
    }
};

TEST_F(Documents, AStartHasNoneAndAsksNothing) {
    EXPECT_TRUE(pathLineSays(noDocument));
    addStencil();
    EXPECT_EQ(scene_.program().close(), 0U);
    const SettingsFile kept = SettingsFile::read(scene_.data().toolsFile());
    EXPECT_TRUE(kept.hasSection("Tool 2"));
}

TEST_F(Documents, ANewOneIsEmptyAndAlwaysAsks) {
    scene_.press("cmdNew");
    EXPECT_TRUE(scene_.waitForPanels(0));
    EXPECT_TRUE(pathLineSays(newDocument));
    scene_.program().requestClose();
    answer(IDCANCEL);
    EXPECT_TRUE(scene_.settings().isVisible());
    scene_.program().requestClose();
    answer(IDNO);
    EXPECT_EQ(scene_.program().waitForExit(), 0U);
}

TEST_F(Documents, SaveUnderANewNameAppendsTheExtensionAndNamesTheDocument) {
    saveAs(file("rahmen"));
    EXPECT_TRUE(waitUntil([&] {
        // The system's dialog may append it in small letters.
        const std::string path = PanelScene::control(scene_.settings(), "lblPath").text();
        return path.ends_with("rahmen.OM") || path.ends_with("rahmen.om");
    }));
    EXPECT_TRUE(SettingsFile::read(file("rahmen.OM")).hasSection("Tool 1"));
    EXPECT_EQ(scene_.program().close(), 0U);
}

/// The question of the file dialog itself, whatever the system calls it.
DesktopWindow overwriteQuestion(const Program& program) {
    DesktopWindow found;
    waitUntil([&] {
        for (const DesktopWindow& window : topLevelWindows(program.process().id())) {
            if (window.isVisible() && window.className() == "#32770" &&
                window.item(IDYES).exists()) {
                found = window;
            }
        }
        return found.exists();
    });
    return found;
}

TEST_F(Documents, ANameTypedWithoutItsExtensionIsAskedAboutBeforeItsFileIsReplaced) {
    writeBytes(file("plan.OM"), "kept");
    scene_.press("cmdSaveAs");
    const DesktopWindow dialog =
        waitForTopLevel(scene_.program().process().id(), "#32770", saveTitle);
    PanelScene::typeFileName(dialog, file("plan"));
    const DesktopWindow asked = overwriteQuestion(scene_.program());
    ASSERT_TRUE(asked.exists());
    asked.post(WM_COMMAND, IDNO);
    asked.waitUntilClosed();
    EXPECT_EQ(bytesOf(file("plan.OM")), "kept");
    scene_.cancelFileDialog(saveTitle);
    EXPECT_TRUE(pathLineSays(noDocument));
}

TEST_F(Documents, ANameWithAnotherExtensionIsAskedAboutUnderTheNameThatIsWritten) {
    writeBytes(file("plan.v2.OM"), "kept");
    scene_.press("cmdSaveAs");
    scene_.answerFileDialog(saveTitle, file("plan.v2"));
    const DesktopWindow asked = overwriteQuestion(scene_.program());
    ASSERT_TRUE(asked.exists());
    asked.post(WM_COMMAND, IDYES);
    EXPECT_TRUE(waitUntil(
        [&] { return bytesOf(file("plan.v2.OM")).find("[Tool 1]") != std::string::npos; }));
}

TEST_F(Documents, AChangedOneIsAskedForAndSaved) {
    saveAs(file("a.OM"));
    addStencil();
    scene_.program().requestClose();
    answer(IDYES);
    EXPECT_EQ(scene_.program().waitForExit(), 0U);
    EXPECT_TRUE(SettingsFile::read(file("a.OM")).hasSection("Tool 2"));
}

TEST_F(Documents, AnsweringNoLeavesTheFileAsItIs) {
    saveAs(file("a.OM"));
    const std::string saved = bytesOf(file("a.OM"));
    addStencil();
    scene_.press("cmdNew");
    answer(IDNO);
    EXPECT_TRUE(scene_.waitForPanels(0));
    EXPECT_EQ(bytesOf(file("a.OM")), saved);
}

TEST_F(Documents, CancellingTheFileDialogCallsTheClosingOff) {
    scene_.press("cmdNew");
    ASSERT_TRUE(scene_.waitForPanels(0));
    scene_.program().requestClose();
    answer(IDYES);
    scene_.cancelFileDialog(saveTitle);
    EXPECT_TRUE(pathLineSays(newDocument));
    EXPECT_TRUE(scene_.settings().isVisible());
}

TEST_F(Documents, TheExampleLoadsAndSavesTheSameLines) {
    writeBytes(file("example.OM"), exampleToolFile);
    load(file("example.OM"));
    ASSERT_TRUE(scene_.waitForPanels(2));
    EXPECT_TRUE(PanelScene::says(scene_.panel(0), "lblSizeWidth", "W = 482 "));
    EXPECT_TRUE(PanelScene::says(scene_.panel(0), "lblAngle2", "0.500 rad "));
    EXPECT_TRUE(PanelScene::says(scene_.panel(1), "lblTitle", "Measurement Tool 1"));
    saveAs(file("again.OM"));
    const std::string expected = withoutTime(exampleToolFile);
    const std::string saved = withoutTime(bytesOf(file("again.OM")));
    EXPECT_EQ(saved.substr(saved.find("[Tool 1]")), expected.substr(expected.find("[Tool 1]")));
    EXPECT_EQ(scene_.program().close(), 0U);
}

TEST_F(Documents, AHandMadeFileLoadsInItsOrderWhateverItsSectionsAreCalled) {
    writeBytes(file("hand.OM"),
               "; made by hand\r\n[tool 7]\r\nType=1\r\nNumber=5\r\nConnected=1\r\n\r\n"
               "[Notes]\r\nText=nothing\r\n[TOOL 2]\r\nRectBoundLeft=1,5\r\nRectBoundTop=20\r\n"
               "RectBoundRight=200\r\nRectBoundBottom=119\r\n[Tools]\r\nType=9\r\n");
    load(file("hand.OM"));
    ASSERT_TRUE(scene_.waitForPanels(2));
    EXPECT_TRUE(PanelScene::says(scene_.panel(0), "lblTitle", "Measurement Tool 5"));
    EXPECT_TRUE(PanelScene::says(scene_.panel(0), "lblLengthA", "a = 41.0 "));
    EXPECT_TRUE(PanelScene::says(scene_.panel(1), "lblPositionLeft", "left = 1 "));
    EXPECT_TRUE(PanelScene::says(scene_.panel(1), "lblSizeHeight", "H = 100 "));
    // True is written as 1 there, which the compare does not take for the same.
    scene_.program().requestClose();
    answer(IDYES);
    EXPECT_EQ(scene_.program().waitForExit(), 0U);
    EXPECT_EQ(SettingsFile::read(file("hand.OM")).sectionNames(),
              (std::vector<std::string>{"General", "Tool 1", "Tool 2"}));
}

TEST_F(Documents, EachToolTooManyIsTold) {
    std::string text;
    for (int i = 1; i <= 35; ++i) {
        text += "[Tool " + std::to_string(i) + "]\r\nType= 0\r\n";
    }
    writeBytes(file("many.OM"), text);
    scene_.press("cmdLoad");
    scene_.answerFileDialog(loadTitle, file("many.OM"));
    for (int i = 0; i < 2; ++i) {
        const auto message = scene_.program().waitForMessageBox("Ormala - Edit");
        EXPECT_EQ(message.text(), "The maximum number of tools (33) has been reached.");
        message.answer(IDOK);
    }
    EXPECT_TRUE(scene_.waitForPanels(33));
    EXPECT_EQ(scene_.panels().size(), 33U);
}

TEST_F(Documents, APathOutsideTheCodePageLoadsAndSaves) {
    const std::filesystem::path path = scene_.data().path() / u8"\u03a9\u6f22.OM";
    saveAs(path);
    addStencil();
    scene_.press("cmdSave");
    EXPECT_TRUE(waitUntil([&] { return SettingsFile::read(path).hasSection("Tool 2"); }));
    scene_.press("cmdNew");
    ASSERT_TRUE(scene_.waitForPanels(0));
    scene_.press("cmdLoad");
    answer(IDNO);
    scene_.answerFileDialog(loadTitle, path);
    EXPECT_TRUE(scene_.waitForPanels(2));
}

TEST_F(Documents, ALongPathIsShortenedAndItsWholeTextIsTheTip) {
    std::filesystem::path folder = scene_.data().path();
    for (int i = 0; i < 4; ++i) {
        folder /= "a folder with quite a long name";
    }
    std::filesystem::create_directories(folder);
    saveAs(folder / "tools.OM");
    const DesktopWindow line = scene_.control("lblPath");
    EXPECT_TRUE(waitUntil([&] { return line.text().find("...") != std::string::npos; }));
    scene_.mouse.moveTo({line.center().x, line.center().y});
    EXPECT_TRUE(
        waitUntil([&] { return scene_.program().tip() == (folder / "tools.OM").string(); }));
}

}  // namespace
}  // namespace ormala::test
