#include "win/PlayedMonitors.h"

#include <array>
#include <string_view>
#include <utility>

namespace ormala {

namespace {

bool isLargeWindow(HWND window) {
    std::array<wchar_t, 32> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    const std::wstring_view shown(name.data());
    return shown == L"frmSettings" || shown == L"frmResizer" || shown == L"frmLens";
}

}  // namespace

PlayedMonitors* PlayedMonitors::present_ = nullptr;

void tellResolution(HWND window, int formerDpi, int dpi) {
    RECT place{};
    GetWindowRect(window, &place);
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    RECT suggested{place.left, place.top, place.left + MulDiv(width, dpi, formerDpi),
                   place.top + MulDiv(height, dpi, formerDpi)};
    SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&suggested));
}

PlayedMonitors::PlayedMonitors(int rightDpi, Told told)
    : rightDpi_(rightDpi),
      told_(told),
      hook_(SetWindowsHookExW(WH_CALLWNDPROCRET, &PlayedMonitors::hook, nullptr,
                              GetCurrentThreadId())) {
    present_ = this;
}

PlayedMonitors::~PlayedMonitors() {
    UnhookWindowsHookEx(hook_);
    present_ = nullptr;
}

LRESULT CALLBACK PlayedMonitors::hook(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code >= 0 && sent.message == WM_NCDESTROY) {
        present_->dpis_.erase(sent.hwnd);
    } else if (code >= 0 && sent.message == WM_WINDOWPOSCHANGED && isLargeWindow(sent.hwnd)) {
        present_->placed(sent.hwnd);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void PlayedMonitors::placed(HWND window) {
    if (IsIconic(window) != FALSE ||
        (told_ == Told::whenShown && IsWindowVisible(window) == FALSE)) {
        return;
    }
    RECT place{};
    GetWindowRect(window, &place);
    const bool isRight = (place.left + place.right) / 2 >= middle();
    const auto system = static_cast<int>(GetDpiForSystem());
    const int dpi = isRight ? rightDpi_ : system;
    int& known = dpis_.try_emplace(window, system).first->second;
    if (known != dpi) {
        ++count_;
        tellResolution(window, std::exchange(known, dpi), dpi);
    }
}

}  // namespace ormala
