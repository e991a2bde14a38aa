#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string_view>
#include <vector>

#include "e2e/LensScene.h"

namespace ormala::test {

/// The ticks of a magnifier's scales, read off the screen.
class LensScales {
  public:
    /// `grid` tells whether the magnifier draws one.
    LensScales(const LensWindow& lens, int factor, bool grid)
        : lens_(lens), factor_(factor), grid_(grid) {}

    // Wait until the ticks along the whole image are those of the numbers from `first` on, for a
    // scale above or below it and for one at its left or right.
    [[nodiscard]] testing::AssertionResult columnsAre(std::string_view scale, int first) const;
    [[nodiscard]] testing::AssertionResult rowsAre(std::string_view scale, int first) const;

  private:
    [[nodiscard]] testing::AssertionResult ticksAre(
        int first, const std::function<std::vector<int>()>& seen) const;
    /// The ticks from the image's side on; none if the magnifier went on meanwhile.
    [[nodiscard]] std::vector<int> lengthsOn(std::string_view scale, bool across) const;
    /// Whether the magnifier went on while it was looked at, beside the mouse.
    [[nodiscard]] bool hasMoved(const ScreenRect& image, std::string_view scale,
                                const ScreenRect& strip) const;
    /// The enlarged pixels. The last line of a grid lies outside of the image.
    [[nodiscard]] int compared(int imageLength) const {
        return (imageLength + (grid_ && factor_ > 1 ? 1 : 0)) / factor_;
    }
    /// From the side of an enlarged pixel to its tick.
    [[nodiscard]] int middle() const;
    /// Of a number's tick, as it is seen.
    [[nodiscard]] int length(int value) const;
    /// How many pixels of ink there are from a place on. A number may touch the longest tick.
    [[nodiscard]] int run(const Picture& picture, ScreenPoint from, ScreenPoint step) const;

    const LensWindow& lens_;
    int factor_;
    bool grid_;
};

}  // namespace ormala::test
