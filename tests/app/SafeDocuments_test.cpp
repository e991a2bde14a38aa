#include "app/DocumentsFixture.h"

// What a document says and does when its file can't be read or written, or is another program's
// work by now.

namespace ormala {
namespace {

const std::string overwriteNamed =
    "'C:\\data\\named.OM' has been changed by another program. Overwrite it?";
const std::string saveChanges = "Do you want to save the changes?";

using Texts = std::vector<std::string>;

class SafeDocuments : public DocumentsFixture {
  protected:
    void hold(const std::string& path) { ini_.store.held.insert(path); }
    void release() { ini_.store.held.clear(); }
    static std::string failedToLoad(const std::string& path) {
        return "Failed to load file '" + path + "'.";
    }
    static std::string failedToSaveTo(const std::string& path) {
        return "Failed to save file '" + path + "'.";
    }
    /// The old contents of a file that was written over.
    std::string kept(std::string path) {
        const std::size_t dot = path.rfind('.');
        return file(path.insert(dot, " (kept 2024-05-17 08.30.12)"));
    }
    void saveChangedNamed() {
        stage_.stencil(0).setLineWidth(8);
        documents_.Save();
    }
};

TEST_F(SafeDocuments, AStartWithoutItsToolsSaysSoOnceAndShowsTheFirstOnes) {
    file(automaticPath) = exampleToolFile;
    hold(automaticPath);
    FirstStart started(ini_, automaticPath);
    const ToolListStage& first = started.stage;
    EXPECT_EQ(errors(), Texts{failedToLoad(automaticPath)});
    EXPECT_EQ(first.kinds(), "SM");
    EXPECT_TRUE(first.sheet.isVisible(first.stencil(0).RefControlControl()));
    release();
    EXPECT_TRUE(started.automatic.save());
    EXPECT_EQ(kept(automaticPath), exampleToolFile);
    EXPECT_EQ(errors().size(), 1U);
}

TEST_F(SafeDocuments, AStartInAMissingFolderShowsTheFirstTools) {
    const FirstStart started(ini_, "C:\\nowhere\\Ormala Tools.ini");
    EXPECT_EQ(started.stage.kinds(), "SM");
    EXPECT_TRUE(errors().empty());
}

TEST_F(SafeDocuments, AnEmptyFileOfTheLastRunIsASetWithoutTools) {
    file(automaticPath) = "";
    stage_.addStencil();
    start();
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_TRUE(errors().empty());
}

TEST_F(SafeDocuments, ALoadOfAnUnreadableFileSaysSoOnceAndKeepsTheTools) {
    startWithTools();
    stage_.addStencil();
    stage_.view.log.clear();
    hold(namedPath);
    view_.picked = namedPath;
    documents_.Load();
    EXPECT_EQ(errors(), Texts{failedToLoad(namedPath)});
    EXPECT_EQ(stage_.kinds(), "SMS");
    EXPECT_TRUE(stage_.view.log.empty());
    expectNamed(namedPath);
}

TEST_F(SafeDocuments, AnUnreadableDocumentReadsAsChangedAndIsKeptWhenItIsSavedOver) {
    startWithTools();
    hold(namedPath);
    view_.picked = namedPath;
    documents_.Load();
    release();
    file(namedPath) = "precious";
    view_.answer = Answer::yes;
    EXPECT_TRUE(close());
    EXPECT_EQ(view_.questions, Texts{saveChanges});
    EXPECT_EQ(kept(namedPath), "precious");
    EXPECT_EQ(file(namedPath), exampleToolFile);
}

TEST_F(SafeDocuments, AnUnreadableDocumentWithoutToolsAsksToo) {
    hold(namedPath);
    view_.picked = namedPath;
    documents_.Load();
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_FALSE(close());
    EXPECT_EQ(view_.questions, Texts{saveChanges});
    EXPECT_EQ(errors().size(), 1U);
}

TEST_F(SafeDocuments, ASaveThatFailsLeavesTheDocumentChanged) {
    loadNamed();
    ini_.store.fullDisk = true;
    ini_.store.writeDescription = "The disk is full.";
    saveChangedNamed();
    const std::string message = failedToSaveTo(namedPath) + " The disk is full.";
    EXPECT_EQ(errors(), Texts{message});
    EXPECT_EQ(file(namedPath), exampleToolFile);
    view_.answer = Answer::yes;
    EXPECT_FALSE(close());
    EXPECT_EQ(view_.questions, Texts{saveChanges});
    EXPECT_EQ(errors(), (Texts{message, message}));
    ini_.store.fullDisk = false;
    EXPECT_TRUE(close());
    EXPECT_NE(file(namedPath).find("LineWidth= 8"), std::string::npos);
}

TEST_F(SafeDocuments, AFirstSaveThatFailsMakesTheClosingAsk) {
    startWithTools();
    ini_.store.fullDisk = true;
    view_.picked = "C:\\data\\mine";
    documents_.Save();
    EXPECT_EQ(errors().size(), 1U);
    expectNamed("C:\\data\\mine.OM");
    EXPECT_FALSE(close());
    EXPECT_EQ(view_.questions, Texts{saveChanges});
}

TEST_F(SafeDocuments, YesForANewDocumentThatCantBeWrittenCallsTheClosingOff) {
    documents_.New();
    stage_.addStencil();
    ini_.store.fullDisk = true;
    view_.answer = Answer::yes;
    view_.picked = "C:\\data\\fresh.OM";
    EXPECT_FALSE(close());
    EXPECT_EQ(errors(), Texts{failedToSaveTo("C:\\data\\fresh.OM")});
}

TEST_F(SafeDocuments, TheAutomaticFileTellsOnceThatItCantBeWritten) {
    startWithTools();
    ini_.store.fullDisk = true;
    EXPECT_TRUE(close());
    EXPECT_FALSE(savedAtTheEnd_);
    EXPECT_EQ(errors(), Texts{failedToSaveTo(automaticPath)});
    EXPECT_EQ(file(automaticPath), exampleToolFile);
}

TEST_F(SafeDocuments, AnAutomaticFileThatIsHeldUntilTheEndIsToldOnceMore) {
    file(automaticPath) = exampleToolFile;
    hold(automaticPath);
    start();
    ini_.presenter.errors.clear();
    EXPECT_TRUE(close());
    EXPECT_FALSE(savedAtTheEnd_);
    EXPECT_EQ(errors(), Texts{failedToSaveTo(automaticPath)});
    EXPECT_EQ(file(automaticPath), exampleToolFile);
}

TEST_F(SafeDocuments, ASaveOverTheWorkOfAnotherProgramAsks) {
    loadNamed();
    file(namedPath) = "[Tool 1]\r\nType=1\r\n";
    view_.overwrite = Answer::no;
    saveChangedNamed();
    EXPECT_EQ(view_.questions, Texts{overwriteNamed});
    EXPECT_EQ(file(namedPath), "[Tool 1]\r\nType=1\r\n");
    view_.overwrite = Answer::yes;
    documents_.Save();
    EXPECT_EQ(view_.questions.size(), 2U);
    EXPECT_NE(file(namedPath).find("LineWidth= 8"), std::string::npos);
    documents_.Save();
    EXPECT_EQ(view_.questions.size(), 2U);
    EXPECT_TRUE(errors().empty());
}

TEST_F(SafeDocuments, AClosingThatWouldOverwriteTheWorkOfAnotherProgramIsCalledOffUnlessItMay) {
    loadNamed();
    stage_.stencil(0).setLineWidth(8);
    file(namedPath) = "[Tool 1]\r\nType=1\r\n";
    view_.answer = Answer::yes;
    for (const Answer answer : {Answer::no, Answer::cancel}) {
        view_.overwrite = answer;
        view_.questions.clear();
        EXPECT_FALSE(close());
        EXPECT_EQ(view_.questions, (Texts{saveChanges, overwriteNamed}));
        EXPECT_EQ(file(namedPath), "[Tool 1]\r\nType=1\r\n");
    }
    view_.overwrite = Answer::yes;
    EXPECT_TRUE(close());
    EXPECT_NE(file(namedPath).find("LineWidth= 8"), std::string::npos);
}

TEST_F(SafeDocuments, AFileThatIsGoneIsSavedWithoutAQuestion) {
    loadNamed();
    ini_.store.files.erase(namedPath);
    saveChangedNamed();
    EXPECT_FALSE(asked());
    EXPECT_NE(file(namedPath).find("LineWidth= 8"), std::string::npos);
}

TEST_F(SafeDocuments, SaveAsOverAnotherFileLeavesTheQuestionToItsDialog) {
    loadNamed();
    file("C:\\data\\other.OM") = "[Tool 1]\r\nType=1\r\n";
    view_.picked = "C:\\data\\other.OM";
    documents_.SaveAs();
    EXPECT_FALSE(asked());
    EXPECT_EQ(file("C:\\data\\other.OM"), exampleToolFile);
}

TEST_F(SafeDocuments, SaveAsOverTheSameFileAsksNothingMore) {
    loadNamed();
    file(namedPath) = "[Tool 1]\r\nType=1\r\n";
    view_.picked = namedPath;
    documents_.SaveAs();
    EXPECT_FALSE(asked());
    EXPECT_EQ(file(namedPath), exampleToolFile);
}

TEST_F(SafeDocuments, SaveAsOverAFileThatCantBeReadKeepsItBesideWithoutAMessage) {
    loadNamed();
    const std::string other = "C:\\data\\other.OM";
    file(other) = "precious";
    ini_.store.unreadable.insert(other);
    view_.picked = other;
    documents_.SaveAs();
    EXPECT_TRUE(errors().empty());
    EXPECT_EQ(kept(other), "precious");
    EXPECT_EQ(file(other), exampleToolFile);
}

TEST_F(SafeDocuments, TheAutomaticFileOfAnotherCopyIsWrittenOverWithoutAQuestion) {
    startWithTools();
    file(automaticPath) = "[Tool 1]\r\nType=1\r\n";
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
    EXPECT_EQ(file(automaticPath), exampleToolFile);
}

TEST_F(SafeDocuments, TheQuestionSpeaksTheLanguageOfTheUser) {
    loadNamed();
    file(namedPath) = "other";
    const ManualLanguage german(languageGerman);
    saveChangedNamed();
    EXPECT_EQ(view_.questions,
              Texts{"'C:\\data\\named.OM' wurde von einem anderen Programm ge\u00e4ndert. "
                    "\u00dcberschreiben?"});
}

}  // namespace
}  // namespace ormala
