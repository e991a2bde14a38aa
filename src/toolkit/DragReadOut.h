#pragma once

#include <string>

#include "modAPI/points.h"
#include "modAPI/textForms.h"
#include "toolkit/ctlLabel.h"

namespace ormala {

/// The text beside a grip during a drag. Owned by the tool's aids; hidden between drags.
class DragReadOut {
  public:
    DragReadOut();

    /// Empty at first.
    void show();
    void hide() { label_.setVisible(false); }
    void setText(std::string text, const TextMeter& meter);
    /// The grip's centre is at `at` now.
    void place(const Point& at, PixelSize sheet, const TextMeter& meter);

    [[nodiscard]] const ctlLabel& label() const { return label_; }
    void draw(Canvas& canvas) const { label_.draw(canvas); }
    void addTo(DirtyRegion& region) const { label_.addTo(region); }

  private:
    ctlLabel label_;
};

/// Where a grip is, in whole pixels, or in logical ones.
std::string moveText(const Point& at, const TextForm& form);

}  // namespace ormala
