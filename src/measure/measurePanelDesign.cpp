#include "measure/measurePanelDesign.h"

#include "measure/ctlSetMeasure.h"

namespace ormala {

namespace {

// Columns: the names of the rows, and a value for each line.
constexpr int left = 4;
constexpr int firstValue = 82;
constexpr int secondValue = 187;

constexpr int commandTop = firstRow + 4 * rowPitch + 2;

constexpr PixelRect field(int from, int to, int top) {
    return {from, top, to, top + rowHeight};
}

void addValues(std::vector<PanelControl>& controls) {
    using enum MeasureControl;
    int top = firstRow;
    const auto add = [&](const char* name, int caption, int tip, const PanelControl& first,
                         const PanelControl& second) {
        controls.push_back(header(name, field(left, firstValue, top), caption, tip));
        controls.push_back(first);
        controls.back().box = field(firstValue, secondValue, top);
        controls.push_back(second);
        controls.back().box = field(secondValue, rightEdge, top);
        top += rowPitch;
    };
    add("lblLength", 47, 48, value(lblLengthA, "lblLengthA"), value(lblLengthB, "lblLengthB"));
    add("lblRatio", 18, 46, value(lblRatioA, "lblRatioA"), value(lblRatioB, "lblRatioB"));
    add("lblAngle", 35, 53, value(lblAngleA, "lblAngleA"), value(lblAngleB, "lblAngleB"));
    PanelControl vertical[] = {value(lblAngleVertA, "lblAngleVertA"),
                               value(lblAngleVertB, "lblAngleVertB")};
    vertical[0].letter = "a";
    vertical[1].letter = "b";
    add("lblAngleVert", 51, 52, vertical[0], vertical[1]);
}

PanelControl colorButton(MeasureControl id, const char* name, const char* letter, int tip,
                         PressAction press) {
    return {.name = name, .id = id, .tip = tip, .letter = letter, .press = press};
}

PanelControl option(MeasureControl id, int index, int tip, Picture picture, PressAction press) {
    PanelControl made = button(id, "optMode", tip, picture, press, PanelPart::option);
    made.index = index;
    return made;
}

void addCommands(std::vector<PanelControl>& controls) {
    using enum MeasureControl;
    CommandRow row(controls, left, commandTop);
    row.addBar({colorButton(cmdColorA, "cmdColorA", "a", 212, &ctlSetMeasure::clickColorA),
                colorButton(cmdColorB, "cmdColorB", "b", 214, &ctlSetMeasure::clickColorB),
                button(CommonControl::cmdLineStyle, "cmdLineStyle", 43, Picture::lineStyle,
                       &SettingControl::clickLineStyle),
                button("cmdUnits", 221, Picture::units, &ctlSetMeasure::clickUnits)});
    row.addBar(
        {option(optConnect, 0, 217, Picture::connectLines, &ctlSetMeasure::connect),
         option(optDisconnect, 1, 220, Picture::disconnectLines, &ctlSetMeasure::disconnect)});
    row.addBar({button(chkShowLength, "chkShowLength", 218, Picture::showLengths,
                       &ctlSetMeasure::toggleLengthLabels, PanelPart::toggle),
                button(chkShowAngle, "chkShowAngle", 219, Picture::showAngles,
                       &ctlSetMeasure::toggleAngleLabels, PanelPart::toggle)});
    row.addBar({button("cmdDefaultPos", 216, Picture::center, &SettingControl::setDefaultPlace)});
}

PanelDesign makeDesign() {
    const int height = CommandRow::panelHeight(commandTop);
    PanelDesign design{.className = "ctlSetMeasure",
                       .size = {panelWidth, height},
                       .controls = titleControls(0, 215),
                       .removeText = 326,
                       .removedText = 641,
                       .growthInterval = 45,
                       .litByPause = true};
    addValues(design.controls);
    addCommands(design.controls);
    design.controls.push_back(bottomBand(height));
    return design;
}

}  // namespace

const PanelDesign& measurePanelDesign() {
    static const PanelDesign design = makeDesign();
    return design;
}

}  // namespace ormala
