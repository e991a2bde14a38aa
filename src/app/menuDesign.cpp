#include "app/menuDesign.h"

#include <array>

namespace ormala {

namespace {

constexpr MenuLineDesign entryOf(MenuEntry entry, int row, const char* caption) {
    return {MenuLine::entry, entry, row, caption};
}

constexpr MenuLineDesign separator{};

}  // namespace

std::span<const MenuLineDesign> popupMenuDesign() {
    using enum MenuEntry;
    static constexpr std::array lines{
        entryOf(mnuWindowMaximized, 57, "Maximized window without title bar"),
        entryOf(mnuWindowNormal, 58, "Normal, resizable window"),
        separator,
        entryOf(mnuModePause, 60, "Pause"),
        entryOf(mnuModeTemplate, 61, "Template Mode"),
        separator,
        entryOf(mnuAddGrid, 62, "Add new stencil tool"),
        entryOf(mnuAddMeasure, 63, "Add new measurement tool"),
        separator,
        MenuLineDesign{MenuLine::lensMenu, {}, 64, "Magnifier"},
        entryOf(mnuGridVisible, 80, "Grid visible"),
        entryOf(mnuCrossHairVisible, 340, "Cross hair visible"),
        entryOf(mnuReferenceLinesEnabled, 341, "Reference lines enabled"),
        entryOf(mnuCircleCompassEnabled, 342, "Circle compass enabled"),
        separator,
        entryOf(mnuOptions, 83, "Options..."),
        entryOf(mnuHelp, 84, "Help..."),
    };
    return lines;
}

std::span<const MenuLineDesign> lensMenuDesign() {
    using enum MenuEntry;
    static constexpr std::array lines{
        entryOf(mnuLensVisible, 65, "Visible"),
        separator,
        MenuLineDesign{MenuLine::factorMenu, {}, 66, "Magnification"},
        separator,
        entryOf(mnuLensStick, 77, "Attach to mouse"),
        separator,
        entryOf(mnuLensCursor, 78, "Mouse pointer visible"),
        entryOf(mnuLensHotSpot, 79, "\"Hot spot\" mark visible"),
        entryOf(mnuLensGrid, 80, "Grid visible"),
        entryOf(mnuLensTopLeftScales, 81, "Top and left scales visible"),
        entryOf(mnuLensBottomRightScales, 82, "Bottom and right scales visible"),
        separator,
        entryOf(mnuLensOptions, 83, "Options..."),
    };
    return lines;
}

std::string captionOfLensFactor(int factor) {
    return std::to_string(factor) + " X";
}

}  // namespace ormala
