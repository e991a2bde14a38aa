#include "platform/win/TipWindow.h"

#include <commctrl.h>

#include <utility>

#include "platform/win/Window.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

/// Long enough to read the longest of the tips, in milliseconds.
constexpr int readingTime = 15000;
/// Longer texts break into lines. In pixels at 96 DPI.
constexpr int widest = 400;

TTTOOLINFOW toolOf(HWND owner) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = owner;
    tool.uId = 1;
    return tool;
}

template <typename T>
LPARAM pointerParam(T* pointer) {
    return reinterpret_cast<LPARAM>(pointer);
}

}  // namespace

TipWindow::TipWindow(HWND owner) : owner_(owner) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    window_.reset(CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, TOOLTIPS_CLASSW, nullptr,
                                  WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT,
                                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr,
                                  GetModuleHandleW(nullptr), nullptr));
    setDpi(GetDpiForWindow(owner));
    SendMessageW(handle(), TTM_SETDELAYTIME, TTDT_AUTOPOP, MAKELPARAM(readingTime, 0));
}

void TipWindow::setDpi(UINT dpi) {
    if (std::exchange(dpi_, dpi) == dpi) {
        return;
    }
    SendMessageW(handle(), TTM_SETMAXTIPWIDTH, 0,
                 MulDiv(widest, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI));
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi) !=
        FALSE) {
        FontHandle font(CreateFontIndirectW(&metrics.lfStatusFont));
        SendMessageW(handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
        font_ = std::move(font);
    }
}

void TipWindow::setText(const std::string& text) {
    setDpi(GetDpiForWindow(owner_));
    TTTOOLINFOW tool = toolOf(owner_);
    // Made anew for each text, so that the wait for the tip begins anew too.
    SendMessageW(handle(), TTM_DELTOOLW, 0, pointerParam(&tool));
    text_ = wide(text);
    if (!text_.empty()) {
        tool.lpszText = text_.data();
        GetClientRect(owner_, &tool.rect);
        SendMessageW(handle(), TTM_ADDTOOLW, 0, pointerParam(&tool));
    }
}

void TipWindow::relay(UINT message, WPARAM wParam, LPARAM lParam) {
    MSG relayed{};
    relayed.hwnd = owner_;
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    SendMessageW(handle(), TTM_RELAYEVENT, 0, pointerParam(&relayed));
}

void HoverTip::setText(const std::string& text) {
    text_ = text;
    if (window_) {
        window_->setText(text);
    }
}

void HoverTip::relay(HWND owner, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE && window_) {
        window_->setText(text_);
    }
    if (!isMouseMessage(message)) {
        return;
    }
    if (!window_ && !text_.empty()) {
        window_.emplace(owner);
        window_->setText(text_);
    }
    if (window_) {
        window_->relay(message, wParam, lParam);
    }
}

}  // namespace ormala
