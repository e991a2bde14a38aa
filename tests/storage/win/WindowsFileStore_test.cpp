#include "storage/win/WindowsFileStore.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "storage/FileReplacement.h"
#include "storage/modStorage.h"
#include "storage/win/LongPath.h"
#include "storage/win/TemporaryFolder.h"

namespace ormala {
namespace {

using Status = ReadResult::Status;

class WindowsFileStoreTest : public testing::Test {
  protected:
    std::string contents(const std::string& path) {
        const ReadResult result = store_.read(path);
        return result.status == Status::ok ? result.bytes : "(unreadable)";
    }

    static void makeFile(const std::string& path) {
        CloseHandle(
            CreateFileW(longPath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    }

    TemporaryFolder folder_;
    WindowsFileStore store_;
    const std::string path_ = folder_.path("a.ini");
};

TEST_F(WindowsFileStoreTest, WritesAndReadsWholeFiles) {
    std::string bytes("[A]\r\n\0\xFF", 7);
    bytes += std::string(300'000, 'x');
    EXPECT_TRUE(store_.replace(path_, bytes));
    EXPECT_EQ(contents(path_), bytes);
    EXPECT_TRUE(store_.replace(path_, ""));
    EXPECT_EQ(contents(path_), "");
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(WindowsFileStoreTest, TellsAMissingFileFromAMissingFolder) {
    const std::string inMissingFolder = folder_.path("none\\a.ini");
    EXPECT_EQ(store_.read(path_).status, Status::notFound);
    EXPECT_EQ(store_.read(inMissingFolder).status, Status::notFound);
    EXPECT_EQ(store_.errorOfPath(path_), errorFileNotFound);
    EXPECT_EQ(store_.errorOfPath(inMissingFolder), errorPathNotFound);
    EXPECT_FALSE(FileExists(store_, path_));
    EXPECT_TRUE(FileExists(store_, inMissingFolder));
    EXPECT_TRUE(FileExists(store_, ""));
    store_.replace(path_, "x");
    EXPECT_EQ(store_.errorOfPath(path_), 0);
}

TEST_F(WindowsFileStoreTest, AFolderIsNoFile) {
    ASSERT_TRUE(store_.createFolders(folder_.path("a.ini\\")));
    EXPECT_EQ(store_.read(path_).status, Status::failed);
    EXPECT_FALSE(store_.replace(path_, "x"));
    EXPECT_FALSE(store_.remove(path_).removed);
    EXPECT_TRUE(FileExists(store_, path_));
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(WindowsFileStoreTest, ADeviceIsNoFile) {
    EXPECT_EQ(store_.read("NUL").status, Status::failed);
    EXPECT_EQ(store_.read("").status, Status::failed);
    EXPECT_EQ(store_.read(std::string("a\0b", 3)).status, Status::failed);
    EXPECT_FALSE(store_.replace("", "x"));
}

TEST_F(WindowsFileStoreTest, CantWriteIntoAMissingFolder) {
    EXPECT_FALSE(store_.replace(folder_.path("none\\a.ini"), "x"));
    EXPECT_EQ(folder_.entries(), 0);
}

TEST_F(WindowsFileStoreTest, LeavesAReadOnlyFileAlone) {
    store_.replace(path_, "old");
    SetFileAttributesW(longPath(path_).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(store_.replace(path_, "new"));
    EXPECT_EQ(contents(path_), "old");
    EXPECT_EQ(folder_.entries(), 1);
    const RemoveResult result = store_.remove(path_);
    EXPECT_FALSE(result.removed);
    EXPECT_NE(result.description, "");
    EXPECT_EQ(result.description.find_first_of("\r\n"), std::string::npos);
    SetFileAttributesW(longPath(path_).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFileStoreTest, KeepsTheOldFileWhereItCantBeReplaced) {
    store_.replace(path_, "old");
    const HANDLE holder = CreateFileW(longPath(path_).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_FALSE(store_.replace(path_, "new"));
    CloseHandle(holder);
    EXPECT_EQ(contents(path_), "old");
    EXPECT_EQ(folder_.entries(), 1);
    EXPECT_TRUE(store_.replace(path_, "new"));
    EXPECT_EQ(contents(path_), "new");
}

TEST_F(WindowsFileStoreTest, TellsWhetherAFileCouldBeRemovedAndLeavesIt) {
    EXPECT_FALSE(store_.couldRemove(path_).removed);
    store_.replace(path_, "kept");
    EXPECT_TRUE(store_.couldRemove(path_).removed);
    SetFileAttributesW(longPath(path_).c_str(), FILE_ATTRIBUTE_READONLY);
    const RemoveResult readOnly = store_.couldRemove(path_);
    EXPECT_FALSE(readOnly.removed);
    EXPECT_EQ(readOnly.description, store_.remove(path_).description);
    SetFileAttributesW(longPath(path_).c_str(), FILE_ATTRIBUTE_NORMAL);
    const HANDLE holder = CreateFileW(longPath(path_).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    const RemoveResult held = store_.couldRemove(path_);
    EXPECT_FALSE(held.removed);
    EXPECT_EQ(held.description, store_.remove(path_).description);
    CloseHandle(holder);
    EXPECT_EQ(contents(path_), "kept");
}

TEST_F(WindowsFileStoreTest, RemovesTheFilesThatACrashLeftBehind) {
    const unsigned long own = GetCurrentProcessId();
    for (const std::string& name : {neighbourName(own, 0), neighbourName(own + 1, 7)}) {
        makeFile(folder_.path(name));
    }
    EXPECT_TRUE(store_.replace(path_, "new"));
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(WindowsFileStoreTest, PassesOverTheFileThatAnotherCopyOfTheProgramWrites) {
    const std::string held = folder_.path(neighbourName(GetCurrentProcessId(), 0));
    const HANDLE file =
        CreateFileW(longPath(held).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    EXPECT_TRUE(store_.replace(path_, "new"));
    CloseHandle(file);
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(contents(held), "");
}

TEST_F(WindowsFileStoreTest, LeavesOtherTemporaryFilesAlone) {
    const std::string names[] = {"~settings-1-.tmp", "~settings-mine-1.tmp", "~1-1.tmp"};
    for (const std::string& name : names) {
        makeFile(folder_.path(name));
    }
    EXPECT_TRUE(store_.replace(path_, "new"));
    EXPECT_EQ(folder_.entries(), 4);
}

TEST_F(WindowsFileStoreTest, TakesAnyCharactersInAPath) {
    const std::string path = folder_.path("\u6f22\u03a9 \u00fc\U0001F600\\b.OM");
    EXPECT_TRUE(CreateFolderForFile(store_, path));
    EXPECT_TRUE(store_.replace(path, "x"));
    EXPECT_EQ(contents(path), "x");
    EXPECT_TRUE(store_.remove(path).removed);
    EXPECT_FALSE(FileExists(store_, path));
}

TEST_F(WindowsFileStoreTest, TakesPathsOfAnyLength) {
    const std::string name(100, 'n');
    const std::string path =
        folder_.path(name + "\\" + name + "/" + name + "\\.\\" + name + "\\c.ini");
    ASSERT_GT(path.size(), 400U);
    EXPECT_TRUE(CreateFolderForFile(store_, path));
    EXPECT_TRUE(CreateFolderForFile(store_, path));
    EXPECT_TRUE(store_.replace(path, "long"));
    EXPECT_EQ(contents(path), "long");
    EXPECT_TRUE(store_.remove(path).removed);
}

TEST_F(WindowsFileStoreTest, CantMakeAFolderWhereAFileIs) {
    store_.replace(path_, "x");
    EXPECT_FALSE(CreateFolderForFile(store_, path_ + "\\sub\\b.ini"));
    EXPECT_FALSE(CreateFolderForFile(store_, ""));
}

TEST_F(WindowsFileStoreTest, DoesNotReadFilesBeyondTheSizeOfSettings) {
    {
        const HANDLE file =
            CreateFileW(longPath(path_).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        LARGE_INTEGER size{};
        size.QuadPart = static_cast<LONGLONG>(largestSettingsFile) + 1;
        SetFilePointerEx(file, size, nullptr, FILE_BEGIN);
        SetEndOfFile(file);
        CloseHandle(file);
    }
    EXPECT_EQ(store_.read(path_).status, Status::failed);
}

TEST(LongPath, HasTheLongFormForEveryKindOfPath) {
    EXPECT_EQ(longPath("C:\\a\\b"), LR"(\\?\C:\a\b)");
    EXPECT_EQ(longPath("C:/a/./x/../b"), LR"(\\?\C:\a\b)");
    EXPECT_EQ(longPath(R"(\\server\share\b)"), LR"(\\?\UNC\server\share\b)");
    EXPECT_EQ(longPath(R"(\\?\C:\a)"), LR"(\\?\C:\a)");
    EXPECT_EQ(longPath(""), L"");
}

}  // namespace
}  // namespace ormala
