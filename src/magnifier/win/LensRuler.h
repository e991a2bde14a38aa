#pragma once

#include <optional>

#include "magnifier/lensRulers.h"
#include "magnifier/win/LensPicture.h"

namespace ormala {

/// One of the magnifier's scales. What it shows is painted anew only when its numbers differ.
class LensRuler {
  public:
    /// A child of `parent`.
    LensRuler(HWND parent, LensScale scale);

    [[nodiscard]] bool isOn() const { return on_; }
    void setOn(bool on);
    [[nodiscard]] int origin() const { return origin_; }
    void setOrigin(int origin) { origin_ = origin; }

    /// Takes its place of the layout and makes its empty ground for it. One that is switched off
    /// stays where it is.
    void setPlace(const PixelRect& box);
    /// Draws the numbers that are due, if others are drawn.
    void draw(const LensLayout& layout, const ScaleGlyphs& glyphs, const ScaleOrigins& origins,
              int dpi);
    [[nodiscard]] LensPicture& picture() { return picture_; }

  private:
    LensScale scale_;
    bool on_ = true;
    int origin_ = 0;
    LensPicture picture_;
    BackBuffer background_;
    std::optional<RulerLook> drawn_;
};

}  // namespace ormala
