#include <gtest/gtest.h>

#include "support/BreakableFileStore.h"
#include "support/MemoryCodePage.h"
#include "support/SettingsRun.h"

// A save that goes wrong at any of its steps leaves the settings files whole.

namespace ormala {
namespace {

using Break = BreakableFileStore::Break;

const std::string folder = "C:\\data";

class InterruptedSaves : public testing::TestWithParam<Break> {
  protected:
    InterruptedSaves() {
        for (const int variant : {1, 0}) {
            SettingsRun run(disk_, codePage_, folder);
            run.makeTools(variant);
            run.saveTools();
            run.saveOptions();
            tools_[variant] = disk_.files.at(run.toolsPath);
            options_[variant] = disk_.files.at(run.optionsPath);
        }
        before_ = disk_.files;
    }

    /// Saves the second variant over the first one, with the break at a step of both files' ten.
    void breakSaves(int step) {
        disk_.files = before_;
        SettingsRun run(disk_, codePage_, folder);
        run.makeTools(1);
        disk_.breakAt(step, GetParam());
        run.saveTools();
        run.saveOptions();
        stepsTaken_ = disk_.steps();
        disk_.restart();
    }

    /// The next run of the program finds one of the two variants of each file, and both load.
    void expectWholeFiles() {
        SettingsRun next(disk_, codePage_, folder);
        EXPECT_TRUE(isOneOf(disk_.files.at(next.toolsPath), tools_));
        EXPECT_TRUE(isOneOf(disk_.files.at(next.optionsPath), options_));
        next.loadTools();
        EXPECT_EQ(next.toolsInUse(), static_cast<std::size_t>(SettingsRun::toolCount));
        EXPECT_TRUE(next.toolsEqualFile());
        const Options options = next.loadOptions();
        EXPECT_TRUE(options == SettingsRun::optionsOf(0) || options == SettingsRun::optionsOf(1));
        EXPECT_TRUE(next.messages().empty());
    }

    /// The next save has its whole effect, and nothing else is left in the folder.
    void expectCleanSave() {
        SettingsRun next(disk_, codePage_, folder);
        next.makeTools(1);
        next.saveTools();
        next.saveOptions();
        EXPECT_EQ(disk_.files, (std::map<std::string, std::string>{
                                   {next.toolsPath, tools_[1]}, {next.optionsPath, options_[1]}}));
    }

    static bool isOneOf(const std::string& bytes, const std::string (&variants)[2]) {
        return bytes == variants[0] || bytes == variants[1];
    }

    static constexpr int stepsOfBothSaves = 10;
    int stepsTaken_ = 0;
    BreakableFileStore disk_;
    MemoryCodePage codePage_;
    std::string tools_[2];
    std::string options_[2];
    std::map<std::string, std::string> before_;
};

TEST_P(InterruptedSaves, LeaveEachFileOldOrNewAndTheNextSaveCleansUp) {
    for (int step = 0; step <= stepsOfBothSaves; ++step) {
        SCOPED_TRACE(step);
        breakSaves(step);
        expectWholeFiles();
        expectCleanSave();
    }
}

TEST_P(InterruptedSaves, TakeEffectOnceTheirLastStepIsDone) {
    breakSaves(stepsOfBothSaves);
    EXPECT_EQ(stepsTaken_, stepsOfBothSaves);
    const SettingsRun next(disk_, codePage_, folder);
    EXPECT_EQ(disk_.files.at(next.toolsPath), tools_[1]);
    EXPECT_EQ(disk_.files.at(next.optionsPath), options_[1]);
    EXPECT_NE(tools_[0], tools_[1]);
    EXPECT_NE(options_[0], options_[1]);
}

INSTANTIATE_TEST_SUITE_P(Ways, InterruptedSaves,
                         testing::Values(Break::failsOnce, Break::failsFromThenOn, Break::dies),
                         [](const testing::TestParamInfo<Break>& way) -> std::string {
                             switch (way.param) {
                                 case Break::failsOnce:
                                     return "AFullDisk";
                                 case Break::failsFromThenOn:
                                     return "ADiskThatIsGone";
                                 default:
                                     return "AnEndOfTheProcess";
                             }
                         });

}  // namespace
}  // namespace ormala
