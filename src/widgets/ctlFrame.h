#pragma once

#include <array>

#include "scene/Canvas.h"

namespace ormala {

/// The decorative frame of a window: up to three rectangles inside each other with a bevel between
/// them, five pixels deep in all. Owned and drawn by the window that it surrounds.
class ctlFrame {
  public:
    ctlFrame() { arrange(); }

    [[nodiscard]] int FrameStyle() const { return frameStyle_; }
    /// 0 the outer rectangle and the border, 1 a border of two pixels alone, 2 the same in dark
    /// brown with golden edges, 3 all three rectangles, which leaves no gap. Any other number is as
    /// 0.
    void setFrameStyle(int style);
    [[nodiscard]] const PixelRect& box() const { return box_; }
    void resize(const PixelRect& box);

    void draw(Canvas& canvas) const;

  private:
    struct Border {
        bool visible = false;
        int inset = 0;
        int width = 1;
        Color color = 0;
    };
    /// A bevel of one pixel. The bright edge is the upper left one, or the lower right one where
    /// the light falls on the far side of the frame.
    struct Bevel {
        bool visible = false;
        int inset = 0;
        bool brightUpperLeft = true;
    };

    void arrange();
    void draw(Canvas& canvas, const Border& border) const;
    void draw(Canvas& canvas, const Bevel& bevel) const;

    int frameStyle_ = 0;
    PixelRect box_;
    Border shpBorderOuter_;
    Border shpBorder_;
    Border shpBorderInner_;
    std::array<Bevel, 2> bevels_;
    Color lineBorderBright_ = 0;
    Color lineBorderDark_ = 0;
};

}  // namespace ormala
