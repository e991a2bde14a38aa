#pragma once

#include <windows.h>

#include <optional>

#include "app/shotNotes.h"
#include "base/Event.h"
#include "platform/win/clipboard.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

/// Who has the keyboard while a window goes off all screens and comes back, since a window manager
/// may pass the keyboard on. The tools on the worksheet learn nothing of that.
class KeptFocus {
  public:
    /// The worksheet must outlive it.
    explicit KeptFocus(frmWorksheet& worksheet);
    KeptFocus(const KeptFocus&) = delete;
    KeptFocus& operator=(const KeptFocus&) = delete;
    ~KeptFocus();

    /// Gives the keyboard back to who had it. False, and nothing is done, once the user has pressed
    /// a key or moved the mouse, who may want it elsewhere.
    bool giveBack() const;

  private:
    frmWorksheet& worksheet_;
    HWND front_;
    HWND focus_;
    DWORD begin_;
};

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
    void tell(ShotOutcome outcome);

    HWND control_;
    UINT_PTR timer_;
    /// Captured, and not yet on the clipboard.
    std::optional<ScreenPicture> picture_;
    ULONGLONG patientUntil_ = 0;
    std::optional<KeptFocus> focus_;
    ULONGLONG restUntil_ = 0;
};

}  // namespace ormala
