#include "storage/RunFiles.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(RunFiles, KnowNothingAtFirst) {
    const RunFiles files;
    EXPECT_FALSE(files.couldNotRead("C:\\a.OM"));
    EXPECT_EQ(files.contentsOf("C:\\a.OM"), std::nullopt);
    EXPECT_EQ(files.contentsOf(""), std::nullopt);
}

TEST(RunFiles, AFileStaysUnreadableUntilItsContentsAreNoted) {
    RunFiles files;
    files.noteUnreadable("C:\\a.OM");
    files.noteContents("C:\\b.OM", "x");
    EXPECT_TRUE(files.couldNotRead("C:\\a.OM"));
    EXPECT_FALSE(files.couldNotRead("C:\\b.OM"));
    files.noteContents("C:\\a.OM", "x");
    EXPECT_FALSE(files.couldNotRead("C:\\a.OM"));
}

TEST(RunFiles, HaveTheLastContentsOfEachFile) {
    RunFiles files;
    files.noteContents("C:\\a.OM", "x");
    EXPECT_EQ(files.contentsOf("C:\\a.OM"), "x");
    files.noteContents("C:\\b.OM", "y");
    EXPECT_EQ(files.contentsOf("C:\\b.OM"), "y");
    EXPECT_EQ(files.contentsOf("C:\\a.OM"), "x");
    files.noteContents("C:\\a.OM", "z");
    EXPECT_EQ(files.contentsOf("C:\\a.OM"), "z");
}

TEST(RunFiles, TheCaseOfAPathIsNoDifference) {
    RunFiles files;
    files.noteContents("C:\\Data\\a.om", "x");
    EXPECT_EQ(files.contentsOf("c:\\data\\A.OM"), "x");
    files.noteUnreadable("C:\\b.om");
    EXPECT_TRUE(files.couldNotRead("c:\\B.OM"));
}

}  // namespace
}  // namespace ormala
