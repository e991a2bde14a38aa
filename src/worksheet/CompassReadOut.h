#pragma once

#include <optional>
#include <string>

#include "modAPI/textForms.h"
#include "toolkit/ctlLabel.h"
#include "worksheet/CircleCompass.h"

namespace ormala {

/// What the texts of the aids are measured and written with. Both must outlive whoever has them.
struct AidTexts {
    const TextMeter& meter;
    const TextForm& form;
};

/// The radii of the open circle compass beside the mouse: outside of the circles as long as there
/// is room for it in the worksheet, and always inside the worksheet.
class CompassReadOut {
  public:
    explicit CompassReadOut(const AidTexts& texts);

    /// Without an opening nothing is to be seen.
    void show(const std::optional<CircleCompass::Opening>& opening, const Point& mouse,
              PixelSize sheet);

    [[nodiscard]] const ctlLabel& label() const { return label_; }
    void draw(Canvas& canvas) const { label_.draw(canvas); }
    /// The pixels that look different since the last call.
    [[nodiscard]] DirtyRegion takeChanges();

  private:
    void place(const Point& center, const Point& mouse, PixelSize sheet);

    AidTexts texts_;
    ctlLabel label_;
    DirtyRegion changed_;
};

/// A radius and its golden section, on a line each.
std::string compassText(double radius, const TextForm& form);

}  // namespace ormala
