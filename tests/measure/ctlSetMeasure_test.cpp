#include "measure/ctlSetMeasure.h"

#include <gtest/gtest.h>

#include "measure/ManualMeasures.h"
#include "measure/measurePanelDesign.h"
#include "pictures/linePicture.h"
#include "support/FakePanelCommands.h"
#include "support/FakePanelView.h"
#include "support/FakeToolHost.h"
#include "support/ManualLanguage.h"
#include "support/OwnToolSettings.h"
#include "support/PanelDesignCheck.h"
#include "support/ToolPlayer.h"

namespace ormala {
namespace {

constexpr Color onFace = roleColor(rgb(187, 168, 0), ColorRole::highlight);
constexpr Color offFace = roleColor(rgb(112, 112, 112), ColorRole::buttonFace);

class SetMeasureTest : public testing::Test {
  protected:
    SetMeasureTest() {
        tool_.resize({1000, 800});
        tool_.SetDefaultProperties();
        tool_.setLineA({100, 199, 100, 100});
        tool_.setLineB({149, 100, 100, 100});
        panel_.finish();
        later(1);
    }

    void later(float seconds) { now_ += seconds; }
    std::string shown(ControlId label) {
        panel_.ShowAllProps(true);
        return view_.texts.at(label);
    }
    [[nodiscard]] std::vector<std::uint32_t> shownLine() const {
        return view_.pixelsOf(CommonControl::cmdLineStyle, {32, 16});
    }
    void click(const std::string& name) { test::clickOn(panel_, name); }

    ManualLanguage language_{languageEnglish};
    FakeToolHost host_;
    OwnToolSettings settings_;
    ManualMeasures others_;
    ctlMeasure tool_{host_, settings_, others_};
    FakePanelView view_;
    std::map<const OverlayItem*, bool> visible_;
    float now_ = 36000;
    Clock tmrFast_{[](bool) {}};
    FakePanelCommands commands_;
    ctlSetMeasure panel_{tool_,
                         {view_, commands_, tmrFast_,
                          [this](const OverlayItem& tool, bool shown) { visible_[&tool] = shown; },
                          [this] { return now_; }},
                         [this](ctlMeasure& tool) { return commands_.SelectUnits(tool); },
                         settings_};
};

TEST_F(SetMeasureTest, ShowsWhatTheToolMeasures) {
    EXPECT_EQ(shown(MeasureControl::lblLengthA), "a = 100.0 ");
    EXPECT_EQ(shown(MeasureControl::lblLengthB), "b = 50.0 ");
    EXPECT_EQ(shown(MeasureControl::lblRatioA), "a:b = 2.000 ");
    EXPECT_EQ(shown(MeasureControl::lblRatioB), "b:a = 0.5000 ");
    EXPECT_EQ(shown(MeasureControl::lblAngleVertA), FormatAngle(tool_.AngleVertA(), 0, {}) + " ");
    EXPECT_EQ(shown(MeasureControl::lblAngleVertB), FormatAngle(tool_.AngleVertB(), 0, {}) + " ");
    EXPECT_EQ(shown(MeasureControl::lblAngleA),
              "ab = " + FormatAngle(tool_.AngleAToB(), 0, {}) + " ");
    EXPECT_EQ(shown(MeasureControl::lblAngleB),
              "ba = " + FormatAngle(tool_.AngleBToA(), 0, {}) + " ");
}

TEST_F(SetMeasureTest, ReadsOutItsValuesByTheNamesOfTheirRows) {
    settings_.textForm.decimalSeparator = ",";
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(panel_.readOuts(),
              "Länge a\t100,0\r\n"
              "Länge b\t50,0\r\n"
              "Verhältnis a:b\t2,000\r\n"
              "Verhältnis b:a\t0,5000\r\n"
              "Winkel ab\t90,00°\r\n"
              "Winkel ba\t270,00°\r\n"
              "Vertikalwinkel a\t0,00°\r\n"
              "Vertikalwinkel b\t90,00°");
}

TEST_F(SetMeasureTest, ShowsLengthsInTheToolsUnits) {
    commands_.units = MeasureUnits{1, 2, 3, "cm"};
    click("cmdUnits");
    EXPECT_EQ(commands_.unitsShown, std::vector{MeasureUnits{}});
    EXPECT_EQ(shown(MeasureControl::lblLengthA),
              "a = " + FormatLength(100, 2, 3, "cm", 100, {}) + " ");
    EXPECT_EQ(shown(MeasureControl::lblLengthB),
              "b = " + FormatLength(50, 2, 3, "cm", 100, {}) + " ");
    EXPECT_EQ(shown(MeasureControl::lblAngleVertB), FormatAngle(tool_.AngleVertB(), 1, {}) + " ");
}

TEST_F(SetMeasureTest, TheYardstickReadsTheFactorWhateverItsLength) {
    panel_.setUnits({0, 2, 7.5, "km"});
    for (const double y : {150.0, 199.0, 1234.5}) {
        tool_.setLineA({100, y, 100, 100});
        EXPECT_EQ(shown(MeasureControl::lblLengthA),
                  "a = " + FormatLength(7.5, 1, 1, "km", 1, {}) + " ");
    }
}

TEST_F(SetMeasureTest, AnotherUnitLeavesTheNumberAsItWas) {
    tool_.setLineB({109, 100, 100, 100});
    panel_.setUnits({0, 1, 1, "mi"});
    EXPECT_EQ(shown(MeasureControl::lblLengthB), "b = 10.0 mi ");
    panel_.setUnits({0, 1, 1, "km"});
    EXPECT_EQ(shown(MeasureControl::lblLengthB), "b = 10.0 km ");
}

TEST_F(SetMeasureTest, DuringADragTheTextsChangeAtMostEveryTenthOfASecond) {
    view_.refreshes = 0;
    for (int i = 0; i < 25; ++i) {
        tool_.setLineA({100, 200.0 + i, 100, 100});
        tool_.events().change.raise();
        later(0.01F);
    }
    EXPECT_LE(view_.refreshes, 3);
    EXPECT_TRUE(view_.refreshTimerRuns());
    panel_.ShowAllProps(true);
    EXPECT_EQ(view_.texts[MeasureControl::lblLengthA], "a = 125.0 ");
    EXPECT_FALSE(view_.refreshTimerRuns());
}

TEST_F(SetMeasureTest, TheTitleHasTheNumber) {
    panel_.setNumber(3);
    EXPECT_EQ(view_.texts[CommonControl::lblTitle], "Measurement Tool 3");
    EXPECT_EQ(tool_.Number(), 3);
    EXPECT_EQ(panel_.Number(), 3);
    const ManualLanguage german(languageGerman);
    EXPECT_EQ(shown(CommonControl::lblTitle), MlString(325, {}) + "3");
}

TEST_F(SetMeasureTest, TheMenuNamesTheNumberInBothLanguages) {
    panel_.setNumber(3);
    const auto rightClickOnGrip = [&] {
        const Point grip = measureGripPoint(MeasureGrip::endA1, tool_.state());
        const MouseInput input = ToolPlayer::inputAt(grip, mouseButton::right);
        ASSERT_TRUE(tool_.HitTest(input.x, input.y));
        tool_.mouseDown(input, {&tool_, &tool_, false});
        tool_.mouseUp(input, {&tool_, &tool_, false});
    };
    rightClickOnGrip();
    const ManualLanguage german(languageGerman);
    rightClickOnGrip();
    EXPECT_EQ(view_.menus,
              (std::vector<std::string>{"Remove measurement tool 3", "Messwerkzeug 3 entfernen"}));
}

TEST_F(SetMeasureTest, PauseDisablesThePanelAndHidesTheTool) {
    panel_.setPause(true);
    EXPECT_FALSE(visible_[&tool_]);
    EXPECT_EQ(view_.enabling, (PanelEnabling{false, true, false, false}));
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{onFace, true, std::nullopt, Picture::hide}));
    panel_.setPause(false);
    EXPECT_TRUE(visible_[&tool_]);
    EXPECT_EQ(view_.enabling, (PanelEnabling{true, true, false, false}));
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{offFace, false, std::nullopt, Picture::show}));
}

TEST_F(SetMeasureTest, ANewPanelShowsTheOpenEyeAtOnce) {
    panel_.finish();
    EXPECT_EQ(view_.buttons[CommonControl::cmdPause],
              (ButtonLook{offFace, false, std::nullopt, Picture::show}));
}

TEST_F(SetMeasureTest, UndoingADisconnectShowsTheLinesConnectedAgain) {
    click("optMode(1)");
    later(1);
    panel_.ShowAllProps(false);
    EXPECT_FALSE(view_.buttons[MeasureControl::optConnect].down);
    EXPECT_TRUE(view_.buttons[MeasureControl::optDisconnect].down);
    later(1);
    panel_.Undo();
    EXPECT_TRUE(tool_.Connected());
    EXPECT_TRUE(view_.buttons[MeasureControl::optConnect].down);
    EXPECT_FALSE(view_.buttons[MeasureControl::optDisconnect].down);
    later(1);
    panel_.Redo();
    EXPECT_FALSE(tool_.Connected());
}

TEST_F(SetMeasureTest, TheSwitchesTurnTheLabelsOnAndOff) {
    click("chkShowAngle");
    later(1);
    click("chkShowLength");
    EXPECT_FALSE(tool_.LabelsAngleVisible());
    EXPECT_FALSE(tool_.LabelsLengthVisible());
    EXPECT_EQ(view_.buttons[MeasureControl::chkShowAngle], (ButtonLook{offFace, false}));
    EXPECT_EQ(view_.buttons[MeasureControl::chkShowLength], (ButtonLook{offFace, false}));
    later(1);
    click("chkShowAngle");
    EXPECT_EQ(view_.buttons[MeasureControl::chkShowAngle], (ButtonLook{onFace, true}));
}

TEST_F(SetMeasureTest, ADarkColourShowsWhiteText) {
    panel_.setColorA(rgb(0, 0, 128));
    panel_.setColorB(rgb(255, 255, 0));
    EXPECT_EQ(tool_.ColorA(), rgb(0, 0, 128));
    EXPECT_EQ(tool_.ColorB(), rgb(255, 255, 0));
    EXPECT_EQ(view_.buttons[MeasureControl::cmdColorA],
              (ButtonLook{rgb(0, 0, 128), false, rgb(255, 255, 255)}));
    EXPECT_EQ(view_.buttons[MeasureControl::cmdColorB],
              (ButtonLook{rgb(255, 255, 0), false, rgb(0, 0, 0)}));
}

TEST_F(SetMeasureTest, TheLineGoesToTheToolAndToItsButton) {
    panel_.setLineWidth(0);
    EXPECT_EQ(tool_.LineWidth(), 0);
    EXPECT_EQ(shownLine(), drawLinePicture(0, {32, 16}).argb);
}

TEST_F(SetMeasureTest, AColourIsNoStepOfUndo) {
    panel_.setColorA(0x123456);
    panel_.AddHistoryStep();
    EXPECT_FALSE(tool_.History().UndoPossible());
}

TEST_F(SetMeasureTest, ColoursAndLineComeFromTheirDialogs) {
    commands_.color = rgb(0, 0, 64);
    click("cmdColorA");
    commands_.color = rgb(255, 255, 128);
    click("cmdColorB");
    commands_.lineStyle = 3;
    click("cmdLineStyle");
    EXPECT_EQ(tool_.ColorA(), rgb(0, 0, 64));
    EXPECT_EQ(tool_.ColorB(), rgb(255, 255, 128));
    EXPECT_EQ(view_.buttons[MeasureControl::cmdColorA].text, rgb(255, 255, 255));
    EXPECT_EQ(shownLine(), drawLinePicture(3, {32, 16}).argb);
    EXPECT_FALSE(tool_.History().UndoPossible());
}

TEST_F(SetMeasureTest, CancelledDialogsChangeNothing) {
    const Color colorA = tool_.ColorA();
    const MeasureUnits units{0, 1, 0.5, "km"};
    panel_.setUnits(units);
    view_.refreshes = 0;
    click("cmdColorA");
    click("cmdLineStyle");
    click("cmdUnits");
    EXPECT_EQ(tool_.ColorA(), colorA);
    EXPECT_EQ(commands_.unitsShown, std::vector{units});
    EXPECT_EQ(tool_.LengthUnit(), "km");
    EXPECT_EQ(tool_.LengthFactor(), 0.5);
    EXPECT_FALSE(tool_.History().UndoPossible());
    EXPECT_EQ(view_.refreshes, 0);
}

TEST_F(SetMeasureTest, OnlyThePauseButtonBringsAPausedToolBack) {
    click("cmdPause");
    EXPECT_FALSE(visible_[&tool_]);
    EXPECT_FALSE(view_.enabling.controls);
    click("cmdPause");
    EXPECT_TRUE(visible_[&tool_]);
    EXPECT_TRUE(view_.enabling.controls);
}

TEST_F(SetMeasureTest, TheButtonAsksForTheRemoval) {
    click("cmdDelete");
    EXPECT_EQ(view_.removeRequests, 1);
}

TEST_F(SetMeasureTest, AnyModifierBlocksTheDeleteKey) {
    for (const int shift : {modifier::shift, modifier::ctrl, modifier::alt}) {
        tool_.keyDown(key::remove, shift);
    }
    EXPECT_EQ(view_.removeRequests, 0);
    tool_.keyDown(key::remove, 0);
    EXPECT_EQ(view_.removeRequests, 1);
}

TEST_F(SetMeasureTest, TheDefaultPlaceIsAStepOfUndoAndKeepsTheShape) {
    click("cmdDefaultPos");
    EXPECT_EQ(tool_.LineA(), (Line{500, 499, 500, 400}));
    EXPECT_EQ(tool_.LineB(), (Line{549, 400, 500, 400}));
    EXPECT_TRUE(view_.enabling.undo);
    panel_.Undo();
    EXPECT_EQ(tool_.LineA(), (Line{100, 199, 100, 100}));
}

TEST_F(SetMeasureTest, TheSelectedLookComesOnceWithItsEvent) {
    panel_.setSelected(true);
    later(1);
    panel_.ShowAllProps(false);
    EXPECT_EQ(view_.selections, 1);
    EXPECT_EQ(view_.look, selectedLook);
}

}  // namespace
}  // namespace ormala
