#include "app/AutomaticTools.h"

#include "app/DocumentsFixture.h"

namespace ormala {
namespace {

/// A run with the tools of the one before.
class AutomaticToolsTest : public DocumentsFixture {
  protected:
    AutomaticToolsTest() { startWithTools(); }

    std::string& beside(const std::string& word) {
        return file("C:\\data\\Ormala Tools (" + word + ").ini");
    }
};

TEST_F(AutomaticToolsTest, NothingIsWrittenWhereNothingHasChanged) {
    const int writes = ini_.store.writes;
    EXPECT_FALSE(automatic_.differ());
    EXPECT_TRUE(automatic_.saveChanges());
    EXPECT_EQ(ini_.store.writes, writes);
}

TEST_F(AutomaticToolsTest, EachChangeIsWrittenOnce) {
    stage_.stencil(0).setLineWidth(7);
    EXPECT_TRUE(automatic_.differ());
    EXPECT_TRUE(automatic_.saveChanges());
    EXPECT_NE(file(automaticPath).find("LineWidth= 7"), std::string::npos);
    EXPECT_FALSE(automatic_.differ());
    const int writes = ini_.store.writes;
    time_ = "2024-05-17 09:00:00";
    automatic_.saveChanges();
    EXPECT_EQ(ini_.store.writes, writes) << "the time alone is no change";
    for (const auto& change : std::vector<std::function<void()>>{
             [this] { stage_.stencil(0).setPause(true); },
             [this] { stage_.measure(1).setColorA(5); },
             [this] { stage_.measure(1).setNumber(9); },
             [this] { stage_.addStencil(); },
             [this] { stage_.list.RemovePanel(stage_.stencil(0)); },
         }) {
        change();
        EXPECT_TRUE(automatic_.differ());
        automatic_.saveChanges();
        EXPECT_FALSE(automatic_.differ());
    }
}

TEST_F(AutomaticToolsTest, WhatCouldNotBeWrittenStillDiffers) {
    stage_.stencil(0).setLineWidth(7);
    ini_.store.fullDisk = true;
    EXPECT_FALSE(automatic_.saveChanges());
    EXPECT_EQ(file(automaticPath), exampleToolFile);
    EXPECT_TRUE(automatic_.differ());
    EXPECT_EQ(errors().size(), 1U);
    ini_.store.fullDisk = false;
    EXPECT_TRUE(automatic_.saveChanges());
    EXPECT_FALSE(automatic_.differ());
}

TEST_F(AutomaticToolsTest, AStartWithoutToolsHasNoneToBringBack) {
    stage_.list.RemoveAllTools();
    automatic_.save();
    automatic_.load(time_);
    EXPECT_TRUE(stage_.list.GetPanelsInVisualOrder().empty());
    EXPECT_FALSE(removed_.canBringBack());
}

TEST_F(AutomaticToolsTest, TheFileOfTheLastRunIsKept) {
    EXPECT_EQ(beside("previous"), exampleToolFile);
    stage_.stencil(0).setLineWidth(7);
    automatic_.save();
    EXPECT_EQ(beside("previous"), exampleToolFile);
}

TEST_F(AutomaticToolsTest, ASecondCopyWritesNothingOverUnseen) {
    FirstStart second(ini_, automaticPath);
    second.stage.stencil(0).setLineWidth(6);
    ASSERT_TRUE(second.automatic.saveChanges());
    const std::string written = file(automaticPath);
    EXPECT_TRUE(automatic_.saveChanges());
    EXPECT_EQ(file(automaticPath), written) << "this copy has nothing to say";
    stage_.stencil(0).setLineWidth(7);
    EXPECT_TRUE(automatic_.saveChanges());
    EXPECT_EQ(beside("other"), written);
    EXPECT_NE(file(automaticPath).find("LineWidth= 7"), std::string::npos);
    // Also at the end of the other one.
    const std::string mine = file(automaticPath);
    EXPECT_TRUE(second.automatic.save());
    EXPECT_EQ(beside("other"), mine);
}

TEST_F(AutomaticToolsTest, AVersionThatCannotBeKeptIsNotWrittenOver) {
    FirstStart second(ini_, automaticPath);
    second.stage.stencil(0).setLineWidth(6);
    second.automatic.save();
    const std::string written = file(automaticPath);
    stage_.stencil(0).setLineWidth(7);
    ini_.store.fullDisk = true;
    EXPECT_FALSE(automatic_.save());
    EXPECT_EQ(file(automaticPath), written);
    EXPECT_EQ(errors(), (std::vector<std::string>{"Failed to save file '" + automaticPath + "'."}));
}

TEST_F(AutomaticToolsTest, TheOpenDocumentIsNotMeant) {
    loadNamed();
    stage_.stencil(0).setLineWidth(7);
    automatic_.saveChanges();
    EXPECT_EQ(file(namedPath), exampleToolFile);
    file(namedPath) += "[Other]\r\n";
    documents_.Save();
    EXPECT_EQ(view_.questions.size(), 1U) << "that another program has changed it is still known";
}

}  // namespace
}  // namespace ormala
