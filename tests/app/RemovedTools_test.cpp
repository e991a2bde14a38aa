#include "app/RemovedTools.h"

#include "app/DocumentsFixture.h"

namespace ormala {
namespace {

using Notes = std::vector<std::string>;

/// One stencil and one measuring tool, as after a first start.
class RemovedToolsTest : public DocumentsFixture {
  protected:
    RemovedToolsTest() { startWithTools(); }

    /// A change of the tool that is a step of its history.
    static void turn(ctlSetRatioGrid& panel, double angle) {
        panel.RefControl().setRotationAngle(angle);
        panel.AddHistoryStep();
    }
    void bringBack() {
        EXPECT_TRUE(removed_.canBringBack());
        removed_.bringBack();
    }
    [[nodiscard]] Notes keysOfAll() const {
        Notes keys;
        for (const StagePanel* panel : stage_.panels()) {
            keys.push_back(panel->core->keysText());
        }
        return keys;
    }
    [[nodiscard]] bool shows(SettingControl& panel) const {
        return stage_.sheet.isVisible(panel.RefControlControl());
    }
};

TEST_F(RemovedToolsTest, AToolComesBackAsItWas) {
    ctlSetRatioGrid& added = stage_.addStencil();
    stage_.addMeasure();
    added.setColor(0x123456);
    added.setLineWidth(7);
    turn(added, 1);
    const Notes before = keysOfAll();
    const auto order = stage_.sheet.visibleInArrayOrder();
    removed_.remove(added);
    EXPECT_EQ(stage_.kinds(), "SMM");
    EXPECT_EQ(notes_, Notes{"Stencil removed. Ctrl+Z brings it back."});
    bringBack();
    EXPECT_EQ(stage_.kinds(), "SMSM");
    EXPECT_EQ(&stage_.stencil(2), &added);
    EXPECT_EQ(keysOfAll(), before);
    EXPECT_EQ(stage_.sheet.visibleInArrayOrder(), order);
    EXPECT_TRUE(stage_.panels()[2]->visible());
    EXPECT_TRUE(added.Selected());
    EXPECT_EQ(notes_.back(), "");
}

TEST_F(RemovedToolsTest, ItsWholeHistoryComesBackToo) {
    ctlSetRatioGrid& panel = stage_.addStencil();
    for (const double angle : {1.0, 2.0, 3.0}) {
        turn(panel, angle);
    }
    panel.Undo();
    removed_.remove(panel);
    bringBack();
    EXPECT_EQ(panel.RefControl().RotationAngle(), 2);
    panel.Redo();
    EXPECT_EQ(panel.RefControl().RotationAngle(), 3);
    for (int i = 0; i < 3; ++i) {
        panel.Undo();
    }
    EXPECT_EQ(panel.RefControl().RotationAngle(), 0);
}

TEST_F(RemovedToolsTest, TheNoteNamesAMeasuringToolByItsNumber) {
    removed_.remove(stage_.addMeasure());
    EXPECT_EQ(notes_, Notes{"Measurement tool 2 removed. Ctrl+Z brings it back."});
}

TEST_F(RemovedToolsTest, ANumberIsFreeUntilItsToolComesBack) {
    ctlSetMeasure& first = stage_.measure(1);
    removed_.remove(first);
    EXPECT_EQ(stage_.list.NextFreeMeasureNumber(), 1);
    bringBack();
    EXPECT_EQ(first.Number(), 1);
    EXPECT_EQ(stage_.list.NextFreeMeasureNumber(), 2);
}

TEST_F(RemovedToolsTest, AFirstToolComesBackToItsPlace) {
    ctlSetRatioGrid& first = stage_.stencil(0);
    removed_.remove(first);
    EXPECT_EQ(stage_.kinds(), "M");
    EXPECT_FALSE(shows(first));
    bringBack();
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(shows(first));
    EXPECT_FALSE(first.Hidden());
    EXPECT_EQ(stage_.panels()[0]->top(), 0);
    EXPECT_EQ(stage_.panels()[1]->top(), 100);
}

TEST_F(RemovedToolsTest, APausedToolComesBackPaused) {
    stage_.stencil(0).setPause(true);
    removed_.remove(stage_.stencil(0));
    bringBack();
    EXPECT_TRUE(stage_.stencil(0).Pause());
    EXPECT_FALSE(shows(stage_.stencil(0)));
    stage_.stencil(0).setPause(false);
    EXPECT_TRUE(shows(stage_.stencil(0)));
}

TEST_F(RemovedToolsTest, TheModeAndTheSizeOfTheWorksheetReachAToolThatIsAway) {
    ctlSetRatioGrid& panel = stage_.stencil(0);
    removed_.remove(panel);
    stage_.sheet.setEditMode(false);
    bringBack();
    EXPECT_FALSE(panel.RefControl().EditMode());
}

TEST_F(RemovedToolsTest, OnlyTheLastRemovalCanBeTakenBack) {
    ctlSetRatioGrid& second = stage_.addStencil();
    removed_.remove(stage_.stencil(0));
    removed_.remove(second);
    bringBack();
    EXPECT_EQ(stage_.kinds(), "MS");
    EXPECT_EQ(&stage_.stencil(1), &second);
    EXPECT_FALSE(removed_.canBringBack());
}

TEST_F(RemovedToolsTest, NothingComesBackOnceSomethingElseHasBeenDone) {
    using Deed = std::function<void(ToolListStage&)>;
    const std::vector<Deed> deeds{
        [](ToolListStage& stage) { turn(stage.stencil(0), 1); },
        [](ToolListStage& stage) { stage.stencil(0).setColor(1); },
        [](ToolListStage& stage) { stage.stencil(0).setPause(true); },
        [](ToolListStage& stage) { stage.measure(1).toggleAngleLabels(); },
        [](ToolListStage& stage) {
            stage.sheet.SelectControl(stage.measure(1).RefControlControl());
        },
        [](ToolListStage& stage) { stage.addStencil(); },
        [](ToolListStage& stage) {
            // There and back: two steps of the history.
            turn(stage.stencil(0), 2);
            turn(stage.stencil(0), 0);
        },
    };
    for (std::size_t i = 0; i < deeds.size(); ++i) {
        startWithTools();
        removed_.remove(stage_.addStencil());
        const auto tools = stage_.sheet.zOrder().size();
        deeds[i](stage_);
        EXPECT_FALSE(removed_.canBringBack()) << i;
        const std::string kinds = stage_.kinds();
        removed_.bringBack();
        EXPECT_EQ(stage_.kinds(), kinds) << i;
        // It is gone for good.
        EXPECT_EQ(stage_.sheet.zOrder().size(), i == 5 ? tools : tools - 1) << i;
    }
}

TEST_F(RemovedToolsTest, UndoGoesThroughTheHistoryOnceNothingCanComeBack) {
    ctlSetRatioGrid& panel = stage_.stencil(0);
    const OverlayItem* tool = &panel.RefControlControl();
    turn(panel, 1);
    removed_.remove(stage_.measure(1));
    removed_.undo(tool);
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_EQ(panel.RefControl().RotationAngle(), 1);
    removed_.undo(tool);
    EXPECT_EQ(panel.RefControl().RotationAngle(), .5);
    removed_.redo(tool);
    EXPECT_EQ(panel.RefControl().RotationAngle(), 1);
    // Steps of the keys count too.
    panel.RefControl().setRotationAngle(2);
    removed_.undo(tool);
    EXPECT_EQ(panel.RefControl().RotationAngle(), 1);
    removed_.undo(nullptr);
    EXPECT_EQ(panel.RefControl().RotationAngle(), 1);
}

TEST_F(RemovedToolsTest, TellsBeforePanelsMayGo) {
    loadNamed();
    std::string kinds = "none";
    const auto subscription =
        removed_.bringingBack.subscribe([&] { kinds = stage_.kinds() + "!"; });
    bringBack();
    EXPECT_EQ(kinds, "SM!");
}

TEST_F(RemovedToolsTest, AViewThatChangesIsNothingElse) {
    removed_.remove(stage_.stencil(0));
    stage_.sheet.setEditMode(false);
    stage_.sheet.setEditMode(true);
    stage_.sheet.resize({900, 700});
    EXPECT_TRUE(removed_.canBringBack());
}

TEST_F(RemovedToolsTest, AfterNewTheWholeSetComesBackWithItsDocument) {
    loadNamed();
    stage_.addStencil();
    turn(stage_.stencil(0), 1);
    const Notes before = keysOfAll();
    view_.answer = Answer::no;
    documents_.New();
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_EQ(notes_.back(), "All tools removed. Ctrl+Z brings them back.");
    bringBack();
    EXPECT_EQ(stage_.kinds(), "SMS");
    EXPECT_EQ(keysOfAll(), before);
    EXPECT_TRUE(stage_.stencil(0).RefControl().History().UndoPossible());
    expectNamed(namedPath);
    // The changes are unsaved as before.
    view_.questions.clear();
    view_.answer = Answer::cancel;
    EXPECT_FALSE(close());
    EXPECT_TRUE(asked());
}

TEST_F(RemovedToolsTest, AfterNewWithoutADocumentThereIsNoneAgain) {
    documents_.New();
    bringBack();
    EXPECT_TRUE(documents_.NoFileYet());
    EXPECT_EQ(view_.line.caption, "(No tool settings file opened or created yet)");
    EXPECT_TRUE(close());
    EXPECT_FALSE(asked());
}

TEST_F(RemovedToolsTest, AfterALoadTheFormerSetComesBackInsteadOfTheLoadedOne) {
    stage_.addMeasure();
    turn(stage_.stencil(0), 1);
    const Notes before = keysOfAll();
    const auto order = stage_.sheet.visibleInArrayOrder();
    const auto tools = stage_.sheet.zOrder().size();
    loadNamed();
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_EQ(notes_.back(), "Tools replaced. Ctrl+Z brings the former ones back.");
    bringBack();
    EXPECT_EQ(stage_.kinds(), "SMM");
    EXPECT_EQ(keysOfAll(), before);
    EXPECT_EQ(stage_.sheet.visibleInArrayOrder(), order);
    EXPECT_EQ(stage_.sheet.zOrder().size(), tools);
    EXPECT_TRUE(documents_.NoFileYet());
    EXPECT_EQ(ini_.file.Path(), "");
}

TEST_F(RemovedToolsTest, ASetThatReplacesAnotherIsLaidOutAsRemovedAndAdded) {
    loadNamed();
    const int before = stage_.view.layouts;
    bringBack();
    EXPECT_EQ(stage_.view.layouts, before + 2);
    removed_.remove(stage_.stencil(0));
    const int without = stage_.view.layouts;
    bringBack();
    EXPECT_EQ(stage_.view.layouts, without + 1);
}

TEST_F(RemovedToolsTest, WhatALoadReplacedGoesForGoodWithTheNextTool) {
    loadNamed();
    const auto loaded = stage_.panels().size();
    stage_.addStencil();
    EXPECT_FALSE(removed_.canBringBack());
    EXPECT_EQ(stage_.sheet.zOrder().size(), loaded + 1);
}

TEST_F(RemovedToolsTest, AFirstToolThatALoadHasReusedIsOutOfUseAgain) {
    // Of the first pairs only the stencil's is in use.
    removed_.remove(stage_.measure(1));
    loadNamed();
    bringBack();
    EXPECT_EQ(stage_.kinds(), "S");
    EXPECT_EQ(stage_.addMeasure().Number(), 1);
    EXPECT_EQ(stage_.kinds(), "SM");
}

TEST_F(RemovedToolsTest, TheSetUnderANewNameIsTheOneThatStays) {
    documents_.New();
    view_.picked = "C:\\data\\new.OM";
    documents_.SaveAs();
    EXPECT_FALSE(removed_.canBringBack());
    expectNamed("C:\\data\\new.OM");
}

TEST_F(RemovedToolsTest, AFileThatAnotherProgramChangesMeanwhileIsStillAskedAbout) {
    loadNamed();
    view_.answer = Answer::no;
    documents_.New();
    file(namedPath) += "[Other]\r\n";
    bringBack();
    view_.questions.clear();
    documents_.Save();
    EXPECT_EQ(view_.questions.size(), 1U);
}

TEST_F(RemovedToolsTest, TheLimitHoldsForASetThatReplacesAFullOne) {
    for (int i = 2; i < 33; ++i) {
        stage_.addStencil();
    }
    loadNamed();
    EXPECT_EQ(stage_.kinds(), "SM");
    stage_.messages.errors.clear();
    for (int i = 2; i < 34; ++i) {
        EXPECT_NE(stage_.list.AddNewControl(0), nullptr) << i;
    }
    EXPECT_EQ(stage_.list.AddNewControl(0), nullptr);
    EXPECT_EQ(stage_.messages.errors.size(), 1U);
}

}  // namespace
}  // namespace ormala
