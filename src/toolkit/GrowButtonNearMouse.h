#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "modAPI/PixelRect.h"

// Small buttons grow under the mouse, for a better aim. All places are screen pixels.

namespace ormala {

/// Tells windows apart; null for none.
using WindowId = const void*;

struct GrowingButton {
    WindowId window = nullptr;
    /// Where it is now, grown or not.
    PixelRect place;
    /// Visible and enabled.
    bool usable = true;
    bool grown = false;
    /// What was under the mouse when it grew: it stays grown as long as that is so.
    WindowId grownOver = nullptr;
};

struct MouseOnScreen {
    PixelPoint at;
    WindowId windowUnder = nullptr;
    /// Who has the mouse capture.
    WindowId captureHolder = nullptr;
};

/// The window at a point of the screen.
using WindowLookup = std::function<WindowId(PixelPoint)>;

/// The button that should be grown: the one that holds the mouse, else the nearest within 25 pixels
/// (at 96 DPI) of the mouse that no other window covers. Only buttons less than 30 pixels wide at
/// rest are asked, and `windowAt` only for the nearest of them.
std::optional<std::size_t> buttonNearMouse(std::span<const GrowingButton> buttons,
                                           const MouseOnScreen& mouse, const WindowLookup& windowAt,
                                           int dpi);

/// Which buttons are to change their size, by their numbers.
struct GrowthSteps {
    /// Also comes to the top, and loses its corner style.
    std::optional<std::size_t> grow;
    /// Get back their corner style.
    std::vector<std::size_t> shrink;

    bool operator==(const GrowthSteps&) const = default;
};

/// `chosen` is the answer of `buttonNearMouse`; without one all buttons return to normal.
GrowthSteps GrowButtonNearMouse(std::span<const GrowingButton> buttons,
                                std::optional<std::size_t> chosen);

/// The place of a button that grows, and the way back.
PixelRect grownPlace(const PixelRect& place, int dpi);
PixelRect placeAtRest(const PixelRect& grown, int dpi);

/// A panel of buttons on the screen.
struct ButtonPanel {
    bool shown = false;
    PixelRect place;
    /// The window that the panel scrolls in.
    PixelRect window;
    bool someGrown = false;
};

/// Whether a tick has anything to do, before a single button is looked at: the panel can be seen,
/// and the mouse is near it or a button has to shrink.
bool growthHasWork(const ButtonPanel& panel, PixelPoint mouse, int dpi);

}  // namespace ormala
