#include "magnifier/lensOverlays.h"

#include <algorithm>
#include <optional>

#include "scene/pixelImages.h"

namespace ormala {

namespace {

constexpr int markStyles = 8;

/// Where a mark lies: the square around the enlarged pixel, and the middle of that.
struct MarkPlace {
    int x = 0;
    int y = 0;
    /// From one side of the square to the other.
    int S = 0;
    /// From its upper left corner to the middle.
    int C = 0;
    int W = 0;
    int H = 0;
    int F = 1;
};

MarkPlace markPlace(const LensImageLook& look, PixelPoint point) {
    const LensLayout& layout = look.layout;
    const int factor = layout.Factor;
    MarkPlace place{point.x * factor - 1, point.y * factor - 1, factor + 1,   (factor + 1) / 2,
                    layout.LensWidth,     layout.LensHeight,    layout.Factor};
    if (look.hasGrid()) {
        place.S = factor;
        place.C = factor / 2;
    }
    return place;
}

void addSquare(MarkShape& shape, const MarkPlace& p) {
    const int right = p.x + p.S;
    const int bottom = p.y + p.S;
    shape.add({{p.x, p.y}, {right, p.y}});
    shape.add({{right, p.y}, {right, bottom}});
    shape.add({{right, bottom}, {p.x, bottom}});
    shape.add({{p.x, bottom}, {p.x, p.y}});
}

void addFullCross(MarkShape& shape, const MarkPlace& p) {
    shape.add({{0, p.y + p.C}, {p.W, p.y + p.C}});
    shape.add({{p.x + p.C, 0}, {p.x + p.C, p.H}});
}

void addOpenCross(MarkShape& shape, const MarkPlace& p) {
    shape.add({{-1, p.y + p.C}, {p.x, p.y + p.C}});
    shape.add({{p.W, p.y + p.C}, {p.x + p.S, p.y + p.C}});
    shape.add({{p.x + p.C, -1}, {p.x + p.C, p.y}});
    shape.add({{p.x + p.C, p.H}, {p.x + p.C, p.y + p.S}});
}

void addDot(MarkShape& shape, const MarkPlace& p) {
    shape.add({{p.x + p.C, p.y + p.C}, {p.x + p.C + 1, p.y + p.C}});
}

void addFullDiagonals(MarkShape& shape, const MarkPlace& p) {
    shape.add({{p.C - p.F, p.y - p.x - p.F + p.C}, {p.W + p.C, p.W - p.x + p.y + p.C}});
    shape.add({{p.C - p.F, p.x + p.y + p.C + p.F}, {p.W + p.C, p.y - p.W + p.x + p.C}});
}

void addOpenDiagonals(MarkShape& shape, const MarkPlace& p) {
    shape.add({{p.C - p.F - 1, p.y - p.x - p.F + p.C - 1}, {p.x, p.y}});
    shape.add({{p.W + p.C, p.W - p.x + p.y + p.C}, {p.x + p.S, p.y + p.S}});
    shape.add({{-1, p.x + p.y + p.S + 1}, {p.x, p.y + p.S}});
    shape.add({{p.W + p.S, p.y - p.W + p.x}, {p.x + p.S, p.y}});
}

/// The pen that a mode has of its own; a mode that takes the chosen colour has none.
std::optional<Color> fixedPen(LensOverlay overlay, int mode) {
    switch (mode) {
        case drawMode::exclusive:
            return lensPen::exclusive;
        case drawMode::restrained:
            return overlay == LensOverlay::mark ? lensPen::restrainedMark : lensPen::restrainedGrid;
        case drawMode::brightened:
            return lensPen::brightened;
        default:
            return std::nullopt;
    }
}

}  // namespace

RasterPen overlayPen(LensOverlay overlay, int mode, Color chosen, SystemColorLookup systemColor) {
    const auto fixed = fixedPen(overlay, mode);
    return RasterPen(opaquePixel(fixed ? *fixed : plainColor(chosen, systemColor)), mode);
}

void DrawGrid(const PixelView& picBuff, const LensImageLook& look, SystemColorLookup systemColor) {
    if (!look.hasGrid()) {
        return;
    }
    const RasterPen pen = overlayPen(LensOverlay::grid, look.options.gridDrawMode,
                                     look.options.gridColor, systemColor);
    const int factor = look.layout.Factor;
    // Row by row: the pixels of a column lie far apart in memory. Where two lines cross, the pen
    // passes twice.
    for (int y = 0; y < picBuff.size.height; ++y) {
        std::uint32_t* const row = picBuff.row(y);
        for (int x = factor - 1; x < picBuff.size.width; x += factor) {
            row[x] = pen.over(row[x]);
        }
        if (y % factor == factor - 1) {
            std::transform(row, row + picBuff.size.width, row,
                           [&pen](std::uint32_t pixel) { return pen.over(pixel); });
        }
    }
}

void DrawHotSpot(const PixelView& picBuff, const LensImageLook& look,
                 SystemColorLookup systemColor) {
    const LensOptions& options = look.options;
    if (options.hotSpotOn) {
        const RasterPen pen = overlayPen(LensOverlay::mark, options.hotSpotDrawMode,
                                         options.hotSpotColor, systemColor);
        DrawHotSpotAt(picBuff, look, look.hotSpot, pen, options.hotSpotStyle);
    }
}

void DrawHotSpotAt(const PixelView& picBuff, const LensImageLook& look, PixelPoint point,
                   const RasterPen& pen, int style) {
    const MarkShape shape = markShape(look, point, style);
    for (const Segment& line : shape.lines()) {
        drawLine(picBuff, pen, line);
    }
}

MarkShape markShape(const LensImageLook& look, PixelPoint point, int style) {
    using Adder = void (*)(MarkShape&, const MarkPlace&);
    struct Style {
        Adder lines;
        bool square;
    };
    constexpr std::array<Style, markStyles> styles{{{nullptr, true},
                                                    {&addFullCross, false},
                                                    {&addOpenCross, false},
                                                    {&addOpenCross, true},
                                                    {&addDot, false},
                                                    {&addFullDiagonals, false},
                                                    {&addOpenDiagonals, false},
                                                    {&addOpenDiagonals, true}}};
    MarkShape shape;
    if (style < 0 || style >= markStyles) {
        return shape;
    }
    const MarkPlace place = markPlace(look, point);
    const Style& chosen = styles.at(static_cast<std::size_t>(style));
    if (chosen.lines != nullptr) {
        chosen.lines(shape, place);
    }
    if (chosen.square) {
        addSquare(shape, place);
    }
    return shape;
}

}  // namespace ormala
