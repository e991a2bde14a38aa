#include "app/win/WindowsMessagePresenter.h"

#include <windows.h>

#include "app/modes.h"
#include "platform/win/text.h"

namespace ormala {

void WindowsMessagePresenter::showError(const std::string& text) {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    MessageBoxW(GetActiveWindow(), wide(text).c_str(), wide(applicationTitle).c_str(),
                MB_OK | MB_ICONSTOP | MB_TOPMOST | MB_SETFOREGROUND);
}

}  // namespace ormala
