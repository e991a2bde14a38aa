#include "magnifier/lensRulers.h"

#include <algorithm>

#include "scene/pixelImages.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

constexpr Color lightEnd = dark::liftedGround;
/// The scale at the left begins darker.
constexpr Color lightEndAtLeft = dark::ground;
constexpr Color darkEnd = dark::fieldGround;

constexpr int ten = 10;

bool isRowScale(LensScale scale) {
    return scale == LensScale::top || scale == LensScale::bottom;
}

Color stepColor(int step, int steps, Color from, Color to) {
    return BlendColor(step, steps, from, to, plainMix, nullptr);
}

/// The pens of all scales, made once for a drawing.
struct RulerPens {
    std::uint32_t inkPixel = opaquePixel(dark::text);
    RasterPen tick{inkPixel};
    RasterPen toEdge{opaquePixel(dark::quietScaleInk)};
    RasterPen shadow{opaquePixel(darkEnd)};
};

/// From the left or upper side of an enlarged pixel to its middle, less the side itself.
int middleOffset(const LensLayout& layout) {
    return (layout.GridTrim != 0 ? layout.Factor / 2 : (layout.Factor + 1) / 2) - 1;
}

void placeInRow(RulerMark& mark, const RulerLook& look, int x, int dpi) {
    const auto scaled = [dpi](int length) { return scaledLength(length, dpi); };
    const int bottom = look.canvas.height;
    const bool top = look.scale == LensScale::top;
    const int end = top ? bottom - mark.Length : mark.Length - 1;
    mark.tick = {{x, top ? bottom : 0}, {x, end}};
    mark.toEdge = {{x, end}, {x, top ? -1 : bottom}};
    mark.shadow = {{x - 1, top ? bottom - scaled(3) : scaled(2)}, {x - 1, top ? -1 : bottom}};
    mark.text = {x + scaled(2), top ? 0 : scaled(5)};
}

void placeInColumn(RulerMark& mark, const RulerLook& look, int y, int dpi) {
    const auto scaled = [dpi](int length) { return scaledLength(length, dpi); };
    const int edge = look.canvas.width;
    const bool left = look.scale == LensScale::left;
    const int end = left ? edge - mark.Length : mark.Length - 1;
    mark.tick = {{left ? edge : 0, y}, {end, y}};
    mark.toEdge = {{end, y}, {left ? -1 : edge, y}};
    mark.shadow = {{left ? edge - scaled(3) : scaled(2), y - 1}, {left ? -1 : edge, y - 1}};
    mark.text = {left ? edge - scaled(6) : edge - scaled(1), y};
}

void copyPicture(const PixelView& to, const PixelView& from) {
    const int width = std::min(to.size.width, from.size.width);
    for (int y = 0; y < std::min(to.size.height, from.size.height); ++y) {
        std::copy_n(from.row(y), width, to.row(y));
    }
}

void drawLabel(const PixelView& canvas, const RulerPens& pens, const RulerMark& mark, bool inRow,
               const ScaleGlyphs& glyphs) {
    drawLine(canvas, pens.toEdge, mark.toEdge);
    drawLine(canvas, pens.shadow, mark.shadow);
    const NumberText number(mark.Value);
    PixelPoint place = mark.text;
    if (!inRow) {
        place.x -= number.width(glyphs);
    }
    drawNumber(canvas, glyphs, place, number, pens.inkPixel);
}

}  // namespace

int scaleBase(LensScale scale, int origin, const ScaleOrigins& origins) {
    const auto side = [scale](PixelPoint point) { return isRowScale(scale) ? point.x : point.y; };
    const int first = side(origins.source);
    switch (origin) {
        case scaleOrigin::magnifier:
            return 0;
        case scaleOrigin::primaryScreen:
            return first;
        case scaleOrigin::allScreens:
            return first - side(origins.bounds);
        default:
            return first - side(origins.worksheet);
    }
}

PixelPoint countedPlace(PixelPoint place, const LensOptions& options, const ScaleOrigins& origins) {
    const bool byBottom = options.bottomScales && !options.topScales;
    const int origin = byBottom ? options.bottomOrigin : options.topOrigin;
    return {place.x + scaleBase(LensScale::top, origin, origins),
            place.y + scaleBase(LensScale::left, origin, origins)};
}

int TickLength(int Value, int factor) {
    if (Value % 10 == 0) {
        return 6;
    }
    if (Value % 5 == 0) {
        return 4;
    }
    return factor > 1 ? 3 : 0;
}

int labelStep(int sampleWidth, int factor) {
    // On a screen so fine that the digits are that wide.
    if (sampleWidth >= 50 * factor) {
        return 10;
    }
    if (sampleWidth >= 20 * factor) {
        return 5;
    }
    return sampleWidth >= 10 * factor ? 2 : 1;
}

RulerLook rulerLook(LensScale scale, const LensLayout& layout, const ScaleGlyphs& glyphs, int base,
                    int dpi) {
    const PixelRect& place = layout.scales[indexOf(scale)];
    const int factor = layout.Factor;
    RulerLook look{scale, {place.width(), place.height()}, factor, dpi, base, middleOffset(layout)};
    look.LabelStep = labelStep(glyphs.sampleWidth, factor);
    if (look.isRow()) {
        look.middle += layout.picLens.left - place.left;
        look.first = -20 * look.LabelStep * factor;
        // Beside wide strips that would end before the image does.
        look.last = std::max(layout.picLens.width() - place.width() + layout.LensWidth,
                             layout.LensWidth - 1);
    } else {
        const int halfText = (glyphs.height + 1) / 2;
        look.first = -10 * factor;
        look.last = layout.LensHeight + (scale == LensScale::left ? halfText : 0);
    }
    return look;
}

RulerMark rulerMark(const RulerLook& look, int position) {
    RulerMark mark;
    mark.Value = position / look.factor + look.base;
    mark.Length = scaledLength(TickLength(mark.Value, look.factor), look.dpi);
    mark.isLabel = mark.Value % (ten * look.LabelStep) == 0;
    if (look.isRow()) {
        placeInRow(mark, look, position + look.middle, look.dpi);
    } else {
        placeInColumn(mark, look, position + look.middle, look.dpi);
    }
    return mark;
}

bool labelFits(const RulerLook& look, const RulerMark& mark, const ScaleGlyphs& glyphs) {
    if (look.isRow()) {
        return mark.tick.from.x >= 0 &&
               mark.text.x + NumberText(mark.Value).width(glyphs) <= look.canvas.width;
    }
    return mark.tick.from.y >= 0 && mark.text.y + glyphs.height <= look.canvas.height;
}

void FillRows(const PixelView& canvas, Color from, Color to) {
    for (int y = 0; y < canvas.size.height; ++y) {
        std::fill_n(canvas.row(y), canvas.size.width,
                    opaquePixel(stepColor(y, canvas.size.height, from, to)));
    }
}

void FillColumns(const PixelView& canvas, Color from, Color to) {
    for (int x = 0; x < canvas.size.width; ++x) {
        const std::uint32_t pixel = opaquePixel(stepColor(x, canvas.size.width, from, to));
        for (int y = 0; y < canvas.size.height; ++y) {
            canvas.row(y)[x] = pixel;
        }
    }
}

void fillRuler(const PixelView& canvas, LensScale scale) {
    if (isRowScale(scale)) {
        FillRows(canvas, lightEnd, darkEnd);
    } else {
        FillColumns(canvas, scale == LensScale::left ? lightEndAtLeft : lightEnd, darkEnd);
    }
}

void drawRuler(const PixelView& canvas, const PixelView& background, const RulerLook& look,
               const ScaleGlyphs& glyphs) {
    const RulerPens pens;
    copyPicture(canvas, background);
    for (int position = look.first; position <= look.last; position += look.factor) {
        const RulerMark mark = rulerMark(look, position);
        if (mark.Length == 0) {
            continue;
        }
        drawLine(canvas, pens.tick, mark.tick);
        if (mark.isLabel && labelFits(look, mark, glyphs)) {
            drawLabel(canvas, pens, mark, look.isRow(), glyphs);
        }
    }
}

}  // namespace ormala
