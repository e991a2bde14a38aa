#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "e2e/backdrop/BackdropLook.h"
#include "e2e/backdrop/BackdropReport.h"

namespace ormala::test {

/// What the backdrop does besides lying there, if the text is not empty.
struct BackdropExtras {
    /// A tip that comes when the mouse rests on the backdrop.
    std::wstring tip;
    /// A yes-or-no question, asked in a message box with the title "Backdrop".
    std::wstring question;
};

/// The backdrop's window over the whole screen. It owns its window, which ends the thread's message
/// loop when it is closed.
class BackdropWindow {
  public:
    /// Throws std::runtime_error if the window cannot be made.
    BackdropWindow(const BackdropLook& look, BackdropExtras extras);
    ~BackdropWindow();
    BackdropWindow(const BackdropWindow&) = delete;
    BackdropWindow& operator=(const BackdropWindow&) = delete;

    void show();

  private:
    static LRESULT CALLBACK dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    bool onMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool onKey(UINT message, WPARAM wParam);

    void takeLook(const BackdropLook& look);
    void addTip();
    void ask();
    void paint();
    void press(int BackdropReport::*count, bool second, LPARAM place);
    void release(int BackdropReport::*count, LPARAM place);
    void move(WPARAM buttons, LPARAM place);
    LRESULT copyText(std::size_t room, wchar_t* buffer) const;
    ScreenPoint onScreen(LPARAM place) const;

    BackdropExtras extras_;
    ScreenRect rect_;
    std::vector<std::uint32_t> pixels_;
    BackdropReport report_;
    UINT resetMessage_;
    UINT lookMessage_;
    HWND window_ = nullptr;
};

}  // namespace ormala::test
