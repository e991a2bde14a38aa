#include "widgets/win/OptionGroup.h"

#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// A toggle that is one of several.
constexpr int oneOfSeveral = 2;

void setStyleBit(HWND window, LONG_PTR bit, bool on) {
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    SetWindowLongPtrW(window, GWL_STYLE, on ? style | bit : style & ~bit);
}

}  // namespace

void OptionGroup::create(HWND parent, int firstId, std::string_view name,
                         const std::vector<std::string>& captions, int firstNumber) {
    for (const std::string& caption : captions) {
        const int index = size();
        const std::string ownName =
            std::string(name) + "(" + std::to_string(firstNumber + index) + ")";
        buttons_.push_back(std::make_unique<ZelvikButtonXP>(parent, firstId + index, ownName));
        ZelvikButtonXP& button = *buttons_.back();
        button.setCaption(caption);
        button.setControlType(oneOfSeveral);
        button.setSign(ButtonSign::lamp);
        dressButton(button);
        setStyleBit(button.handle(), WS_GROUP, index == 0);
        choosing_.push_back(button.Click.subscribe([this, index] { choose(index); }));
        choosing_.push_back(button.gotFocus.subscribe([this, index, &button] {
            if (hasChoice() && !button.isFocusedByPress()) {
                choose(index);
            }
        }));
    }
}

void OptionGroup::select(int index) {
    selected_ = index;
    const int reached = hasChoice() ? index : 0;
    for (int i = 0; i < size(); ++i) {
        ZelvikButtonXP& button = (*this)[i];
        const bool on = i == index;
        button.setValue(on);
        dressButton(button, on);
        setStyleBit(button.handle(), WS_TABSTOP, i == reached);
    }
}

void OptionGroup::setSign(ButtonSign sign) {
    for (const auto& button : buttons_) {
        button->setSign(sign);
    }
}

void OptionGroup::choose(int index) {
    if (index != selected_) {
        select(index);
        Change.raise();
    }
}

HWND OptionGroup::focusTarget() const {
    return buttons_[static_cast<std::size_t>(hasChoice() ? selected_ : 0)]->handle();
}

void startGroup(HWND child) {
    setStyleBit(child, WS_GROUP, true);
}

void dressButton(ZelvikButtonXP& button, bool on) {
    const CaptionColors& colors = on ? dialogCaptionOn : dialogCaption;
    button.setBackColor(colors.face);
    button.setForeColor(colors.text);
}

}  // namespace ormala
