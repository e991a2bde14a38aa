#include "platform/win/PlacedTip.h"

#include <commctrl.h>

#include "platform/win/text.h"

namespace ormala {

namespace {

/// Another one than the tip over the whole owner has.
constexpr UINT_PTR toolNumber = 2;

TTTOOLINFOW placedTool(HWND owner) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE | TTF_TRANSPARENT;
    tool.hwnd = owner;
    tool.uId = toolNumber;
    return tool;
}

}  // namespace

PlacedTip::PlacedTip(HWND owner) : window_(owner), owner_(owner) {
    TTTOOLINFOW tool = placedTool(owner);
    wchar_t nothing[] = L"";
    tool.lpszText = nothing;
    SendMessageW(window_.handle(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

PixelSize PlacedTip::measure(const std::string& text) {
    window_.setDpi(GetDpiForWindow(owner_));
    std::wstring shown = wide(text);
    TTTOOLINFOW tool = placedTool(owner_);
    tool.lpszText = shown.data();
    SendMessageW(window_.handle(), TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    const LRESULT size =
        SendMessageW(window_.handle(), TTM_GETBUBBLESIZE, 0, reinterpret_cast<LPARAM>(&tool));
    return {static_cast<int>(LOWORD(size)), static_cast<int>(HIWORD(size))};
}

void PlacedTip::show(PixelPoint corner) {
    TTTOOLINFOW tool = placedTool(owner_);
    SendMessageW(window_.handle(), TTM_TRACKPOSITION, 0, MAKELPARAM(corner.x, corner.y));
    SendMessageW(window_.handle(), TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    isShown_ = true;
}

void PlacedTip::hide() {
    if (isShown_) {
        isShown_ = false;
        TTTOOLINFOW tool = placedTool(owner_);
        SendMessageW(window_.handle(), TTM_TRACKACTIVATE, FALSE, reinterpret_cast<LPARAM>(&tool));
    }
}

}  // namespace ormala
