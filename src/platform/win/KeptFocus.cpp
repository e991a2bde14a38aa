#include "platform/win/KeptFocus.h"

#include <utility>

namespace ormala {

namespace {

bool userActedSince(DWORD tick) {
    LASTINPUTINFO last{};
    last.cbSize = sizeof last;
    return GetLastInputInfo(&last) != FALSE && static_cast<LONG>(last.dwTime - tick) > 0;
}

}  // namespace

KeptFocus::KeptFocus(std::function<void(bool)> hold)
    : hold_(std::move(hold)),
      front_(GetForegroundWindow()),
      focus_(GetFocus()),
      begin_(GetTickCount()) {
    hold_(true);
}

KeptFocus::~KeptFocus() {
    hold_(false);
}

bool KeptFocus::giveBack() const {
    if (userActedSince(begin_)) {
        return false;
    }
    if (IsWindow(focus_) != FALSE && GetFocus() != focus_) {
        SetForegroundWindow(front_);
        SetFocus(focus_);
    }
    return true;
}

}  // namespace ormala
