#include "magnifier/LensLayout.h"

#include <algorithm>

namespace ormala {

namespace {

constexpr int margin = 5;
constexpr int rowScaleHeight = 16;
constexpr int columnScaleWidth = 28;

struct Margins {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

Margins marginsOf(const LensFace& face) {
    const auto side = [&face](LensScale scale, int depth) {
        const int strip = face.visible[indexOf(scale)] ? scaledLength(depth, face.dpi) : 0;
        return scaledLength(margin, face.dpi) + strip;
    };
    return {side(LensScale::left, columnScaleWidth), side(LensScale::top, rowScaleHeight),
            side(LensScale::right, columnScaleWidth), side(LensScale::bottom, rowScaleHeight)};
}

/// The largest multiple of the factor that fits, or one enlarged pixel.
int imageLength(int room, int factor) {
    return std::max(room / factor, 1) * factor;
}

PerScale<PixelRect> scalePlaces(const LensFace& face, const PixelRect& image) {
    const int edge = scaledLength(margin, face.dpi);
    const int height = scaledLength(rowScaleHeight, face.dpi);
    const int width = scaledLength(columnScaleWidth, face.dpi);
    const int rowEnd = std::max(face.client.width - edge, edge);
    PerScale<PixelRect> places{};
    places[indexOf(LensScale::top)] = {edge, edge, rowEnd, edge + height};
    places[indexOf(LensScale::bottom)] = {edge, image.bottom, rowEnd, image.bottom + height};
    places[indexOf(LensScale::left)] = {edge, image.top, edge + width, image.bottom};
    places[indexOf(LensScale::right)] = {image.right, image.top, image.right + width, image.bottom};
    for (const LensScale scale : lensScales) {
        if (!face.visible[indexOf(scale)]) {
            places[indexOf(scale)] = {};
        }
    }
    return places;
}

}  // namespace

LensLayout layOutLens(const LensFace& face) {
    const Margins margins = marginsOf(face);
    LensLayout layout;
    layout.Factor = face.factor;
    layout.GridTrim = face.gridOn && face.factor > 1 ? 1 : 0;
    layout.LensWidth = imageLength(face.client.width - margins.left - margins.right, face.factor);
    layout.LensHeight = imageLength(face.client.height - margins.top - margins.bottom, face.factor);
    layout.SourceWidth = layout.LensWidth / face.factor;
    layout.SourceHeight = layout.LensHeight / face.factor;
    layout.picLens = {margins.left, margins.top, margins.left + layout.LensWidth - layout.GridTrim,
                      margins.top + layout.LensHeight - layout.GridTrim};
    layout.scales = scalePlaces(face, layout.picLens);
    return layout;
}

PixelSize firstLensClient(int dpi) {
    constexpr int image = 300;
    return {scaledLength(image + 2 * (margin + columnScaleWidth), dpi),
            scaledLength(image + 2 * (margin + rowScaleHeight), dpi)};
}

PixelSize leastLensSize(int dpi) {
    constexpr int least = 64;
    return {scaledLength(least, dpi), scaledLength(least, dpi)};
}

PixelPoint lensSourceAt(PixelPoint cursor, PixelSize source, const PixelRect& bounds) {
    // Half of one pixel less than the size, with the place rounded down.
    const PixelPoint middled{cursor.x - source.width / 2, cursor.y - source.height / 2};
    return {std::min(std::max(middled.x, bounds.left), bounds.right - source.width),
            std::min(std::max(middled.y, bounds.top), bounds.bottom - source.height)};
}

PixelPoint lensBesideMouse(PixelPoint cursor, PixelSize window, const PixelRect& bounds, int dpi) {
    const int nearby = scaledLength(24, dpi);
    PixelPoint place{cursor.x + nearby, cursor.y + scaledLength(32, dpi)};
    const bool beyondRight = place.x + window.width > bounds.right;
    if (place.y + window.height > bounds.bottom) {
        place.y = beyondRight ? cursor.y - window.height - nearby : bounds.bottom - window.height;
    }
    if (beyondRight) {
        place.x = bounds.right - window.width;
    }
    return place;
}

}  // namespace ormala
