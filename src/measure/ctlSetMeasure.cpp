#include "measure/ctlSetMeasure.h"

#include <array>
#include <utility>

#include "language/MlStringModule.h"
#include "measure/MeasureReadOuts.h"
#include "measure/MeasureTexts.h"
#include "measure/measurePanelDesign.h"
#include "modAPI/drawingColors.h"

namespace ormala {

namespace {

// Of a measuring tool whose keys are missing in its file.
constexpr Line fileLineA{50, 10, 50, 50};
constexpr Line fileLineB{10, 50, 50, 60};

/// The keys of a line's ends begin with its letter.
using LineKeys = std::array<const char*, 4>;
constexpr LineKeys keysOfA{"AX1", "AY1", "AX2", "AY2"};
constexpr LineKeys keysOfB{"BX1", "BY1", "BX2", "BY2"};

Line lineValue(INIFile& file, const LineKeys& keys, const Line& missing) {
    Line line;
    line.x1 = finiteValue(file, keys[0], missing.x1);
    line.y1 = finiteValue(file, keys[1], missing.y1);
    line.x2 = finiteValue(file, keys[2], missing.x2);
    line.y2 = finiteValue(file, keys[3], missing.y2);
    return line;
}

bool visitLine(ToolKeys& visitor, const LineKeys& keys, const Line& line) {
    return visitor.number(keys[0], line.x1) && visitor.number(keys[1], line.y1) &&
           visitor.number(keys[2], line.x2) && visitor.number(keys[3], line.y2);
}

}  // namespace

ctlSetMeasure::ctlSetMeasure(ctlMeasure& tool, const PanelPorts& ports, SelectUnits selectUnits,
                             const ToolSettings& settings)
    : SettingControl(tool, measurePanelDesign(), ports),
      tool_(tool),
      selectUnits_(std::move(selectUnits)),
      settings_(settings) {}

void ctlSetMeasure::setColorA(Color color) {
    view().showButton(MeasureControl::cmdColorA, colorButtonLook(color));
    tool_.setColorA(color);
}

void ctlSetMeasure::setColorB(Color color) {
    view().showButton(MeasureControl::cmdColorB, colorButtonLook(color));
    tool_.setColorB(color);
}

void ctlSetMeasure::setNumber(int number) {
    SettingControl::setNumber(number);
    view().showTexts({title()});
    tool_.setNumber(number);
}

ControlText ctlSetMeasure::title() const {
    return {CommonControl::lblTitle, measureName(Number())};
}

void ctlSetMeasure::setConnected(bool connected) {
    tool_.setConnected(connected);
    changed();
}

void ctlSetMeasure::toggleAngleLabels() {
    tool_.setLabelsAngleVisible(!tool_.LabelsAngleVisible());
    ShowAllProps(false);
}

void ctlSetMeasure::toggleLengthLabels() {
    tool_.setLabelsLengthVisible(!tool_.LabelsLengthVisible());
    ShowAllProps(false);
}

void ctlSetMeasure::clickColorA() {
    setColorA(dialogs().SelectColor(ColorA()));
    AddHistoryStep();
}

void ctlSetMeasure::clickColorB() {
    setColorB(dialogs().SelectColor(ColorB()));
    AddHistoryStep();
}

void ctlSetMeasure::clickUnits() {
    if (selectUnits_(tool_)) {
        tool_.PositionGrips();
        ShowAllProps(false);
    }
}

void ctlSetMeasure::readKeys(INIFile& file) {
    loadLines(file);
    setLineWidth(file.LongValue("LineWidth", ToolHabits{}.LineWidth));
    setColorA(file.LongValue("ColorA", missingColor::lineA));
    setColorB(file.LongValue("ColorB", missingColor::lineB));
    const MeasureUnits missing;
    tool_.setAngleMode(file.LongValue("AngleMode", missing.AngleMode));
    tool_.setLengthMode(file.LongValue("LengthMode", missing.LengthMode));
    tool_.setLengthFactor(finiteValue(file, "LengthFactor", missing.LengthFactor));
    tool_.setLengthUnit(file.TextValue("LengthUnit", missing.LengthUnit));
    tool_.setLabelsLengthVisible(flagValue(file, "LabelsLengthVisible", true));
    tool_.setLabelsAngleVisible(flagValue(file, "LabelsAngleVisible", true));
    setNumber(file.LongValue("Number", 0));
}

/// The connection comes first, since it decides where line b ends if the file doesn't say so.
void ctlSetMeasure::loadLines(INIFile& file) {
    tool_.setConnected(flagValue(file, "Connected", false));
    tool_.setLineA(lineValue(file, keysOfA, fileLineA));
    Line missing = fileLineB;
    if (tool_.Connected()) {
        missing.y2 = fileLineA.y2;
    }
    tool_.setLineB(lineValue(file, keysOfB, missing));
}

bool ctlSetMeasure::visitKeys(ToolKeys& keys) const {
    return keys.flag("Connected", tool_.Connected()) && visitLine(keys, keysOfA, tool_.LineA()) &&
           visitLine(keys, keysOfB, tool_.LineB()) && keys.integer("LineWidth", LineWidth()) &&
           keys.integer("ColorA", ColorA()) && keys.integer("ColorB", ColorB()) &&
           keys.integer("AngleMode", tool_.AngleMode()) &&
           keys.integer("LengthMode", tool_.LengthMode()) &&
           keys.factor("LengthFactor", tool_.LengthFactor()) &&
           keys.text("LengthUnit", tool_.LengthUnit()) &&
           keys.flag("LabelsLengthVisible", tool_.LabelsLengthVisible()) &&
           keys.flag("LabelsAngleVisible", tool_.LabelsAngleVisible()) &&
           keys.integer("Number", Number());
}

void ctlSetMeasure::setDefaultColors(ToolColors& colors) {
    constexpr int kind = static_cast<int>(ToolKind::measurement);
    setColorA(colors.NextDefaultToolColor(kind, false));
    setColorB(colors.NextDefaultToolColor(kind, false));
}

void ctlSetMeasure::setUnits(const MeasureUnits& units) {
    tool_.setAngleMode(units.AngleMode);
    tool_.setLengthMode(units.LengthMode);
    tool_.setLengthFactor(units.LengthFactor);
    tool_.setLengthUnit(units.LengthUnit);
}

MeasureUnits ctlSetMeasure::units() const {
    return {tool_.AngleMode(), tool_.LengthMode(), tool_.LengthFactor(), tool_.LengthUnit()};
}

ToolHabits ctlSetMeasure::habits() const {
    return {LineWidth(), tool_.Connected(), tool_.LabelsAngleVisible(),
            tool_.LabelsLengthVisible()};
}

void ctlSetMeasure::inherit(const ToolHabits& former) {
    const ToolChanges changes(tool_);
    SettingControl::inherit(former);
    tool_.setConnected(former.Connected);
    tool_.setLabelsAngleVisible(former.LabelsAngleVisible);
    tool_.setLabelsLengthVisible(former.LabelsLengthVisible);
}

void ctlSetMeasure::CenterToScreen(double offset) {
    tool_.CenterToScreen(false, offset, true);
}

std::vector<ControlText> ctlSetMeasure::texts() const {
    auto shown = measureReadOuts(tool_.state(), units(), settings_.textForm);
    shown.push_back(title());
    return shown;
}

void ctlSetMeasure::showState() {
    view().showButton(MeasureControl::optConnect, switchLook(tool_.Connected()));
    view().showButton(MeasureControl::optDisconnect, switchLook(!tool_.Connected()));
    view().showButton(MeasureControl::chkShowAngle, switchLook(tool_.LabelsAngleVisible()));
    view().showButton(MeasureControl::chkShowLength, switchLook(tool_.LabelsLengthVisible()));
}

void ctlSetMeasure::placeByDefault() {
    tool_.CenterToScreen(false, 0, false);
}

}  // namespace ormala
