#pragma once

#include <array>

#include "modAPI/points.h"
#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// Shows what the automatic mouse action does: an arrow from the top left to the bottom right of
/// the unturned rectangle and, while it runs, the picture of a mouse that presses, goes along and
/// lets go. Owned by the stencil, which calls `tick` every 50 ms while `running`.
class MouseActionPreview {
  public:
    static constexpr PixelSize pictureSize{34, 44};
    static constexpr int interval = 50;

    /// `ArrangeActionLines`: the arrow follows the rectangle and shows or hides.
    void arrange(const Rect& rectBound, bool show);
    void start(const Rect& rectBound);
    /// One step of the animation over the present rectangle.
    void tick(const Rect& rectBound);

    [[nodiscard]] bool running() const { return running_; }
    [[nodiscard]] bool linesVisible() const { return linesVisible_; }
    [[nodiscard]] bool mouseVisible() const { return mouseVisible_; }
    [[nodiscard]] bool buttonDown() const { return buttonDown_; }
    /// The picture's left and top.
    [[nodiscard]] Point picture() const { return picture_; }
    [[nodiscard]] const std::array<Line, 3>& lines() const { return lines_; }

    void draw(Canvas& canvas, Color color) const;
    void addTo(DirtyRegion& region, const PixelRect& area) const;

  private:
    std::array<Line, 3> lines_;
    Point picture_;
    int step_ = 0;
    bool running_ = false;
    bool linesVisible_ = false;
    bool mouseVisible_ = false;
    bool buttonDown_ = false;
};

}  // namespace ormala
