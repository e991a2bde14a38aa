#pragma once

#include <string>

#include "modAPI/drawingColors.h"
#include "modAPI/placing.h"
#include "modAPI/points.h"
#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// Of the labels on the worksheet, in points: large enough that the halo leaves the letters open.
constexpr int readableFontSize = 10;

/// A text that stays readable on any ground: a halo two pixels wide to the sides and one above and
/// below surrounds it. Owned by the tool that places it.
class ctlLabel {
  public:
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption) { caption_ = std::move(caption); }
    [[nodiscard]] int FontSize() const { return fontSize_; }
    void setFontSize(int points) { fontSize_ = points; }
    [[nodiscard]] ormala::Alignment Alignment() const { return alignment_; }
    void setAlignment(ormala::Alignment alignment) { alignment_ = alignment; }
    [[nodiscard]] Color ForeColor() const { return foreColor_; }
    void setForeColor(Color color) { foreColor_ = color; }
    [[nodiscard]] Color BackColor() const { return backColor_; }
    void setBackColor(Color color) { backColor_ = color; }

    /// The caption's size and the halo's four pixels. Both come of one question to the system.
    [[nodiscard]] PixelSize textSize(const TextMeter& meter) const;
    [[nodiscard]] int TextWidth(const TextMeter& meter) const { return textSize(meter).width; }
    [[nodiscard]] int TextHeight(const TextMeter& meter) const { return textSize(meter).height; }
    /// Takes the size of its text.
    void fit(const TextMeter& meter);

    [[nodiscard]] bool visible() const { return visible_; }
    void setVisible(bool visible) { visible_ = visible; }
    [[nodiscard]] const PixelRect& box() const { return box_; }
    void moveTo(int left, int top);

    void draw(Canvas& canvas) const;
    /// The pixels that `draw` covers.
    void addTo(DirtyRegion& region) const;

  private:
    std::string caption_;
    int fontSize_ = 8;
    ormala::Alignment alignment_ = ormala::Alignment::left;
    Color foreColor_ = 0;
    Color backColor_ = plain::white;
    bool visible_ = false;
    PixelRect box_;
    /// Letters may be drawn a little beyond the width that they are measured with.
    int overhang_ = 0;
};

// Both scale their distances with the resolution of the texts.

/// Puts the label 12 pixels to the left of `point`, vertically centred on it, inside an area of the
/// given size; to the right of it where the text would run off the left edge.
void PlaceInfoLabel(ctlLabel& label, const Point& point, PixelSize area, const TextMeter& meter);

/// Puts the text's `anchor` on `point`, with 6 pixels in between if `withGap`; the text is aligned
/// to the point.
void PlaceLabelByAnchor(ctlLabel& label, Point point, Anchor anchor, bool withGap,
                        const TextMeter& meter);

}  // namespace ormala
