#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// Where a dialog of that size stands: centred on its owner and moved into the work area of the
/// owner's monitor. One that is larger than the work area shows its upper left corner.
PixelRect placeOfDialog(PixelSize size, const PixelRect& owner, const PixelRect& workArea);

}  // namespace ormala
