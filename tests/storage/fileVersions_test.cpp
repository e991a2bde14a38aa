#include "storage/fileVersions.h"

#include <gtest/gtest.h>

#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

const std::string today = "2024-05-17 08:30:12";

class PreviousFile : public testing::Test {
  protected:
    const std::string path_ = "C:\\data\\Ormala.ini";
    const std::string previous_ = "C:\\data\\Ormala (previous).ini";
    MemoryFileStore store_;

    void start(const std::string& now) {
        store_.time = now;
        keepPrevious(store_, path_, now);
    }
};

TEST_F(PreviousFile, IsTheOneOfTheLastRun) {
    store_.files[path_] = "yesterday";
    start(today);
    EXPECT_EQ(store_.files[previous_], "yesterday");
    EXPECT_EQ(store_.files[path_], "yesterday");
}

TEST_F(PreviousFile, IsKeptOnceADay) {
    store_.files[path_] = "first";
    start("2024-05-17 08:30:12");
    store_.files[path_] = "second";
    start("2024-05-17 23:59:59");
    EXPECT_EQ(store_.files[previous_], "first");
    start("2024-05-18 00:00:00");
    EXPECT_EQ(store_.files[previous_], "second");
}

TEST_F(PreviousFile, IsNoneOfAFirstStart) {
    start(today);
    EXPECT_TRUE(store_.files.empty());
}

TEST_F(PreviousFile, StaysWhereTheFileIsEmptyOrUnreadable) {
    store_.files[path_] = "good";
    start("2024-05-16 10:00:00");
    store_.files[path_] = "";
    start(today);
    EXPECT_EQ(store_.files[previous_], "good");
    store_.files[path_] = "held";
    store_.held.insert(path_);
    start(today);
    EXPECT_EQ(store_.files[previous_], "good");
}

/// Two copies of the program with the same file.
class OtherVersionsTest : public testing::Test {
  protected:
    struct Copy {
        explicit Copy(MemoryINIFile& ini) : file(ini.store, ini.codePage, ini.presenter) {
            file.setPath(MemoryINIFile::path);
            file.setCurrentSection("S");
            file.TextValue("Key", "none");
            file.noteAsRead();
        }
        bool write(MemoryINIFile& ini, const std::string& value) {
            const bool kept = others(ini).keep(file).written;
            if (kept) {
                const auto group = file.group();
                file.Delete();
                file.setStringValue("Key", value);
            }
            return kept;
        }
        OtherVersions& others(MemoryINIFile& ini) {
            if (!others_) {
                others_.emplace(ini.store);
            }
            return *others_;
        }
        INIFile file;
        std::optional<OtherVersions> others_;
    };

    static std::string holding(const std::string& value) { return "[S]\r\nKey=" + value + "\r\n"; }
    std::string& other(const std::string& number = "") {
        return ini_.store.files["C:\\data\\settings (other" + number + ").ini"];
    }

    MemoryINIFile ini_;
};

TEST_F(OtherVersionsTest, OneCopyAloneKeepsNothing) {
    Copy only(ini_);
    EXPECT_TRUE(only.write(ini_, "a"));
    EXPECT_TRUE(only.write(ini_, "b"));
    EXPECT_EQ(ini_.bytes(), holding("b"));
    EXPECT_EQ(ini_.store.files.size(), 1U);
}

TEST_F(OtherVersionsTest, WhatThisCopyHasNotSeenStaysBeside) {
    ini_.bytes() = holding("both");
    Copy first(ini_);
    Copy second(ini_);
    first.write(ini_, "first");
    EXPECT_EQ(ini_.store.files.size(), 1U);
    second.write(ini_, "second");
    EXPECT_EQ(ini_.bytes(), holding("second"));
    EXPECT_EQ(other(), holding("first"));
}

TEST_F(OtherVersionsTest, AlsoWhereThereWasNoFileAtTheStart) {
    Copy first(ini_);
    Copy second(ini_);
    first.write(ini_, "first");
    second.write(ini_, "second");
    EXPECT_EQ(other(), holding("first"));
}

TEST_F(OtherVersionsTest, CopiesThatTakeTurnsNeedOneFile) {
    Copy first(ini_);
    Copy second(ini_);
    for (const char* const turn : {"1", "2", "3"}) {
        first.write(ini_, std::string("first ") + turn);
        second.write(ini_, std::string("second ") + turn);
        EXPECT_EQ(ini_.bytes(), holding(std::string("second ") + turn));
        EXPECT_EQ(other(), holding(std::string("first ") + turn));
    }
    EXPECT_EQ(ini_.store.files.size(), 2U);
}

TEST_F(OtherVersionsTest, WhatAnEarlierDayHasLeftStays) {
    other() = "from an earlier day";
    Copy first(ini_);
    Copy second(ini_);
    first.write(ini_, "first");
    second.write(ini_, "second");
    EXPECT_EQ(other(), "from an earlier day");
    EXPECT_EQ(other(" 2"), holding("first"));
    first.write(ini_, "third");
    EXPECT_EQ(other(" 2"), holding("second"));
    EXPECT_EQ(ini_.store.files.size(), 3U);
}

TEST_F(OtherVersionsTest, TheSameVersionIsKeptOnce) {
    other() = holding("first");
    Copy first(ini_);
    Copy second(ini_);
    first.write(ini_, "first");
    second.write(ini_, "second");
    EXPECT_EQ(ini_.store.files.size(), 2U);
}

TEST_F(OtherVersionsTest, NothingIsWrittenOverThatCannotBeKept) {
    Copy first(ini_);
    Copy second(ini_);
    first.write(ini_, "first");
    ini_.store.fullDisk = true;
    EXPECT_FALSE(second.write(ini_, "second"));
    EXPECT_EQ(ini_.bytes(), holding("first"));
}

TEST_F(OtherVersionsTest, AFileThatCouldNotBeReadIsKeptByItsWriting) {
    ini_.bytes() = holding("old");
    ini_.store.held.insert(MemoryINIFile::path);
    Copy copy(ini_);
    ini_.store.held.clear();
    copy.write(ini_, "new");
    EXPECT_EQ(ini_.store.files["C:\\data\\settings (kept 2024-05-17 08.30.12).ini"],
              holding("old"));
    EXPECT_EQ(ini_.store.files.size(), 2U);
}

}  // namespace
}  // namespace ormala
