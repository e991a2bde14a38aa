#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/win/Picture.h"
#include "support/win/ScreenGeometry.h"
#include "support/win/Wait.h"

namespace ormala::test {

/// What SetLayeredWindowAttributes has set; no key and no alpha for a window without.
struct Layering {
    std::optional<Color> key;
    std::optional<int> alpha;

    bool operator==(const Layering&) const = default;
};

/// A window of any process, looked at from outside. It is a name for the window and does not own
/// it; a default-constructed one, or one whose window is gone, does not exist.
class DesktopWindow {
  public:
    DesktopWindow() = default;
    explicit DesktopWindow(HWND handle) : handle_(handle) {}

    HWND handle() const { return handle_; }
    bool exists() const { return IsWindow(handle_) != 0; }
    bool operator==(const DesktopWindow&) const = default;

    std::string className() const;
    /// The control's own name ("cmdUndo"): the global atom in the window property `Name`.
    std::string name() const;
    /// The window text, asked of the window itself, so also the contents of an edit control and
    /// the text of a tip. Empty if the window does not answer within 2 s.
    std::string text() const;
    DWORD processId() const;
    bool hasProperty(const wchar_t* property) const;

    /// On the screen, frame included.
    ScreenRect rect() const;
    /// The client area on the screen.
    ScreenRect clientRect() const;
    /// The client's pixel x, y on the screen.
    ScreenPoint at(int x, int y) const { return clientRect().origin() + ScreenPoint{x, y}; }
    ScreenPoint center() const { return rect().center(); }

    /// Shown, with all its parents.
    bool isVisible() const { return IsWindowVisible(handle_) != 0; }
    bool isEnabled() const { return IsWindowEnabled(handle_) != 0; }
    bool isMinimised() const { return IsIconic(handle_) != 0; }
    bool isForeground() const { return GetForegroundWindow() == handle_; }
    bool isTopmost() const { return hasExtendedStyle(WS_EX_TOPMOST); }
    /// WS_ and WS_EX_ bits.
    bool hasStyle(DWORD bits) const;
    bool hasExtendedStyle(DWORD bits) const;
    Layering layering() const;

    /// All windows inside, at any depth.
    std::vector<DesktopWindow> descendants() const;
    /// The first one inside with this class and, unless it is empty, this `Name`. It may not exist.
    DesktopWindow child(std::string_view className, std::string_view name = {}) const;
    /// The one inside that carries this `Name`, whatever its class. It may not exist.
    DesktopWindow named(std::string_view name) const;
    /// A dialog's control. It may not exist.
    DesktopWindow item(int id) const { return DesktopWindow(GetDlgItem(handle_, id)); }

    /// Makes it the foreground window and waits until it is. Fails the stage if it cannot.
    void activate() const;
    /// Waits until the window has handled what was sent to it so far; false if it hangs.
    bool settle() const;
    /// A message's result, or none if the window does not answer within 2 s.
    std::optional<LRESULT> send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void setText(std::string_view text) const;

    void waitUntilVisible(milliseconds deadline = usualDeadline) const;
    void waitUntilHidden(milliseconds deadline = usualDeadline) const;
    void waitUntilClosed(milliseconds deadline = usualDeadline) const;
    void waitForText(std::string_view text, milliseconds deadline = usualDeadline) const;

  private:
    HWND handle_ = nullptr;
};

/// The top-level windows of all processes, or of one, from the front to the back.
std::vector<DesktopWindow> topLevelWindows(std::optional<DWORD> processId = std::nullopt);

/// Those of a process and a class. The system itself picks them, where to look at all windows would
/// slow a program down that is just starting.
std::vector<DesktopWindow> topLevelWindows(DWORD processId, std::string_view className);

/// The foremost top-level window of the process with this class and, unless it is empty, this text;
/// a hidden one only if none is shown. It may not exist.
DesktopWindow findTopLevel(DWORD processId, std::string_view className, std::string_view text = {});

/// Waits until a window as in findTopLevel is shown and has got its place, and returns it.
DesktopWindow waitForTopLevel(DWORD processId, std::string_view className,
                              std::string_view text = {}, milliseconds deadline = usualDeadline);

/// The text of the tip that the process shows now; empty if it shows none.
std::string shownTip(DWORD processId);

}  // namespace ormala::test
