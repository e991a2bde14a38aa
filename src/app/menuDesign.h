#pragma once

#include <span>
#include <string>

#include "scene/Command.h"

namespace ormala {

/// What a line of a menu opens or is.
enum class MenuLine { entry, separator, lensMenu, factorMenu };

struct MenuLineDesign {
    MenuLine line = MenuLine::separator;
    /// Of an entry.
    Command entry{};
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
