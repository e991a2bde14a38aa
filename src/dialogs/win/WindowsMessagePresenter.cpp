#include "dialogs/win/WindowsMessagePresenter.h"

#include "platform/win/InputBarrier.h"
#include "platform/win/text.h"

namespace ormala {

std::wstring WindowsMessagePresenter::title() const {
    if (window_ == nullptr) {
        return wide(title_);
    }
    std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(window_)) + 1, L'\0');
    caption.resize(static_cast<std::size_t>(
        GetWindowTextW(window_, caption.data(), static_cast<int>(caption.size()))));
    return caption;
}

void WindowsMessagePresenter::showError(const std::string& text) {
    if (quiet_) {
        return;
    }
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    const HWND owner = GetActiveWindow();
    const InputBarrier barrier(owner);
    MessageBoxW(owner, wide(text).c_str(), title().c_str(),
                MB_OK | MB_ICONSTOP | MB_TOPMOST | MB_SETFOREGROUND);
}

}  // namespace ormala
