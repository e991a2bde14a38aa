#pragma once

#include <vector>

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

/// The values that one notch of the wheel glides through, in eight steps at most.
std::vector<int> glideOfNotch(bool down, const ScrollRange& range, int smallChange);

}  // namespace ormala
