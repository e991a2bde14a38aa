#pragma once

#include <windows.h>

#include <string>

#include "app/clipboardNotes.h"
#include "base/Event.h"
#include "platform/win/Timer.h"

namespace ormala {

/// Puts a text on the clipboard, and asks again for a while if another program holds it.
class CopiedText {
  public:
    /// `control` has a timer of that number for it as long as it asks.
    CopiedText(HWND control, UINT_PTR timer) : control_(control), timer_(timer) {}

    /// In place of one that is still on its way.
    void put(TextCopy copy);
    /// The timer has come.
    void tick();

    /// With what the user is told in the end.
    Event<const std::string&> told;

  private:
    HWND control_;
    Timer timer_;
    TextCopy copy_;
    ULONGLONG patientUntil_ = 0;
};

}  // namespace ormala
