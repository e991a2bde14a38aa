#include "dialogs/LineSelectModel.h"

#include <algorithm>

#include "scene/Input.h"

namespace ormala {

void LineSelectModel::setLineIndex(int index) {
    lineIndex_ = std::clamp(index, 0, rowCount - 1);
}

void LineSelectModel::choose(int index) {
    const int former = lineIndex_;
    setLineIndex(index);
    if (lineIndex_ != former) {
        Change.raise();
    }
}

std::string LineSelectModel::valueText() const {
    return std::to_string(lineIndex_ + 1) + "/" + std::to_string(rowCount);
}

PixelRect LineSelectModel::row(int index) const {
    const int height = size_.height / rowCount;
    return {0, index * height, size_.width, (index + 1) * height};
}

std::optional<int> LineSelectModel::rowAt(PixelPoint point) const {
    for (int index = 0; index < rowCount; ++index) {
        if (row(index).contains(point)) {
            return index;
        }
    }
    return std::nullopt;
}

void LineSelectModel::press(PixelPoint point) {
    if (const auto index = rowAt(point)) {
        choose(*index);
    }
}

void LineSelectModel::release(PixelPoint /*point*/) {
    if (doubleClicked_) {
        doubleClicked_ = false;
        DoubleClick.raise();
    }
}

bool LineSelectModel::keyDown(int key) {
    switch (key) {
        case key::up:
        case key::left:
            choose(lineIndex_ - 1);
            return true;
        case key::down:
        case key::right:
            choose(lineIndex_ + 1);
            return true;
        case key::enter:
            DoubleClick.raise();
            return true;
        default:
            return false;
    }
}

}  // namespace ormala
