#include "dialogs/win/TitleLabel.h"

#include <oleacc.h>

#include <algorithm>
#include <iterator>

#include "platform/win/Accessible.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// Right of the title and below it, in pixels at 96 DPI.
constexpr int shadowDistance = 2;

/// A system without Georgia takes another face with serifs.
FontHandle titleFont(int dpi) {
    constexpr int points = 28;
    constexpr int pointsPerInch = 72;
    constexpr wchar_t name[] = L"Georgia";
    LOGFONTW face{};
    face.lfHeight = -MulDiv(points, dpi, pointsPerInch);
    face.lfWeight = FW_NORMAL;
    face.lfCharSet = DEFAULT_CHARSET;
    face.lfQuality = ANTIALIASED_QUALITY;
    face.lfPitchAndFamily = VARIABLE_PITCH | FF_ROMAN;
    std::copy(std::begin(name), std::end(name), face.lfFaceName);
    return FontHandle(CreateFontIndirectW(&face));
}

}  // namespace

TitleLabel::TitleLabel(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"TitleLabel";
    design.classStyle = CS_HREDRAW | CS_VREDRAW;
    design.style = WS_CHILD | WS_VISIBLE;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
}

void TitleLabel::setText(const std::string& text) {
    text_ = text;
    setCaption(text);
    InvalidateRect(handle(), nullptr, FALSE);
}

void TitleLabel::setBackColor(Color color) {
    backColor_ = color;
    InvalidateRect(handle(), nullptr, FALSE);
}

void TitleLabel::setDpi(int dpi) {
    if (dpi_ != dpi) {
        dpi_ = dpi;
        font_ = titleFont(dpi);
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void TitleLabel::draw(HDC context, const RECT& area) const {
    fillRect(context, area, backColor_);
    const Selected font(context, font_.get());
    SetBkMode(context, TRANSPARENT);
    const std::wstring text = wide(text_);
    const auto write = [&](Color color, int distance) {
        RECT place = area;
        OffsetRect(&place, distance, distance);
        SetTextColor(context, colorRef(color));
        DrawTextW(context, text.c_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    };
    write(dark::outline, scaledLength(shadowDistance, dpi_));
    write(dark::text, 0);
}

LRESULT TitleLabel::onPaint() {
    const PaintScope scope(handle());
    const RECT area = clientRectangle();
    BackBuffer buffer;
    if (buffer.resize({static_cast<int>(area.right), static_cast<int>(area.bottom)})) {
        draw(buffer.context(), area);
        BitBlt(scope.context(), 0, 0, area.right, area.bottom, buffer.context(), 0, 0, SRCCOPY);
    }
    return 0;
}

LRESULT TitleLabel::onAccessibleFacts(LPARAM lParam) const {
    AccessibleFacts& facts = wantedFacts(lParam);
    facts.name = text_;
    facts.role = ROLE_SYSTEM_STATICTEXT;
    facts.state = STATE_SYSTEM_READONLY;
    return TRUE;
}

std::optional<LRESULT> TitleLabel::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_.get());
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return onAccessibleFacts(lParam);
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
