#include "widgets/ctlFrame.h"

#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// The code of a solid line of one pixel.
constexpr int onePixel = 2;

}  // namespace

void ctlFrame::setFrameStyle(int style) {
    frameStyle_ = style;
    arrange();
}

void ctlFrame::resize(const PixelRect& box) {
    box_ = box;
}

void ctlFrame::arrange() {
    const bool borderAlone = frameStyle_ == 1 || frameStyle_ == 2;
    const bool golden = frameStyle_ == 2;
    const bool full = frameStyle_ == 3;
    shpBorderOuter_ = {!borderAlone, 0, 1, dark::deepestEdge};
    shpBorder_ = {true, 2, borderAlone ? 2 : 1, golden ? dark::goldenFrame : dark::ground};
    shpBorderInner_ = {full, 4, 1, dark::deepestEdge};
    bevels_ = {Bevel{frameStyle_ != 1, 1, true}, Bevel{full, 3, false}};
    lineBorderBright_ = golden ? dark::goldenFrameBright : dark::frameBright;
    lineBorderDark_ = golden ? dark::goldenFrameDark : dark::outline;
}

void ctlFrame::draw(Canvas& canvas) const {
    for (const Border* border : {&shpBorderOuter_, &shpBorder_, &shpBorderInner_}) {
        draw(canvas, *border);
    }
    for (const Bevel& bevel : bevels_) {
        draw(canvas, bevel);
    }
}

void ctlFrame::draw(Canvas& canvas, const Border& border) const {
    const PixelRect place = box_.grown(-border.inset);
    if (border.visible && !place.empty()) {
        ShapeFace face;
        face.box = place;
        face.borderColor = border.color;
        face.borderWidth = border.width;
        canvas.shape(face);
    }
}

void ctlFrame::draw(Canvas& canvas, const Bevel& bevel) const {
    const PixelRect place = box_.grown(-bevel.inset);
    if (!bevel.visible || place.empty()) {
        return;
    }
    const Pen bright{lineBorderBright_, onePixel};
    const Pen dark{lineBorderDark_, onePixel};
    const Pen& upperLeft = bevel.brightUpperLeft ? bright : dark;
    const Pen& lowerRight = bevel.brightUpperLeft ? dark : bright;
    const int right = place.right - 1;
    const int bottom = place.bottom - 1;
    canvas.line(upperLeft, {place.left, place.top}, {right, place.top});
    canvas.line(upperLeft, {place.left, place.top}, {place.left, bottom});
    canvas.line(lowerRight, {place.left, bottom}, {place.right, bottom});
    canvas.line(lowerRight, {right, place.top}, {right, bottom});
}

}  // namespace ormala
