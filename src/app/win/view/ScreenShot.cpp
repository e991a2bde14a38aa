#include "app/win/view/ScreenShot.h"

#include <utility>

#include "platform/win/OffScreen.h"
#include "platform/win/screenRest.h"

namespace ormala {

namespace {

/// How long a window manager may take to pass the keyboard on after a window has come back.
constexpr ULONGLONG restingTime = 400;

}  // namespace

void ScreenShot::take(frmWorksheet& worksheet) {
    focus_.emplace([&worksheet](bool held) { worksheet.setFocusHeld(held); });
    {
        const OffScreen aside(control_);
        letScreenSettle();
        picture_.emplace(worksheet.rectangle());
    }
    focus_->giveBack();
    const ULONGLONG now = GetTickCount64();
    restUntil_ = now + restingTime;
    patientUntil_ = now + clipboardPatience;
    timer_.start(control_, clipboardInterval);
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
        timer_.stop();
    }
}

void ScreenShot::deliver() {
    const ClipboardAnswer answer = picture_->putOnClipboard(control_);
    if (answer != ClipboardAnswer::held || GetTickCount64() >= patientUntil_) {
        const ScreenPicture picture = *std::exchange(picture_, std::nullopt);
        told.raise(shotNote(answer, picture.size()));
    }
}

}  // namespace ormala
