#pragma once

#include <functional>
#include <span>
#include <vector>

#include "modAPI/PixelRect.h"
#include "widgets/scrollLayout.h"

namespace ormala {

// How the list of panels scrolls. The value of its scroll bar is the top of the list's content, 0
// or negative, in pixels.

/// The bar for a content of that height of which so much can be seen. Without a range there is
/// nothing to scroll.
ScrollRange rangeOfList(int content, int inside);

/// The value at which a panel of the content shows, its head if not all of it. It may lie beyond
/// the range, which the bar keeps to.
int valueShowing(int panelTop, int panelHeight, const ScrollRange& range);

/// In pixels of the content.
struct UncoveredPart {
    PixelRect shown;
    /// With all that lies beyond the view on that side. It needs no painting either: whatever of it
    /// comes into view is uncovered then.
    PixelRect withBeyond;

    bool operator==(const UncoveredPart&) const = default;
};

/// What a view of that size shows, and did not show before the top of a content of that height went
/// from the one to the other: all that it shows if nothing of it stays, nothing if the top stays.
UncoveredPart uncoveredPart(int formerTop, int top, PixelSize view, int content);

/// The values that these notches of the wheel glide through, in eight steps at most, however many
/// notches came at once. Positive ones turn away from the user and lead up the list.
std::vector<int> glideOfNotches(int notches, const ScrollRange& range, int smallChange);

/// Shows the values one after the other, and leaves out all but the last one as soon as `isLate`
/// says that the wheel has been turned further: a glide never falls behind the fingers.
void glide(std::span<const int> values, const std::function<bool()>& isLate,
           const std::function<void(int value)>& show);

}  // namespace ormala
