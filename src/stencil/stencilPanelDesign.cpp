#include "stencil/stencilPanelDesign.h"

namespace ormala {

namespace {

// Columns: the names of the rows, and two values with a pair of steps behind each.
constexpr int left = 4;
constexpr int firstValue = 67;
constexpr int firstSteps = 141;
constexpr int secondValue = 177;
constexpr int secondSteps = 260;
constexpr int right = 292;

constexpr int firstRow = 25;
constexpr int rowPitch = 18;
constexpr int rowHeight = 16;
constexpr int stepWidth = 16;
/// The picture of the patterns with the angle and the ratio at its right.
constexpr int pictureTop = firstRow + 4 * rowPitch + 4;
constexpr int pictureSize = 52;

constexpr int commandTop = pictureTop + 56;
constexpr PixelRect field(int from, int to, int top) {
    return {from, top, to, top + rowHeight};
}

constexpr PixelRect step(int from, int index, int top) {
    return field(from + index * stepWidth, from + (index + 1) * stepWidth, top);
}

/// A value with the two buttons that change it.
struct SteppedValue {
    const char* name;
    int tip;
    const char* decrease;
    int decreaseTip;
    Picture decreasePicture;
    const char* increase;
    int increaseTip;
    Picture increasePicture;
};

class Rows {
  public:
    explicit Rows(std::vector<PanelControl>& controls) : controls_(controls) {}

    void add(const char* header, int caption, const SteppedValue& first,
             const SteppedValue& second) {
        if (header != nullptr) {
            controls_.push_back(
                {header, PanelPart::header, field(left, firstValue, top_), caption});
        }
        add(first, firstValue, firstSteps);
        add(second, secondValue, secondSteps);
        top_ += rowPitch;
    }

  private:
    void add(const SteppedValue& value, int from, int steps) {
        controls_.push_back({value.name, PanelPart::value, field(from, steps, top_), 0, value.tip});
        controls_.push_back({value.decrease, PanelPart::button, step(steps, 0, top_), 0,
                             value.decreaseTip, value.decreasePicture, roundAtLeft});
        controls_.push_back({value.increase, PanelPart::button, step(steps, 1, top_), 0,
                             value.increaseTip, value.increasePicture, roundAtRight});
    }

    std::vector<PanelControl>& controls_;
    int top_ = firstRow;
};

void addPlaces(std::vector<PanelControl>& controls) {
    Rows rows(controls);
    rows.add("lblCenter", 40,
             {"lblCenterX", 39, "cmdMove(0)", 182, Picture::moveLeft, "cmdMove(1)", 180,
              Picture::moveRight},
             {"lblCenterY", 37, "cmdMove(2)", 179, Picture::moveUp, "cmdMove(3)", 181,
              Picture::moveDown});
    rows.add("lblSize", 30,
             {"lblSizeWidth", 29, "cmdMove(12)", 201, Picture::decreaseWidth, "cmdMove(13)", 202,
              Picture::increaseWidth},
             {"lblSizeHeight", 27, "cmdMove(14)", 203, Picture::decreaseHeight, "cmdMove(15)", 204,
              Picture::increaseHeight});
    rows.add("lblPosition", 20,
             {"lblPositionLeft", 0, "cmdMove(4)", 194, Picture::leftBorderLeft, "cmdMove(5)", 193,
              Picture::leftBorderRight},
             {"lblPositionRight", 0, "cmdMove(6)", 196, Picture::rightBorderLeft, "cmdMove(7)", 195,
              Picture::rightBorderRight});
    rows.add(nullptr, 0,
             {"lblPositionTop", 0, "cmdMove(8)", 197, Picture::topBorderUp, "cmdMove(9)", 198,
              Picture::topBorderDown},
             {"lblPositionBottom", 24, "cmdMove(10)", 199, Picture::bottomBorderUp, "cmdMove(11)",
              200, Picture::bottomBorderDown});
}

void addAngleAndRatio(std::vector<PanelControl>& controls) {
    constexpr int angleTop = pictureTop;
    constexpr int ratioTop = angleTop + rowPitch;
    constexpr int descriptionTop = ratioTop + rowPitch;
    constexpr int lastStep = right - stepWidth;
    /// Of the angle and the ratio.
    constexpr int value = 122;
    constexpr int turns = lastStep - 6 - 2 * stepWidth;
    const PixelRect picture{left, pictureTop, left + pictureSize, pictureTop + pictureSize};
    controls.insert(controls.end(),
                    {{"imgPattern", PanelPart::image, picture, 0, 11},
                     {"lblAngle", PanelPart::header, field(firstValue, value, angleTop), 35},
                     {"lblAngle1", PanelPart::value, field(value, 172, angleTop), 0, 34},
                     {"lblAngle2", PanelPart::value, field(172, turns, angleTop), 0, 32},
                     {"cmdAngle(0)", PanelPart::button, step(turns, 0, angleTop), 0, 184,
                      Picture::rotateCounterclockwise, roundAtLeft},
                     {"cmdAngle(1)", PanelPart::button, step(turns, 1, angleTop), 0, 185,
                      Picture::rotateClockwise, roundAtRight},
                     {"cmdAngleZero", PanelPart::button, field(lastStep, right, angleTop), 0, 187,
                      Picture::angleZero},
                     {"lblRatio", PanelPart::header, field(firstValue, value, ratioTop), 18, 19},
                     {"lblRatioWH", PanelPart::value, field(value, 205, ratioTop), 0, 17},
                     {"lblRatioHW", PanelPart::value, field(205, right, ratioTop), 0, 13},
                     {"lblRatioDescription", PanelPart::value,
                      field(firstValue, lastStep, descriptionTop), 0, 15},
                     {"cmdEditRatio", PanelPart::button, field(lastStep, right, descriptionTop), 0,
                      192, Picture::editRatio}});
}

void addCommands(std::vector<PanelControl>& controls) {
    CommandRow row(controls, left, commandTop);
    row.add("cmdSelectPattern", 175, Picture::selectPattern, roundAtLeft);
    row.add("cmdColor", 6, Picture::color, square);
    row.add("cmdLineStyle", 191, Picture::lineStyle, roundAtRight);
    row.endGroup();
    row.add("cmdDefaultPos", 178, Picture::defaultPlace, roundAtLeft);
    row.add("cmdFullSize", 190, Picture::fullSize, square);
    row.add("cmdMoveCenter", 183, Picture::center, roundAtRight);
    row.endGroup();
    row.add("cmdMove(16)", 205, Picture::decreaseSize, roundAtLeft);
    row.add("cmdMove(17)", 206, Picture::increaseSize, roundAtRight);
    row.endGroup();
    row.add("cmdSendMouseInput", 188, Picture::mouseAction, 0);
}

PanelDesign makeDesign() {
    const int height = CommandRow::panelHeight(commandTop);
    PanelDesign design{{panelWidth, height}, titleControls(209, 177)};
    addPlaces(design.controls);
    addAngleAndRatio(design.controls);
    addCommands(design.controls);
    design.controls.push_back(bottomBand(height));
    return design;
}

}  // namespace

const PanelDesign& stencilPanelDesign() {
    static const PanelDesign design = makeDesign();
    return design;
}

}  // namespace ormala
