#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "modAPI/PixelRect.h"
#include "platform/win/TipWindow.h"

namespace ormala {

/// How a control of the system is made.
struct ControlDesign {
    /// Such as WC_EDITW.
    const wchar_t* className = L"";
    /// Besides WS_CHILD and WS_VISIBLE.
    DWORD style = 0;
    int id = 0;
    std::string_view name;
    std::string_view text;
};

/// A child window that the system draws and works, such as an edit box, with a control name and a
/// tip. The object owns its handle; a control that goes with its parent leaves its object without
/// one.
class StandardControl {
  public:
    StandardControl() = default;
    StandardControl(const StandardControl&) = delete;
    StandardControl& operator=(const StandardControl&) = delete;
    virtual ~StandardControl() { destroy(); }

    /// Throws std::system_error if the system refuses.
    void create(HWND parent, const ControlDesign& design);
    /// Wraps a part of another control, with which it goes.
    void attach(HWND existing);
    [[nodiscard]] HWND handle() const { return handle_; }
    [[nodiscard]] std::string text() const;
    void setText(std::string_view text);
    void SetTooltip(const std::string& text);
    /// What a screen reader calls the control and takes it for, a ROLE_SYSTEM_ number; the text is
    /// its value.
    void setAccessible(const std::string& name, long role);

  protected:
    /// One message before the control sees it; nothing for the control's own handling.
    virtual std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// The control's own handling.
    LRESULT standardHandling(UINT message, WPARAM wParam, LPARAM lParam);
    void destroy();

  private:
    static LRESULT CALLBACK dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam,
                                     UINT_PTR id, DWORD_PTR object);

    std::optional<LRESULT> handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> accessibleMessage(UINT message, WPARAM wParam, LPARAM lParam) const;

    HWND handle_ = nullptr;
    /// Not so: a part of another control.
    bool ownsTheme_ = false;
    std::optional<TipWindow> tip_;
    std::string accessibleName_;
    long accessibleRole_ = 0;
};

/// The text of any window, asked of the window itself.
std::string textOf(HWND window);

}  // namespace ormala
