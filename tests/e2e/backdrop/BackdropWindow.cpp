#include "e2e/backdrop/BackdropWindow.h"

#include <windows.h>
// Need what windows.h declares.
#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "support/win/Screen.h"
#include "support/win/WideText.h"

namespace ormala::test {

namespace {

constexpr UINT askQuestion = WM_APP;

/// Not quite the whole monitor: a window manager would lift a window that covers a monitor over the
/// topmost ones as soon as it is active. The last row is left out.
ScreenRect coveredPart() {
    ScreenRect rect = screen::primaryMonitor();
    rect.bottom -= 1;
    return rect;
}

std::vector<std::uint32_t> paintedPixels(const BackdropLook& look, const ScreenRect& rect) {
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(rect.width()) *
                   static_cast<std::size_t>(rect.height()));
    for (int y = 0; y < rect.height(); ++y) {
        for (int x = 0; x < rect.width(); ++x) {
            const Color color = backdropColor(look, x, y);
            pixels.push_back((color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU));
        }
    }
    return pixels;
}

bool isHeld(int key) {
    return GetKeyState(key) < 0;
}

/// As the bits of Modifiers.
int heldModifiers() {
    return (isHeld(VK_SHIFT) ? 1 : 0) + (isHeld(VK_CONTROL) ? 2 : 0) + (isHeld(VK_MENU) ? 4 : 0);
}

}  // namespace

BackdropWindow::BackdropWindow(const BackdropLook& look, BackdropExtras extras)
    : extras_(std::move(extras)),
      rect_(coveredPart()),
      pixels_(paintedPixels(look, rect_)),
      resetMessage_(RegisterWindowMessageW(backdropResetMessage)),
      lookMessage_(RegisterWindowMessageW(backdropLookMessage)) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = dispatch;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    windowClass.lpszClassName = backdropClass;
    RegisterClassExW(&windowClass);
    CreateWindowExW(WS_EX_APPWINDOW, backdropClass, L"", WS_POPUP, rect_.left, rect_.top,
                    rect_.width(), rect_.height(), nullptr, nullptr, windowClass.hInstance, this);
    if (window_ == nullptr) {
        throw std::runtime_error("no window for the backdrop");
    }
}

BackdropWindow::~BackdropWindow() {
    if (window_ != nullptr) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }
}

void BackdropWindow::show() {
    if (!extras_.tip.empty()) {
        addTip();
    }
    ShowWindow(window_, SW_SHOW);
    UpdateWindow(window_);
    if (!extras_.question.empty()) {
        PostMessageW(window_, askQuestion, 0, 0);
    }
}

LRESULT CALLBACK BackdropWindow::dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* self =
            static_cast<BackdropWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        self->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<BackdropWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self == nullptr ? DefWindowProcW(window, message, wParam, lParam)
                           : self->onMessage(message, wParam, lParam);
}

LRESULT BackdropWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == resetMessage_) {
        const int painted = report_.painted;
        report_ = {};
        report_.painted = painted;
        return 0;
    }
    if (message == lookMessage_) {
        takeLook({static_cast<BackdropPattern>(wParam), static_cast<Color>(lParam)});
        return 0;
    }
    if (onMouse(message, wParam, lParam) || onKey(message, wParam)) {
        return 0;
    }
    switch (message) {
        case WM_PAINT:
            paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(textOf(report_).size());
        case WM_GETTEXT:
            return copyText(wParam, reinterpret_cast<wchar_t*>(lParam));
        case askQuestion:
            ask();
            return 0;
        case WM_DESTROY:
            window_ = nullptr;
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window_, message, wParam, lParam);
    }
}

bool BackdropWindow::onMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            press(&BackdropReport::leftDown, message == WM_LBUTTONDBLCLK, lParam);
            return true;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            press(&BackdropReport::rightDown, message == WM_RBUTTONDBLCLK, lParam);
            return true;
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
            press(&BackdropReport::middleDown, message == WM_MBUTTONDBLCLK, lParam);
            return true;
        case WM_LBUTTONUP:
            release(&BackdropReport::leftUp, lParam);
            return true;
        case WM_RBUTTONUP:
            release(&BackdropReport::rightUp, lParam);
            return true;
        case WM_MBUTTONUP:
            release(&BackdropReport::middleUp, lParam);
            return true;
        case WM_MOUSEMOVE:
            move(wParam, lParam);
            return true;
        case WM_MOUSEWHEEL:
            report_.wheel += GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA;
            report_.wheelModifiers = heldModifiers();
            return true;
        default:
            return false;
    }
}

bool BackdropWindow::onKey(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            ++report_.keyDown;
            report_.lastKey = static_cast<int>(wParam);
            report_.keyModifiers = heldModifiers();
            return true;
        case WM_KEYUP:
        case WM_SYSKEYUP:
            ++report_.keyUp;
            return true;
        case WM_CHAR:
            report_.lastCharacter = static_cast<int>(wParam);
            return true;
        default:
            return false;
    }
}

void BackdropWindow::takeLook(const BackdropLook& look) {
    pixels_ = paintedPixels(look, rect_);
    report_ = {};
    InvalidateRect(window_, nullptr, FALSE);
    UpdateWindow(window_);
}

void BackdropWindow::addTip() {
    const HWND tip =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0,
                        0, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.uFlags = TTF_SUBCLASS;
    tool.hwnd = window_;
    tool.rect = {0, 0, rect_.width(), rect_.height()};
    tool.lpszText = extras_.tip.data();
    SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void BackdropWindow::ask() {
    report_.answer =
        MessageBoxW(window_, extras_.question.c_str(), L"Backdrop", MB_YESNO | MB_ICONQUESTION);
}

void BackdropWindow::paint() {
    PAINTSTRUCT scope{};
    const HDC context = BeginPaint(window_, &scope);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = rect_.width();
    info.bmiHeader.biHeight = -rect_.height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(rect_.width()),
                      static_cast<DWORD>(rect_.height()), 0, 0, 0,
                      static_cast<UINT>(rect_.height()), pixels_.data(), &info, DIB_RGB_COLORS);
    EndPaint(window_, &scope);
    ++report_.painted;
}

void BackdropWindow::press(int BackdropReport::*count, bool second, LPARAM place) {
    ++(report_.*count);
    report_.doubleClicks += second ? 1 : 0;
    const ScreenPoint point = onScreen(place);
    report_.downX = point.x;
    report_.downY = point.y;
    report_.downModifiers = heldModifiers();
    SetCapture(window_);
}

void BackdropWindow::release(int BackdropReport::*count, LPARAM place) {
    ++(report_.*count);
    const ScreenPoint point = onScreen(place);
    report_.upX = point.x;
    report_.upY = point.y;
    ReleaseCapture();
}

void BackdropWindow::move(WPARAM buttons, LPARAM place) {
    ++report_.moves;
    if ((buttons & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) != 0) {
        ++report_.dragMoves;
    }
    const ScreenPoint point = onScreen(place);
    report_.x = point.x;
    report_.y = point.y;
}

LRESULT BackdropWindow::copyText(std::size_t room, wchar_t* buffer) const {
    const std::wstring text = wide(textOf(report_));
    if (room == 0) {
        return 0;
    }
    const std::size_t length = std::min(text.size(), room - 1);
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = L'\0';
    return static_cast<LRESULT>(length);
}

ScreenPoint BackdropWindow::onScreen(LPARAM place) const {
    POINT point{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
    ClientToScreen(window_, &point);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

}  // namespace ormala::test
