#include "storage/FileReplacement.h"

#include <gtest/gtest.h>

#include "support/BreakableFileStore.h"

namespace ormala {
namespace {

using Break = BreakableFileStore::Break;

const std::string path = "C:\\data\\a.ini";

class FileReplacement : public testing::Test {
  protected:
    FileReplacement() { disk_.files[path] = "old"; }

    /// The contents of the file after a replacement that goes wrong in this way.
    std::string brokenReplacement(int step, Break how, bool& replaced) {
        disk_.breakAt(step, how);
        replaced = disk_.replace(path, "new bytes").written;
        disk_.restart();
        return disk_.files[path];
    }

    BreakableFileStore disk_;
};

TEST_F(FileReplacement, TakesFiveStepsAndLeavesTheNewFileAlone) {
    EXPECT_TRUE(disk_.replace(path, "new bytes"));
    EXPECT_EQ(disk_.steps(), 5);
    EXPECT_EQ(disk_.files.size(), 1U);
    disk_.restart();
    EXPECT_EQ(disk_.files[path], "new bytes");
}

TEST_F(FileReplacement, AFailureAtAnyStepButTheCleaningKeepsTheOldFileAndLeavesNoOther) {
    for (int step = 1; step < 5; ++step) {
        bool replaced = true;
        EXPECT_EQ(brokenReplacement(step, Break::failsOnce, replaced), "old") << step;
        EXPECT_FALSE(replaced) << step;
        EXPECT_EQ(disk_.files.size(), 1U) << step;
    }
}

TEST_F(FileReplacement, AFailureToCleanHindersNothing) {
    bool replaced = false;
    EXPECT_EQ(brokenReplacement(0, Break::failsOnce, replaced), "new bytes");
    EXPECT_TRUE(replaced);
}

TEST_F(FileReplacement, AnEndAtAnyStepLeavesTheOldFileOrTheNewOne) {
    for (int step = 0; step < 5; ++step) {
        bool replaced = true;
        EXPECT_EQ(brokenReplacement(step, Break::dies, replaced), "old") << step;
        EXPECT_FALSE(replaced) << step;
    }
    bool replaced = false;
    EXPECT_EQ(brokenReplacement(5, Break::dies, replaced), "new bytes");
}

TEST_F(FileReplacement, TheNextOneRemovesWhatAnEndLeftBehind) {
    bool replaced = true;
    brokenReplacement(3, Break::dies, replaced);
    EXPECT_EQ(disk_.files.size(), 2U);
    EXPECT_TRUE(disk_.replace(path, "new bytes"));
    EXPECT_EQ(disk_.files.size(), 1U);
    EXPECT_EQ(disk_.files[path], "new bytes");
}

TEST_F(FileReplacement, ADiskThatIsGoneLeavesItsRestToTheNextOne) {
    bool replaced = true;
    EXPECT_EQ(brokenReplacement(2, Break::failsFromThenOn, replaced), "old");
    EXPECT_EQ(disk_.files.size(), 2U);
    EXPECT_TRUE(disk_.replace(path, "new bytes"));
    EXPECT_EQ(disk_.files.size(), 1U);
}

const std::string keptPath = keptName(path, "2024-05-17 08:30:12", 1);

TEST_F(FileReplacement, KeepsTheOldFileBesideTheNewOne) {
    EXPECT_TRUE(disk_.replaceKeeping(path, "new bytes"));
    EXPECT_EQ(disk_.files,
              (std::map<std::string, std::string>{{path, "new bytes"}, {keptPath, "old"}}));
}

TEST_F(FileReplacement, AKeepingThatFailsWritesNothingAndPutsTheOldFileBack) {
    for (int step = 1; step < 6; ++step) {
        SCOPED_TRACE(step);
        disk_.breakAt(step, Break::failsOnce);
        EXPECT_FALSE(disk_.replaceKeeping(path, "new bytes"));
        EXPECT_EQ(disk_.files, (std::map<std::string, std::string>{{path, "old"}}));
    }
}

TEST_F(FileReplacement, AnEndAtAnyStepOfAKeepingLeavesTheOldBytesSomewhere) {
    for (int step = 0; step <= 6; ++step) {
        SCOPED_TRACE(step);
        disk_.files = {{path, "old"}};
        disk_.breakAt(step, Break::dies);
        disk_.replaceKeeping(path, "new bytes");
        disk_.restart();
        const auto old = disk_.files.contains(keptPath) ? keptPath : path;
        EXPECT_EQ(disk_.files[old], "old");
    }
}

TEST(KeptName, StandsInFrontOfTheExtension) {
    const std::string time = "2024-01-31 23:05:09";
    EXPECT_EQ(keptName("C:\\a b\\c.OM", time, 1), "C:\\a b\\c (kept 2024-01-31 23.05.09).OM");
    EXPECT_EQ(keptName("c.tar.OM", time, 1), "c.tar (kept 2024-01-31 23.05.09).OM");
}

TEST(KeptName, StandsAtTheEndOfANameWithoutAnExtension) {
    const std::string time = "2024-01-31 23:05:09";
    EXPECT_EQ(keptName("C:\\a.b\\c", time, 1), "C:\\a.b\\c (kept 2024-01-31 23.05.09)");
    EXPECT_EQ(keptName("c", time, 1), "c (kept 2024-01-31 23.05.09)");
}

TEST(KeptName, CountsWhereThereIsOneAlready) {
    EXPECT_EQ(keptName("c.OM", "2024-01-31 23:05:09", 2), "c (kept 2024-01-31 23.05.09, 2).OM");
}

TEST(NeighbourName, IsKnownAsSuch) {
    EXPECT_EQ(neighbourName(4711, 0), "~settings-4711-0.tmp");
    EXPECT_TRUE(isNeighbourName(neighbourName(4711, 0)));
    EXPECT_TRUE(isNeighbourName(neighbourName(4294967295UL, 99)));
}

TEST(NeighbourName, NoOtherNameIsTakenForOne) {
    const char* const others[] = {
        "",
        "~settings-",
        "~settings-.tmp",
        "~settings-1.tmp",
        "~settings--1.tmp",
        "~settings-1-.tmp",
        "~settings-1-2-3.tmp",
        "~settings-x-1.tmp",
        "~settings-1-0.tmp2",
        "x~settings-1-0.tmp",
    };
    for (const char* name : others) {
        EXPECT_FALSE(isNeighbourName(name)) << name;
    }
}

}  // namespace
}  // namespace ormala
