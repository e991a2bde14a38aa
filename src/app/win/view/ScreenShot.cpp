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
