#include "worksheet/Sheet.h"

#include <algorithm>
#include <utility>

namespace ormala {

Sheet::Elements& Sheet::elements(ToolKind kind) {
    return arrays_[static_cast<std::size_t>(kind)];
}

OverlayItem* Sheet::add(ToolKind kind, bool visible, std::optional<ToolChanges>& changes) {
    auto made = factory_.makeTool(kind, host_);
    if (made == nullptr) {
        return nullptr;
    }
    const OverlayItem* former = front();
    OverlayItem& item = *made;
    changes.emplace(item.control());
    elements(kind).push_back({std::move(made), visible, ++lastId_, visible});
    zOrder_.push_back(&item);
    item.resize(size_);
    item.control().setEditMode(editMode_);
    frontMayDifferFrom(former);
    return &item;
}

void Sheet::frontMayDifferFrom(const OverlayItem* former) {
    const OverlayItem* present = front();
    if (present == former) {
        return;
    }
    if (former != nullptr) {
        port_.repaintTool(*former);
    }
    if (present != nullptr) {
        port_.repaintTool(*present);
    }
}

void Sheet::makeFirstControl(ToolKind kind) {
    if (elements(kind).empty()) {
        std::optional<ToolChanges> changes;
        add(kind, false, changes);
    }
}

OverlayItem* Sheet::AddNewControl(int kind) {
    std::optional<ToolChanges> changes;
    return AddNewControl(kind, changes);
}

OverlayItem* Sheet::AddNewControl(int kind, std::optional<ToolChanges>& changes) {
    if (kind < 0 || kind >= kinds) {
        return nullptr;
    }
    return add(static_cast<ToolKind>(kind), true, changes);
}

OverlayItem* Sheet::GetFirstControl(int kind) const {
    if (kind < 0 || kind >= kinds || arrays_[static_cast<std::size_t>(kind)].empty()) {
        return nullptr;
    }
    return arrays_[static_cast<std::size_t>(kind)].front().item.get();
}

void Sheet::RemoveControl(const OverlayItem& item) {
    for (Elements& array : arrays_) {
        const auto at = std::ranges::find_if(
            array, [&](const Element& element) { return element.item.get() == &item; });
        if (at == array.end()) {
            continue;
        }
        setVisible(*at, false);
        std::erase(zOrder_, &item);
        array.erase(at);
        return;
    }
}

void Sheet::putAside(const OverlayItem& item) {
    if (Element* const element = find(item)) {
        setVisible(*element, false);
        element->inUse = false;
    }
}

void Sheet::takeBack(const OverlayItem& item, bool visible) {
    if (Element* const element = find(item)) {
        element->inUse = true;
        setVisible(*element, visible);
    }
}

void Sheet::withdraw(const OverlayItem& item) {
    if (focused_ == &item) {
        focused_->control().LoseFocus();
        focused_ = nullptr;
    }
    host_.showTip(item, 0);
    withdrawn.raise(item);
}

void Sheet::setVisible(Element& element, bool visible) {
    if (element.visible != visible) {
        const OverlayItem* former = front();
        element.visible = visible;
        element.inUse = element.inUse || visible;
        port_.repaintTool(*element.item);
        frontMayDifferFrom(former);
        if (!visible) {
            withdraw(*element.item);
        }
    }
}

const Sheet::Element* Sheet::find(const OverlayItem& item) const {
    for (const Elements& array : arrays_) {
        for (const Element& element : array) {
            if (element.item.get() == &item) {
                return &element;
            }
        }
    }
    return nullptr;
}

Sheet::Element* Sheet::find(const OverlayItem& item) {
    return const_cast<Element*>(std::as_const(*this).find(item));
}

void Sheet::setVisible(const OverlayItem& item, bool visible) {
    if (Element* const element = find(item)) {
        setVisible(*element, visible);
    }
}

bool Sheet::isVisible(const OverlayItem& item) const {
    const Element* element = find(item);
    return element != nullptr && element->visible;
}

void Sheet::SelectControl(const OverlayItem& item) {
    const auto at = std::ranges::find(zOrder_, &item);
    if (at == zOrder_.end()) {
        return;
    }
    const OverlayItem* former = front();
    std::rotate(at, at + 1, zOrder_.end());
    frontMayDifferFrom(former);
    // A panel that hears of its tool's selection may ask for the order of the others.
    const std::vector<OverlayItem*> all = zOrder_;
    for (OverlayItem* tool : all) {
        tool->control().setSelected(tool == &item);
    }
}

OverlayItem* Sheet::selected() const {
    const auto at =
        std::ranges::find_if(zOrder_, [](OverlayItem* tool) { return tool->control().Selected(); });
    return at == zOrder_.end() ? nullptr : *at;
}

void Sheet::SetFocusToSelectedControl() {
    OverlayItem* tool = selected();
    if (tool != nullptr) {
        giveFocus(*tool);
    }
}

void Sheet::giveFreeFocusToSelectedControl() {
    if (windowFocused_ && focused_ == nullptr) {
        SetFocusToSelectedControl();
    }
}

void Sheet::RemoveFocusFromOtherControls(const OverlayItem& item) {
    for (OverlayItem* tool : zOrder_) {
        if (tool != &item) {
            tool->control().LoseFocus();
        }
    }
}

void Sheet::giveFocus(OverlayItem& item) {
    if (!isVisible(item) || (focused_ == &item && windowFocused_)) {
        return;
    }
    focused_ = &item;
    windowFocused_ = true;
    focusArrives(item);
}

void Sheet::focusArrives(OverlayItem& item) {
    const bool byUser = port_.wasInFront();
    if (!byUser) {
        SetFocusToSelectedControl();
        port_.rememberForeground();
    }
    if (focused_ == &item) {
        if (byUser) {
            SelectControl(item);
        }
        item.gotFocus();
        RemoveFocusFromOtherControls(item);
    }
}

void Sheet::windowGotFocus() {
    if (focusHeld_) {
        return;
    }
    windowFocused_ = true;
    if (focused_ == nullptr) {
        const auto visible = visibleInArrayOrder();
        focused_ = visible.empty() ? nullptr : visible.front();
    }
    if (focused_ != nullptr) {
        focusArrives(*focused_);
    }
}

void Sheet::windowLostFocus() {
    if (focusHeld_) {
        return;
    }
    windowFocused_ = false;
    if (focused_ != nullptr) {
        focused_->control().LoseFocus();
    }
}

void Sheet::setFocusHeld(bool held, bool windowHasFocus) {
    focusHeld_ = held;
    if (windowHasFocus == windowFocused_) {
        return;
    }
    if (windowHasFocus) {
        windowGotFocus();
    } else {
        windowLostFocus();
    }
}

std::vector<OverlayItem*> Sheet::visibleInArrayOrder() const {
    std::vector<OverlayItem*> visible;
    for (const Shown& tool : shown()) {
        visible.push_back(tool.item);
    }
    return visible;
}

std::vector<Sheet::Shown> Sheet::shown() const {
    std::vector<Shown> visible;
    for (const Elements& array : arrays_) {
        int ordinal = 0;
        for (const Element& element : array) {
            ordinal += element.inUse ? 1 : 0;
            if (element.visible) {
                visible.push_back({element.item.get(), element.id, ordinal});
            }
        }
    }
    return visible;
}

void Sheet::focusNext(bool backwards) {
    const auto visible = visibleInArrayOrder();
    if (visible.empty()) {
        return;
    }
    const auto at = std::ranges::find(visible, focused_);
    const auto last = visible.size() - 1;
    std::size_t next = backwards ? last : 0;
    if (at != visible.end()) {
        const auto now = static_cast<std::size_t>(at - visible.begin());
        next = backwards ? (now == 0 ? last : now - 1) : (now == last ? 0 : now + 1);
    }
    giveFocus(*visible[next]);
}

void Sheet::setEditMode(bool editMode) {
    editMode_ = editMode;
    for (OverlayItem* tool : zOrder_) {
        tool->control().setEditMode(editMode);
    }
}

void Sheet::resize(PixelSize size) {
    size_ = size;
    for (OverlayItem* tool : zOrder_) {
        tool->resize(size);
    }
}

OverlayItem* Sheet::front() const {
    const auto at = std::find_if(zOrder_.rbegin(), zOrder_.rend(),
                                 [&](OverlayItem* tool) { return isVisible(*tool); });
    return at == zOrder_.rend() ? nullptr : *at;
}

}  // namespace ormala
