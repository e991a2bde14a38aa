#include "win/ControlPanel.h"

#include <commctrl.h>
#include <windowsx.h>

#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "support/win/Wait.h"

namespace ormala {

namespace {

/// Takes the mouse away from where the panel comes, so that nothing hovers by chance.
void parkMouse() {
    test::waitUntil([] {
        POINT mouse{};
        SetCursorPos(20, 20);
        GetCursorPos(&mouse);
        return mouse.x == 20 && mouse.y == 20 && WindowFromPoint(mouse) != nullptr;
    });
    test::pause(test::milliseconds{50});
}

}  // namespace

ControlPanel::ControlPanel(PixelSize size) {
    parkMouse();
    WindowDesign design;
    design.className = L"ControlPanel";
    design.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
    design.place = {300, 200, 300 + size.width, 200 + size.height};
    create(design);
    SetForegroundWindow(handle());
}

PixelMap ControlPanel::shown() const {
    RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    test::pause(test::milliseconds{50});
    return readClient(handle());
}

std::optional<LRESULT> ControlPanel::onMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
        mouse.push_back({message, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
    }
    if (message != WM_PAINT) {
        return std::nullopt;
    }
    const PaintScope scope(handle());
    SetDCBrushColor(scope.context(), ground);
    FillRect(scope.context(), &scope.area(), static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    return 0;
}

std::string windowText(HWND window) {
    wchar_t text[100]{};
    GetWindowTextW(window, text, 100);
    return narrow(text);
}

std::string windowClass(HWND window) {
    wchar_t name[64]{};
    GetClassNameW(window, name, 64);
    return narrow(name);
}

int tipWindowCount() {
    int count = 0;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            if (windowClass(window) == "tooltips_class32") {
                ++*reinterpret_cast<int*>(parameter);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}

}  // namespace ormala
