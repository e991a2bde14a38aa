#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// Pixels in memory: lines with their dots, dashes and widths, bezier curves, shapes; a text
/// colours its whole box by its length.
class RasterCanvas : public Canvas {
  public:
    explicit RasterCanvas(PixelSize size);
    RasterCanvas(PixelSize size, const PixelRect& visible);

    static constexpr int empty = -1;

    [[nodiscard]] PixelRect visible() const override { return visible_; }
    [[nodiscard]] PixelSize size() const { return size_; }
    [[nodiscard]] int at(int x, int y) const { return pixels_[indexOf(x, y)]; }
    [[nodiscard]] int painted() const;
    /// Painted pixels that no rectangle of the region meets.
    [[nodiscard]] int paintedOutside(const DirtyRegion& region) const;
    /// Pixels that are another in a canvas of the same size.
    [[nodiscard]] int differences(const RasterCanvas& other, const PixelRect& part) const;

    void line(const Pen& pen, PixelPoint from, PixelPoint to) override;
    void polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    void bezier(const Pen& pen, std::span<const PixelPoint> points) override;
    void shape(const ShapeFace& face) override;
    void text(const PixelRect& box, const TextFace& face) override;

  private:
    [[nodiscard]] std::size_t indexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(x);
    }
    void put(int x, int y, Color color);
    void dab(const Pen& pen, int x, int y);
    void stroke(const Pen& pen, PixelPoint from, PixelPoint to, int& phase);
    void arc(const Pen& pen, std::span<const PixelPoint> p, int& phase);

    PixelSize size_;
    PixelRect visible_;
    std::vector<int> pixels_;
};

}  // namespace ormala
