#include "app/PanelLayout.h"

#include <algorithm>
#include <cstdlib>

namespace ormala {

std::optional<int> PanelLayout::UpdatePanelLayout(int content, bool Force, const Window& window) {
    constexpr int followed = 10;
    if (window.standsShort) {
        return std::nullopt;
    }
    const int change = std::abs(content - content_);
    content_ = content;
    if (change >= followed && !Force) {
        return std::nullopt;
    }
    const int outer = window.listTop + window.listLeft + content + window.frameHeight;
    return std::min(outer, window.room);
}

}  // namespace ormala
