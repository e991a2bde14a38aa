#include "storage/modStorage.h"

#include <gtest/gtest.h>

#include <string>

#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

TEST(FileExists, SaysNoOnlyForAFileNotFound) {
    MemoryFileStore store;
    store.files["C:\\data\\a.ini"] = "";
    store.unreadable.insert("C:\\data\\locked.ini");
    EXPECT_TRUE(FileExists(store, "C:\\data\\a.ini"));
    EXPECT_FALSE(FileExists(store, "C:\\data\\b.ini"));
    EXPECT_TRUE(FileExists(store, "C:\\data\\locked.ini"));
}

TEST(FileExists, SaysYesInAFolderThatIsMissing) {
    MemoryFileStore store;
    EXPECT_TRUE(FileExists(store, "C:\\nowhere\\a.ini"));
}

TEST(CreateFolderForFile, MakesAllFoldersButNotTheFile) {
    MemoryFileStore store;
    EXPECT_TRUE(CreateFolderForFile(store, "C:\\data\\x\\y\\a.ini"));
    EXPECT_TRUE(store.folders.contains("C:\\data\\x\\y"));
    EXPECT_FALSE(FileExists(store, "C:\\data\\x\\y\\a.ini"));
}

TEST(CreateFolderForFile, ReportsAFailure) {
    MemoryFileStore store;
    store.fullDisk = true;
    EXPECT_FALSE(CreateFolderForFile(store, "C:\\data\\x\\a.ini"));
}

TEST(CutAtNull, EndsBeforeTheFirstZeroByte) {
    std::string text("ab\0c\0", 5);
    CutAtNull(text);
    EXPECT_EQ(text, "ab");
    CutAtNull(text);
    EXPECT_EQ(text, "ab");
    text.assign(3, '\0');
    CutAtNull(text);
    EXPECT_EQ(text, "");
}

TEST(WriteFileHeader, NamesProgramVersionAndTimeInThatOrder) {
    MemoryINIFile ini;
    WriteFileHeader(ini.file, "3.1.5", "2024-01-31 23:05:09");
    EXPECT_EQ(ini.bytes(),
              "[General]\r\nSoftware=Ormala\r\nVersion=3.1.5\r\nTime=2024-01-31 23:05:09\r\n");
    EXPECT_EQ(ini.file.CurrentSection(), "General");
}

}  // namespace
}  // namespace ormala
