#include "stencil/stencilPanelDesign.h"

#include "stencil/ctlSetRatioGrid.h"

namespace ormala {

namespace {

// Columns: the names of the rows, and two values with a pair of steps behind each.
constexpr int left = 4;
constexpr int firstValue = 67;
constexpr int firstSteps = 141;
constexpr int secondValue = 177;
constexpr int secondSteps = 260;

constexpr int stepWidth = 16;
/// The picture of the patterns with the angle and the ratio at its right.
constexpr int pictureTop = firstRow + 4 * rowPitch + 4;
constexpr int pictureSize = 52;

constexpr int commandTop = pictureTop + 56;
constexpr PixelRect field(int from, int to, int top) {
    return {from, top, to, top + rowHeight};
}

PanelControl move(int index, int tip, Picture picture) {
    return step("cmdMove", index, tip, picture, &ctlSetRatioGrid::stepMove);
}

/// A value with the two buttons that change it, which follow each other as `cmdMove`.
struct SteppedValue {
    StencilControl id;
    const char* name;
    int tip;
    int firstMove;
    int decreaseTip;
    Picture decreasePicture;
    int increaseTip;
    Picture increasePicture;
};

class Rows {
  public:
    explicit Rows(std::vector<PanelControl>& controls) : controls_(controls) {}

    void addHeader(const char* name, int caption) {
        controls_.push_back(header(name, field(left, firstValue, top_), caption));
    }
    void addValues(const SteppedValue& first, const SteppedValue& second) {
        add(first, firstValue, firstSteps);
        add(second, secondValue, secondSteps);
        top_ += rowPitch;
    }

  private:
    void add(const SteppedValue& shown, int from, int steps) {
        controls_.push_back(value(shown.id, shown.name, field(from, steps, top_), shown.tip));
        appendBar(controls_, field(steps, steps + stepWidth, top_),
                  {move(shown.firstMove, shown.decreaseTip, shown.decreasePicture),
                   move(shown.firstMove + 1, shown.increaseTip, shown.increasePicture)});
    }

    std::vector<PanelControl>& controls_;
    int top_ = firstRow;
};

void addPlaces(std::vector<PanelControl>& controls) {
    using enum StencilControl;
    using enum Picture;
    Rows rows(controls);
    rows.addHeader("lblCenter", 40);
    rows.addValues({lblCenterX, "lblCenterX", 39, 0, 182, moveLeft, 180, moveRight},
                   {lblCenterY, "lblCenterY", 37, 2, 179, moveUp, 181, moveDown});
    rows.addHeader("lblSize", 30);
    rows.addValues(
        {lblSizeWidth, "lblSizeWidth", 29, 12, 201, decreaseWidth, 202, increaseWidth},
        {lblSizeHeight, "lblSizeHeight", 27, 14, 203, decreaseHeight, 204, increaseHeight});
    rows.addHeader("lblPosition", 20);
    rows.addValues(
        {lblPositionLeft, "lblPositionLeft", 0, 4, 194, leftBorderLeft, 193, leftBorderRight},
        {lblPositionRight, "lblPositionRight", 0, 6, 196, rightBorderLeft, 195, rightBorderRight});
    rows.addValues({lblPositionTop, "lblPositionTop", 0, 8, 197, topBorderUp, 198, topBorderDown},
                   {lblPositionBottom, "lblPositionBottom", 24, 10, 199, bottomBorderUp, 200,
                    bottomBorderDown});
}

void addAngleAndRatio(std::vector<PanelControl>& controls) {
    using enum StencilControl;
    constexpr int angleTop = pictureTop;
    constexpr int ratioTop = angleTop + rowPitch;
    constexpr int descriptionTop = ratioTop + rowPitch;
    constexpr int lastStep = rightEdge - stepWidth;
    /// Of the angle and the ratio.
    constexpr int numbers = 122;
    constexpr int turns = lastStep - 6 - 2 * stepWidth;
    const auto add = [&controls](const PanelControl& control) { controls.push_back(control); };
    add({.name = "imgPattern",
         .id = imgPattern,
         .part = PanelPart::image,
         .box = {left, pictureTop, left + pictureSize, pictureTop + pictureSize},
         .tip = 11,
         .press = &ctlSetRatioGrid::clickSelectPattern});
    add(header("lblAngle", field(firstValue, numbers, angleTop), 35));
    add(value(lblAngle1, "lblAngle1", field(numbers, 172, angleTop), 34));
    add(value(lblAngle2, "lblAngle2", field(172, turns, angleTop), 32));
    appendBar(
        controls, field(turns, turns + stepWidth, angleTop),
        {step("cmdAngle", 0, 184, Picture::rotateCounterclockwise, &ctlSetRatioGrid::stepAngle),
         step("cmdAngle", 1, 185, Picture::rotateClockwise, &ctlSetRatioGrid::stepAngle)});
    appendBar(controls, field(lastStep, rightEdge, angleTop),
              {button("cmdAngleZero", 187, Picture::angleZero, &ctlSetRatioGrid::clickAngleZero)});
    add(header("lblRatio", field(firstValue, numbers, ratioTop), 18, 19));
    add(value(lblRatioWH, "lblRatioWH", field(numbers, 205, ratioTop), 17));
    add(value(lblRatioHW, "lblRatioHW", field(205, rightEdge, ratioTop), 13));
    add(value(lblRatioDescription, "lblRatioDescription",
              field(firstValue, lastStep, descriptionTop), 15));
    appendBar(controls, field(lastStep, rightEdge, descriptionTop),
              {button("cmdEditRatio", 192, Picture::editRatio, &ctlSetRatioGrid::clickEditRatio)});
}

void addCommands(std::vector<PanelControl>& controls) {
    using enum StencilControl;
    CommandRow row(controls, left, commandTop);
    row.addBar({button("cmdSelectPattern", 175, Picture::selectPattern,
                       &ctlSetRatioGrid::clickSelectPattern),
                button(cmdColor, "cmdColor", 6, Picture::color, &ctlSetRatioGrid::clickColor),
                button(CommonControl::cmdLineStyle, "cmdLineStyle", 191, Picture::lineStyle,
                       &SettingControl::clickLineStyle)});
    row.addBar(
        {button("cmdDefaultPos", 178, Picture::defaultPlace, &SettingControl::setDefaultPlace),
         button("cmdFullSize", 190, Picture::fullSize, &ctlSetRatioGrid::clickFullSize),
         button("cmdMoveCenter", 183, Picture::center, &ctlSetRatioGrid::clickMoveCenter)});
    row.addBar({move(16, 205, Picture::decreaseSize), move(17, 206, Picture::increaseSize)});
    row.addBar({{.name = "cmdSendMouseInput",
                 .tip = 188,
                 .picture = Picture::mouseAction,
                 .press = &ctlSetRatioGrid::clickSendMouseInput,
                 .hover = &ctlSetRatioGrid::hoverSendMouseInput}});
}

PanelDesign makeDesign() {
    const int height = CommandRow::panelHeight(commandTop);
    PanelDesign design{.className = "ctlSetRatioGrid",
                       .size = {panelWidth, height},
                       .controls = titleControls(209, 177),
                       .removeText = 328,
                       .removedText = 640,
                       .growthInterval = 46,
                       .pauseDimsLabels = true};
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
