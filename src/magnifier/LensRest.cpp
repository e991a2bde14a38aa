#include "magnifier/LensRest.h"

namespace ormala {

bool LensRest::look(const std::optional<Sight>& sight, std::uint64_t now) {
    if (!sight || sight != last_) {
        last_ = sight;
        since_ = now;
    }
    return sight.has_value() && now - since_ >= longEnough;
}

PixelPoint lensTipPlace(const PixelRect& image, PixelSize tip, PixelPoint mouse) {
    // The pointer has a size, and the tip an edge.
    constexpr int room = 4;
    const PixelRect below{image.left, image.bottom - tip.height, image.left + tip.width,
                          image.bottom};
    return {below.left, below.grown(room).contains(mouse) ? image.top : below.top};
}

}  // namespace ormala
