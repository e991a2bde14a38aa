#pragma once

#include <windows.h>

#include <optional>

#include "magnifier/PointerPicture.h"

namespace ormala {

/// Where the mouse is, in pixels of the virtual screen, and the pointer that the screen shows
/// there; null if there is none, as while a program hides it.
struct PointerOnScreen {
    PixelPoint place;
    HCURSOR pointer = nullptr;
};

/// None if the system does not tell, as while the screen is locked.
std::optional<PointerOnScreen> pointerOnScreen();

/// How that pointer looks; empty for one without a bitmap.
PointerPicture pictureOfPointer(HCURSOR pointer);

}  // namespace ormala
