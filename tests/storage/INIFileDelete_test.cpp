#include <gtest/gtest.h>

#include <string>

#include "storage/INIFile.h"
#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"

// The removal of a settings file within a group of accesses.

namespace ormala {
namespace {

class INIFileDelete : public testing::Test {
  protected:
    void store(const std::string& value) { ini_.bytes() = "[S]\r\nKey=" + value + "\r\n"; }
    static std::string messageAbout(const std::string& begin) {
        return begin + MemoryINIFile::path + "'.";
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    INIFile& file_ = ini_.file;
};

TEST_F(INIFileDelete, InsideAGroupDropsTheOldContents) {
    store("old");
    {
        const auto group = file_.group();
        file_.setStringValue("Other", "x");
        file_.Delete();
        EXPECT_EQ(file_.StringValue("Key", "gone"), "gone");
        file_.setStringValue("Key", "new");
    }
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=new\r\n");
}

TEST_F(INIFileDelete, InsideAGroupKeepsTheOldFileUntilTheNewOneIsComplete) {
    store("old");
    const std::string old = ini_.bytes();
    {
        const auto group = file_.group();
        file_.Delete();
        EXPECT_EQ(ini_.bytes(), old);
        file_.setStringValue("Key", "new");
        EXPECT_EQ(ini_.bytes(), old);
    }
    EXPECT_EQ(ini_.bytes(), "[S]\r\nKey=new\r\n");
    EXPECT_EQ(ini_.store.removals, 0);
    EXPECT_EQ(ini_.store.writes, 1);
}

TEST_F(INIFileDelete, OldContentsOutliveADeleteWhoseGroupCantWrite) {
    store("old");
    const std::string old = ini_.bytes();
    {
        const auto group = file_.group();
        file_.Delete();
        file_.setStringValue("Key", "new");
        ini_.store.fullDisk = true;
    }
    EXPECT_EQ(ini_.bytes(), old);
    EXPECT_EQ(file_.LastError(), messageAbout("Failed to save file '"));
}

TEST_F(INIFileDelete, WithNothingWrittenAfterItRemovesTheFileAtTheGroupsEnd) {
    store("old");
    {
        const auto group = file_.group();
        file_.Delete();
        EXPECT_EQ(file_.StringValue("Key", "gone"), "gone");
    }
    EXPECT_FALSE(ini_.store.files.contains(MemoryINIFile::path));
    EXPECT_EQ(file_.LastError(), "");
}

TEST_F(INIFileDelete, ThatFailsInsideAGroupLeavesItsMessageAtOnce) {
    store("old");
    ini_.store.readOnly = true;
    ini_.store.removeDescription = "Access is denied.";
    const auto group = file_.group();
    file_.Delete();
    EXPECT_EQ(file_.LastError(), messageAbout("Failed to clear file '") + " Access is denied.");
    EXPECT_EQ(file_.StringValue("Key", "gone"), "old");
}

TEST_F(INIFileDelete, InsideAGroupDropsAFileThatIsNotWrittenYet) {
    {
        const auto group = file_.group();
        file_.setStringValue("Key", "x");
        file_.Delete();
    }
    EXPECT_FALSE(ini_.store.files.contains(MemoryINIFile::path));
    EXPECT_EQ(file_.LastError(), "");
}

}  // namespace
}  // namespace ormala
