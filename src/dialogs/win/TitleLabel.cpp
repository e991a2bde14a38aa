#include "dialogs/win/TitleLabel.h"

#include <algorithm>
#include <iterator>

#include "platform/win/GdiCanvas.h"
#include "platform/win/fills.h"
#include "platform/win/fonts.h"
#include "platform/win/text.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

/// Right of the title and below it, in pixels at 96 DPI.
constexpr int shadowDistance = 2;

/// A system without Georgia takes another face with serifs.
FontHandle titleFont(int dpi) {
    constexpr int points = 28;
    constexpr wchar_t name[] = L"Georgia";
    LOGFONTW face{};
    face.lfHeight = fontHeight(points, dpi);
    face.lfWeight = FW_NORMAL;
    face.lfCharSet = DEFAULT_CHARSET;
    face.lfQuality = ANTIALIASED_QUALITY;
    face.lfPitchAndFamily = VARIABLE_PITCH | FF_ROMAN;
    std::copy(std::begin(name), std::end(name), face.lfFaceName);
    return FontHandle(CreateFontIndirectW(&face));
}

}  // namespace

TitleLabel::TitleLabel(HWND parent, int id, std::string_view name) {
    open(parent, id, name, {L"TitleLabel", CS_HREDRAW | CS_VREDRAW});
}

void TitleLabel::dpiChanged() {
    font_ = titleFont(dpi());
}

void TitleLabel::draw(HDC context) {
    const RECT area = clientRectangle();
    fillRect(context, area, backColor());
    const Selected font(context, font_.get());
    SetBkMode(context, TRANSPARENT);
    const std::wstring shown = wide(text());
    const auto write = [&](Color color, int distance) {
        RECT place = area;
        OffsetRect(&place, distance, distance);
        SetTextColor(context, colorRef(color));
        DrawTextW(context, shown.c_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    };
    write(dark::textShadow, scaledLength(shadowDistance, dpi()));
    write(dark::text, 0);
}

}  // namespace ormala
