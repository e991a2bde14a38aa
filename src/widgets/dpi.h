#pragma once

#include "modAPI/PixelRect.h"
#include "scene/dpi.h"

namespace ormala {

/// A place designed at 96 DPI in the pixels of another resolution. Neighbours that touch in the
/// design touch at every resolution.
constexpr PixelRect scaledToDpi(const PixelRect& rect, int dpi) {
    return {scaledLength(rect.left, dpi), scaledLength(rect.top, dpi),
            scaledLength(rect.right, dpi), scaledLength(rect.bottom, dpi)};
}

}  // namespace ormala
