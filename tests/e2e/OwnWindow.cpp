#include "e2e/OwnWindow.h"

#include <windowsx.h>

#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"

namespace ormala::test {

namespace {

constexpr const wchar_t* className = L"OrmalaOwnWindow";

void fill(HDC context, const RECT& rect, Color color) {
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(context, &rect, brush);
    DeleteObject(brush);
}

ScreenPoint placeOf(LPARAM message, HWND window) {
    POINT place{GET_X_LPARAM(message), GET_Y_LPARAM(message)};
    ClientToScreen(window, &place);
    return {static_cast<int>(place.x), static_cast<int>(place.y)};
}

}  // namespace

OwnWindow::OwnWindow(const ScreenRect& rect, DWORD extendedStyle, Color color, Color leftHalf)
    : color_(color), leftHalf_(leftHalf) {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = dispatch;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassExW(&windowClass);
    window_ = DesktopWindow(CreateWindowExW(extendedStyle, className, L"Own window", WS_POPUP,
                                            rect.left, rect.top, rect.width(), rect.height(),
                                            nullptr, nullptr, windowClass.hInstance, nullptr));
    SetWindowLongPtrW(handle(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

OwnWindow::~OwnWindow() {
    DestroyWindow(handle());
}

void OwnWindow::show() {
    ShowWindow(handle(), SW_SHOWNOACTIVATE);
    UpdateWindow(handle());
    window_.waitUntilVisible();
    screen::waitUntilStill(window_.rect());
}

LRESULT CALLBACK OwnWindow::dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<OwnWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self != nullptr && message == WM_PAINT) {
        self->paint();
        return 0;
    }
    if (self != nullptr && message == WM_LBUTTONDOWN) {
        ++self->presses_;
        self->lastPress_ = placeOf(lParam, window);
    }
    if (self != nullptr && message == WM_LBUTTONUP) {
        ++self->releases_;
        self->lastRelease_ = placeOf(lParam, window);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void OwnWindow::paint() const {
    PAINTSTRUCT scope{};
    const HDC context = BeginPaint(handle(), &scope);
    RECT rect{};
    GetClientRect(handle(), &rect);
    fill(context, rect, color_);
    rect.right /= 2;
    fill(context, rect, leftHalf_);
    EndPaint(handle(), &scope);
}

}  // namespace ormala::test
