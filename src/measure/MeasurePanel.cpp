#include "measure/MeasurePanel.h"

#include <array>

#include "language/MlStringModule.h"
#include "measure/MeasureReadOuts.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

constexpr int solidOnePixel = 2;

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

constexpr ButtonLook switchLook(bool on) {
    return {on ? dark::on : dark::off, on, std::nullopt};
}

}  // namespace

MeasurePanel::MeasurePanel(ctlMeasure& tool, const PanelPorts& ports, MeasureCommands& commands,
                           const ToolSettings& settings)
    : PanelCore(tool, tool.events(), tool.History(), ports),
      tool_(tool),
      commands_(commands),
      settings_(settings) {
    ShowAllProps(false);
}

void MeasurePanel::setColorA(Color color) {
    view().showButton("cmdColorA", colorButtonLook(color));
    tool_.setColorA(color);
}

void MeasurePanel::setColorB(Color color) {
    view().showButton("cmdColorB", colorButtonLook(color));
    tool_.setColorB(color);
}

void MeasurePanel::setLineWidth(int lineCode) {
    tool_.setLineWidth(lineCode);
    view().showLineStyle(lineCode);
}

void MeasurePanel::setNumber(int number) {
    number_ = number;
    view().showTexts({title()});
    tool_.setNumber(number);
}

ControlText MeasurePanel::title() const {
    return {"lblTitle", MlString(325, "Measurement Tool ") + std::to_string(number_)};
}

void MeasurePanel::connect(bool connected) {
    tool_.setConnected(connected);
    AddHistoryStep();
    ShowAllProps(false);
}

void MeasurePanel::toggleAngleLabels() {
    tool_.setLabelsAngleVisible(!tool_.LabelsAngleVisible());
    ShowAllProps(false);
}

void MeasurePanel::toggleLengthLabels() {
    tool_.setLabelsLengthVisible(!tool_.LabelsLengthVisible());
    ShowAllProps(false);
}

void MeasurePanel::clickColorA() {
    setColorA(commands_.SelectColor(ColorA()));
    AddHistoryStep();
}

void MeasurePanel::clickColorB() {
    setColorB(commands_.SelectColor(ColorB()));
    AddHistoryStep();
}

void MeasurePanel::clickLineStyle() {
    setLineWidth(commands_.SelectLineStyle(LineWidth()));
    AddHistoryStep();
}

void MeasurePanel::clickUnits() {
    if (commands_.SelectUnits(tool_)) {
        tool_.PositionGrips();
        ShowAllProps(false);
    }
}

void MeasurePanel::LoadFromFile(INIFile& file) {
    const ToolChanges changes(tool_);
    loadLines(file);
    setLineWidth(file.LongValue("LineWidth", solidOnePixel));
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
    setPause(flagValue(file, "Hide", false));
    finish();
}

/// The connection comes first, since it decides where line b ends if the file doesn't say so.
void MeasurePanel::loadLines(INIFile& file) {
    tool_.setConnected(flagValue(file, "Connected", false));
    tool_.setLineA(lineValue(file, keysOfA, fileLineA));
    Line missing = fileLineB;
    if (tool_.Connected()) {
        missing.y2 = fileLineA.y2;
    }
    tool_.setLineB(lineValue(file, keysOfB, missing));
}

void MeasurePanel::StoreToFile(INIFile& file) const {
    ToolKeyWriter writer(file);
    visitKeys(writer);
}

bool MeasurePanel::EqualsFile(INIFile& file) const {
    ToolKeyComparer comparer(file);
    return visitKeys(comparer);
}

bool MeasurePanel::visitKeys(ToolKeys& keys) const {
    return keys.flag("Connected", tool_.Connected()) && visitLine(keys, keysOfA, tool_.LineA()) &&
           visitLine(keys, keysOfB, tool_.LineB()) && keys.integer("LineWidth", LineWidth()) &&
           keys.integer("ColorA", ColorA()) && keys.integer("ColorB", ColorB()) &&
           keys.integer("AngleMode", tool_.AngleMode()) &&
           keys.integer("LengthMode", tool_.LengthMode()) &&
           keys.factor("LengthFactor", tool_.LengthFactor()) &&
           keys.text("LengthUnit", tool_.LengthUnit()) &&
           keys.flag("LabelsLengthVisible", tool_.LabelsLengthVisible()) &&
           keys.flag("LabelsAngleVisible", tool_.LabelsAngleVisible()) &&
           keys.integer("Number", Number()) && keys.flag("Hide", Pause());
}

void MeasurePanel::setDefaultLook(ToolColors& colors) {
    const ToolChanges changes(tool_);
    constexpr int kind = static_cast<int>(ToolKind::measurement);
    setColorA(colors.NextDefaultToolColor(kind, false));
    setColorB(colors.NextDefaultToolColor(kind, false));
    setLineWidth(solidOnePixel);
}

void MeasurePanel::setUnits(const MeasureUnits& units) {
    tool_.setAngleMode(units.AngleMode);
    tool_.setLengthMode(units.LengthMode);
    tool_.setLengthFactor(units.LengthFactor);
    tool_.setLengthUnit(units.LengthUnit);
}

MeasureUnits MeasurePanel::units() const {
    return {tool_.AngleMode(), tool_.LengthMode(), tool_.LengthFactor(), tool_.LengthUnit()};
}

void MeasurePanel::inherit(const ToolPanel& former) {
    const auto& measure = dynamic_cast<const MeasurePanel&>(former);
    const ToolChanges changes(tool_);
    setLineWidth(measure.LineWidth());
    tool_.setConnected(measure.tool_.Connected());
    tool_.setLabelsAngleVisible(measure.tool_.LabelsAngleVisible());
    tool_.setLabelsLengthVisible(measure.tool_.LabelsLengthVisible());
}

void MeasurePanel::CenterToScreen(double offset) {
    tool_.CenterToScreen(false, offset, true);
}

void MeasurePanel::finish() {
    InitializeFinished();
    ShowAllProps(false);
}

std::vector<ControlText> MeasurePanel::texts() const {
    auto shown = measureReadOuts(tool_.state(), units(), settings_.textForm);
    shown.push_back(title());
    return shown;
}

void MeasurePanel::showState() {
    showSwitch("optMode(0)", tool_.Connected());
    showSwitch("optMode(1)", !tool_.Connected());
    showSwitch("chkShowAngle", tool_.LabelsAngleVisible());
    showSwitch("chkShowLength", tool_.LabelsLengthVisible());
}

void MeasurePanel::showSwitch(std::string_view name, bool on) {
    view().showButton(name, switchLook(on));
}

ButtonLook MeasurePanel::pauseLook() const {
    return switchLook(Pause());
}

std::string MeasurePanel::removeText() const {
    const std::array<std::string, 1> arguments{std::to_string(number_)};
    return MlFormat(MlString(326, "Remove measurement tool %0"), arguments);
}

void MeasurePanel::placeByDefault() {
    tool_.CenterToScreen(false, 0, false);
}

}  // namespace ormala
