#include "app/win/ModeBar.h"

#include "modAPI/colors.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/fonts.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

constexpr Color ground = 0x606060;
constexpr Color outline = rgb(64, 64, 64);
constexpr Color quietText = rgb(255, 255, 192);
constexpr Color litText = rgb(31, 31, 31);

}  // namespace

void ModeBar::setDpi(int dpi) {
    layout_ = SettingsLayout(dpi);
    font_ = controlFont(dpi, FontLook::normal);
    boldFont_ = controlFont(dpi, FontLook::bold);
}

std::optional<int> ModeBar::modeAt(POINT point) const {
    for (int i = 0; i < mode::count; ++i) {
        if (layout_.btnMode[static_cast<std::size_t>(i)].contains(
                {static_cast<int>(point.x), static_cast<int>(point.y)})) {
            return i;
        }
    }
    return std::nullopt;
}

void ModeBar::paintButton(HDC context, int index, int mode) const {
    const bool lit = index == mode;
    const PixelRect& box = layout_.btnMode[static_cast<std::size_t>(index)];
    const int corner = box.height() / 4;
    {
        const PenHandle edge(CreatePen(PS_SOLID, 1, colorRef(outline)));
        const BrushHandle face(CreateSolidBrush(colorRef(colorOfMode(index, mode))));
        const Selected pen(context, edge.get());
        const Selected brush(context, face.get());
        RoundRect(context, box.left, box.top, box.right, box.bottom, corner, corner);
    }
    const Selected font(context, lit ? boldFont_.get() : font_.get());
    SetTextColor(context, colorRef(lit ? litText : quietText));
    RECT area = toRect(box);
    DrawTextW(context, wide(nameOfMode(index)).c_str(), -1, &area,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void ModeBar::paint(HDC context, const RECT& client, int mode) const {
    SetDCBrushColor(context, colorRef(ground));
    FillRect(context, &client, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SetBkMode(context, TRANSPARENT);
    for (int i = 0; i < mode::count; ++i) {
        paintButton(context, i, mode);
    }
    RECT area = toRect(layout_.picOuter);
    if (client.bottom > area.top) {
        const Selected font(context, font_.get());
        SetTextColor(context, colorRef(quietText));
        DrawTextW(context, wide(tipOfMode(mode)).c_str(), -1, &area, DT_WORDBREAK | DT_NOPREFIX);
    }
}

}  // namespace ormala
