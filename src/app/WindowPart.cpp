#include "app/WindowPart.h"

#include <algorithm>
#include <cstddef>

namespace ormala {

void passKeyboardOn(std::span<const WindowPart> parts, bool back) {
    const auto at =
        std::ranges::find_if(parts, [](const WindowPart& part) { return part.hasKeyboard(); });
    const std::size_t count = parts.size();
    const bool from = at != parts.end();
    // From no part the way begins beyond the end that it leads away from.
    std::size_t place =
        from ? static_cast<std::size_t>(at - parts.begin()) : (back ? 0 : count - 1);
    const std::size_t others = from ? count - 1 : count;
    for (std::size_t i = 0; i < others; ++i) {
        place = (place + (back ? count - 1 : 1)) % count;
        if (parts[place].isThere()) {
            parts[place].takeKeyboard();
            return;
        }
    }
}

}  // namespace ormala
