#include "toolkit/GripTool.h"

#include <utility>

namespace ormala {

GripTool::GripTool(ToolHost& host, GripSet grips) : host_(host), grips_(std::move(grips)) {
    grips_.setScale(host_.textMeter().scale());
}

bool GripTool::HitTest(double x, double y) const {
    return grips_.HitTest(x, y);
}

void GripTool::GlobalMouseMove(const MouseInput& input, const MouseSource& source) {
    const bool ours = source.tool == nullptr || source.tool == this;
    UpdateGripHover(input, HoverMode::hover, ours, source.heldAwayFrom(this));
}

void GripTool::UpdateGripHover(const MouseInput& input, HoverMode mode, bool ours,
                               bool heldElsewhere) {
    DirtyRegion changed;
    const unsigned order = grips_.restackings();
    const auto hit = grips_.update({input.x, input.y, mode, ours, heldElsewhere}, changed);
    if (grips_.restackings() != order) {
        refresh();
    } else if (!changed.empty()) {
        measureFootprint();
        host_.repaint(*this, changed);
    }
    if (mode == HoverMode::press) {
        grips_.setActive(hit);
    }
    // A tip would lie over what is being dragged.
    setTip(hit && !grips_.active() ? tipOf(*hit) : 0);
}

void GripTool::setTip(TipId tip) {
    if (tip != tip_) {
        tip_ = tip;
        host_.showTip(*this, tip);
    }
}

void GripTool::mouseDown(const MouseInput& input, const MouseSource& source) {
    if (input.button != mouseButton::left) {
        UpdateGripHover(input, HoverMode::release, true, source.heldAwayFrom(this));
        return;
    }
    UpdateGripHover(input, HoverMode::press, true, false);
    if (grips_.active()) {
        beginDrag(input);
    }
}

void GripTool::mouseMove(const MouseInput& input, const MouseSource& source) {
    if (!grips_.active()) {
        return;
    }
    if (input.button == mouseButton::none) {
        // The release fell where no event came from.
        mouseUp(input, source);
    } else {
        drag(input);
    }
}

void GripTool::mouseUp(const MouseInput& input, const MouseSource& source) {
    UpdateGripHover(input, HoverMode::release, true, source.heldAwayFrom(this));
    endDrag();
    // The grip may have stopped before the mouse did: only what is under the mouse now has a tip.
    UpdateGripHover(input, HoverMode::hover, true, source.heldAwayFrom(this));
    events_.mouseUp.raise(input);
}

void GripTool::endDrag() {
    if (!grips_.active()) {
        return;
    }
    const bool stored = History().Add(false);
    grips_.setActive(std::nullopt);
    hideAids();
    refresh();
    if (stored) {
        events_.change.raise();
    }
}

void GripTool::resize(PixelSize size) {
    sheet_ = size;
    if (grips_.setScale(host_.textMeter().scale())) {
        layOut();
    } else {
        refresh();
    }
}

void GripTool::endChanges() {
    --openChanges_;
    layOut();
}

SpokenTool GripTool::spoken(int ordinal) const {
    SpokenTool tool = words(ordinal);
    for (int i = 0; i < grips_.count(); ++i) {
        tool.grips += grips_[i].inUse() ? 1 : 0;
    }
    return tool;
}

std::vector<SpokenGrip> GripTool::spokenGrips(int ordinal) const {
    std::vector<SpokenGrip> shown;
    const std::string owner = words(ordinal).name + ", ";
    for (int i = 0; i < grips_.count(); ++i) {
        if (grips_[i].inUse()) {
            shown.push_back(
                {owner + gripName(i), gripValue(i), grips_[i].pixels(), grips_.active() == i});
        }
    }
    return shown;
}

void GripTool::refresh() {
    if (changing()) {
        return;
    }
    DirtyRegion changed = footprint_;
    measureFootprint();
    changed.add(footprint_);
    host_.repaint(*this, changed);
}

void GripTool::measureFootprint() {
    footprint_.clear();
    grips_.addTo(footprint_);
    addItemsTo(footprint_, {0, 0, sheet_.width, sheet_.height});
}

void GripTool::setSelected(bool selected) {
    if (selected_ != selected) {
        selected_ = selected;
        SetGripColors();
        events_.change.raise();
    }
}

void GripTool::setLineWidth(int lineCode) {
    lineWidth_ = lineCode;
    refresh();
}

void GripTool::setEditMode(bool editMode) {
    editMode_ = editMode;
    if (!editMode) {
        endDrag();
        setTip(0);
    }
    grips_.setVisible(editMode);
    layOut();
    events_.change.raise();
}

void GripTool::gotFocus() {
    hasFocus_ = true;
    SetGripColors();
}

void GripTool::LoseFocus() {
    if (hasFocus_) {
        hasFocus_ = false;
        SetGripColors();
    }
}

void GripTool::SetGripColors() {
    grips_.setBorderColors(hasFocus_, selected_);
    if (changing()) {
        return;
    }
    DirtyRegion changed;
    grips_.addTo(changed);
    host_.repaint(*this, changed);
}

}  // namespace ormala
