#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ormala {

/// What a window or a control of the program says.
struct WindowText {
    HWND window;
    /// The class of its panel or of its outermost window, and the control's own name, such as
    /// "frmColor/cmdOK"; a part without a name has that of its control and its class,
    /// "frmUnit/cboUnit/Edit".
    std::string place;
    std::string text;
    std::string tip;
};

/// The texts and tips of all windows of this thread that have some, shown or hidden, in a fixed
/// order. Windows of the system are left out.
std::vector<WindowText> windowTexts();

/// The windows of this thread with that class, shown or hidden.
std::vector<HWND> windowsOfClass(const std::string& className);

/// The rows of a list box or of a drop-down list.
std::vector<std::string> rowsOf(HWND list);

/// The captions of a menu's entries without those of separators.
std::vector<std::string> captionsOf(HMENU menu);

}  // namespace ormala
