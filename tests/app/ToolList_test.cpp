#include "app/ToolList.h"

#include <gtest/gtest.h>

#include "measure/measurePanelDesign.h"
#include "stencil/stencilPanelDesign.h"
#include "support/ManualLanguage.h"
#include "support/ToolListStage.h"

namespace ormala {
namespace {

constexpr int stencilKind = 0;
constexpr int measurementKind = 1;

class ToolListTest : public testing::Test {
  protected:
    ToolListTest() { stage_.list.prepareFirstTools(); }

    /// As after a load of an empty file.
    void startEmpty() {
        stage_.list.RemoveAllTools();
        stage_.messages.errors.clear();
    }
    void add(int kind, int times) {
        for (int i = 0; i < times; ++i) {
            ASSERT_NE(list_.AddNewControl(kind), nullptr) << i;
        }
    }
    void expectRefusal(int kind) {
        const auto before = stage_.panels().size();
        stage_.messages.errors.clear();
        EXPECT_EQ(list_.AddNewControl(kind), nullptr);
        EXPECT_EQ(stage_.messages.errors,
                  std::vector<std::string>{"The maximum number of tools (33) has been reached."});
        EXPECT_EQ(stage_.panels().size(), before);
    }
    [[nodiscard]] bool toolVisible(SettingControl& panel) const {
        return stage_.sheet.isVisible(panel.RefControlControl());
    }

    ManualLanguage language_{languageEnglish};
    ToolListStage stage_;
    ToolList& list_ = stage_.list;
};

TEST_F(ToolListTest, TheFirstToolsHaveVisiblePanelsAndHiddenToolsUntilTheyAreShown) {
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(stage_.panels()[0]->visible());
    EXPECT_EQ(stage_.measure(1).Number(), 1);
    EXPECT_FALSE(toolVisible(stage_.stencil(0)));
    list_.showFirstTools();
    EXPECT_TRUE(toolVisible(stage_.stencil(0)));
    EXPECT_TRUE(toolVisible(stage_.measure(1)));
}

TEST_F(ToolListTest, ANewToolIsSelectedShownAndBehindTheOthersInTheList) {
    ctlSetRatioGrid& added = stage_.addStencil();
    EXPECT_EQ(stage_.kinds(), "SMS");
    EXPECT_EQ(stage_.panels()[2]->core.get(), &added);
    EXPECT_TRUE(stage_.panels()[2]->visible());
    EXPECT_TRUE(added.Selected());
    EXPECT_FALSE(stage_.stencil(0).Selected());
    EXPECT_TRUE(toolVisible(added));
    EXPECT_EQ(stage_.sheet.front(), &added.RefControlControl());
    EXPECT_FALSE(added.RefControl().History().UndoPossible());
    EXPECT_GT(stage_.panels()[2]->view.pictureChanges.at(StencilControl::imgPattern), 0);
}

TEST_F(ToolListTest, AnUnknownKindGivesNothing) {
    EXPECT_EQ(list_.AddNewControl(2), nullptr);
    EXPECT_EQ(list_.AddNewControl(-1), nullptr);
    EXPECT_TRUE(stage_.messages.errors.empty());
    EXPECT_EQ(stage_.kinds(), "SM");
}

TEST_F(ToolListTest, ThirtyThreeStencilsWithAnIdleMeasurementAreTheLimitForEitherKind) {
    startEmpty();
    add(stencilKind, 33);
    expectRefusal(stencilKind);
    expectRefusal(measurementKind);
}

TEST_F(ToolListTest, WithTheFirstOfEachKindInUseTheThirtyFifthToolIsRefused) {
    add(stencilKind, 16);
    add(measurementKind, 16);
    EXPECT_EQ(stage_.panels().size(), 34U);
    expectRefusal(stencilKind);
    expectRefusal(measurementKind);
}

TEST_F(ToolListTest, TheRefusalSpeaksTheLanguageOfTheUser) {
    const ManualLanguage german(languageGerman);
    add(stencilKind, 32);
    EXPECT_EQ(list_.AddNewControl(stencilKind), nullptr);
    EXPECT_EQ(stage_.messages.errors.at(0), MlString(302, {}));
    EXPECT_NE(stage_.messages.errors.at(0), "The maximum number of tools (33) has been reached.");
}

TEST_F(ToolListTest, TheSuccessorOfAPanelTakesItsPlaceOrIsTheLastOne) {
    stage_.addStencil();
    const auto panel = [&](std::size_t at) {
        return &list_.GetPanelsInVisualOrder().at(at).listed.panel();
    };
    EXPECT_EQ(list_.successorOf(*panel(0)), panel(1));
    EXPECT_EQ(list_.successorOf(*panel(1)), panel(2));
    EXPECT_EQ(list_.successorOf(*panel(2)), panel(1));
    SettingControl* stays = panel(1);
    list_.RemovePanel(*panel(0));
    list_.RemovePanel(*panel(1));
    EXPECT_EQ(panel(0), stays);
    EXPECT_EQ(list_.successorOf(*stays), nullptr);
}

TEST_F(ToolListTest, FromPanelToPanelTheWayIsARing) {
    stage_.addStencil();
    const auto panel = [&](std::size_t at) {
        return &list_.GetPanelsInVisualOrder().at(at).listed.panel();
    };
    EXPECT_EQ(list_.panelBeside(panel(0), 1), panel(1));
    EXPECT_EQ(list_.panelBeside(panel(2), 1), panel(0));
    EXPECT_EQ(list_.panelBeside(panel(0), -1), panel(2));
    EXPECT_EQ(list_.panelBeside(panel(1), 0), panel(1));
}

TEST_F(ToolListTest, FromNoPanelTheWayLeadsToThatOfTheSelectedToolOrToTheFirst) {
    const auto panel = [&](std::size_t at) {
        return &list_.GetPanelsInVisualOrder().at(at).listed.panel();
    };
    for (const int places : {-1, 0, 1}) {
        stage_.sheet.SelectControl(panel(1)->RefControlControl());
        EXPECT_EQ(list_.panelBeside(nullptr, places), panel(1));
        panel(1)->setSelected(false);
        EXPECT_EQ(list_.panelBeside(nullptr, places), panel(0));
    }
    list_.RemoveAllTools();
    EXPECT_EQ(list_.panelBeside(nullptr, 1), nullptr);
}

TEST_F(ToolListTest, RemovingTheFirstToolAndAddingOneReusesItAndRestartsItsColours) {
    const Color first = stage_.stencil(0).Color();
    const SettingControl* panel = &stage_.stencil(0);
    const OverlayItem* tool = &stage_.stencil(0).RefControlControl();
    const std::size_t count = stage_.sheet.zOrder().size();
    list_.RemovePanel(*panel);
    EXPECT_EQ(stage_.kinds(), "M");
    ctlSetRatioGrid& again = stage_.addStencil();
    EXPECT_EQ(&again, panel);
    EXPECT_EQ(&again.RefControlControl(), tool);
    EXPECT_EQ(again.Color(), first);
    EXPECT_EQ(stage_.sheet.zOrder().size(), count);
    EXPECT_TRUE(toolVisible(again));
}

TEST_F(ToolListTest, ARemovedFirstMeasurementRestartsTheColoursOfMeasurements) {
    const Color first = stage_.measure(1).ColorA();
    const Color second = stage_.measure(1).ColorB();
    list_.RemovePanel(stage_.measure(1));
    ctlSetMeasure& again = stage_.addMeasure();
    EXPECT_EQ(again.ColorA(), first);
    EXPECT_EQ(again.ColorB(), second);
    EXPECT_EQ(again.Number(), 1);
}

TEST_F(ToolListTest, ARemovedFirstToolIsNotReusedWhileOthersOfItsKindAreThere) {
    const SettingControl* first = &stage_.stencil(0);
    add(stencilKind, 1);
    list_.RemovePanel(*first);
    EXPECT_NE(&stage_.addStencil(), first);
    EXPECT_TRUE(first->Hidden());
}

TEST_F(ToolListTest, AReusedToolBeginsWithoutAHistory) {
    ctlSetRatioGrid& first = stage_.stencil(0);
    first.RefControl().setRotationAngle(1);
    first.AddHistoryStep();
    ASSERT_TRUE(first.RefControl().History().UndoPossible());
    list_.RemovePanel(first);
    EXPECT_FALSE(stage_.addStencil().RefControl().History().UndoPossible());
}

TEST_F(ToolListTest, AReusedToolIsNotPausedAnyMore) {
    stage_.stencil(0).setPause(true);
    list_.RemovePanel(stage_.stencil(0));
    ctlSetRatioGrid& again = stage_.addStencil();
    EXPECT_FALSE(again.Pause());
    EXPECT_TRUE(toolVisible(again));
}

TEST_F(ToolListTest, AFreedNumberIsGivenAgain) {
    add(measurementKind, 2);
    EXPECT_EQ(stage_.measure(3).Number(), 3);
    EXPECT_EQ(list_.NextFreeMeasureNumber(), 4);
    list_.RemovePanel(stage_.measure(2));
    EXPECT_EQ(list_.NextFreeMeasureNumber(), 2);
    EXPECT_EQ(stage_.addMeasure().Number(), 2);
}

TEST_F(ToolListTest, NoMeasurementsLeaveNumberOneFree) {
    list_.RemovePanel(stage_.measure(1));
    EXPECT_EQ(list_.NextFreeMeasureNumber(), 1);
}

double offsetOf(ctlSetRatioGrid& panel, int sheetWidth) {
    const Rect& rect = panel.RefControl().RectBound();
    const int middle = sheetWidth / 2;
    return (rect.left + rect.right) / 2 - middle;
}

TEST_F(ToolListTest, TheFirstNewToolAfterTheStartComesAtTheSecondOffset) {
    EXPECT_NEAR(stage_.measure(1).RefControl().LineA().x2, 640 + 24, 1e-9);
    EXPECT_NEAR(offsetOf(stage_.addStencil(), 1280), 48, 1e-9);
    EXPECT_NEAR(offsetOf(stage_.addStencil(), 1280), 72, 1e-9);
}

TEST(ToolList, OnASmallWorksheetAllLaterToolsHaveTheSameOffset) {
    ToolListStage stage({200, 92});
    stage.list.prepareFirstTools();
    EXPECT_NEAR(offsetOf(stage.addStencil(), 200), 40, 1e-9);
    EXPECT_NEAR(offsetOf(stage.addStencil(), 200), 40, 1e-9);
}

TEST_F(ToolListTest, ANewStencilTakesItsLineFromTheLastOneOfItsKind) {
    stage_.stencil(0).setLineWidth(5);
    stage_.measure(1).setLineWidth(1);
    EXPECT_EQ(stage_.addStencil().LineWidth(), 5);
}

TEST_F(ToolListTest, ANewMeasurementTakesItsLookFromTheLastOneOfItsKind) {
    ctlMeasure& last = stage_.measure(1).RefControl();
    last.setConnected(false);
    last.setLabelsAngleVisible(false);
    last.setLabelsLengthVisible(false);
    last.setLineWidth(4);
    const ctlMeasure& added = stage_.addMeasure().RefControl();
    EXPECT_FALSE(added.Connected());
    EXPECT_FALSE(added.LabelsAngleVisible());
    EXPECT_FALSE(added.LabelsLengthVisible());
    EXPECT_EQ(added.LineWidth(), 4);
    EXPECT_NE(added.LineA().x2, added.LineB().x2);
}

TEST_F(ToolListTest, AReusedMeasurementBeginsWithItsDefaults) {
    ctlSetMeasure& first = stage_.measure(1);
    first.RefControl().setLabelsAngleVisible(false);
    first.setLineWidth(4);
    list_.RemovePanel(first);
    ctlSetMeasure& again = stage_.addMeasure();
    EXPECT_TRUE(again.RefControl().LabelsAngleVisible());
    EXPECT_EQ(again.LineWidth(), 2);
}

TEST_F(ToolListTest, ANewMeasurementMeasuresInTheDefaultUnits) {
    stage_.units = {1, 2, 2.5, "cm"};
    const ctlMeasure& added = stage_.addMeasure().RefControl();
    EXPECT_EQ(added.AngleMode(), 1);
    EXPECT_EQ(added.LengthMode(), 2);
    EXPECT_EQ(added.LengthFactor(), 2.5);
    EXPECT_EQ(added.LengthUnit(), "cm");
}

TEST_F(ToolListTest, ANewStencilHasOnePatternAndStandsUpright) {
    stage_.stencil(0).RefControl().setRotationAngle(1);
    ctlSetRatioGrid& added = stage_.addStencil();
    EXPECT_EQ(added.RefControl().RotationAngle(), 0);
    EXPECT_EQ(added.RefControl().PatternList()[1].Pattern, -1);
    EXPECT_NE(added.RefControl().PatternList()[0].Pattern, -1);
}

TEST_F(ToolListTest, PanelsStandOnEachOtherWithoutGaps) {
    add(stencilKind, 1);
    const auto panels = stage_.panels();
    EXPECT_EQ(panels[0]->top(), 0);
    EXPECT_EQ(panels[1]->top(), 100);
    EXPECT_EQ(panels[2]->top(), 170);
    EXPECT_EQ(list_.contentHeight(), 270);
}

TEST_F(ToolListTest, TheListClosesUpOverARemovedPanel) {
    add(stencilKind, 1);
    stage_.view.layouts = 0;
    list_.RemovePanel(stage_.measure(1));
    EXPECT_EQ(stage_.kinds(), "SS");
    EXPECT_EQ(stage_.panels()[1]->top(), 100);
    EXPECT_EQ(stage_.view.layouts, 1);
}

TEST_F(ToolListTest, TheOrderIsThatOfTheScreenWhateverTheOrderOfMaking) {
    stage_.panels()[0]->setTop(500);
    EXPECT_EQ(stage_.kinds(), "MS");
}

TEST_F(ToolListTest, ARemovedToolLeavesNoneSelected) {
    ctlSetRatioGrid& added = stage_.addStencil();
    list_.RemovePanel(added);
    EXPECT_EQ(stage_.sheet.selected(), nullptr);
    stage_.sheet.SelectControl(stage_.stencil(0).RefControlControl());
    list_.RemovePanel(stage_.stencil(0));
    EXPECT_EQ(stage_.sheet.selected(), nullptr);
}

TEST_F(ToolListTest, RemovingAllToolsShowsTheListShrink) {
    add(measurementKind, 3);
    list_.RemoveAllTools();
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_EQ(stage_.view.refreshes, 5);
    EXPECT_EQ(stage_.sheet.front(), nullptr);
}

TEST_F(ToolListTest, WithoutPanelsInUseTheListHasNoHeight) {
    startEmpty();
    EXPECT_EQ(list_.contentHeight(), 0);
    EXPECT_EQ(list_.LastVisiblePanel(ToolKind::stencil), nullptr);
}

TEST_F(ToolListTest, ThePanelsDeleteKeyRemovesItsTool) {
    ctlSetRatioGrid& added = stage_.addStencil();
    added.RefControl().keyDown(key::remove, 0);
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_EQ(stage_.sheet.zOrder().size(), 3U);
    list_.dropRemoved();
    EXPECT_EQ(stage_.sheet.zOrder().size(), 2U);
}

TEST_F(ToolListTest, AllTextsAreShownAnewAlsoOfWhatIsOutOfUse) {
    list_.showFirstTools();
    stage_.measure(1).RefControl().setLineA({0, 0, 0, 300});
    StagePanel& away = *stage_.panels()[0];
    StagePanel& stays = *stage_.panels()[1];
    list_.RemovePanel(*away.core);
    stage_.settings.textForm.logicalDpi = 192;
    list_.showTextsAnew();
    EXPECT_NE(away.view.texts.at(StencilControl::lblSizeWidth).find('.'), std::string::npos);
    EXPECT_EQ(stays.view.texts.at(MeasureControl::lblLengthA), "a = 150.5 ");
}

TEST_F(ToolListTest, RemovingAPanelThatIsNotInTheListDoesNothing) {
    ToolListStage other;
    other.list.prepareFirstTools();
    list_.RemovePanel(other.stencil(0));
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_EQ(other.kinds(), "SM");
}

}  // namespace
}  // namespace ormala
