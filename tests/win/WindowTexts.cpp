#include "win/WindowTexts.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

#include "platform/win/StandardControl.h"
#include "platform/win/controlName.h"
#include "platform/win/text.h"
#include "win/ModalPlayer.h"

namespace ormala {

namespace {

constexpr std::array<std::string_view, 2> panelClasses{"ctlSetRatioGrid", "ctlSetMeasure"};

using Visit = std::function<void(HWND)>;

BOOL CALLBACK visitOne(HWND window, LPARAM visit) {
    (*reinterpret_cast<const Visit*>(visit))(window);
    return TRUE;
}

void forEachOfThread(const Visit& visit) {
    EnumThreadWindows(GetCurrentThreadId(), &visitOne, reinterpret_cast<LPARAM>(&visit));
}

std::string tipOfControl(HWND control) {
    // The tip of a control at rest has no window yet. This message of the mouse does nothing else.
    SendMessageW(control, WM_MOUSEHWHEEL, 0, 0);
    std::string found;
    for (const HWND tip : windowsOfClass("tooltips_class32")) {
        std::wstring text(500, L'\0');
        TTTOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.hwnd = control;
        tool.uId = 1;
        tool.lpszText = text.data();
        SendMessageW(tip, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
        found += narrow(text.c_str());
    }
    return found;
}

std::string placeOf(HWND window) {
    HWND outer = window;
    while ((GetWindowLongPtrW(outer, GWL_STYLE) & WS_CHILD) != 0 &&
           std::ranges::find(panelClasses, classNameOf(outer)) == panelClasses.end()) {
        outer = GetParent(outer);
    }
    if (outer == window) {
        return classNameOf(outer);
    }
    const std::string name = controlName(window);
    // A part of a control of the system has no name of its own.
    return classNameOf(outer) + "/" +
           (name.empty() ? controlName(GetParent(window)) + "/" + classNameOf(window) : name);
}

bool isOfProgram(HWND window) {
    const std::string name = classNameOf(window);
    return name.starts_with("frm");
}

}  // namespace

std::vector<HWND> windowsOfClass(const std::string& className) {
    std::vector<HWND> found;
    forEachOfThread([&](HWND window) {
        if (classNameOf(window) == className) {
            found.push_back(window);
        }
    });
    return found;
}

std::vector<WindowText> windowTexts() {
    std::vector<HWND> windows;
    const Visit note = [&](HWND window) { windows.push_back(window); };
    forEachOfThread([&](HWND window) {
        if (isOfProgram(window)) {
            note(window);
            EnumChildWindows(window, &visitOne, reinterpret_cast<LPARAM>(&note));
        }
    });
    std::vector<WindowText> texts;
    for (const HWND window : windows) {
        const bool isChild = (GetWindowLongPtrW(window, GWL_STYLE) & WS_CHILD) != 0;
        WindowText text{window, placeOf(window), textOf(window),
                        isChild ? tipOfControl(window) : ""};
        if (!text.text.empty() || !text.tip.empty()) {
            texts.push_back(std::move(text));
        }
    }
    return texts;
}

std::vector<std::string> rowsOf(HWND list) {
    const bool isBox = classNameOf(list) == "ListBox";
    const auto ask = [&](UINT ofBox, UINT ofCombo, int row, LPARAM parameter) {
        return SendMessageW(list, isBox ? ofBox : ofCombo, static_cast<WPARAM>(row), parameter);
    };
    std::vector<std::string> rows;
    const auto count = static_cast<int>(ask(LB_GETCOUNT, CB_GETCOUNT, 0, 0));
    for (int row = 0; row < count; ++row) {
        const auto length = static_cast<std::size_t>(ask(LB_GETTEXTLEN, CB_GETLBTEXTLEN, row, 0));
        std::wstring text(length + 1, L'\0');
        ask(LB_GETTEXT, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()));
        rows.push_back(narrow(text.c_str()));
    }
    return rows;
}

std::vector<std::string> captionsOf(HMENU menu) {
    std::vector<std::string> captions;
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        wchar_t text[200]{};
        const auto at = static_cast<UINT>(position);
        if (GetMenuStringW(menu, at, text, 200, MF_BYPOSITION) > 0) {
            captions.push_back(narrow(text));
        }
    }
    return captions;
}

}  // namespace ormala
