#pragma once

#include <cstdint>

#include "magnifier/LensRest.h"

namespace ormala {

/// How soon the magnifier looks at the screen again: half as often once nothing has changed for a
/// while, until something does.
class LensPace {
  public:
    /// In milliseconds.
    static constexpr unsigned usual = 15;
    static constexpr unsigned atRest = 30;
    static constexpr std::uint64_t longEnough = LensRest::longEnough;

    /// Called with each frame, at a time in milliseconds: whether it differs from the one before.
    void saw(bool change, std::uint64_t now);

    /// To the next frame, in milliseconds.
    [[nodiscard]] unsigned interval() const { return interval_; }

  private:
    std::uint64_t since_ = 0;
    unsigned interval_ = usual;
};

}  // namespace ormala
