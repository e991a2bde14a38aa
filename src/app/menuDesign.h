#pragma once

#include <span>
#include <string>

namespace ormala {

/// The entries of the popup menus that do something. The ten magnifications follow each other, so
/// that their factor is the distance from `mnuLensFactor`.
enum class MenuEntry {
    mnuWindowMaximized = 1,
    mnuWindowNormal,
    mnuModePause,
    mnuModeTemplate,
    mnuAddGrid,
    mnuAddMeasure,
    mnuGridVisible,
    mnuCrossHairVisible,
    mnuReferenceLinesEnabled,
    mnuCircleCompassEnabled,
    mnuOptions,
    mnuHelp,
    mnuLensVisible,
    mnuLensStick,
    mnuLensCursor,
    mnuLensHotSpot,
    mnuLensGrid,
    mnuLensTopLeftScales,
    mnuLensBottomRightScales,
    mnuLensOptions,
    /// Of factor 0, which there is no entry for.
    mnuLensFactor,
};

inline constexpr int largestLensFactor = 10;

/// The entry of a magnification from 1 to 10.
constexpr MenuEntry entryOfLensFactor(int factor) {
    return static_cast<MenuEntry>(static_cast<int>(MenuEntry::mnuLensFactor) + factor);
}

/// The magnification of an entry, 0 for an entry of another kind.
constexpr int lensFactorOf(MenuEntry entry) {
    const int factor = static_cast<int>(entry) - static_cast<int>(MenuEntry::mnuLensFactor);
    return factor >= 1 && factor <= largestLensFactor ? factor : 0;
}

/// What a line of a menu opens or is.
enum class MenuLine { entry, separator, lensMenu, factorMenu };

struct MenuLineDesign {
    MenuLine line = MenuLine::separator;
    /// Of an entry.
    MenuEntry entry{};
    /// The row of the text table.
    int row = 0;
    /// Until the table has a text for it.
    const char* caption = "";
};

/// The menu of the worksheet, and that of the magnifier, which is also a submenu of it, from top to
/// bottom.
std::span<const MenuLineDesign> popupMenuDesign();
std::span<const MenuLineDesign> lensMenuDesign();

/// "1 X" to "10 X", the same in all languages.
std::string captionOfLensFactor(int factor);

}  // namespace ormala
