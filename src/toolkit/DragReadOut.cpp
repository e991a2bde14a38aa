#include "toolkit/DragReadOut.h"

#include <cmath>
#include <utility>

namespace ormala {

namespace {

std::string wholeDown(double value, const TextForm& form) {
    return formatPixels(std::floor(value), "0", form);
}

}  // namespace

DragReadOut::DragReadOut() {
    label_.setFontSize(readableFontSize);
}

void DragReadOut::show() {
    label_.setCaption({});
    label_.setVisible(true);
}

void DragReadOut::setText(std::string text, const TextMeter& meter) {
    label_.setCaption(std::move(text));
    label_.fit(meter);
}

void DragReadOut::place(const Point& at, PixelSize sheet, const TextMeter& meter) {
    PlaceInfoLabel(label_, at, sheet, meter);
}

std::string moveText(const Point& at, const TextForm& form) {
    return "X = " + wholeDown(at.x, form) + "  Y = " + wholeDown(at.y, form);
}

}  // namespace ormala
