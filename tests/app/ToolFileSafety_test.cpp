#include "app/ToolFileFixture.h"
#include "support/exampleToolFile.h"

// Tool files that can't be read or written as they should.

namespace ormala {
namespace {

using ToolFileSafety = ToolFileFixture;

TEST_F(ToolFileSafety, ASaveThatCantBeWrittenKeepsTheOldFileAndSaysSoOnce) {
    loadText(exampleToolFile);
    stage_.stencil(0).setLineWidth(9);
    ini_.store.fullDisk = true;
    ini_.store.writeDescription = "The disk is full.";
    EXPECT_FALSE(toolFile_.save());
    EXPECT_EQ(bytes(), exampleToolFile);
    EXPECT_EQ(ini_.presenter.errors,
              std::vector<std::string>{failedToSave() + " The disk is full."});
    EXPECT_EQ(ini_.file.LastError(), "");
    ini_.store.fullDisk = false;
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.presenter.errors.size(), 1U);
}

TEST_F(ToolFileSafety, ASaveOverAFileThatCantBeRemovedOrWrittenSaysSoOnce) {
    loadText(exampleToolFile);
    stage_.stencil(0).setLineWidth(9);
    ini_.store.readOnly = true;
    ini_.store.removeDescription = "Access is denied.";
    EXPECT_FALSE(toolFile_.save());
    EXPECT_EQ(ini_.presenter.errors, std::vector<std::string>{failedToSave()});
    EXPECT_EQ(bytes(), exampleToolFile);
}

TEST_F(ToolFileSafety, ARemovalThatFailsIsToldWhereTheNewContentsAreOnTheDiskAllTheSame) {
    loadText(exampleToolFile);
    ini_.store.readOnly = true;
    ini_.store.removeDescription = "Access is denied.";
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.presenter.errors,
              std::vector<std::string>{"Failed to clear file '" + ini_.file.Path() +
                                       "'. Access is denied."});
}

TEST_F(ToolFileSafety, ASaveThatCantMakeItsFolderSaysSo) {
    ini_.store.fullDisk = true;
    EXPECT_FALSE(toolFile_.save());
    EXPECT_EQ(ini_.presenter.errors, std::vector<std::string>{failedToSave()});
}

TEST_F(ToolFileSafety, AFileThatCantBeReadLeavesTheToolsAndIsToldOnce) {
    stage_.addStencil();
    stage_.view.log.clear();
    bytes() = exampleToolFile;
    ini_.store.held.insert(ini_.file.Path());
    EXPECT_FALSE(toolFile_.load());
    EXPECT_EQ(stage_.kinds(), "S");
    EXPECT_EQ(ini_.presenter.errors,
              std::vector<std::string>{"Failed to load file '" + ini_.file.Path() + "'."});
    EXPECT_EQ(stage_.view.log, (std::vector<std::string>{"hourglass Loading...", "end"}));
}

TEST_F(ToolFileSafety, AFileThatCantBeReadIsDifferentAlsoWithoutATool) {
    bytes() = exampleToolFile;
    ini_.store.held.insert(ini_.file.Path());
    EXPECT_FALSE(toolFile_.compare());
    ini_.store.held.clear();
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileSafety, AFileThatCouldNotBeReadStaysBesideTheSavedOne) {
    stage_.addStencil();
    bytes() = "precious";
    ini_.store.held.insert(ini_.file.Path());
    EXPECT_FALSE(toolFile_.load());
    ini_.presenter.errors.clear();
    EXPECT_FALSE(toolFile_.save());
    EXPECT_EQ(ini_.presenter.errors, std::vector<std::string>{failedToSave()});
    EXPECT_EQ(ini_.store.files.size(), 1U);
    ini_.store.held.clear();
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.store.files.at("C:\\data\\settings (kept 2024-05-17 08.30.12).ini"), "precious");
    EXPECT_NE(bytes().find("[Tool 1]"), std::string::npos);
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.store.files.size(), 2U);
}

TEST_F(ToolFileSafety, AFileThatIsReadAtTheSecondAttemptIsNotKept) {
    bytes() = exampleToolFile;
    ini_.store.held.insert(ini_.file.Path());
    EXPECT_FALSE(toolFile_.load());
    ini_.store.held.clear();
    EXPECT_TRUE(toolFile_.load());
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.store.files.size(), 1U);
}

TEST_F(ToolFileSafety, ToolsBehindManyForeignSectionsAreLoaded) {
    std::string text;
    for (int i = 0; i < 1000; ++i) {
        text += "[Notes " + std::to_string(i) + "]\r\nText=x\r\n";
    }
    loadText(text + exampleToolFile);
    EXPECT_EQ(stage_.kinds(), "SM");
}

TEST_F(ToolFileSafety, AnEmptyUnitIsLoadedAndEqualsTheFile) {
    loadText(replaced(exampleToolFile, "LengthUnit=m", "LengthUnit="));
    EXPECT_EQ(stage_.measure(1).RefControl().LengthUnit(), "");
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_TRUE(toolFile_.save());
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_TRUE(ini_.presenter.errors.empty());
}

TEST_F(ToolFileSafety, AFileOfAnEditorWithItsMarkLoads) {
    loadText(std::string("\xEF\xBB\xBF") +
             replaced(exampleToolFile, "LengthUnit=m", "LengthUnit=\u00b5m"));
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_EQ(stage_.measure(1).RefControl().LengthUnit(), "\u00b5m");
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(bytes(), replaced(exampleToolFile, "LengthUnit=m", "LengthUnit=\xB5m"));
}

}  // namespace
}  // namespace ormala
