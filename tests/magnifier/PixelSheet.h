#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "scene/PixelView.h"

namespace ormala {

/// A picture in memory, whose rows lie a little further apart than they are long.
class PixelSheet {
  public:
    explicit PixelSheet(PixelSize size, std::uint32_t pixel = 0)
        : size_(size),
          pixels_(static_cast<std::size_t>(stride()) * static_cast<std::size_t>(size.height),
                  pixel) {}

    static PixelSheet random(PixelSize size, unsigned seed) {
        PixelSheet sheet(size);
        std::mt19937 numbers(seed);
        for (std::uint32_t& pixel : sheet.pixels_) {
            pixel = static_cast<std::uint32_t>(numbers());
        }
        return sheet;
    }

    [[nodiscard]] PixelView view() { return {pixels_.data(), stride(), size_}; }
    [[nodiscard]] PixelSize size() const { return size_; }
    [[nodiscard]] std::uint32_t at(int x, int y) const {
        return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(stride()) +
                       static_cast<std::size_t>(x)];
    }
    [[nodiscard]] bool contains(PixelPoint place) const {
        return PixelRect{0, 0, size_.width, size_.height}.contains(place);
    }
    bool operator==(const PixelSheet&) const = default;

  private:
    [[nodiscard]] int stride() const { return size_.width + 3; }

    PixelSize size_;
    std::vector<std::uint32_t> pixels_;
};

}  // namespace ormala
