#include "app/settingsLayout.h"

#include "widgets/ButtonDesign.h"
#include "widgets/dpi.h"

namespace ormala {

namespace {

// At 96 DPI.
constexpr int margin = 4;
constexpr int inside = 310;
constexpr int smallButton = 25;
// Each has room for its longest caption.
constexpr int editButton = 88;
constexpr int templateButton = 76;
constexpr int pauseButton = 70;
constexpr int stencilButton = 82;
constexpr int measureButton = 78;
constexpr int viewGap = 40;
constexpr int sliderHeight = 20;
constexpr int labelWidth = 78;
constexpr int labelHeight = 16;
constexpr int pathHeight = 15;
constexpr int gapAboveList = 16;
constexpr int listHeight = 64;
/// The short window ends this much above the list.
constexpr int cutAboveList = 12;

constexpr int firstButtonRow = margin;
constexpr int secondButtonRow = firstButtonRow + textButtonHeight + margin;
constexpr int thirdButtonRow = secondButtonRow + textButtonHeight + margin;
constexpr int lookRow = thirdButtonRow + textButtonHeight + margin;
constexpr int pathRow = lookRow + 2 * sliderHeight + margin;
constexpr int listTop = pathRow + pathHeight + gapAboveList;

/// The palette of the worksheet's colour, in fields and in pixels a field.
constexpr PixelSize paletteFields{13, 8};
constexpr int fieldSide = 5;

/// Places buttons from left to right.
class Row {
  public:
    Row(SettingsLayout& layout, int top, int left, int dpi)
        : layout_(layout), top_(top), left_(left), dpi_(dpi) {}

    Row& add(Command command, int width) {
        layout_.buttons[static_cast<std::size_t>(command)] = {
            scaledLength(left_, dpi_), scaledLength(top_, dpi_), scaledLength(left_ + width, dpi_),
            scaledLength(top_ + textButtonHeight, dpi_)};
        left_ += width;
        return *this;
    }
    Row& gap(int width) {
        left_ += width;
        return *this;
    }

  private:
    SettingsLayout& layout_;
    int top_;
    int left_;
    int dpi_;
};

}  // namespace

SettingsLayout::SettingsLayout(int dpi) {
    Row(*this, firstButtonRow, margin, dpi)
        .add(Command::editMode, editButton)
        .add(Command::templateMode, templateButton)
        .add(Command::pauseMode, pauseButton)
        .gap(inside - editButton - templateButton - pauseButton - 2 * smallButton)
        .add(Command::templateAndMinimise, smallButton)
        .add(Command::pauseAndMinimise, smallButton);
    Row(*this, secondButtonRow, margin, dpi)
        .add(Command::addStencil, stencilButton)
        .add(Command::addMeasure, measureButton)
        .gap(inside - stencilButton - measureButton - 4 * smallButton)
        .add(Command::newTools, smallButton)
        .add(Command::load, smallButton)
        .add(Command::save, smallButton)
        .add(Command::saveAs, smallButton);
    Row(*this, thirdButtonRow, margin, dpi)
        .add(Command::lens, smallButton)
        .add(Command::grid, smallButton)
        .add(Command::crossHair, smallButton)
        .add(Command::referenceLines, smallButton)
        .add(Command::circleCompass, smallButton)
        .gap(viewGap)
        .add(Command::screenShot, smallButton)
        .add(Command::worksheetNormal, smallButton)
        .gap(inside - viewGap - 9 * smallButton)
        .add(Command::options, smallButton)
        .add(Command::help, smallButton);
    const auto scaled = [dpi](const PixelRect& box) { return scaledToDpi(box, dpi); };
    gradToolbar = scaled({0, 0, 2 * margin + inside, lookRow});
    placeLook(dpi);
    const auto line = [&](int top) {
        return scaled({margin, top, margin + inside, top + pathHeight});
    };
    lblPath = line(pathRow);
    lblInfo = line(pathRow + 2 * pathHeight);
    picOuter = scaled({margin, listTop, margin + inside, listTop + listHeight});
    width = scaledLength(2 * margin + inside, dpi);
    shortHeight = scaledLength(listTop - cutAboveList, dpi);
    firstHeight = scaledLength(listTop + listHeight + margin, dpi);
}

void SettingsLayout::placeLook(int dpi) {
    // Whole fields that leave the sliders their room at every resolution.
    colorField = fieldSide * dpi / designDpi;
    const int paletteWidth = paletteFields.width * fieldSide;
    colorWorksheet = {scaledLength(margin + inside, dpi) - paletteFields.width * colorField,
                      scaledLength(lookRow, dpi)};
    const int left = margin + labelWidth;
    const int right = margin + inside - paletteWidth - margin;
    const auto slider = [&](int row) {
        const int top = lookRow + row * sliderHeight;
        return scaledToDpi(PixelRect{left, top, right, top + sliderHeight}, dpi);
    };
    const int labelTop = lookRow + (sliderHeight - labelHeight) / 2;
    lblTransparency =
        scaledToDpi(PixelRect{margin, labelTop, margin + labelWidth, labelTop + labelHeight}, dpi);
    sldTransEditMode = slider(0);
    sldTransTemplateMode = slider(1);
}

int listScrollBarWidth(int dpi) {
    constexpr int barWidth = 14;
    return scaledLength(barWidth, dpi);
}

int listSmallChange(int dpi) {
    constexpr int change = 24;
    return scaledLength(change, dpi);
}

}  // namespace ormala
