#include <gtest/gtest.h>

#include <string>

#include "storage/INIFile.h"
#include "storage/WindowPlacement.h"
#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"

// "Not there", "unreadable" and "empty" are three things.

namespace ormala {
namespace {

using Status = ReadResult::Status;

const std::string path = MemoryINIFile::path;
const std::string keptPath = "C:\\data\\settings (kept 2024-05-17 08.30.12).ini";
const std::string failedToLoad = "Failed to load file '" + path + "'.";
constexpr const char* oldBytes = "[S]\r\nKey=precious\r\n";

class UnreadableFile : public testing::Test {
  protected:
    /// As a start of the program finds a file that another one holds.
    void attachHeldFile() {
        ini_.bytes() = oldBytes;
        store_.held.insert(path);
        file_.setPath(path);
    }
    void release() { store_.held.clear(); }
    [[nodiscard]] std::string kept() const {
        return store_.files.contains(keptPath) ? store_.files.at(keptPath) : "(none)";
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    MemoryFileStore& store_ = ini_.store;
    INIFile& file_ = ini_.file;
};

TEST_F(UnreadableFile, IsAFailureOfTheScan) {
    attachHeldFile();
    EXPECT_EQ(file_.status(), Status::failed);
    EXPECT_EQ(file_.LastError(), failedToLoad);
    EXPECT_EQ(file_.SectionMax(), 0);
    EXPECT_EQ(file_.SectionName(0), "");
}

TEST_F(UnreadableFile, AMissingOneAndAnEmptyOneAreNone) {
    file_.setPath(path);
    EXPECT_EQ(file_.status(), Status::notFound);
    EXPECT_EQ(file_.LastError(), "");
    file_.setPath("C:\\nowhere\\a.ini");
    EXPECT_EQ(file_.status(), Status::notFound);
    EXPECT_EQ(file_.LastError(), "");
    ini_.bytes() = "";
    file_.setPath(path);
    EXPECT_EQ(file_.status(), Status::ok);
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(UnreadableFile, IsToldOnceHoweverManyReadsFollow) {
    attachHeldFile();
    file_.ShowLastError();
    EXPECT_EQ(file_.StringValue("Key", ""), "");
    EXPECT_EQ(file_.TextValue("Key", "m"), "m");
    EXPECT_EQ(file_.LongValue("Key", 7), 7);
    {
        const auto group = file_.group();
        EXPECT_EQ(file_.DoubleValue("Key", 1.5), 1.5);
        EXPECT_EQ(file_.check(), Status::failed);
    }
    file_.ShowLastError();
    EXPECT_EQ(ini_.presenter.errors, std::vector<std::string>{failedToLoad});
}

TEST_F(UnreadableFile, IsToldAgainForANewAssignmentOfThePath) {
    attachHeldFile();
    file_.ShowLastError();
    file_.setPath(std::string(file_.Path()));
    EXPECT_EQ(file_.LastError(), failedToLoad);
}

TEST_F(UnreadableFile, OneThatBecomesSoIsToldByTheNextRead) {
    ini_.bytes() = oldBytes;
    file_.setPath(path);
    store_.held.insert(path);
    EXPECT_EQ(file_.StringValue("Key", "default"), "default");
    EXPECT_EQ(file_.LastError(), failedToLoad);
}

TEST_F(UnreadableFile, IsWaitedForOnlyWhenItsPathIsAssigned) {
    attachHeldFile();
    const int waits = store_.patientReads;
    for (int i = 0; i < 20; ++i) {
        file_.LongValue("Key", 7);
    }
    EXPECT_EQ(store_.patientReads, waits);
    file_.setPath(path);
    EXPECT_EQ(store_.patientReads, waits + 1);
}

TEST_F(UnreadableFile, StaysBesideTheNewOneThatIsWrittenInItsPlace) {
    attachHeldFile();
    release();
    store_.unreadable.insert(path);
    file_.setStringValue("Key", "default");
    EXPECT_EQ(kept(), oldBytes);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=default\r\n");
}

TEST_F(UnreadableFile, StaysBesideAlsoIfItCanBeReadMeanwhile) {
    attachHeldFile();
    release();
    {
        const auto group = file_.group();
        file_.setStringValue("Key", "default");
        file_.setStringValue("Other", "x");
    }
    EXPECT_EQ(kept(), oldBytes);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=default\r\nOther=x\r\n");
}

TEST_F(UnreadableFile, StaysBesideWhicheverPathsComeBetween) {
    attachHeldFile();
    file_.setPath("");
    file_.setPath("C:\\data\\other.ini");
    release();
    file_.setPath(path);
    {
        const auto group = file_.group();
        file_.Delete();
        file_.setStringValue("Key", "new");
    }
    EXPECT_EQ(kept(), oldBytes);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=new\r\n");
}

TEST_F(UnreadableFile, IsKeptOnceOnly) {
    attachHeldFile();
    release();
    file_.setStringValue("Key", "1");
    file_.setStringValue("Key", "2");
    EXPECT_EQ(store_.files.size(), 2U);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=2\r\n");
}

TEST_F(UnreadableFile, GetsAnotherNameWhereOneIsKeptAlready) {
    store_.files[keptPath] = "from before";
    attachHeldFile();
    release();
    file_.setStringValue("Key", "new");
    EXPECT_EQ(kept(), "from before");
    EXPECT_EQ(store_.files["C:\\data\\settings (kept 2024-05-17 08.30.12, 2).ini"], oldBytes);
}

TEST_F(UnreadableFile, IsNotWrittenOverWhereItCantBeKept) {
    attachHeldFile();
    file_.setLastError("");
    store_.writeDescription = "Sharing violation.";
    file_.setStringValue("Key", "new");
    EXPECT_EQ(file_.LastError(), "Failed to save file '" + path + "'. Sharing violation.");
    EXPECT_EQ(ini_.bytes(), oldBytes);
    EXPECT_EQ(kept(), "(none)");
}

TEST_F(UnreadableFile, OneThatThisRunHasReadAfterAllNeedsNoKeeping) {
    attachHeldFile();
    release();
    file_.setPath(path);
    file_.noteAsRead();
    file_.setStringValue("Key", "new");
    EXPECT_EQ(kept(), "(none)");
}

TEST_F(UnreadableFile, TheStartOfASecondCopyLeavesItAlone) {
    attachHeldFile();
    release();
    store_.unreadable.insert(path);
    const PixelRect screen{0, 0, 1000, 1000};
    const RestoredPlacement place = restoredPlacement(
        file_, "FormSettings", true, {1, {100, 100, 300, 300}}, Sizable::nothing, {screen, screen});
    EXPECT_EQ(place.rect, (PixelRect{120, 120, 320, 320}));
    EXPECT_EQ(ini_.bytes(), oldBytes);
    EXPECT_EQ(store_.writes, 0);
}

TEST_F(UnreadableFile, AChangeByAnotherProgramIsSeenInTheContents) {
    ini_.bytes() = oldBytes;
    file_.setPath(path);
    EXPECT_FALSE(file_.changedElsewhere());
    file_.noteAsRead();
    EXPECT_FALSE(file_.changedElsewhere());
    ini_.bytes() = "[S]\r\nKey=another\r\n";
    EXPECT_TRUE(file_.changedElsewhere());
    file_.setStringValue("Key", "own");
    EXPECT_FALSE(file_.changedElsewhere());
    ini_.bytes() = oldBytes;
    EXPECT_TRUE(file_.changedElsewhere());
}

TEST_F(UnreadableFile, AFileThatIsGoneHasNoChangeToLose) {
    ini_.bytes() = oldBytes;
    file_.setPath(path);
    file_.noteAsRead();
    store_.files.clear();
    EXPECT_FALSE(file_.changedElsewhere());
}

TEST_F(UnreadableFile, OneThatIsUnreadableWhenItIsToBeWrittenIsKept) {
    ini_.bytes() = oldBytes;
    file_.setPath(path);
    file_.noteAsRead();
    store_.unreadable.insert(path);
    EXPECT_FALSE(file_.changedElsewhere());
    file_.setStringValue("Key", "new");
    EXPECT_EQ(kept(), oldBytes);
}

TEST_F(UnreadableFile, AMarkedFileIsWrittenInTheCodePage) {
    ini_.bytes() = "\xEF\xBB\xBF; \xC3\xBC\r\n[S]\r\nKey=\xC3\xB6\r\n";
    file_.setPath(path);
    EXPECT_EQ(file_.SectionName(0), "S");
    EXPECT_EQ(file_.StringValue("Key", "-"), "\u00f6");
    file_.setStringValue("Other", "\u00e4");
    EXPECT_EQ(ini_.bytes(), "; \xFC\r\n[S]\r\nKey=\xF6\r\nOther=\xE4\r\n");
    EXPECT_FALSE(file_.changedElsewhere());
}

TEST_F(UnreadableFile, AUtf16FileIsReadAsSuch) {
    const std::string text = "[S]\r\nKey= 5\r\n";
    ini_.bytes() = "\xFF\xFE";
    for (const char c : text) {
        ini_.bytes() += std::string{c, '\0'};
    }
    file_.setPath(path);
    EXPECT_EQ(file_.LongValue("Key", 0), 5);
    file_.setLongValue("Key", 6);
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey= 6\r\n");
}

}  // namespace
}  // namespace ormala
