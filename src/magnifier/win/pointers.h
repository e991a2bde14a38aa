#pragma once

#include <windows.h>

#include "magnifier/PointerPicture.h"

namespace ormala {

/// The pointer that the screen shows now; null if there is none, as while a program hides it.
HCURSOR currentPointer();

/// How that pointer looks; empty for one without a bitmap.
PointerPicture pictureOfPointer(HCURSOR pointer);

}  // namespace ormala
