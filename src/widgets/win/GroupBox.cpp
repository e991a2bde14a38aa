#include "widgets/win/GroupBox.h"

#include <commctrl.h>

#include "platform/win/GdiCanvas.h"
#include "platform/win/controlDpi.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// From the left edge to the caption, in average characters.
constexpr int captionIndent = 1;

}  // namespace

void GroupBox::create(HWND parent, int id, std::string_view name, std::string_view caption) {
    constexpr DWORD style = BS_GROUPBOX | WS_CLIPSIBLINGS;
    StandardControl::create(parent, {WC_BUTTONW, style, id, name, caption});
}

LRESULT GroupBox::onPaint() {
    const PaintScope scope(handle());
    const HDC context = scope.context();
    RECT client{};
    GetClientRect(handle(), &client);
    const auto font = reinterpret_cast<HFONT>(standardHandling(WM_GETFONT, 0, 0));
    const Selected selected(context, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(context, &metrics);
    fillRect(context, client, dark::ground);
    RECT frame = client;
    frame.top += metrics.tmHeight / 2;
    const int line = lineWidthAt(controlDpi(handle()));
    fillRect(context, frame, dark::outline);
    InflateRect(&frame, -line, -line);
    fillRect(context, frame, dark::ground);
    SetTextColor(context, colorRef(dark::quietText));
    SetBkColor(context, colorRef(dark::ground));
    const std::wstring caption = wide(text());
    TextOutW(context, client.left + captionIndent * metrics.tmAveCharWidth, client.top,
             caption.c_str(), static_cast<int>(caption.size()));
    return 0;
}

std::optional<LRESULT> GroupBox::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SETTEXT: {
            // The button would draw its own face at once.
            const LRESULT result = DefWindowProcW(handle(), message, wParam, lParam);
            InvalidateRect(handle(), nullptr, FALSE);
            return result;
        }
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
