#include "platform/win/fonts.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>

namespace ormala {

namespace {

FontHandle tahoma(int dpi, int points, int weight, BYTE quality) {
    constexpr wchar_t name[] = L"Tahoma";
    LOGFONTW face{};
    face.lfHeight = fontHeight(points, dpi);
    face.lfWeight = weight;
    face.lfCharSet = DEFAULT_CHARSET;
    face.lfQuality = quality;
    std::copy(std::begin(name), std::end(name), face.lfFaceName);
    return FontHandle(CreateFontIndirectW(&face));
}

}  // namespace

int fontHeight(int points, int dpi) {
    constexpr int pointsPerInch = 72;
    return -MulDiv(points, dpi, pointsPerInch);
}

FontHandle controlFont(int dpi, FontLook look, int points) {
    return tahoma(dpi, points, look == FontLook::bold ? FW_BOLD : FW_NORMAL, DEFAULT_QUALITY);
}

SharedFont sharedControlFont(int dpi, FontLook look, int points) {
    static std::map<std::tuple<int, FontLook, int>, std::weak_ptr<const FontHandle>> fonts;
    std::weak_ptr<const FontHandle>& known = fonts[{dpi, look, points}];
    SharedFont font = known.lock();
    if (!font) {
        font = std::make_shared<const FontHandle>(controlFont(dpi, look, points));
        known = font;
    }
    return font;
}

FontHandle worksheetFont(int dpi, int points) {
    return tahoma(dpi, points, FW_NORMAL, NONANTIALIASED_QUALITY);
}

FontHandle coverageFont(int dpi, int points) {
    return tahoma(dpi, points, FW_NORMAL, ANTIALIASED_QUALITY);
}

}  // namespace ormala
