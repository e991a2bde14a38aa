#include "measure/measurePanelDesign.h"

namespace ormala {

namespace {

// Columns: the names of the rows, and a value for each line.
constexpr int left = 4;
constexpr int firstValue = 82;
constexpr int secondValue = 187;
constexpr int right = 292;

constexpr int firstRow = 25;
constexpr int rowPitch = 18;
constexpr int rowHeight = 16;

constexpr int commandTop = firstRow + 4 * rowPitch + 2;

constexpr PixelRect field(int from, int to, int top) {
    return {from, top, to, top + rowHeight};
}

struct Row {
    const char* header;
    int caption;
    int tip;
    const char* first;
    const char* second;
};

constexpr Row rows[] = {
    {"lblLength", 47, 48, "lblLengthA", "lblLengthB"},
    {"lblRatio", 18, 46, "lblRatioA", "lblRatioB"},
    {"lblAngle", 35, 53, "lblAngleA", "lblAngleB"},
    {"lblAngleVert", 51, 52, "lblAngleVertA", "lblAngleVertB"},
};

void addValues(std::vector<PanelControl>& controls) {
    int top = firstRow;
    for (const Row& row : rows) {
        controls.insert(
            controls.end(),
            {{row.header, PanelPart::header, field(left, firstValue, top), row.caption, row.tip},
             {row.first, PanelPart::value, field(firstValue, secondValue, top)},
             {row.second, PanelPart::value, field(secondValue, right, top)}});
        top += rowPitch;
    }
}

void addCommands(std::vector<PanelControl>& controls) {
    CommandRow row(controls, left, commandTop);
    row.add("cmdColorA", 212, std::nullopt, roundAtLeft);
    row.add("cmdColorB", 214, std::nullopt, square);
    row.add("cmdLineStyle", 43, Picture::lineStyle, square);
    row.add("cmdUnits", 221, Picture::units, roundAtRight);
    row.endGroup();
    row.add("optMode(0)", 217, Picture::connectLines, roundAtLeft);
    row.add("optMode(1)", 220, Picture::disconnectLines, roundAtRight);
    row.endGroup();
    row.add("chkShowLength", 218, Picture::showLengths, roundAtLeft);
    row.add("chkShowAngle", 219, Picture::showAngles, roundAtRight);
    row.endGroup();
    row.add("cmdDefaultPos", 216, Picture::center, 0);
}

PanelDesign makeDesign() {
    const int height = CommandRow::panelHeight(commandTop);
    PanelDesign design{{panelWidth, height}, titleControls(0, 215)};
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
