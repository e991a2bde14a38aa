#include "widgets/win/fieldLook.h"

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

LRESULT colored(WPARAM context, Color text, Color background) {
    auto* const target = reinterpret_cast<HDC>(context);
    SetTextColor(target, colorRef(text));
    SetBkColor(target, colorRef(background));
    SetDCBrushColor(target, colorRef(background));
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

}  // namespace

std::optional<LRESULT> darkControlColors(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            return colored(wParam, dark::text, dark::ground);
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
            return colored(wParam, dark::text, dark::fieldGround);
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> fieldColors(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_CTLCOLOREDIT:
            return colored(wParam, dark::text, dark::fieldGround);
        case WM_CTLCOLORSTATIC:
            // A disabled edit box asks as a static text does.
            return colored(wParam, dark::dimText, dark::dimField);
        default:
            return std::nullopt;
    }
}

void paintField(HDC context, const RECT& area, bool enabled, bool focused, int dpi) {
    const Color edge = !enabled ? dark::dimOutline : focused ? dark::focusMark : dark::outline;
    fillRect(context, area, edge);
    RECT inner = area;
    const int line = lineWidthAt(dpi);
    InflateRect(&inner, -line, -line);
    fillRect(context, inner, enabled ? dark::fieldGround : dark::dimField);
}

void paintListArrow(HDC context, PixelPoint top, int height, Color color) {
    for (int row = 0; row < height; ++row) {
        const int half = height - row;
        fillRect(context, {top.x - half, top.y + row, top.x + half, top.y + row + 1}, color);
    }
}

}  // namespace ormala
