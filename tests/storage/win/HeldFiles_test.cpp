#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <thread>

#include "storage/FileReplacement.h"
#include "storage/modStorage.h"
#include "storage/win/LongPath.h"
#include "storage/win/TemporaryFolder.h"
#include "storage/win/WindowsFileStore.h"
#include "support/win/HeldFile.h"
#include "support/win/danglingLink.h"

// Files that can't be read, and what becomes of them when they are written over.

namespace ormala {
namespace {

using Status = ReadResult::Status;
using test::HeldFile;

class HeldFiles : public testing::Test {
  protected:
    HeldFiles() { EXPECT_TRUE(store_.replace(path_, "old")); }

    std::string contents(const std::string& path) {
        const ReadResult result = store_.read(path);
        return result.status == Status::ok ? result.bytes : "(unreadable)";
    }

    /// The contents of the only file with such a name.
    std::string kept() {
        WIN32_FIND_DATAW entry{};
        const HANDLE search =
            FindFirstFileW(longPath(folder_.path("a (kept *).ini")).c_str(), &entry);
        if (search == INVALID_HANDLE_VALUE) {
            return "(none)";
        }
        FindClose(search);
        const std::wstring name = entry.cFileName;
        return contents(folder_.path(std::string(name.begin(), name.end())));
    }

    /// Writes a file that another program lets go long after the first tries.
    WriteResult writtenWhileLetGo(WriteResult (WindowsFileStore::*write)(const std::string&,
                                                                         std::string_view)) {
        HeldFile holder(widePath_, FILE_SHARE_READ);
        std::thread other([&holder] {
            Sleep(1200);
            holder.release();
        });
        const WriteResult result = (store_.*write)(path_, "new");
        other.join();
        return result;
    }

    TemporaryFolder folder_;
    WindowsFileStore store_;
    const std::string path_ = folder_.path("a.ini");
    const std::wstring widePath_ = longPath(path_);
};

TEST_F(HeldFiles, AreUnreadableAndThere) {
    const HeldFile holder(widePath_);
    EXPECT_EQ(store_.readAtOnce(path_).status, Status::failed);
    EXPECT_TRUE(FileExists(store_, path_));
}

TEST_F(HeldFiles, AreWaitedForAboutTwoSeconds) {
    const HeldFile holder(widePath_);
    const ULONGLONG start = GetTickCount64();
    EXPECT_EQ(store_.read(path_).status, Status::failed);
    EXPECT_GE(GetTickCount64() - start, 1950U);
}

TEST_F(HeldFiles, AreReadWhenTheyAreLetGoSoon) {
    HeldFile holder(widePath_);
    std::thread other([&holder] {
        Sleep(300);
        holder.release();
    });
    const ReadResult result = store_.read(path_);
    other.join();
    EXPECT_EQ(result.status, Status::ok);
    EXPECT_EQ(result.bytes, "old");
}

TEST_F(HeldFiles, CouldBeRemovedWhenTheyAreLetGoSoon) {
    HeldFile holder(widePath_, FILE_SHARE_READ);
    std::thread other([&holder] {
        Sleep(300);
        holder.release();
    });
    const RemoveResult result = store_.couldRemove(path_);
    other.join();
    EXPECT_TRUE(result.removed) << result.description;
}

TEST_F(HeldFiles, AreReplacedWhenTheyAreLetGoWithinTwoSeconds) {
    const WriteResult result = writtenWhileLetGo(&WindowsFileStore::replace);
    EXPECT_TRUE(result.written) << result.description;
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(HeldFiles, AreKeptWhenTheyAreLetGoWithinTwoSeconds) {
    const WriteResult result = writtenWhileLetGo(&WindowsFileStore::replaceKeeping);
    EXPECT_TRUE(result.written) << result.description;
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(kept(), "old");
}

TEST_F(HeldFiles, StayAsTheyAreWhereTheyCantBeKept) {
    for (const DWORD share : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
        HeldFile holder(widePath_, share);
        const WriteResult result = store_.replaceKeeping(path_, "new");
        EXPECT_FALSE(result.written);
        EXPECT_NE(result.description, "");
        holder.release();
        EXPECT_EQ(contents(path_), "old");
        EXPECT_EQ(folder_.entries(), 1);
    }
}

TEST_F(HeldFiles, AreKeptBesideTheNewOne) {
    EXPECT_TRUE(store_.replaceKeeping(path_, "new"));
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(kept(), "old");
    EXPECT_EQ(folder_.entries(), 2);
}

TEST_F(HeldFiles, AreAllKeptHoweverSoonTheyFollowEachOther) {
    for (int i = 1; i <= 5; ++i) {
        EXPECT_TRUE(store_.replaceKeeping(path_, "new"));
        EXPECT_EQ(folder_.entries(), 1 + i);
    }
}

TEST_F(HeldFiles, AMissingOneNeedsNoKeeping) {
    ASSERT_TRUE(store_.remove(path_).removed);
    EXPECT_TRUE(store_.replaceKeeping(path_, "new"));
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(HeldFiles, AReadOnlyOneIsNotMovedAway) {
    SetFileAttributesW(widePath_.c_str(), FILE_ATTRIBUTE_READONLY);
    const WriteResult result = store_.replaceKeeping(path_, "new");
    EXPECT_FALSE(result.written);
    EXPECT_NE(result.description, "");
    EXPECT_EQ(contents(path_), "old");
    EXPECT_EQ(folder_.entries(), 1);
    SetFileAttributesW(widePath_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(HeldFiles, AFolderOfThatNameIsNotMovedAway) {
    ASSERT_TRUE(store_.remove(path_).removed);
    ASSERT_TRUE(store_.createFolders(path_ + "\\"));
    EXPECT_EQ(store_.read(path_).status, Status::failed);
    EXPECT_FALSE(store_.replaceKeeping(path_, "new"));
    EXPECT_EQ(folder_.entries(), 1);
}

TEST_F(HeldFiles, OneThatIsTooLargeIsKept) {
    {
        const HANDLE file =
            CreateFileW(widePath_.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        LARGE_INTEGER size{};
        size.QuadPart = static_cast<LONGLONG>(largestSettingsFile) + 1;
        SetFilePointerEx(file, size, nullptr, FILE_BEGIN);
        SetEndOfFile(file);
        CloseHandle(file);
    }
    EXPECT_EQ(store_.read(path_).status, Status::failed);
    EXPECT_TRUE(store_.replaceKeeping(path_, "new"));
    EXPECT_EQ(contents(path_), "new");
    EXPECT_EQ(folder_.entries(), 2);
}

TEST_F(HeldFiles, AFailureHasTheSystemsReason) {
    const WriteResult noFolder = store_.replace(folder_.path("none\\a.ini"), "x");
    EXPECT_FALSE(noFolder.written);
    EXPECT_NE(noFolder.description, "");
    const HeldFile holder(widePath_, FILE_SHARE_READ);
    const WriteResult held = store_.replace(path_, "x");
    EXPECT_FALSE(held.written);
    EXPECT_NE(held.description, "");
    EXPECT_NE(held.description, noFolder.description);
}

TEST_F(HeldFiles, ALinkThatLeadsNowhereIsAFileThatIsNotThere) {
    const std::string link = folder_.path("link.ini");
    const std::wstring folder = longPath(folder_.path(""));
    test::makeDanglingLink(folder.substr(0, folder.size() - 1), L"link.ini");
    EXPECT_EQ(store_.read(link).status, Status::notFound);
    EXPECT_EQ(store_.errorOfPath(link), errorFileNotFound);
    EXPECT_FALSE(FileExists(store_, link));
    EXPECT_TRUE(store_.replace(link, "new"));
    EXPECT_EQ(contents(link), "new");
}

}  // namespace
}  // namespace ormala
