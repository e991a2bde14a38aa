#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "modAPI/PixelRect.h"

namespace ormala {

/// How a window comes into the world.
struct WindowDesign {
    const wchar_t* className = L"";
    DWORD style = 0;
    DWORD extendedStyle = 0;
    UINT classStyle = 0;
    /// The parent, of a child.
    HWND owner = nullptr;
    /// The control ID of a child; 0 for any other window.
    int id = 0;
    RECT place{0, 0, 0, 0};
    /// A pen or a finger presses as soon as it touches. The system else waits for whether it stays,
    /// which it takes for the right button, or goes on, which it takes for scrolling.
    bool takesTouchAtOnce = false;
};

/// The base of all windows. The object owns its handle: `create` makes it once the object stands,
/// so that no message meets a half-built one, and destruction first takes the object out of the
/// dispatch. A window that goes with its parent leaves its object without a handle. One that holds
/// the mouse loses it with the first move that comes without a button.
class Window {
  public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window();

    [[nodiscard]] HWND handle() const { return handle_; }
    [[nodiscard]] bool isVisible() const { return IsWindowVisible(handle_) != FALSE; }
    [[nodiscard]] RECT rectangle() const;
    [[nodiscard]] RECT clientRectangle() const;
    void setCaption(std::string_view text);
    /// Moves and sizes a child, in the client pixels of its parent.
    void place(const PixelRect& box) const;
    /// Without activating it.
    void setVisible(bool visible) const;

  protected:
    /// Registers the class if need be and makes the window. Throws std::system_error with the
    /// class's name if the system refuses.
    void create(const WindowDesign& design);
    void destroy();

    /// One message; nothing for the default handling. Called from `create` to the destruction.
    virtual std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

  private:
    static LRESULT CALLBACK dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
    static Window* bind(HWND handle, LPARAM lParam);
    void destroyed();

    HWND handle_ = nullptr;
    bool takesTouchAtOnce_ = false;
    bool frameless_ = false;
};

constexpr bool isMouseMessage(UINT message) {
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

/// The modifier bits of the keys that are down in the key message being handled.
int heldModifiers();

/// The same in a mouse message. The keys may have gone down while another program had the keyboard,
/// so that the message's wParam, which knows no Alt at all, is asked and then the keyboard itself.
int heldModifiersOfMouse(WPARAM wParam);

/// The bits of the buttons in a mouse message's wParam.
int heldButtons(WPARAM wParam);

}  // namespace ormala
