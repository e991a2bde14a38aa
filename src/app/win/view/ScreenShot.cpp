#include "app/win/view/ScreenShot.h"

#include <dwmapi.h>

#include <utility>

#include "platform/win/OffScreen.h"

namespace ormala {

namespace {

/// Paints what has to be painted, and lets the other programs and the composition of the desktop
/// show what was covered. Input waits, so that no command comes in between.
void letScreenSettle() {
    constexpr ULONGLONG patience = 120;
    const ULONGLONG end = GetTickCount64() + patience;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        MSG message{};
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE) !=
            FALSE) {
            DispatchMessageW(&message);
        } else {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now),
                                      QS_PAINT | QS_SENDMESSAGE);
        }
    }
    DwmFlush();
}

/// How long a window manager may take to pass the keyboard on after a window has come back.
constexpr ULONGLONG restingTime = 400;

bool userActedSince(DWORD tick) {
    LASTINPUTINFO last{};
    last.cbSize = sizeof last;
    return GetLastInputInfo(&last) != FALSE && static_cast<LONG>(last.dwTime - tick) > 0;
}

}  // namespace

KeptFocus::KeptFocus(frmWorksheet& worksheet)
    : worksheet_(worksheet),
      front_(GetForegroundWindow()),
      focus_(GetFocus()),
      begin_(GetTickCount()) {
    worksheet_.setFocusHeld(true);
}

KeptFocus::~KeptFocus() {
    worksheet_.setFocusHeld(false);
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

void ScreenShot::take(frmWorksheet& worksheet) {
    focus_.emplace(worksheet);
    {
        const OffScreen aside(control_);
        letScreenSettle();
        picture_.emplace(worksheet.rectangle());
    }
    focus_->giveBack();
    const ULONGLONG now = GetTickCount64();
    restUntil_ = now + restingTime;
    patientUntil_ = now + clipboardPatience;
    SetTimer(control_, timer_, clipboardInterval, nullptr);
    deliver();
}

void ScreenShot::tick() {
    if (focus_ && (!focus_->giveBack() || GetTickCount64() >= restUntil_)) {
        focus_.reset();
    }
    if (picture_) {
        deliver();
    }
    if (!focus_ && !picture_) {
        KillTimer(control_, timer_);
    }
}

void ScreenShot::deliver() {
    if (!picture_->isHere()) {
        tell(ShotOutcome::failed);
        return;
    }
    switch (picture_->putOnClipboard(control_)) {
        case ScreenPicture::Answer::taken:
            tell(ShotOutcome::copied);
            break;
        case ScreenPicture::Answer::refused:
            tell(ShotOutcome::failed);
            break;
        case ScreenPicture::Answer::held:
            if (GetTickCount64() >= patientUntil_) {
                tell(ShotOutcome::held);
            }
            break;
    }
}

void ScreenShot::tell(ShotOutcome outcome) {
    const ScreenPicture picture = *std::exchange(picture_, std::nullopt);
    told.raise(shotNote(outcome, picture.size()));
}

}  // namespace ormala
