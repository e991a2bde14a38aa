#pragma once

#include <windows.h>

#include "widgets/scrollLayout.h"

namespace ormala {

/// The state of a scroll bar that its look follows.
struct ScrollLook {
    bool enabled = true;
    ScrollPart hover = ScrollPart::none;
    /// The part that looks pressed.
    ScrollPart pressed = ScrollPart::none;
    ScrollPart focus = ScrollPart::none;
    /// Of outlines, in pixels; the other measures follow.
    int lineWidth = 1;
};

/// Paints the whole bar, its origin at that of the device context. A disabled bar has no thumb.
void paintScroll(HDC context, PixelSize size, const ScrollLayout& layout, const ScrollLook& look);

}  // namespace ormala
