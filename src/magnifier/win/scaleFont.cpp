#include "magnifier/win/scaleFont.h"

#include <string_view>

#include "modAPI/drawingColors.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/fills.h"
#include "platform/win/fonts.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

constexpr std::wstring_view signs = L"0123456789-";

SIZE extentOf(HDC context, std::wstring_view text) {
    SIZE extent{};
    GetTextExtentPoint32W(context, text.data(), static_cast<int>(text.size()), &extent);
    return extent;
}

/// White on black, so that each channel is what the sign covers.
ScaleGlyphs::Glyph glyphOf(BackBuffer& sheet, std::wstring_view sign, const SIZE& extent) {
    const PixelSize size{static_cast<int>(extent.cx), static_cast<int>(extent.cy)};
    const RECT cell{0, 0, extent.cx, extent.cy};
    fillRect(sheet.context(), cell, plain::black);
    ExtTextOutW(sheet.context(), 0, 0, ETO_CLIPPED, &cell, sign.data(), 1, nullptr);
    ScaleGlyphs::Glyph glyph{size.width, {}};
    const PixelView view = sheet.view();
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            constexpr std::uint32_t channel = 0xFF;
            glyph.coverage.push_back(static_cast<std::uint8_t>(view.row(y)[x] & channel));
        }
    }
    return glyph;
}

}  // namespace

ScaleGlyphs scaleGlyphs(int dpi) {
    const FontHandle font = coverageFont(dpi);
    BackBuffer sheet;
    ScaleGlyphs glyphs;
    // Larger than any sign.
    const int room = scaledLength(32, dpi);
    if (!sheet.resize({room, room})) {
        return glyphs;
    }
    const Selected selected(sheet.context(), font.get());
    SetBkMode(sheet.context(), TRANSPARENT);
    SetTextColor(sheet.context(), plain::white);
    for (std::size_t i = 0; i < ScaleGlyphs::count; ++i) {
        const std::wstring_view sign = signs.substr(i, 1);
        glyphs.glyphs.at(i) = glyphOf(sheet, sign, extentOf(sheet.context(), sign));
    }
    glyphs.height = static_cast<int>(extentOf(sheet.context(), L"0").cy);
    glyphs.sampleWidth = static_cast<int>(extentOf(sheet.context(), L"-0000 ").cx);
    return glyphs;
}

}  // namespace ormala
