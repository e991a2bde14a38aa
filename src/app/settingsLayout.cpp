#include "app/settingsLayout.h"

#include "scene/dpi.h"

namespace ormala {

namespace {

// At 96 DPI.
constexpr int margin = 4;
constexpr int inside = 292;
constexpr int buttonHeight = 24;
constexpr int smallButton = 25;
// Each has room for its longest caption.
constexpr int editButton = 88;
constexpr int templateButton = 76;
constexpr int pauseButton = 70;
constexpr int stencilButton = 82;
constexpr int measureButton = 70;
constexpr int groupGap = 7;
constexpr int pathHeight = 15;
constexpr int gapAboveList = 16;
constexpr int listHeight = 64;
/// The short window ends this much above the list.
constexpr int cutAboveList = 12;

constexpr int firstRow = margin;
constexpr int secondRow = firstRow + buttonHeight + margin;
constexpr int pathRow = secondRow + buttonHeight + margin;
constexpr int listTop = pathRow + pathHeight + gapAboveList;

/// Places buttons from left to right.
class Row {
  public:
    Row(SettingsLayout& layout, int top, int left, int dpi)
        : layout_(layout), top_(top), left_(left), dpi_(dpi) {}

    Row& add(Command command, int width) {
        layout_.buttons[static_cast<std::size_t>(command)] = {
            scaledLength(left_, dpi_), scaledLength(top_, dpi_), scaledLength(left_ + width, dpi_),
            scaledLength(top_ + buttonHeight, dpi_)};
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
    Row(*this, firstRow, margin, dpi)
        .add(Command::editMode, editButton)
        .add(Command::templateMode, templateButton)
        .add(Command::pauseMode, pauseButton)
        .gap(inside - editButton - templateButton - pauseButton - 2 * smallButton)
        .add(Command::templateAndMinimise, smallButton)
        .add(Command::pauseAndMinimise, smallButton);
    Row(*this, secondRow, margin, dpi)
        .add(Command::addStencil, stencilButton)
        .add(Command::addMeasure, measureButton)
        .gap(groupGap)
        .add(Command::newTools, smallButton)
        .add(Command::load, smallButton)
        .add(Command::save, smallButton)
        .add(Command::saveAs, smallButton)
        .gap(inside - stencilButton - measureButton - groupGap - 5 * smallButton)
        .add(Command::worksheetNormal, smallButton);
    const auto line = [dpi](int top) {
        return PixelRect{scaledLength(margin, dpi), scaledLength(top, dpi),
                         scaledLength(margin + inside, dpi), scaledLength(top + pathHeight, dpi)};
    };
    lblPath = line(pathRow);
    lblInfo = line(pathRow + 2 * pathHeight);
    picOuter = {scaledLength(margin, dpi), scaledLength(listTop, dpi),
                scaledLength(margin + inside, dpi), scaledLength(listTop + listHeight, dpi)};
    width = scaledLength(2 * margin + inside, dpi);
    shortHeight = scaledLength(listTop - cutAboveList, dpi);
    firstHeight = scaledLength(listTop + listHeight + margin, dpi);
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
