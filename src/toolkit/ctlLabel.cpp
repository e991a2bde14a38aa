#include "toolkit/ctlLabel.h"

#include <algorithm>
#include <cmath>

namespace ormala {

namespace {

constexpr int haloSize = 4;
/// At 96 DPI.
constexpr int overhang = 4;

/// Where the stacked texts stand within the label: the text itself and its eight halo copies.
constexpr PixelPoint textOffset{2, 1};
constexpr PixelPoint haloOffsets[] = {{2, 0}, {3, 0}, {4, 1}, {3, 2},
                                      {2, 2}, {1, 2}, {0, 1}, {1, 0}};

// Distances at 96 DPI.
constexpr double gapBesideGrip = 12;
constexpr double gapBesideLine = 6;

/// A place that does not fit into a pixel coordinate lies off every screen all the same.
int toCoordinate(double value) {
    constexpr double far = 1.0e6;
    return static_cast<int>(std::isnan(value) ? -far : std::clamp(std::floor(value), -far, far));
}

/// So that the text ends where the point is.
Alignment alignmentTo(Anchor anchor) {
    switch (anchor) {
        case Anchor::rightCentre:
        case Anchor::topRight:
        case Anchor::bottomRight:
            return Alignment::right;
        case Anchor::leftCentre:
        case Anchor::bottomLeft:
        case Anchor::topLeft:
            return Alignment::left;
        default:
            return Alignment::center;
    }
}

bool atBottom(Anchor anchor) {
    return anchor == Anchor::bottomCentre || anchor == Anchor::bottomRight ||
           anchor == Anchor::bottomLeft;
}

}  // namespace

PixelSize ctlLabel::textSize(const TextMeter& meter) const {
    const PixelSize text = meter.measure(caption_, fontSize_);
    return {text.width + haloSize, text.height + haloSize};
}

void ctlLabel::fit(const TextMeter& meter) {
    const PixelSize text = textSize(meter);
    box_.right = box_.left + text.width;
    box_.bottom = box_.top + text.height;
    overhang_ = meter.scale().pixels(overhang);
}

void ctlLabel::moveTo(int left, int top) {
    box_ = {left, top, left + box_.width(), top + box_.height()};
}

void ctlLabel::draw(Canvas& canvas) const {
    if (!visible_ || caption_.empty() || !box_.grown(overhang_).meets(canvas.visible())) {
        return;
    }
    const auto put = [&](PixelPoint offset, Color color) {
        const int left = box_.left + offset.x;
        const int top = box_.top + offset.y;
        canvas.text({left, top, left + box_.width() - haloSize, top + box_.height() - haloSize},
                    {caption_, color, fontSize_, alignment_});
    };
    for (const PixelPoint offset : haloOffsets) {
        put(offset, backColor_);
    }
    put(textOffset, foreColor_);
}

void ctlLabel::addTo(DirtyRegion& region) const {
    if (visible_) {
        region.add(box_.grown(overhang_));
    }
}

void PlaceInfoLabel(ctlLabel& label, const Point& point, PixelSize area, const TextMeter& meter) {
    const double width = label.box().width();
    const PixelSize text = label.textSize(meter);
    const double gap = meter.scale().length(gapBesideGrip);
    double left = point.x - width - gap;
    double top = point.y - label.box().height() / 2.0;
    if (top + text.height > area.height) {
        top = area.height - text.height;
    }
    if (left + width > area.width) {
        left = area.width - width;
    }
    top = std::max(top, 0.0);
    if (left + width - text.width < 0) {
        left = std::max(point.x + gap, 0.0);
        label.setAlignment(Alignment::left);
    } else {
        label.setAlignment(Alignment::right);
    }
    label.moveTo(toCoordinate(left), toCoordinate(top));
}

void PlaceLabelByAnchor(ctlLabel& label, Point point, Anchor anchor, bool withGap,
                        const TextMeter& meter) {
    label.setAlignment(alignmentTo(anchor));
    const int height = label.box().height();
    if (atBottom(anchor)) {
        point.y += height - label.TextHeight(meter);
    }
    const Point corner = PlaceFormByAnchor(label.box().width(), height, point, anchor, withGap,
                                           meter.scale().length(gapBesideLine));
    label.moveTo(toCoordinate(corner.x), toCoordinate(corner.y));
}

}  // namespace ormala
