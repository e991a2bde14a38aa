#include "widgets/SliderModel.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "modAPI/rounding.h"
#include "modAPI/textForms.h"
#include "scene/Input.h"
#include "widgets/dpi.h"

namespace ormala {

namespace {

// In pixels at 96 DPI.
constexpr PixelSize handleSize{9, 15};
/// Room for the focus frame.
constexpr int margin = 3;
constexpr int rowGap = 2;
constexpr int captionGap = 6;
constexpr int lineHeight = 3;

/// A line along the middle of the track, between the middles of the handle at both ends.
PixelRect lineOf(const PixelRect& track, int handleWidth, int height) {
    const int top = track.top + (track.height() - height) / 2;
    const int inset = handleWidth / 2;
    return {track.left + inset, top, track.right - inset, top + height};
}

}  // namespace

SliderLayout layoutSlider(const SliderRoom& room) {
    const auto scaled = [&](int length) { return scaledLength(length, room.dpi); };
    SliderLayout layout;
    layout.handle = {scaled(handleSize.width), scaled(handleSize.height)};
    const int edge = scaled(margin);
    const PixelRect inner{edge, edge, room.size.width - edge, room.size.height - edge};
    const int twoRows = room.textHeight + scaled(rowGap) + layout.handle.height;
    if (inner.height() >= twoRows) {
        const int rowBottom = inner.top + room.textHeight;
        const int side = inner.width() / 4;
        layout.lblMin = {inner.left, inner.top, inner.left + side, rowBottom};
        layout.lblCaption = {inner.left, inner.top, inner.right, rowBottom};
        layout.lblMax = {inner.right - side, inner.top, inner.right, rowBottom};
        layout.imgBack = {inner.left, inner.bottom - layout.handle.height, inner.right,
                          inner.bottom};
    } else {
        const int textTop = (room.size.height - room.textHeight) / 2;
        const int captionRight = std::min(inner.left + room.captionWidth, inner.right);
        layout.lblCaption = {inner.left, textTop, captionRight, textTop + room.textHeight};
        const int trackTop = (room.size.height - layout.handle.height) / 2;
        layout.imgBack = {std::min(captionRight + scaled(captionGap), inner.right), trackTop,
                          inner.right, trackTop + layout.handle.height};
    }
    layout.shpLine = lineOf(layout.imgBack, layout.handle.width, scaled(lineHeight));
    return layout;
}

void SliderModel::setMin(int min) {
    min_ = min;
    setValue(value_);
}

void SliderModel::setMax(int max) {
    max_ = max;
    setValue(value_);
}

void SliderModel::setValue(float value) {
    value_ = clamped(value);
    placeHandle();
    LookChange.raise();
}

void SliderModel::setStep(float step) {
    step_ = step;
    LookChange.raise();
}

void SliderModel::setCaption(std::string caption) {
    caption_ = std::move(caption);
    LookChange.raise();
}

void SliderModel::setDecimalSeparator(std::string separator) {
    separator_ = std::move(separator);
    LookChange.raise();
}

float SliderModel::clamped(float value) const {
    const auto [low, high] = std::minmax(min_, max_);
    if (std::isnan(value)) {
        return static_cast<float>(min_);
    }
    return std::clamp(value, static_cast<float>(low), static_cast<float>(high));
}

int SliderModel::decimals() const {
    const float fraction = std::abs(step_ - std::trunc(step_));
    constexpr int digitsOfSingle = 7;
    std::array<char, 64> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), fraction,
                                       std::chars_format::fixed, digitsOfSingle);
    const char* last = written.ptr;
    while (last[-1] == '0') {
        --last;
    }
    return static_cast<int>(last - std::find(text.data(), written.ptr, '.')) - 1;
}

std::string SliderModel::valueText(double value) const {
    const int digits = decimals();
    const std::string pattern =
        digits == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(digits), '0');
    return formatNumber(RoundHalfAway(value, digits), pattern, {separator_, {}});
}

std::string SliderModel::captionWith(double value) const {
    return caption_ + ": " + valueText(value);
}

void SliderModel::arrange(const SliderRoom& room) {
    layout_ = layoutSlider(room);
    placeHandle();
    LookChange.raise();
}

double SliderModel::freeLength() const {
    return std::max(layout_.imgBack.width() - layout_.handle.width, 0);
}

void SliderModel::placeHandle() {
    const double range = static_cast<double>(max_) - min_;
    const double share = range == 0 ? 0 : (static_cast<double>(value_) - min_) / range;
    handleLeft_ = layout_.imgBack.left + freeLength() * share;
}

PixelRect SliderModel::imgSlide() const {
    const auto left = static_cast<int>(RoundHalfAway(handleLeft_));
    return {left, layout_.imgBack.top, left + layout_.handle.width, layout_.imgBack.bottom};
}

void SliderModel::MoveSlider(double x) {
    const double free = freeLength();
    const double first = layout_.imgBack.left;
    const double held = std::clamp(x, first, first + free);
    if (held == handleLeft_ || free == 0) {
        return;
    }
    handleLeft_ = held;
    const double range = static_cast<double>(max_) - min_;
    const auto value = static_cast<float>((held - first) / free * range + min_);
    const bool changed = value != value_;
    value_ = value;
    LookChange.raise();
    if (changed) {
        Change.raise();
    }
}

void SliderModel::press(PixelPoint point) {
    if (imgSlide().contains(point)) {
        held_ = Held::handle;
        leftAtPress_ = handleLeft_;
        pressX_ = point.x;
    } else if (layout_.imgBack.contains(point)) {
        held_ = Held::track;
        move(point);
    }
}

void SliderModel::move(PixelPoint point) {
    if (held_ == Held::handle) {
        MoveSlider(leftAtPress_ + point.x - pressX_);
    } else if (held_ == Held::track) {
        const int half = layout_.handle.width / 2;
        MoveSlider(point.x - half);
    }
}

void SliderModel::setByUser(float value) {
    setValue(value);
    Change.raise();
}

/// A tenth of the range, in whole steps.
float SliderModel::page() const {
    constexpr float pages = 10;
    const float steps = std::round(std::abs(static_cast<float>(max_ - min_)) / pages / step_);
    return std::max(steps, 1.0F) * step_;
}

bool SliderModel::keyDown(int key) {
    switch (key) {
        case key::left:
            setByUser(value_ - step_);
            return true;
        case key::right:
            setByUser(value_ + step_);
            return true;
        case key::pageDown:
            setByUser(value_ - page());
            return true;
        case key::pageUp:
            setByUser(value_ + page());
            return true;
        case key::home:
            setByUser(static_cast<float>(min_));
            return true;
        case key::end:
            setByUser(static_cast<float>(max_));
            return true;
        default:
            return false;
    }
}

}  // namespace ormala
