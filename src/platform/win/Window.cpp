#include "platform/win/Window.h"

#include <tpcshrd.h>

#include <cstdint>
#include <system_error>

#include "platform/win/OwnQuestion.h"
#include "platform/win/callbackGuard.h"
#include "platform/win/composition.h"
#include "platform/win/controlName.h"
#include "platform/win/highContrast.h"
#include "platform/win/text.h"
#include "scene/Input.h"

namespace ormala {

namespace {

HINSTANCE module() {
    return GetModuleHandleW(nullptr);
}

// Win32 hands pointers through integers; these two are the only places that cast them.
template <typename To, typename From>
To castBits(From value) {
    return reinterpret_cast<To>(value);
}

HICON ownIcon(int widthMetric, int heightMetric) {
    return static_cast<HICON>(LoadImageW(module(), MAKEINTRESOURCEW(1), IMAGE_ICON,
                                         GetSystemMetrics(widthMetric),
                                         GetSystemMetrics(heightMetric), LR_SHARED));
}

void registerClass(const WindowDesign& design, WNDPROC procedure) {
    WNDCLASSEXW existing{};
    existing.cbSize = sizeof existing;
    if (GetClassInfoExW(module(), design.className, &existing) != FALSE) {
        return;
    }
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    made.style = design.classStyle;
    made.lpfnWndProc = procedure;
    made.hInstance = module();
    if ((design.style & WS_SYSMENU) != 0) {
        // Both, since the system would make the small one of the other for each class anew.
        made.hIcon = ownIcon(SM_CXICON, SM_CYICON);
        made.hIconSm = ownIcon(SM_CXSMICON, SM_CYSMICON);
    }
    made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    made.lpszClassName = design.className;
    RegisterClassExW(&made);
}

bool isFrameless(const WindowDesign& design) {
    constexpr DWORD frames = WS_BORDER | WS_DLGFRAME | WS_THICKFRAME | WS_HSCROLL | WS_VSCROLL;
    constexpr DWORD edges = WS_EX_CLIENTEDGE | WS_EX_STATICEDGE | WS_EX_WINDOWEDGE;
    return (design.style & frames) == 0 && (design.extendedStyle & edges) == 0;
}

/// What a finger does on the window comes as a mouse, and not as panning, zooming or turning.
void blockGestures(HWND window) {
    GESTURECONFIG all{0, 0, GC_ALLGESTURES};
    SetGestureConfig(window, 0, 1, &all, sizeof all);
}

/// Ends a capture that has outlived its button, whose release fell where no event came from. Until
/// then no other window would get the mouse. A menu, which needs no button, keeps it.
bool endsCapture(HWND window, WPARAM held) {
    constexpr WPARAM buttons = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON | MK_XBUTTON1 | MK_XBUTTON2;
    constexpr DWORD systemsModes =
        GUI_INMENUMODE | GUI_INMOVESIZE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    if ((held & buttons) != 0 || GetCapture() != window) {
        return false;
    }
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(GetCurrentThreadId(), &state);
    if ((state.flags & systemsModes) != 0) {
        return false;
    }
    ReleaseCapture();
    return true;
}

}  // namespace

void Window::create(const WindowDesign& design) {
    registerClass(design, &Window::dispatch);
    takesTouchAtOnce_ = design.takesTouchAtOnce;
    frameless_ = isFrameless(design);
    const RECT& place = design.place;
    CreateWindowExW(design.extendedStyle, design.className, L"", design.style, place.left,
                    place.top, place.right - place.left, place.bottom - place.top, design.owner,
                    castBits<HMENU>(static_cast<INT_PTR>(design.id)), module(), this);
    if (handle_ == nullptr) {
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category(),
                                narrow(design.className));
    }
    if (takesTouchAtOnce_) {
        blockGestures(handle_);
    }
    if ((design.style & WS_CAPTION) == WS_CAPTION) {
        darkenFrame(handle_);
    }
}

void Window::destroy() {
    if (handle_ != nullptr) {
        const HWND handle = handle_;
        handle_ = nullptr;
        SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
        DestroyWindow(handle);
    }
}

Window::~Window() {
    destroy();
}

Window* Window::bind(HWND handle, LPARAM lParam) {
    auto* window = static_cast<Window*>(castBits<CREATESTRUCTW*>(lParam)->lpCreateParams);
    window->handle_ = handle;
    SetWindowLongPtrW(handle, GWLP_USERDATA, castBits<LONG_PTR>(window));
    return window;
}

void Window::destroyed() {
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    handle_ = nullptr;
}

LRESULT CALLBACK Window::dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* window = message == WM_NCCREATE
                         ? bind(handle, lParam)
                         : castBits<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (message == WM_NCDESTROY) {
        removeControlName(handle);
        if (window != nullptr) {
            window->destroyed();
        }
    } else if (window != nullptr) {
        if (message == WM_MOUSEMOVE && endsCapture(handle, wParam)) {
            // Who hears of the loss may destroy the window.
            window = castBits<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
        }
        if (window == nullptr || OwnQuestion::isForged(message, lParam)) {
            return 0;
        }
        if (message == WM_NCPAINT && window->frameless_) {
            // For the default handling the system gets a context, only to paint nothing.
            return 0;
        }
        if (message == WM_TABLET_QUERYSYSTEMGESTURESTATUS && window->takesTouchAtOnce_) {
            return TABLET_DISABLE_PRESSANDHOLD | TABLET_DISABLE_FLICKS;
        }
        if (tellsOfColors(message, wParam) && GetAncestor(handle, GA_ROOT) == handle) {
            followColors(handle);
        }
        const auto handled = [&] { return window->onMessage(message, wParam, lParam); };
        if (const auto result = guarded(std::nullopt, handled)) {
            return *result;
        }
    }
    return DefWindowProcW(handle, message, wParam, lParam);
}

RECT Window::rectangle() const {
    RECT rect{};
    GetWindowRect(handle_, &rect);
    return rect;
}

RECT Window::clientRectangle() const {
    RECT rect{};
    GetClientRect(handle_, &rect);
    return rect;
}

void Window::setCaption(std::string_view text) {
    SetWindowTextW(handle_, wide(text).c_str());
}

void Window::place(const PixelRect& box) const {
    SetWindowPos(handle_, nullptr, box.left, box.top, box.width(), box.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Window::setVisible(bool visible) const {
    ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
}

int heldModifiers() {
    const auto bit = [](int virtualKey, int value) {
        return GetKeyState(virtualKey) < 0 ? value : 0;
    };
    return bit(VK_SHIFT, modifier::shift) | bit(VK_CONTROL, modifier::ctrl) |
           bit(VK_MENU, modifier::alt);
}

int heldModifiersOfMouse(WPARAM wParam) {
    const auto bit = [](bool inMessage, int virtualKey, int value) {
        return inMessage || GetAsyncKeyState(virtualKey) < 0 ? value : 0;
    };
    return bit((wParam & MK_SHIFT) != 0, VK_SHIFT, modifier::shift) |
           bit((wParam & MK_CONTROL) != 0, VK_CONTROL, modifier::ctrl) |
           // Messages of the mouse don't tell it; the key state is that of their time.
           bit(GetKeyState(VK_MENU) < 0, VK_MENU, modifier::alt);
}

int heldButtons(WPARAM wParam) {
    return ((wParam & MK_LBUTTON) != 0 ? mouseButton::left : 0) |
           ((wParam & MK_RBUTTON) != 0 ? mouseButton::right : 0) |
           ((wParam & MK_MBUTTON) != 0 ? mouseButton::middle : 0);
}

}  // namespace ormala
