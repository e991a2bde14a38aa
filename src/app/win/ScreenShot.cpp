#include "app/win/ScreenShot.h"

#include <dwmapi.h>

#include <utility>

#include "app/win/OffScreen.h"

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

/// Gives the keyboard back to who had it, should a window manager have passed it on while the
/// window that had it was off all screens.
class KeptFocus {
  public:
    explicit KeptFocus(frmWorksheet& worksheet)
        : worksheet_(worksheet), front_(GetForegroundWindow()), focus_(GetFocus()) {
        worksheet_.setFocusHeld(true);
    }
    KeptFocus(const KeptFocus&) = delete;
    KeptFocus& operator=(const KeptFocus&) = delete;
    ~KeptFocus() {
        if (focus_ != nullptr && GetFocus() != focus_) {
            SetForegroundWindow(front_);
            SetFocus(focus_);
        }
        worksheet_.setFocusHeld(false);
    }

  private:
    frmWorksheet& worksheet_;
    HWND front_;
    HWND focus_;
};

}  // namespace

void ScreenShot::take(frmWorksheet& worksheet) {
    {
        const KeptFocus focus(worksheet);
        const OffScreen aside(control_);
        letScreenSettle();
        picture_.emplace(worksheet.rectangle());
    }
    patientUntil_ = GetTickCount64() + clipboardPatience;
    deliver();
}

void ScreenShot::tick() {
    if (picture_) {
        deliver();
    } else {
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
            } else {
                SetTimer(control_, timer_, clipboardInterval, nullptr);
            }
            break;
    }
}

void ScreenShot::tell(ShotOutcome outcome) {
    KillTimer(control_, timer_);
    const ScreenPicture picture = *std::exchange(picture_, std::nullopt);
    told.raise(shotNote(outcome, picture.size()));
}

}  // namespace ormala
