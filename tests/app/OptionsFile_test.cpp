#include "app/OptionsFile.h"

#include <gtest/gtest.h>

#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

class OptionsFileTest : public testing::Test {
  protected:
    OptionsFileTest() {
        kept_.places = {{"FormSettings", {1, {10, 20, 110, 220}}}};
        ini_.file.noteAsRead();
    }
    bool save() { return file_.save(kept_, "1.0.0", "2024-05-17 08:30:12"); }

    MemoryINIFile ini_;
    KeptOptions kept_;
    OptionsFile file_{ini_.file, ini_.store};
};

TEST_F(OptionsFileTest, HoldsOptionsAndPlaces) {
    EXPECT_TRUE(save());
    for (const char* const part :
         {"[General]\r\nSoftware=Ormala\r\nVersion=1.0.0\r\nTime=2024-05-17 08:30:12\r\n",
          "[Options]\r\nShowReferenceLines=-1\r\n", "[FormSettings]\r\nLeft= 10\r\nTop= 20\r\n",
          "WindowState= 1\r\n"}) {
        EXPECT_NE(ini_.bytes().find(part), std::string::npos) << part;
    }
}

TEST_F(OptionsFileTest, DiffersByEachOptionAndEachPlace) {
    EXPECT_TRUE(file_.differ(kept_)) << "nothing is saved yet";
    file_.noteAsSaved(kept_);
    EXPECT_FALSE(file_.differ(kept_));
    KeptOptions other = kept_;
    other.options.aids.grid.steps.stepX = 7;
    EXPECT_TRUE(file_.differ(other));
    other = kept_;
    other.places.front().second.rcNormalPosition.left = 11;
    EXPECT_TRUE(file_.differ(other));
    other = kept_;
    other.places.front().second.showCmd = 3;
    EXPECT_TRUE(file_.differ(other));
}

TEST_F(OptionsFileTest, WhatIsSavedDiffersNoMore) {
    kept_.options.language = 1031;
    EXPECT_TRUE(save());
    EXPECT_FALSE(file_.differ(kept_));
}

TEST_F(OptionsFileTest, WhatCouldNotBeSavedStillDiffers) {
    ini_.store.fullDisk = true;
    EXPECT_FALSE(save());
    EXPECT_TRUE(file_.differ(kept_));
    EXPECT_EQ(ini_.presenter.errors.size(), 1U);
}

TEST_F(OptionsFileTest, WhatAnotherCopyHasWrittenStaysBeside) {
    save();
    ini_.bytes() += "[Other]\r\nKey=1\r\n";
    const std::string others = ini_.bytes();
    kept_.options.language = 1031;
    EXPECT_TRUE(save());
    EXPECT_EQ(ini_.store.files["C:\\data\\settings (other).ini"], others);
    EXPECT_NE(ini_.bytes().find("[Other]"), std::string::npos) << "and what is unknown stays";
    ini_.bytes() += "[More]\r\nKey=1\r\n";
    const std::string present = ini_.bytes();
    ini_.store.fullDisk = true;
    EXPECT_FALSE(save());
    EXPECT_EQ(ini_.bytes(), present);
    EXPECT_EQ(ini_.presenter.errors.size(), 1U);
}

}  // namespace
}  // namespace ormala
