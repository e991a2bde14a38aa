#include "toolkit/win/ButtonGrowth.h"

#include <algorithm>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

WindowId windowAt(PixelPoint point) {
    return WindowFromPoint({point.x, point.y});
}

void placeBehind(const ZelvikButtonXP& button, HWND before) {
    SetWindowPos(button.handle(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

bool ButtonGrowth::hasWork(PixelPoint mouse, int dpi) const {
    RECT window{};
    GetWindowRect(GetAncestor(panel_.handle(), GA_ROOT), &window);
    return growthHasWork(
        {panel_.isVisible(), fromRect(panel_.rectangle()), fromRect(window), someGrown()}, mouse,
        dpi);
}

bool ButtonGrowth::someGrown() const {
    return std::ranges::any_of(entries_, &Entry::grown);
}

std::vector<GrowingButton> ButtonGrowth::buttons() const {
    std::vector<GrowingButton> present;
    present.reserve(entries_.size());
    for (const Entry& entry : entries_) {
        present.push_back({entry.button->handle(), fromRect(entry.button->rectangle()),
                           entry.button->isVisible() && entry.button->Enabled(), entry.grown,
                           entry.grownOver});
    }
    return present;
}

void ButtonGrowth::tick(int dpi) {
    if (IsWindowEnabled(GetAncestor(panel_.handle(), GA_ROOT)) == FALSE) {
        // A dialog is open: a click would go nowhere.
        if (someGrown()) {
            reset(dpi);
        }
        return;
    }
    const PixelPoint mouse = mousePoint();
    if (!hasWork(mouse, dpi)) {
        return;
    }
    const std::vector<GrowingButton> present = buttons();
    const auto chosen =
        buttonNearMouse(present, {mouse, windowAt(mouse), GetCapture()}, &windowAt, dpi);
    const GrowthSteps steps = GrowButtonNearMouse(present, chosen);
    if (steps.grow) {
        entries_[*steps.grow].grownOver = windowAt(mouse);
    }
    apply(steps, dpi);
}

void ButtonGrowth::reset(int dpi) {
    apply(GrowButtonNearMouse(buttons(), std::nullopt), dpi);
}

void ButtonGrowth::apply(const GrowthSteps& steps, int dpi) {
    for (const std::size_t index : steps.shrink) {
        Entry& entry = entries_[index];
        placeBehind(*entry.button, entry.before != nullptr ? entry.before : HWND_TOP);
        resize(entry, false, dpi);
    }
    if (steps.grow) {
        Entry& entry = entries_[*steps.grow];
        if (!entry.grown) {
            entry.before = GetWindow(entry.button->handle(), GW_HWNDPREV);
        }
        placeBehind(*entry.button, HWND_TOP);
        resize(entry, true, dpi);
    }
}

void ButtonGrowth::resize(Entry& entry, bool grown, int dpi) {
    const HWND button = entry.button->handle();
    const PixelRect place = placeIn(GetParent(button), button);
    entry.grown = grown;
    entry.button->setUseCornerStyle(!grown);
    entry.button->place(grown ? grownPlace(place, dpi) : placeAtRest(place, dpi));
}

}  // namespace ormala
