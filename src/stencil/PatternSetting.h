#pragma once

#include <cstdint>

namespace ormala {

/// One pattern slot of a stencil.
struct PatternSetting {
    /// Index into the `PatternTable`, -1 for no pattern.
    std::int32_t Pattern = -1;

    /// Radians, the turn of the pattern inside the unit square.
    double PreRotation = 0;

    void CopyFrom(const PatternSetting& other) { *this = other; }
    bool Equals(const PatternSetting& other) const { return *this == other; }

    bool operator==(const PatternSetting&) const = default;
};

}  // namespace ormala
