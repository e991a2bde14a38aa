#include "app/menuDesign.h"

#include <array>

namespace ormala {

namespace {

constexpr MenuLineDesign entryOf(Command entry, int row, const char* caption) {
    return {MenuLine::entry, entry, row, caption};
}

constexpr MenuLineDesign separator{};

}  // namespace

std::span<const MenuLineDesign> popupMenuDesign() {
    using enum Command;
    static constexpr std::array lines{
        entryOf(worksheetMaximised, 57, "Maximized window without title bar"),
        entryOf(worksheetNormal, 58, "Normal, resizable window"),
        separator,
        entryOf(pauseMode, 60, "Pause"),
        entryOf(templateMode, 61, "Template Mode"),
        separator,
        entryOf(addStencil, 62, "Add new stencil tool"),
        entryOf(addMeasure, 63, "Add new measurement tool"),
        separator,
        MenuLineDesign{MenuLine::lensMenu, {}, 64, "Magnifier"},
        entryOf(grid, 80, "Grid visible"),
        entryOf(crossHair, 340, "Cross hair visible"),
        entryOf(referenceLines, 341, "Reference lines enabled"),
        entryOf(circleCompass, 342, "Circle compass enabled"),
        separator,
        entryOf(worksheetOptions, 83, "Options..."),
        entryOf(help, 84, "Help..."),
    };
    return lines;
}

std::span<const MenuLineDesign> lensMenuDesign() {
    using enum Command;
    static constexpr std::array lines{
        entryOf(lens, 65, "Visible"),
        separator,
        MenuLineDesign{MenuLine::factorMenu, {}, 66, "Magnification"},
        separator,
        entryOf(lensStick, 77, "Attach to mouse"),
        separator,
        entryOf(lensCursor, 78, "Mouse pointer visible"),
        entryOf(lensHotSpot, 79, "\"Hot spot\" mark visible"),
        entryOf(lensGrid, 80, "Grid visible"),
        entryOf(lensTopLeftScales, 81, "Top and left scales visible"),
        entryOf(lensBottomRightScales, 82, "Bottom and right scales visible"),
        separator,
        entryOf(lensOptions, 83, "Options..."),
    };
    return lines;
}

std::string captionOfLensFactor(int factor) {
    return std::to_string(factor) + " X";
}

}  // namespace ormala
