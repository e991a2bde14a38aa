#include "dialogs/ColorPicModel.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "modAPI/drawingColors.h"
#include "modAPI/textForms.h"
#include "scene/Input.h"

namespace ormala {

namespace {

constexpr int largestFactor = 100;
constexpr float dimmest = 0.5F;

/// From black to white and back in about a second.
std::vector<Color> blinkTable() {
    constexpr int steps = 32;
    std::vector<Color> colors;
    for (int step = 0; step < steps; ++step) {
        const int rising = std::min(step, steps - step);
        const int level = 255 * rising / (steps / 2);
        colors.push_back(rgb(level, level, level));
    }
    return colors;
}

int keptFactor(int factor) {
    return std::clamp(factor, 1, largestFactor);
}

/// Of so many fields that share a length.
int startOfField(int field, int fields, int length) {
    return field * length / fields;
}

int fieldAtPlace(int place, int fields, int length) {
    return place < 0 ? -1 : ((place + 1) * fields - 1) / length;
}

}  // namespace

ColorPicModel::ColorPicModel() : blinkColors_(blinkTable()) {
    setRGBColor(plain::black);
}

void ColorPicModel::setRGBColor(Color color) {
    rgbColor_ = std::clamp(color, plain::black, plain::white);
    field_ = palette().nearest(rgbColor_);
}

void ColorPicModel::SetRGBColorToCurrentPixelColor() {
    rgbColor_ = palette().at(field_);
}

std::string ColorPicModel::valueText() const {
    std::string text = "#";
    // Red is the lowest byte and is read first.
    for (const int shift : {4, 0, 12, 8, 20, 16}) {
        text += hexDigits[static_cast<std::size_t>(rgbColor_ >> shift & 0xF)];
    }
    return text;
}

void ColorPicModel::setPictureIndex(int index) {
    pictureIndex_ = std::clamp(index, 0, paletteCount - 1);
    field_ = palette().nearest(rgbColor_);
}

void ColorPicModel::setSizeFactorX(int factor) {
    factor_.width = keptFactor(factor);
}

void ColorPicModel::setSizeFactorY(int factor) {
    factor_.height = keptFactor(factor);
}

void ColorPicModel::setRoom(PixelSize room) {
    room_ = {std::max(room.width, 1), std::max(room.height, 1)};
}

PixelSize ColorPicModel::size() const {
    if (room_) {
        return *room_;
    }
    const PixelSize fields = palette().size;
    return {fields.width * factor_.width, fields.height * factor_.height};
}

PixelRect ColorPicModel::fieldBox(PixelPoint field) const {
    const PixelSize fields = palette().size;
    const PixelSize whole = size();
    return {startOfField(field.x, fields.width, whole.width),
            startOfField(field.y, fields.height, whole.height),
            startOfField(field.x + 1, fields.width, whole.width),
            startOfField(field.y + 1, fields.height, whole.height)};
}

Color ColorPicModel::markColor() const {
    if (hasFocus_) {
        return blinkColors_[blinkIndex_];
    }
    return Luminance(palette().at(field_)) < dimmest ? plain::white : plain::black;
}

void ColorPicModel::press(PixelPoint point) {
    mouseIsDown_ = true;
    PickAt(point);
}

void ColorPicModel::move(PixelPoint point) {
    if (mouseIsDown_) {
        PickAt(point);
    }
}

void ColorPicModel::release(PixelPoint point) {
    PickAt(point);
    mouseIsDown_ = false;
    if (doubleClicked_) {
        doubleClicked_ = false;
        DoubleClick.raise();
    }
}

void ColorPicModel::cancel() {
    mouseIsDown_ = false;
    doubleClicked_ = false;
}

bool ColorPicModel::keyDown(int key) {
    switch (key) {
        case key::left:
            pickField({field_.x - 1, field_.y});
            return true;
        case key::right:
            pickField({field_.x + 1, field_.y});
            return true;
        case key::up:
            pickField({field_.x, field_.y - 1});
            return true;
        case key::down:
            pickField({field_.x, field_.y + 1});
            return true;
        default:
            return false;
    }
}

void ColorPicModel::setFocus(bool focused) {
    hasFocus_ = focused;
    blinkIndex_ = 0;
}

void ColorPicModel::tick() {
    blinkIndex_ = (blinkIndex_ + 1) % blinkColors_.size();
}

PixelPoint ColorPicModel::fieldAt(PixelPoint point) const {
    const PixelSize fields = palette().size;
    const PixelSize whole = size();
    return palette().clamped({fieldAtPlace(point.x, fields.width, whole.width),
                              fieldAtPlace(point.y, fields.height, whole.height)});
}

void ColorPicModel::PickAt(PixelPoint point) {
    pickField(fieldAt(point));
}

void ColorPicModel::pickField(PixelPoint field) {
    field_ = palette().clamped(field);
    SetRGBColorToCurrentPixelColor();
    RGBChanged.raise();
}

}  // namespace ormala
