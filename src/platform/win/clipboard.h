#pragma once

#include <windows.h>

#include <string_view>

#include "base/ClipboardAnswer.h"
#include "modAPI/PixelRect.h"
#include "platform/win/handles.h"

namespace ormala {

using GlobalMemory = Handle<HGLOBAL, &GlobalFree>;

/// The clipboard, open from here to the object's end.
class Clipboard {
  public:
    /// Asks once. `owner` is a window of the program, which owns what is put on it.
    explicit Clipboard(HWND owner) : isOpen_(OpenClipboard(owner) != FALSE) {}
    ~Clipboard();
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;

    /// False while another program has it open.
    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// In place of all that is on it. The system owns the memory afterwards, unless it refuses.
    [[nodiscard]] bool put(UINT format, GlobalMemory& memory) const;

  private:
    bool isOpen_;
};

/// What the screen shows of an area, layered windows included, on its way to the clipboard. What
/// lies beyond the screens is black.
class ScreenPicture {
  public:
    explicit ScreenPicture(const RECT& area);

    [[nodiscard]] PixelSize size() const { return size_; }
    /// Asks once. Refused also if the system had no memory for the picture.
    ClipboardAnswer putOnClipboard(HWND owner);

  private:
    PixelSize size_;
    GlobalMemory memory_;
};

/// The same for a text, which is copied at each call.
ClipboardAnswer putTextOnClipboard(HWND owner, std::string_view text);

}  // namespace ormala
