#pragma once

#include <windows.h>

#include <functional>

namespace ormala {

/// Who has the keyboard while a window goes off all screens and comes back, since a window manager
/// may pass the keyboard on.
class KeptFocus {
  public:
    /// `hold` is called with true now and with false at the end: meanwhile no part of the program
    /// is to learn who has the keyboard.
    explicit KeptFocus(std::function<void(bool)> hold);
    KeptFocus(const KeptFocus&) = delete;
    KeptFocus& operator=(const KeptFocus&) = delete;
    ~KeptFocus();

    /// Gives the keyboard back to who had it. False, and nothing is done, once the user has pressed
    /// a key or moved the mouse, who may want it elsewhere.
    bool giveBack() const;

  private:
    std::function<void(bool)> hold_;
    HWND front_;
    HWND focus_;
    DWORD begin_;
};

}  // namespace ormala
