#include "widgets/TabOrder.h"

namespace ormala {

std::optional<std::size_t> TabOrder::next(std::optional<std::size_t> from, bool backwards) const {
    const std::size_t count = size();
    std::size_t place = from.value_or(backwards ? 0 : count - 1);
    for (std::size_t step = 0; step < count; ++step) {
        place = (place + (backwards ? count - 1 : 1)) % count;
        if (stops_[place]) {
            return place;
        }
    }
    return std::nullopt;
}

}  // namespace ormala
