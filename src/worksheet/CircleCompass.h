#pragma once

#include <optional>

#include "modAPI/colors.h"
#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"
#include "scene/Input.h"

namespace ormala {

/// Two circles that open from where the left button went down on the worksheet's background: one
/// through the mouse, the other of the golden section of its radius. They come up once the mouse is
/// further away than a hand trembles.
class CircleCompass {
  public:
    /// The left button starts; any other one hides. `background` is the worksheet's plain colour.
    void press(const MouseInput& input, Color background);
    /// `input.button` has all buttons that are held.
    void move(const MouseInput& input, bool enabled);
    void release(const MouseInput& input);
    /// The mouse was taken away, or does not reach the worksheet any more.
    void lost();

    /// From the press to the mouse.
    struct Opening {
        PixelPoint center;
        double radius = 0;
    };
    /// None while the circles are not to be seen.
    [[nodiscard]] std::optional<Opening> opening() const;

    void draw(Canvas& canvas) const;
    /// The pixels that look different since the last call.
    [[nodiscard]] DirtyRegion takeChanges();

  private:
    struct Radii {
        int outer = 0;
        int inner = 0;
        double distance = 0;
    };

    [[nodiscard]] Radii radiiTo(const MouseInput& input) const;
    [[nodiscard]] PixelRect circle(int radius) const;
    [[nodiscard]] PixelRect centerMark() const;
    void show(const std::optional<Radii>& radii);

    bool pressed_ = false;
    PixelPoint center_;
    Color circleColor_ = 0;
    Color centerColor_ = 0;
    /// None while nothing is to be seen.
    std::optional<Radii> shown_;
    DirtyRegion changed_;
};

}  // namespace ormala
