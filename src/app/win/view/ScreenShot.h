#pragma once

#include <windows.h>

#include <optional>

#include "app/clipboardNotes.h"
#include "base/Event.h"
#include "platform/win/KeptFocus.h"
#include "platform/win/Timer.h"
#include "platform/win/clipboard.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

/// Puts what the screen shows where the worksheet lies on the clipboard, without the control
/// window, which is moved out of the way meanwhile. Nothing on the worksheet looks different for
/// it, and the keyboard stays where it is.
class ScreenShot {
  public:
    /// `control` has a timer of that number for it after a shot, until all is at rest and on the
    /// clipboard. The worksheet of a shot must outlive it.
    ScreenShot(HWND control, UINT_PTR timer) : control_(control), timer_(timer) {}

    /// Windows that are hidden for the shot must have been hidden before.
    void take(frmWorksheet& worksheet);
    /// The timer has come.
    void tick();

    /// With what the user is told of a shot; one that is followed by another has no end of its own.
    Event<const std::string&> told;

  private:
    void deliver();

    HWND control_;
    Timer timer_;
    /// Captured, and not yet on the clipboard.
    std::optional<ScreenPicture> picture_;
    ULONGLONG patientUntil_ = 0;
    std::optional<KeptFocus> focus_;
    ULONGLONG restUntil_ = 0;
};

}  // namespace ormala
