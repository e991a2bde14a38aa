#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <random>

#include "base/Utf8.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "support/MemoryFileStore.h"
#include "support/SettingsRun.h"
#include "support/win/ChildProcess.h"
#include "support/win/TemporaryFolder.h"
#include "support/win/WideText.h"

// A process that saves the settings all the time is killed at random moments.

namespace ormala {
namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::microseconds;

std::filesystem::path saverProgram() {
    wchar_t path[1024]{};
    GetModuleFileNameW(nullptr, path, 1024);
    return std::filesystem::path(path).parent_path() / "settings_saver.exe";
}

/// Starts the saver and returns when it has saved both variants once.
std::unique_ptr<test::ChildProcess> startSaver(const std::filesystem::path& folder) {
    static int number = 0;
    const std::wstring name = L"ormala-saver-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                              std::to_wstring(++number);
    const test::KernelHandle ready(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
    auto saver = std::make_unique<test::ChildProcess>(
        saverProgram(), std::vector<std::wstring>{folder.wstring(), name});
    EXPECT_EQ(WaitForSingleObject(ready.get(), 10000), WAIT_OBJECT_0);
    return saver;
}

class KilledSaves : public testing::Test {
  protected:
    KilledSaves() {
        MemoryFileStore memory;
        memory.folders.insert(folderName_);
        for (const int variant : {0, 1}) {
            SettingsRun run(memory, codePage_, folderName_);
            run.makeTools(variant);
            run.saveTools();
            run.saveOptions();
            tools_[variant] = memory.files.at(run.toolsPath);
            options_[variant] = memory.files.at(run.optionsPath);
        }
        own_.makeTools(0);
    }

    void save() {
        own_.saveTools();
        own_.saveOptions();
    }

    /// How long the saver takes for both of its variants.
    Microseconds roundTime() {
        save();
        const auto start = Clock::now();
        save();
        save();
        return std::chrono::duration_cast<Microseconds>(Clock::now() - start);
    }

    [[nodiscard]] std::ptrdiff_t filesInFolder() const {
        const std::filesystem::directory_iterator entries(folder_.path());
        return std::distance(begin(entries), end(entries));
    }

    void expectWholeFiles() {
        EXPECT_TRUE(isOneOf(store_.read(own_.toolsPath), tools_));
        EXPECT_TRUE(isOneOf(store_.read(own_.optionsPath), options_));
    }

    void expectFilesToLoad() {
        own_.loadTools();
        EXPECT_EQ(own_.toolsInUse(), static_cast<std::size_t>(SettingsRun::toolCount));
        EXPECT_TRUE(own_.toolsEqualFile());
        const Options options = own_.loadOptions();
        EXPECT_TRUE(options == SettingsRun::optionsOf(0) || options == SettingsRun::optionsOf(1));
        EXPECT_TRUE(own_.messages().empty());
    }

    static bool isOneOf(const ReadResult& file, const std::string (&variants)[2]) {
        return file.status == ReadResult::Status::ok &&
               (file.bytes == variants[0] || file.bytes == variants[1]);
    }

    const test::TemporaryFolder folder_;
    const std::string folderName_ = test::narrow(folder_.path().wstring());
    WindowsFileStore store_;
    const WindowsCodePage codePage_;
    SettingsRun own_{store_, codePage_, folderName_};
    std::string tools_[2];
    std::string options_[2];
};

TEST_F(KilledSaves, AHundredAtRandomLeaveBothFilesWholeAndNothingElseAfterTheNextSave) {
    const auto given = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
    const unsigned seed = given != 0 ? given : std::random_device()() % 99999 + 1;
    std::printf("again with --gtest_random_seed=%u\n", seed);
    std::mt19937 random(seed);
    std::uniform_int_distribution<long long> moments(0, 2 * roundTime().count());
    int leftovers = 0;
    for (int kill = 1; kill <= 100; ++kill) {
        const Microseconds moment(moments(random));
        SCOPED_TRACE("kill " + std::to_string(kill) + " after " + std::to_string(moment.count()) +
                     " microseconds, seed " + std::to_string(seed));
        const auto saver = startSaver(folder_.path());
        for (const auto end = Clock::now() + moment; Clock::now() < end;) {
        }
        saver->kill();
        leftovers += filesInFolder() > 2 ? 1 : 0;
        expectWholeFiles();
        expectFilesToLoad();
        own_.makeTools(kill % 2);
        save();
        EXPECT_EQ(filesInFolder(), 2);
        expectWholeFiles();
    }
    std::printf("%d of 100 kills left a temporary file behind\n", leftovers);
}

}  // namespace
}  // namespace ormala
