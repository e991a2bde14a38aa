#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace ormala {

/// Whether a file has no more sections than a head and three tools need. A further tool finds
/// nothing that these don't, and takes the time of other inputs; the tests of the corpora load as
/// many as there can be.
inline bool hasFewSections(const std::uint8_t* data, std::size_t size) {
    constexpr auto most = 4;
    return std::count(data, data + size, '[') <= most;
}

}  // namespace ormala
