#include <gtest/gtest.h>

#include "e2e/PanelScene.h"
#include "support/win/fileBytes.h"

// The end of the program at moments that nobody has waited for.

namespace ormala::test {
namespace {

/// A start on prepared files, which shows messages.
class Ending : public testing::Test {
  protected:
    static void write(const std::filesystem::path& file, const std::string& bytes) {
        std::filesystem::create_directories(file.parent_path());
        writeBytes(file, bytes);
    }
    /// A close while a message of the start stands there ends the program, and the files stay.
    void expectToEndAt(std::string_view titleOfMessage) {
        const std::string options = bytesOf(data_.optionsFile());
        const std::string tools = bytesOf(data_.toolsFile());
        const Program program(data_);
        program.waitForMessageBox(titleOfMessage);
        program.requestClose();
        EXPECT_EQ(program.waitForExit(), 0U);
        EXPECT_EQ(bytesOf(data_.optionsFile()), options);
        EXPECT_EQ(bytesOf(data_.toolsFile()), tools);
    }

    AppDataFolder data_;
};

TEST_F(Ending, ACloseWhileToolsAreLoadedLeavesTheirFile) {
    std::string tools;
    for (int number = 1; number <= 36; ++number) {
        tools += "[Tool " + std::to_string(number) + "]\r\nType= 0\r\n";
    }
    write(data_.toolsFile(), tools);
    write(data_.optionsFile(), "[Options]\r\nLanguage= 9\r\n");
    expectToEndAt("Ormala - Edit");
}

TEST_F(Ending, ACloseDuringTheLastMessageOfTheStartLeavesTheOptions) {
    write(data_.optionsFile(), "[Options]\r\nLanguage= 9\r\nMode=99999999999\r\n");
    expectToEndAt("Ormala");
}

TEST_F(Ending, ACloseOverAnOpenMenuEndsTheProgram) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).file());
    scene.mouse.click(scene.onScreen({600, 40}), MouseButton::Right);
    waitForTopLevel(scene.program().process().id(), "#32768");
    scene.program().requestClose();
    EXPECT_EQ(scene.program().waitForExit(), 0U);
    EXPECT_TRUE(SettingsFile::read(scene.data().toolsFile()).hasSection("Tool 1"));
}

TEST_F(Ending, TheEndOfTheSessionFindsTheWorkSavedAndAsksNothingOverADialog) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).file());
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(2));
    scene.press("cmdOptions");
    scene.program().waitForWindow("frmOptions");
    EXPECT_EQ(scene.program().settings().send(WM_QUERYENDSESSION), 0);
    EXPECT_TRUE(SettingsFile::read(scene.data().toolsFile()).hasSection("Tool 2"));
    EXPECT_TRUE(scene.program().settings().send(WM_ENDSESSION, FALSE).has_value());
    keyboard::press(VK_ESCAPE);
    scene.program().window("frmOptions").waitUntilHidden();
    EXPECT_EQ(scene.program().close(), 0U);
}

TEST_F(Ending, AProgramThatOutlivesItsSessionSavesWhatComesLater) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).file());
    EXPECT_EQ(scene.program().settings().send(WM_QUERYENDSESSION), 1);
    EXPECT_TRUE(scene.program().settings().send(WM_ENDSESSION, TRUE).has_value());
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(2));
    EXPECT_EQ(scene.program().close(), 0U);
    EXPECT_TRUE(SettingsFile::read(scene.data().toolsFile()).hasSection("Tool 2"));
}

TEST_F(Ending, AProgramThatHasToMakeRoomForAnUpdateSavesAndEnds) {
    PanelScene scene(ToolSet().stencil({100, 100, 300, 300}).file());
    scene.press("cmdAddMeasure");
    ASSERT_TRUE(scene.waitForPanels(2));
    const DesktopWindow window = scene.program().settings();
    EXPECT_EQ(window.send(WM_QUERYENDSESSION, 0, ENDSESSION_CLOSEAPP), 1);
    EXPECT_TRUE(window.send(WM_ENDSESSION, TRUE, ENDSESSION_CLOSEAPP).has_value());
    EXPECT_EQ(scene.program().waitForExit(), 0U);
    EXPECT_TRUE(SettingsFile::read(scene.data().toolsFile()).hasSection("Tool 2"));
}

}  // namespace
}  // namespace ormala::test
