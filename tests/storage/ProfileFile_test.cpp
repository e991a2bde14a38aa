#include "storage/ProfileFile.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/MemoryCodePage.h"
#include "support/MemoryFileStore.h"

namespace ormala {
namespace {

constexpr std::size_t bufferSize = 255;

class ProfileFileTest : public testing::Test {
  protected:
    ProfileFileTest() { file_.setPath(path_); }

    std::string& bytes() { return store_.files[path_]; }
    std::string value(std::string_view key, std::string_view defaultText = "default") {
        return file_.value("A", key, defaultText, bufferSize);
    }
    ProfileFile::Scope scope() {
        return {file_, [this](const std::string& description) {
                    ++failures_;
                    description_ = description;
                }};
    }

    const std::string path_ = "C:\\data\\a.ini";
    MemoryFileStore store_;
    MemoryCodePage codePage_;
    ProfileFile file_{store_, codePage_};
    int failures_ = 0;
    std::string description_;
};

TEST_F(ProfileFileTest, GivesTheDefaultForAnythingMissing) {
    EXPECT_EQ(value("K"), "default");
    bytes() = "[B]\r\n";
    EXPECT_EQ(value("K"), "default");
    bytes() = "[A]\r\nK\r\n";
    EXPECT_EQ(value("K"), "default");
    store_.unreadable.insert(path_);
    EXPECT_EQ(value("K"), "default");
}

TEST_F(ProfileFileTest, CutsValuesAndDefaultsToTheBuffer) {
    bytes() = "[A]\r\nK=" + std::string(300, 'x') + "\r\n";
    EXPECT_EQ(value("K"), std::string(254, 'x'));
    EXPECT_EQ(value("L", std::string(300, 'y')), std::string(254, 'y'));
    EXPECT_EQ(file_.value("A", "K", "", 1), "");
    EXPECT_EQ(file_.value("A", "K", "", 0), "");
}

TEST_F(ProfileFileTest, ACutValueEndsInNoBlank) {
    bytes() = "[A]\r\nK=ab \t cd\r\n";
    EXPECT_EQ(file_.value("A", "K", "", 6), "ab");
    EXPECT_EQ(file_.value("A", "K", "", 7), "ab \t c");
    EXPECT_EQ(file_.value("A", "L", "ab ", 4), "ab ");
}

TEST_F(ProfileFileTest, AnEmptyValueIsNotTheDefault) {
    bytes() = "[A]\r\nK=\r\n";
    EXPECT_EQ(value("K"), "");
}

TEST_F(ProfileFileTest, WritesStraightToTheFile) {
    EXPECT_TRUE(file_.setValue("A", "K", " 1"));
    EXPECT_EQ(bytes(), "[A]\r\nK= 1\r\n");
    bytes() = "[A]\r\nK=5\r\n";
    EXPECT_EQ(value("K"), "5");
}

TEST_F(ProfileFileTest, DoesNotWriteWhatIsThereAlready) {
    bytes() = "[A]\r\nK=1\r\n";
    EXPECT_TRUE(file_.setValue("A", "K", "1"));
    EXPECT_EQ(store_.writes, 0);
}

TEST_F(ProfileFileTest, ReportsAWriteThatFails) {
    store_.fullDisk = true;
    store_.writeDescription = "Disk full.";
    const WriteResult result = file_.setValue("A", "K", "1");
    EXPECT_FALSE(result);
    EXPECT_EQ(result.description, "Disk full.");
    store_.fullDisk = false;
    EXPECT_FALSE(file_.setValue("A", "K=", "1"));
    file_.setPath("C:\\nowhere\\a.ini");
    EXPECT_FALSE(file_.setValue("A", "K", "1"));
}

TEST_F(ProfileFileTest, ScopeReadsOnceAndWritesOnce) {
    bytes() = "[A]\r\nK=1\r\n";
    {
        const auto group = scope();
        EXPECT_EQ(value("K"), "1");
        EXPECT_TRUE(file_.setValue("A", "K", "2"));
        EXPECT_TRUE(file_.setValue("B", "L", "3"));
        EXPECT_EQ(value("K"), "2");
        EXPECT_EQ(file_.sectionNames(), (std::vector<std::string>{"A", "B"}));
        EXPECT_EQ(store_.writes, 0);
    }
    EXPECT_EQ(store_.reads, 1);
    EXPECT_EQ(store_.writes, 1);
    EXPECT_EQ(bytes(), "[A]\r\nK=2\r\n[B]\r\nL=3\r\n");
    EXPECT_EQ(failures_, 0);
}

TEST_F(ProfileFileTest, ScopeWithoutChangeWritesNothing) {
    bytes() = "[A]\r\nK=1\r\n";
    {
        const auto group = scope();
        EXPECT_TRUE(file_.setValue("A", "K", "1"));
    }
    EXPECT_EQ(store_.writes, 0);
}

TEST_F(ProfileFileTest, OnlyTheOutermostScopeWrites) {
    {
        const auto outer = scope();
        {
            const auto inner = scope();
            file_.setValue("A", "K", "1");
        }
        EXPECT_EQ(store_.writes, 0);
    }
    EXPECT_EQ(store_.writes, 1);
    EXPECT_EQ(bytes(), "[A]\r\nK=1\r\n");
}

TEST_F(ProfileFileTest, ScopeReportsAFailedWriteAtItsEnd) {
    bytes() = "old";
    {
        const auto group = scope();
        EXPECT_TRUE(file_.setValue("A", "K", "1"));
        store_.fullDisk = true;
        store_.writeDescription = "Disk full.";
        EXPECT_EQ(failures_, 0);
    }
    EXPECT_EQ(failures_, 1);
    EXPECT_EQ(description_, "Disk full.");
    EXPECT_EQ(bytes(), "old");
}

TEST_F(ProfileFileTest, AnotherPathInsideAScopeWritesTheFormerFile) {
    const std::string other = "C:\\data\\b.ini";
    {
        const auto group = scope();
        file_.setValue("A", "K", "1");
        EXPECT_TRUE(file_.setPath(path_));
        EXPECT_EQ(store_.writes, 0);
        EXPECT_TRUE(file_.setPath(other));
        EXPECT_EQ(bytes(), "[A]\r\nK=1\r\n");
        file_.setValue("A", "K", "2");
    }
    EXPECT_EQ(bytes(), "[A]\r\nK=1\r\n");
    EXPECT_EQ(store_.files[other], "[A]\r\nK=2\r\n");
}

TEST_F(ProfileFileTest, TellsThatTheFormerFileCouldNotBeWritten) {
    const auto group = scope();
    file_.setValue("A", "K", "1");
    store_.fullDisk = true;
    EXPECT_FALSE(file_.setPath("C:\\data\\b.ini"));
}

TEST_F(ProfileFileTest, ForgettingDropsWhatAScopeHasNoted) {
    {
        const auto group = scope();
        file_.setValue("A", "K", "1");
        file_.forget();
        file_.setValue("A", "L", "2");
    }
    EXPECT_EQ(bytes(), "[A]\r\nL=2\r\n");
}

TEST_F(ProfileFileTest, ListsAllSections) {
    std::vector<std::string> names;
    for (int i = 0; i < 2000; ++i) {
        names.push_back("Section " + std::to_string(i));
        bytes() += "[" + names.back() + "]\r\n";
    }
    EXPECT_EQ(file_.sectionNames(), names);
}

TEST_F(ProfileFileTest, HasNoSectionsWithoutAReadableFile) {
    EXPECT_TRUE(file_.sectionNames().empty());
    bytes() = "[A]";
    store_.unreadable.insert(path_);
    EXPECT_TRUE(file_.sectionNames().empty());
}

}  // namespace
}  // namespace ormala
