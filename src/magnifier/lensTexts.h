#pragma once

#include <optional>
#include <string>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"

namespace ormala {

/// The name of the magnifier with its factor, such as "Magnifier 4 X".
std::string lensTitle(int factor);

/// The window's caption: empty while it follows the mouse.
std::string lensCaption(int factor, bool sticked);

/// A plain colour as "#RRGGBB".
std::string hexadecimal(Color color);

/// The pixel of the screen under the mouse.
struct LensPixel {
    Color color = 0;
    /// As the scales count it.
    PixelPoint place;

    bool operator==(const LensPixel&) const = default;
};

/// Its colour, and its place on a second line.
std::string lensPixelText(const LensPixel& pixel);
/// The magnifier with the pixel, for screen readers; without one while it shows none.
std::string lensName(int factor, const std::optional<LensPixel>& pixel);

}  // namespace ormala
