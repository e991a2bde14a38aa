#pragma once

#include "modAPI/points.h"

namespace ormala {

/// Brings coordinates of the drawing field to pixels, and straight lines of one width onto whole
/// pixels. It works outwards from the middle, so that what is symmetric stays symmetric.
class GridFit {
  public:
    /// The field's side in units of the drawing.
    static constexpr double field = 24;

    /// A square of `side` pixels, lines `width` pixels wide.
    GridFit(int side, int width) : side_(side), width_(width) {}

    [[nodiscard]] double width() const { return width_; }
    [[nodiscard]] double scale() const { return side_ / field; }
    /// The pixel coordinate as it comes out.
    [[nodiscard]] double plain(double coordinate) const { return coordinate * scale(); }
    /// The nearest middle of a line that covers whole pixels.
    [[nodiscard]] double fitted(double coordinate) const;
    /// Middle and radius of a circle whose four outermost points are fitted.
    [[nodiscard]] Point fittedMiddle(Point middle, double radius) const;
    [[nodiscard]] double fittedRadius(double radius) const;

  private:
    int side_;
    int width_;
};

}  // namespace ormala
