#pragma once

#include <array>

#include "support/win/ScreenGeometry.h"

namespace ormala::test {

/// A point of the worksheet, y downward.
struct Spot {
    double x = 0;
    double y = 0;
};

/// A stencil as a second calculation sees it: a centre, half sizes between the centres of the end
/// pixels, and an angle. It works with directions on the screen and shares no code with the
/// program.
class StencilModel {
  public:
    /// The stencil of a first start on a worksheet of that size.
    static StencilModel ofFirstStart(int width, int height);

    Spot center;
    double halfWidth = 0;
    double halfHeight = 0;
    /// Radians, counter-clockwise on the screen.
    double angle = 0;

    /// A point in shares of the half sizes: (-1, -1) is the unturned top left corner.
    [[nodiscard]] Spot at(double x, double y) const;
    /// The pixel under a grip's centre, given by the same shares.
    [[nodiscard]] ScreenPoint gripPixel(double x, double y) const;

    // A drag of the grip at these shares, its centre pixel pressed, by (dx, dy).
    void dragCenter(int dx, int dy);
    /// A side: `shares` has one 0.
    void dragSide(Spot shares, int dx, int dy, bool symmetric, double ratioSnap = 0);
    void dragCorner(Spot shares, int dx, int dy, bool symmetric);
    /// The round grip inside a corner; `step` in radians, 0 for none.
    void dragRotation(Spot shares, int dx, int dy, double step);

  private:
    [[nodiscard]] Spot right() const;
    [[nodiscard]] Spot down() const;
    /// From the centre, in the stencil's own directions.
    [[nodiscard]] Spot own(Spot point) const;
    /// Where the program believes the grip's centre to be after the move.
    [[nodiscard]] Spot held(Spot shares, int dx, int dy) const;
    void moveCenter(double alongRight, double alongDown);
};

/// The share of the half diagonal at which the round grips stand.
constexpr double rotationShare = 0.7071067811865476;

}  // namespace ormala::test
