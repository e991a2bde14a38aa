#include "widgets/win/scrollFace.h"

#include <algorithm>

#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// The width of a mark, in lines.
constexpr int markLines = 2;

void fill(HDC context, const PixelRect& box, Color color) {
    fillRect(context, toRect(box), color);
}

/// A rectangle without its four corner points, framed by lines of that width.
void fillWithin(HDC context, const PixelRect& box, int line, Color edge, Color inside) {
    fill(context, {box.left + line, box.top, box.right - line, box.bottom}, edge);
    fill(context, {box.left, box.top + line, box.right, box.bottom - line}, edge);
    fill(context, box.grown(-line), inside);
}

void paintButton(HDC context, const PixelRect& box, ScrollPart part, const ScrollLook& look) {
    const int line = look.lineWidth;
    if (!look.enabled) {
        fillWithin(context, box, line, dark::dimOutline, dark::ground);
        return;
    }
    const Color face = look.pressed == part ? dark::pressed : dark::off;
    fillWithin(context, box, line, dark::outline, face);
    if (look.hover == part || look.focus == part) {
        const Color mark = look.hover == part ? dark::hoverMark : dark::focusMark;
        const PixelRect inner = box.grown(-line);
        fillWithin(context, inner, line, mark, mark);
        fill(context, inner.grown(-markLines * line), face);
    }
}

/// A triangle that points along the bar, built from lines across it, so that it is symmetrical to
/// the pixel.
void paintArrow(HDC context, const PixelRect& box, bool lying, bool backward, Color color) {
    const int side = lying ? box.height() : box.width();
    const int length = lying ? box.width() : box.height();
    const int height = std::max(1, std::min(side, length) / 4);
    const int first = (length - height) / 2;
    for (int i = 0; i < height; ++i) {
        const int width = 2 * i + (side % 2 == 0 ? 2 : 1);
        const int along = first + (backward ? i : height - 1 - i);
        const int across = (side - width) / 2;
        const PixelRect strip = lying ? PixelRect{along, across, along + 1, across + width}
                                      : PixelRect{across, along, across + width, along + 1};
        fill(context,
             {box.left + strip.left, box.top + strip.top, box.left + strip.right,
              box.top + strip.bottom},
             color);
    }
}

void paintArrowButton(HDC context, const PixelRect& box, ScrollPart part, bool lying,
                      const ScrollLook& look) {
    if (box.empty()) {
        return;
    }
    paintButton(context, box, part, look);
    const int sunk = look.pressed == part ? look.lineWidth : 0;
    const PixelRect place{box.left + sunk, box.top + sunk, box.right + sunk, box.bottom + sunk};
    paintArrow(context, place, lying, part == ScrollPart::topLeft,
               look.enabled ? dark::offMark : dark::dimGlyph);
}

/// Three lines across the middle of the thumb, where it is long enough for them.
void paintRibs(HDC context, const PixelRect& thumb, bool lying, int line) {
    constexpr int ribs = 3;
    const int length = lying ? thumb.width() : thumb.height();
    const int side = lying ? thumb.height() : thumb.width();
    const int across = side / 4;
    const int height = (2 * ribs - 1) * line;
    if (length < 4 * height || side < 3 * across) {
        return;
    }
    for (int i = 0; i < ribs; ++i) {
        const int along = (length - height) / 2 + 2 * i * line;
        const PixelRect rib = lying ? PixelRect{thumb.left + along, thumb.top + across,
                                                thumb.left + along + line, thumb.bottom - across}
                                    : PixelRect{thumb.left + across, thumb.top + along,
                                                thumb.right - across, thumb.top + along + line};
        fill(context, rib, dark::offRibs);
    }
}

}  // namespace

void paintScroll(HDC context, PixelSize size, const ScrollLayout& layout, const ScrollLook& look) {
    const bool lying = layout.horizontal;
    fill(context, {0, 0, size.width, size.height}, dark::ground);
    if (look.enabled) {
        fill(context, layout.shapeMiddle, dark::outline);
        fill(context, layout.shapeMiddle.grown(-look.lineWidth), dark::fieldGround);
    }
    paintArrowButton(context, layout.cmdTL, ScrollPart::topLeft, lying, look);
    paintArrowButton(context, layout.cmdBR, ScrollPart::bottomRight, lying, look);
    if (look.enabled && !layout.cmdMove.empty()) {
        paintButton(context, layout.cmdMove, ScrollPart::thumb, look);
        paintRibs(context, layout.cmdMove, lying, look.lineWidth);
    }
}

}  // namespace ormala
