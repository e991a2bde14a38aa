#pragma once

namespace ormala {

/// The window that was last known to be in front, by which a user's change of focus is told from
/// the focus that comes back with an activation. Compared only; null if none is known.
struct ForegroundMemory {
    const void* LastForegroundWindow = nullptr;
};

}  // namespace ormala
