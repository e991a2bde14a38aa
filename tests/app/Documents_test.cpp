#include "app/Documents.h"

#include "app/DocumentsFixture.h"
#include "support/Contrast.h"

namespace ormala {
namespace {

const std::string noneText = "(No tool settings file opened or created yet)";
const std::string newText = "(New tool settings file)";

using DocumentsTest = DocumentsFixture;

TEST_F(DocumentsTest, AFirstStartShowsOneToolOfEachKind) {
    const FirstStart started(ini_, automaticPath);
    const ToolListStage& first = started.stage;
    EXPECT_EQ(first.kinds(), "SM");
    EXPECT_TRUE(first.sheet.isVisible(first.stencil(0).RefControlControl()));
    EXPECT_TRUE(first.sheet.isVisible(first.measure(1).RefControlControl()));
}

TEST_F(DocumentsTest, ThePathLineCanBeReadInEachOfItsColors) {
    for (const Color text : {documentColor, Color{0}}) {
        EXPECT_GE(test::contrast(text, groundOfPathLine(text)), test::readable);
    }
}

TEST_F(DocumentsTest, TheToolsOfTheLastRunComeBackWithoutADocument) {
    startWithTools();
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(documents_.NoFileYet());
    EXPECT_EQ(ini_.file.Path(), "");
    EXPECT_EQ(view_.line, (PathLine{noneText, 0, ""}));
}

TEST_F(DocumentsTest, AChangeWithoutADocumentIsNotAskedAboutAndIsThereAtTheNextStart) {
    startWithTools();
    stage_.stencil(0).setLineWidth(7);
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
    stage_.list.RemoveAllTools();
    start();
    EXPECT_EQ(stage_.stencil(0).LineWidth(), 7);
}

TEST_F(DocumentsTest, KeepingTheToolsWhileTheProgramRunsLeavesTheDocument) {
    loadNamed();
    stage_.stencil(0).setLineWidth(7);
    automatic_.save();
    expectNamed(namedPath);
    EXPECT_NE(file(automaticPath).find("LineWidth= 7"), std::string::npos);
    EXPECT_EQ(file(namedPath), exampleToolFile);
    EXPECT_FALSE(close());
    EXPECT_TRUE(asked());
}

TEST_F(DocumentsTest, ANewDocumentIsAskedAboutAlthoughNothingHasBeenDone) {
    startWithTools();
    documents_.New();
    EXPECT_FALSE(asked());
    EXPECT_FALSE(close());
    EXPECT_EQ(view_.questions, std::vector<std::string>{"Do you want to save the changes?"});
}

TEST_F(DocumentsTest, NewRemovesEveryTool) {
    startWithTools();
    stage_.view.log.clear();
    documents_.New();
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_EQ(view_.line, (PathLine{newText, documentColor, ""}));
    EXPECT_EQ(stage_.view.log, (std::vector<std::string>{"busy Removing all tools...", "end"}));
    EXPECT_EQ(stage_.view.refreshes, 2);
}

TEST_F(DocumentsTest, ALoadedFileClosesWithoutAQuestion) {
    start();
    loadNamed();
    expectNamed(namedPath);
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
}

TEST_F(DocumentsTest, AHandMadeFileWithItsMeasurementFirstClosesWithoutAQuestion) {
    file(namedPath) = "[Tool 1]\r\nType=1\r\n[Tool 2]\r\nType=0\r\n";
    start();
    loadNamed();
    documents_.Save();
    loadNamed();
    EXPECT_EQ(stage_.kinds(), "MS");
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
}

TEST_F(DocumentsTest, AToolAddedToALoadedFileIsAskedAbout) {
    loadNamed();
    stage_.addStencil();
    EXPECT_FALSE(close());
    EXPECT_TRUE(asked());
}

TEST_F(DocumentsTest, TheLastToolRemovedFromALoadedFileIsNotAskedAbout) {
    loadNamed();
    stage_.list.RemovePanel(stage_.measure(1));
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
}

TEST_F(DocumentsTest, YesForANewDocumentAndACancelledDialogCallTheClosingOff) {
    documents_.New();
    view_.answer = Answer::yes;
    view_.picked = "";
    EXPECT_FALSE(close());
    EXPECT_EQ(view_.picks, std::vector<bool>{true});
    EXPECT_FALSE(ini_.store.files.contains(automaticPath));
}

TEST_F(DocumentsTest, YesForANewDocumentAndACancelledDialogCallNewOff) {
    documents_.New();
    stage_.addStencil();
    view_.answer = Answer::yes;
    view_.picked = "";
    documents_.New();
    EXPECT_EQ(stage_.kinds(), "S");
}

TEST_F(DocumentsTest, YesForANewDocumentSavesItUnderItsNewName) {
    documents_.New();
    stage_.addStencil();
    view_.answer = Answer::yes;
    view_.picked = "C:\\data\\fresh";
    EXPECT_TRUE(close());
    EXPECT_NE(file("C:\\data\\fresh.OM").find("[Tool 1]"), std::string::npos);
}

TEST_F(DocumentsTest, YesForANamedDocumentSavesIt) {
    loadNamed();
    stage_.stencil(0).setLineWidth(8);
    view_.answer = Answer::yes;
    EXPECT_TRUE(close());
    EXPECT_TRUE(view_.picks.empty());
    EXPECT_NE(file(namedPath).find("LineWidth= 8"), std::string::npos);
}

TEST_F(DocumentsTest, NoLeavesTheNamedFileAsItIsOnTheDisk) {
    loadNamed();
    stage_.stencil(0).setLineWidth(8);
    view_.answer = Answer::no;
    documents_.New();
    EXPECT_TRUE(asked());
    EXPECT_EQ(file(namedPath), exampleToolFile);
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_EQ(ini_.file.Path(), "");
}

TEST_F(DocumentsTest, TheAutomaticFileHasTheLatestStateWhateverTheAnswer) {
    loadNamed();
    stage_.stencil(0).setLineWidth(8);
    view_.answer = Answer::no;
    EXPECT_TRUE(close());
    EXPECT_EQ(file(namedPath), exampleToolFile);
    EXPECT_NE(file(automaticPath).find("LineWidth= 8"), std::string::npos);
    EXPECT_EQ(view_.line.caption, namedPath);
}

TEST_F(DocumentsTest, CancelKeepsToolsAndDocument) {
    loadNamed();
    stage_.addStencil();
    view_.answer = Answer::cancel;
    documents_.Load();
    EXPECT_EQ(stage_.kinds(), "SMS");
    expectNamed(namedPath);
    EXPECT_TRUE(view_.picks.empty());
}

TEST_F(DocumentsTest, ALoadWithoutAFileChangesNothing) {
    startWithTools();
    view_.picked = "";
    documents_.Load();
    EXPECT_EQ(view_.picks, std::vector<bool>{false});
    EXPECT_TRUE(documents_.NoFileYet());
    EXPECT_EQ(stage_.kinds(), "SM");
}

TEST_F(DocumentsTest, ALongPathIsShortenedAndItsWholeTextIsTheTip) {
    view_.lineWidth = 20;
    const std::string path = "C:\\data\\a very long name of a file indeed.OM";
    view_.picked = path;
    documents_.SaveAs();
    EXPECT_NE(view_.line.caption, path);
    EXPECT_EQ(view_.line.tip, path);
    EXPECT_EQ(view_.line.color, documentColor);
}

TEST_F(DocumentsTest, TheTipGoesWithItsPath) {
    view_.lineWidth = 10;
    loadNamed();
    EXPECT_EQ(view_.line.tip, namedPath);
    documents_.New();
    EXPECT_EQ(view_.line.tip, "");
}

TEST_F(DocumentsTest, TheFirstSaveAsksForAName) {
    startWithTools();
    view_.picked = "C:\\data\\mine.om";
    documents_.Save();
    EXPECT_EQ(view_.picks, std::vector<bool>{true});
    expectNamed("C:\\data\\mine.om");
    EXPECT_EQ(file("C:\\data\\mine.om"), exampleToolFile);
    stage_.stencil(0).setLineWidth(4);
    documents_.Save();
    EXPECT_EQ(view_.picks.size(), 1U);
    EXPECT_NE(file("C:\\data\\mine.om").find("LineWidth= 4"), std::string::npos);
}

TEST_F(DocumentsTest, ACancelledSaveLeavesNoDocument) {
    startWithTools();
    documents_.Save();
    EXPECT_TRUE(documents_.NoFileYet());
    EXPECT_EQ(ini_.file.Path(), "");
}

TEST_F(DocumentsTest, SaveAsMovesOnToTheOtherFile) {
    loadNamed();
    stage_.stencil(0).setLineWidth(8);
    view_.picked = "C:\\data\\other.OM";
    documents_.SaveAs();
    expectNamed("C:\\data\\other.OM");
    EXPECT_EQ(file(namedPath), exampleToolFile);
    EXPECT_NE(file("C:\\data\\other.OM").find("LineWidth= 8"), std::string::npos);
}

TEST_F(DocumentsTest, ThePathLineSpeaksTheLanguageOfTheUser) {
    const ManualLanguage german(languageGerman);
    documents_.UpdatePathLine();
    EXPECT_EQ(view_.line.caption, MlString(307, {}));
    EXPECT_NE(view_.line.caption, noneText);
}

/// The dialog asks about the file of the typed name; the program writes another one.
class ReplacedDocument : public DocumentsTest {
  protected:
    ReplacedDocument() {
        startWithTools();
        file("C:\\data\\plan.v2.OM") = "old";
        file("C:\\data\\plan..OM") = "old";
        file("C:\\data\\plan.OM") = "old";
    }
    void saveAs(const std::string& name, Answer answer) {
        view_.picked = "C:\\data\\" + name;
        view_.answer = answer;
        documents_.SaveAs();
    }
};

TEST_F(ReplacedDocument, AFileThatTheDialogCouldNotSeeIsAskedAbout) {
    for (const std::string name : {"plan", "plan.v2", "plan."}) {
        view_.questions.clear();
        saveAs(name, Answer::cancel);
        EXPECT_EQ(view_.questions,
                  std::vector<std::string>{"C:\\data\\" + name +
                                           ".OM already exists.\r\nDo you want to replace it?"});
        EXPECT_EQ(file("C:\\data\\" + name + ".OM"), "old");
        EXPECT_TRUE(documents_.NoFileYet());
    }
}

TEST_F(ReplacedDocument, YesWritesOverIt) {
    saveAs("plan.v2", Answer::yes);
    EXPECT_NE(file("C:\\data\\plan.v2.OM"), "old");
    expectNamed("C:\\data\\plan.v2.OM");
}

TEST_F(ReplacedDocument, NoLeadsBackToTheDialog) {
    view_.pickedNext = {"C:\\data\\other"};
    saveAs("plan.v2", Answer::no);
    EXPECT_EQ(view_.picks, (std::vector<bool>{true, true}));
    EXPECT_EQ(view_.questions.size(), 1U);
    EXPECT_EQ(file("C:\\data\\plan.v2.OM"), "old");
    expectNamed("C:\\data\\other.OM");
}

TEST_F(ReplacedDocument, WhatTheDialogHasSeenIsNotAskedAboutTwice) {
    saveAs("plan.OM", Answer::cancel);
    EXPECT_FALSE(asked());
    expectNamed("C:\\data\\plan.OM");
}

TEST_F(ReplacedDocument, AFileThatCannotBeLookedAtIsAskedAbout) {
    ini_.store.unreadable.insert("C:\\data\\secret.OM");
    saveAs("secret", Answer::cancel);
    EXPECT_TRUE(asked());
}

TEST_F(ReplacedDocument, AFolderThatIsMissingHoldsNoFileToAskAbout) {
    saveAs("missing\\plan", Answer::cancel);
    EXPECT_FALSE(asked());
}

TEST(WithToolsFileExtension, IsAppendedWhereThereIsNone) {
    EXPECT_EQ(withToolsFileExtension("C:\\a\\b"), "C:\\a\\b.OM");
    EXPECT_EQ(withToolsFileExtension("b.txt"), "b.txt.OM");
    EXPECT_EQ(withToolsFileExtension("om"), "om.OM");
    EXPECT_EQ(withToolsFileExtension("x"), "x.OM");
}

TEST(WithToolsFileExtension, KeepsTheExtensionAsItWasTyped) {
    EXPECT_EQ(withToolsFileExtension("b.om"), "b.om");
    EXPECT_EQ(withToolsFileExtension("b.Om"), "b.Om");
    EXPECT_EQ(withToolsFileExtension("b.OM"), "b.OM");
}

}  // namespace
}  // namespace ormala
