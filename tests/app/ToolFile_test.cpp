#include "app/ToolFile.h"

#include "app/ToolFileFixture.h"
#include "stencil/PatternTable.h"
#include "support/DecimalComma.h"
#include "support/exampleToolFile.h"

namespace ormala {
namespace {

using ToolFileTest = ToolFileFixture;

const std::string measureSection = "[Tool 1]\r\nType=1\r\n";

TEST_F(ToolFileTest, TheExampleLoadsToItsTools) {
    loadText(exampleToolFile);
    ASSERT_EQ(stage_.kinds(), "SM");
    const ctlRatioGrid& stencil = stage_.stencil(0).RefControl();
    EXPECT_EQ(stencil.RectBound(), (Rect{80, 120, 560.5, 400}));
    EXPECT_EQ(stencil.RotationAngle(), 0.5);
    EXPECT_EQ(stencil.Color(), 0xFFFF00);
    EXPECT_EQ(stencil.LineWidth(), 2);
    PatternList patterns;
    patterns[0].Pattern = PatternIndexFromId(6);
    EXPECT_EQ(stencil.PatternList(), patterns);
    const ctlMeasure& measure = stage_.measure(1).RefControl();
    EXPECT_TRUE(measure.Connected());
    EXPECT_EQ(measure.LineA(), (Line{369, 201, 400, 400}));
    EXPECT_EQ(measure.LineB(), (Line{497, 478, 400, 400}));
    EXPECT_EQ(measure.ColorA(), 0xFF0000);
    EXPECT_EQ(measure.ColorB(), 0x0000FF);
    EXPECT_EQ(measure.Number(), 1);
    EXPECT_EQ(measure.LengthUnit(), "m");
    EXPECT_TRUE(stage_.messages.errors.empty());
    EXPECT_TRUE(ini_.presenter.errors.empty());
}

TEST_F(ToolFileTest, TheExampleIsSavedAsItWasButForItsTime) {
    loadText(exampleToolFile);
    time_ = "2025-12-31 23:59:58";
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(bytes(), replaced(exampleToolFile, "Time=2024-05-17 08:30:12", "Time=" + time_));
}

TEST_F(ToolFileTest, TheExampleEqualsItsTools) {
    loadText(exampleToolFile);
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileTest, WithoutAPathNothingIsDone) {
    ini_.file.setPath("");
    EXPECT_FALSE(toolFile_.save());
    EXPECT_FALSE(toolFile_.load());
    EXPECT_FALSE(toolFile_.compare());
    EXPECT_TRUE(stage_.view.log.empty());
}

TEST_F(ToolFileTest, ASetWithoutToolsIsAFileOfOneSectionThatLoadsToNoTools) {
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(bytes(),
              "[General]\r\nSoftware=Ormala\r\nVersion=3.1.5\r\nTime=2024-05-17 08:30:12\r\n");
    stage_.addStencil();
    EXPECT_TRUE(toolFile_.load());
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_EQ(stage_.sheet.selected(), nullptr);
}

TEST_F(ToolFileTest, SectionsLoadInTheOrderOfTheFileAndAreSavedByTheirPlace) {
    loadText("[tool 7]\r\nType=1\r\nNumber=4\r\n[TOOL 2]\r\nType=0\r\nLineWidth=7\r\n");
    ASSERT_EQ(stage_.kinds(), "MS");
    toolFile_.save();
    ini_.file.setCurrentSection("Tool 1");
    EXPECT_EQ(ini_.file.LongValue("Number", 0), 4);
    ini_.file.setCurrentSection("Tool 2");
    EXPECT_EQ(ini_.file.LongValue("LineWidth", 0), 7);
    EXPECT_EQ(ini_.file.SectionMax(), 2);
}

TEST_F(ToolFileTest, AToolSectionWithoutATypeIsAStencilOfItsDefaults) {
    loadText("[Tool 1]\r\n");
    ASSERT_EQ(stage_.kinds(), "S");
    const ctlRatioGrid& stencil = stage_.stencil(0).RefControl();
    EXPECT_EQ(stencil.RectBound(), (Rect{10, 10, 80, 60}));
    EXPECT_EQ(stencil.RotationAngle(), 0);
    EXPECT_EQ(stencil.Color(), 0xFFFF00);
    EXPECT_EQ(stencil.LineWidth(), 2);
    EXPECT_EQ(PatternIdFromIndex(stencil.PatternList()[0].Pattern), 6);
    EXPECT_EQ(stencil.PatternList()[4].Pattern, -1);
    EXPECT_FALSE(stage_.stencil(0).Pause());
}

TEST_F(ToolFileTest, OnlyTheFirstFourLettersMakeAToolSection) {
    loadText("[Tools]\r\n[too]\r\n[Stool]\r\n[tOoLbox]\r\nType=1\r\n");
    EXPECT_EQ(stage_.kinds(), "SM");
}

TEST_F(ToolFileTest, AConnectedMeasurementWithoutKeysHasItsLinesMeet) {
    loadText(measureSection + "Connected=1\r\n");
    const ctlMeasure& measure = stage_.measure(0).RefControl();
    EXPECT_TRUE(measure.Connected());
    EXPECT_EQ(measure.LineA(), (Line{50, 10, 50, 50}));
    EXPECT_EQ(measure.LineB(), (Line{10, 50, 50, 50}));
}

TEST_F(ToolFileTest, ASeparateMeasurementWithoutKeysHasItsLinesApart) {
    loadText(measureSection);
    const ctlSetMeasure& panel = stage_.measure(0);
    const ctlMeasure& measure = stage_.measure(0).RefControl();
    EXPECT_FALSE(measure.Connected());
    EXPECT_EQ(measure.LineA(), (Line{50, 10, 50, 50}));
    EXPECT_EQ(measure.LineB(), (Line{10, 50, 50, 60}));
    EXPECT_EQ(panel.LineWidth(), 2);
    EXPECT_EQ(panel.ColorA(), 0xFF0000);
    EXPECT_EQ(panel.ColorB(), 0x0000FF);
    EXPECT_EQ(measure.LengthFactor(), 1);
    EXPECT_EQ(measure.LengthUnit(), "m");
    EXPECT_TRUE(measure.LabelsLengthVisible());
    EXPECT_TRUE(measure.LabelsAngleVisible());
    EXPECT_EQ(panel.Number(), 0);
    EXPECT_FALSE(panel.Pause());
}

TEST_F(ToolFileTest, AfterASaveTheSetEqualsTheFileWhateverItsDecimals) {
    ctlRatioGrid& stencil = stage_.addStencil().RefControl();
    stencil.setRectBound({1.0 / 3, -2.0 / 7, 1e5 / 3, 1234.56789012345678});
    stencil.setRotationAngle(0.1 + 0.2);
    ctlMeasure& measure = stage_.addMeasure().RefControl();
    measure.setLineA({100.0 / 3, 0.1 + 0.7, 1e-7 / 3, -1.0 / 9});
    EXPECT_TRUE(toolFile_.save());
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_TRUE(toolFile_.load());
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileTest, TheSixteenthDigitCountsInAFactorAndNotInACoordinate) {
    ctlMeasure& measure = stage_.addMeasure().RefControl();
    measure.setLengthFactor(0.25);
    measure.setLineA({0.25, 0, 0, 0});
    toolFile_.save();
    EXPECT_TRUE(toolFile_.compare());
    measure.setLineA({0.25 + 1e-16, 0, 0, 0});
    EXPECT_TRUE(toolFile_.compare());
    measure.setLengthFactor(0.25 + 1e-16);
    EXPECT_FALSE(toolFile_.compare());
}

TEST_F(ToolFileTest, ADecimalCommaEndsANumber) {
    loadText("[Tool 1]\r\nRectBoundLeft=1,5\r\n");
    EXPECT_EQ(stage_.stencil(0).RefControl().RectBound().left, 1);
}

TEST_F(ToolFileTest, FilesAreTheSameBytesUnderALocaleWithACommaAsDecimalSeparator) {
    stage_.settings.textForm.decimalSeparator = ",";
    const DecimalComma comma;
    loadText(exampleToolFile);
    toolFile_.save();
    EXPECT_EQ(bytes(), exampleToolFile);
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_EQ(stage_.stencil(0).RefControl().RectBound().right, 560.5);
}

TEST_F(ToolFileTest, ATextThatIsNoFiniteNumberReadsAsZero) {
    loadText(
        "[Tool 1]\r\nRectBoundLeft=1e999\r\nRectBoundTop=nan\r\nRectBoundRight=-1e999\r\n"
        "RectBoundBottom=inf\r\nRotationAngle=1E+309\r\nPatternPreRotation1=-inf\r\n"
        "[Tool 2]\r\nType=1\r\nAX1=1e400\r\nBY2=abc\r\nLengthFactor=9e999\r\n");
    const ctlRatioGrid& stencil = stage_.stencil(0).RefControl();
    EXPECT_EQ(stencil.RectBound(), Rect{});
    EXPECT_EQ(stencil.RotationAngle(), 0);
    EXPECT_EQ(stencil.PatternList()[0].PreRotation, 0);
    const ctlMeasure& measure = stage_.measure(1).RefControl();
    EXPECT_EQ(measure.LineA().x1, 0);
    EXPECT_EQ(measure.LineB().y2, 0);
    EXPECT_EQ(measure.LengthFactor(), 0);
    EXPECT_TRUE(ini_.presenter.errors.empty());
}

TEST_F(ToolFileTest, ASectionOfAnUnknownTypeIsPassedOver) {
    loadText("[Tool 1]\r\nType=2\r\n[Tool 2]\r\nType=-1\r\n[Tool 3]\r\nType=1\r\n");
    EXPECT_EQ(stage_.kinds(), "M");
    EXPECT_TRUE(stage_.messages.errors.empty());
}

TEST_F(ToolFileTest, EachSectionTooManyHasItsMessageAndTheOthersLoad) {
    std::string text;
    for (int i = 1; i <= 36; ++i) {
        text += "[Tool " + std::to_string(i) + "]\r\nLineWidth=" + std::to_string(i) + "\r\n";
    }
    loadText(text);
    EXPECT_EQ(stage_.panels().size(), 33U);
    EXPECT_EQ(stage_.messages.errors,
              std::vector<std::string>(3, "The maximum number of tools (33) has been reached."));
    EXPECT_EQ(stage_.stencil(32).LineWidth(), 33);
    EXPECT_TRUE(stage_.stencil(0).Selected());
}

TEST_F(ToolFileTest, AMissingFileLeavesNoToolsAndSaysNothing) {
    stage_.addStencil();
    EXPECT_TRUE(toolFile_.load());
    EXPECT_EQ(stage_.kinds(), "");
    EXPECT_TRUE(ini_.presenter.errors.empty());
}

TEST_F(ToolFileTest, TheFirstToolOfTheFileEndsUpSelected) {
    loadText("[Tool 1]\r\nType=9\r\n[Tool 2]\r\n[Tool 3]\r\n[Tool 4]\r\nType=1\r\n");
    ASSERT_EQ(stage_.kinds(), "SSM");
    EXPECT_TRUE(stage_.stencil(0).Selected());
    EXPECT_FALSE(stage_.stencil(1).Selected());
    EXPECT_FALSE(stage_.measure(2).Selected());
}

TEST_F(ToolFileTest, ALoadShowsItselfBusy) {
    loadText(exampleToolFile);
    EXPECT_EQ(stage_.view.log, (std::vector<std::string>{"hourglass Loading...", "worksheet",
                                                         "window", "window", "window", "end"}));
}

TEST_F(ToolFileTest, ALoadReplacesTheToolsAndTheirHistories) {
    ctlSetRatioGrid& panel = stage_.addStencil();
    panel.RefControl().setRotationAngle(1);
    panel.AddHistoryStep();
    loadText(exampleToolFile);
    ASSERT_EQ(stage_.kinds(), "SM");
    HistoryHelper& history = stage_.stencil(0).RefControl().History();
    EXPECT_FALSE(history.UndoPossible());
    stage_.stencil(0).RefControl().setRotationAngle(2);
    stage_.stencil(0).AddHistoryStep();
    stage_.stencil(0).Undo();
    EXPECT_EQ(stage_.stencil(0).RefControl().RotationAngle(), 0.5);
}

TEST_F(ToolFileTest, APausedToolComesBackPaused) {
    stage_.addStencil().setPause(true);
    toolFile_.save();
    EXPECT_TRUE(toolFile_.compare());
    toolFile_.load();
    EXPECT_TRUE(stage_.stencil(0).Pause());
    EXPECT_FALSE(stage_.sheet.isVisible(stage_.stencil(0).RefControlControl()));
}

TEST_F(ToolFileTest, AnyNumberButZeroLoadsAsTrueAndOnlyMinusOneComparesEqual) {
    bytes() = replaced(exampleToolFile, "Connected=-1", "Connected=1");
    toolFile_.load();
    EXPECT_TRUE(stage_.measure(1).RefControl().Connected());
    EXPECT_FALSE(toolFile_.compare());
}

TEST_F(ToolFileTest, AnUnknownPatternLoadsAsNone) {
    loadText("[Tool 1]\r\nPatternID1=77\r\nPatternID2= 3\r\nPatternPreRotation2= .75\r\n");
    const PatternList& patterns = stage_.stencil(0).RefControl().PatternList();
    EXPECT_EQ(patterns[0].Pattern, -1);
    EXPECT_EQ(patterns[1], (PatternSetting{PatternIndexFromId(3), 0.75}));
}

TEST_F(ToolFileTest, ASaveWritesTheFileAnew) {
    bytes() = "; old\r\n[Tool 9]\r\nType=1\r\n[Old]\r\nKey=1\r\n";
    toolFile_.save();
    EXPECT_EQ(bytes().find("Old"), std::string::npos);
    EXPECT_EQ(bytes().find("Tool 9"), std::string::npos);
}

TEST_F(ToolFileTest, ASaveWritesOnceAndRemovesNothing) {
    loadText(exampleToolFile);
    ini_.store.writes = 0;
    ini_.store.removals = 0;
    toolFile_.save();
    EXPECT_EQ(ini_.store.writes, 1);
    EXPECT_EQ(ini_.store.removals, 0);
}

TEST_F(ToolFileTest, PathsOutsideTheCodePageSaveAndLoad) {
    const std::string path = "C:\\data\\\u6f22\u03a9\U0001F600.OM";
    loadText(exampleToolFile);
    ini_.file.setPath(path);
    EXPECT_TRUE(toolFile_.save());
    EXPECT_EQ(ini_.store.files.at(path), exampleToolFile);
    stage_.list.RemoveAllTools();
    EXPECT_TRUE(toolFile_.load());
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileTest, ASaveTakesANewListOfTheSections) {
    stage_.addStencil();
    toolFile_.save();
    EXPECT_EQ(ini_.file.SectionMax(), 1);
    EXPECT_EQ(ini_.file.SectionName(1), "Tool 1");
}

TEST_F(ToolFileTest, AFullSetComesBackInItsOrder) {
    for (int i = 0; i < 16; ++i) {
        stage_.addMeasure();
        stage_.addStencil();
    }
    stage_.list.RemovePanel(stage_.stencil(1));
    stage_.addStencil();
    const std::string kinds = stage_.kinds();
    toolFile_.save();
    toolFile_.load();
    EXPECT_EQ(stage_.kinds(), kinds);
    EXPECT_TRUE(toolFile_.compare());
    EXPECT_TRUE(stage_.messages.errors.empty());
}

TEST_F(ToolFileTest, WildNumbersLoadAndAreSavedAgain) {
    loadText(
        "[Tool 1]\r\nRectBoundLeft=1E+308\r\nRectBoundRight=-1E+308\r\nRotationAngle=1E+300\r\n"
        "LineWidth=2147483647\r\nColor=-2147483648\r\nPatternID1=-2147483648\r\n"
        "PatternPreRotation1=-1E+307\r\n"
        "[Tool 2]\r\nType=1\r\nAX1=1E+308\r\nAX2=-1E+308\r\nLineWidth=-2147483648\r\n"
        "AngleMode=77\r\nLengthMode=-5\r\nLengthFactor=-1E+308\r\nNumber=-2147483648\r\n");
    EXPECT_EQ(stage_.kinds(), "SM");
    EXPECT_TRUE(toolFile_.save());
    EXPECT_TRUE(toolFile_.compare());
}

}  // namespace
}  // namespace ormala
