#pragma once

#include <cstdint>
#include <optional>

#include "magnifier/lensTexts.h"

namespace ormala {

/// Says when mouse, magnifier and the pixel under the mouse have rested long enough for the pixel
/// to be told.
class LensRest {
  public:
    /// In milliseconds.
    static constexpr std::uint64_t longEnough = 1000;

    /// What there is at one moment. Both places are on the screen.
    struct Sight {
        PixelPoint mouse;
        PixelPoint window;
        LensPixel pixel;

        bool operator==(const Sight&) const = default;
    };

    /// Called with each frame, at a time in milliseconds; nothing while there is no pixel, or the
    /// user holds the window. Whether the pixel is to be told now.
    [[nodiscard]] bool look(const std::optional<Sight>& sight, std::uint64_t now);

  private:
    std::optional<Sight> last_;
    std::uint64_t since_ = 0;
};

/// The upper left corner of a tip of that size on an image: at its lower left, or at its upper left
/// if it would cover the mouse. All on the screen.
PixelPoint lensTipPlace(const PixelRect& image, PixelSize tip, PixelPoint mouse);

}  // namespace ormala
