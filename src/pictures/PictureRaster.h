#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "pictures/outlines.h"
#include "scene/PixelImage.h"

namespace ormala {

/// Draws contours at four times the size, with hard edges, and reduces the result. What is drawn
/// replaces what was there, transparent colours included, so that no seam shows between
/// neighbours.
class PictureRaster {
  public:
    /// A side below 1 gives an empty picture.
    explicit PictureRaster(PixelSize size);

    /// The inside of all contours, each taken as closed. Colours are 0xAARRGGBB.
    void fill(std::span<const Contour> contours, std::uint32_t argb);
    /// Their lines, with round joins and ends; a closed contour has the line back to its start.
    void stroke(std::span<const Contour> contours, double width, std::uint32_t argb);

    [[nodiscard]] PixelImage reduced() const;

  private:
    struct Crossing {
        double x;
        int winding;
    };

    void fillRow(int row, std::vector<Crossing>& crossings, std::uint32_t argb);
    void fillSpan(int row, double from, double to, std::uint32_t argb);
    void strokePiece(Point from, Point to, double width, std::uint32_t argb);
    void disc(Point middle, double radius, std::uint32_t argb);
    [[nodiscard]] std::uint32_t average(int x, int y) const;

    static constexpr int oversampling = 4;

    PixelSize size_;
    PixelSize fine_;
    std::vector<std::uint32_t> points_;
};

}  // namespace ormala
