#include "scene/DirtyRegion.h"

#include <algorithm>
#include <cmath>

#include "modAPI/clipping.h"
#include "modAPI/constants.h"
#include "modAPI/transforms.h"
#include "scene/strokes.h"

namespace ormala {

namespace {

/// A piece of this length has a box of at most this size squared, about what a grip's repaint
/// costs.
constexpr double pieceLength = 96;
/// An arc bends, so that its pieces are shorter. Of a quarter of an oval there are enough for any
/// screen and few enough for an oval far larger than it.
constexpr double arcLength = 32;
constexpr double mostArcs = 16;

/// About the middle of the box, from side to side.
PixelRect mirroredAcross(const PixelRect& box, const PixelRect& part) {
    const int sum = box.left + box.right;
    return {sum - part.right, part.top, sum - part.left, part.bottom};
}

/// From top to bottom.
PixelRect mirroredDown(const PixelRect& box, const PixelRect& part) {
    const int sum = box.top + box.bottom;
    return {part.left, sum - part.bottom, part.right, sum - part.top};
}

}  // namespace

void DirtyRegion::add(const PixelRect& rect) {
    if (!rect.empty()) {
        rects_.push_back(rect);
    }
}

void DirtyRegion::add(const DirtyRegion& other) {
    rects_.insert(rects_.end(), other.rects_.begin(), other.rects_.end());
}

void DirtyRegion::addStroke(const Pen& pen, const Point& p1, const Point& p2,
                            const PixelRect& area) {
    const Rect limits{static_cast<double>(area.left - pen.width()),
                      static_cast<double>(area.top - pen.width()),
                      static_cast<double>(area.right + pen.width()),
                      static_cast<double>(area.bottom + pen.width())};
    const auto cut = clipSegment(p1, p2, limits);
    if (!cut) {
        return;
    }
    const double shorter = std::min(std::abs(cut->x2 - cut->x1), std::abs(cut->y2 - cut->y1));
    const int pieces = std::max(1, static_cast<int>(std::ceil(shorter / pieceLength)));
    const Point from{cut->x1, cut->y1};
    const Point to{cut->x2, cut->y2};
    for (int i = 0; i < pieces; ++i) {
        add(strokeBounds(pen, Interpolate(from, to, static_cast<double>(i) / pieces),
                         Interpolate(from, to, static_cast<double>(i + 1) / pieces), area));
    }
}

void DirtyRegion::addStroke(const Pen& pen, const Line& line, const PixelRect& area) {
    addStroke(pen, Point{line.x1, line.y1}, Point{line.x2, line.y2}, area);
}

void DirtyRegion::addOutline(const PixelRect& box, int width) {
    if (box.empty()) {
        return;
    }
    // An oval stays within this share of its box from the sides at the octants' ends.
    const int acrossX = std::max(width, box.width() * 15 / 100) + 2;
    const int acrossY = std::max(width, box.height() * 15 / 100) + 2;
    add({box.left, box.top, box.right, box.top + acrossY});
    add({box.left, box.bottom - acrossY, box.right, box.bottom});
    add({box.left, box.top, box.left + acrossX, box.bottom});
    add({box.right - acrossX, box.top, box.right, box.bottom});
}

void DirtyRegion::addOutlineClosely(const PixelRect& box, int width) {
    const Point half{box.width() / 2.0, box.height() / 2.0};
    const double arcs = std::ceil(halfPi * std::max(half.x, half.y) / arcLength);
    const int pieces = static_cast<int>(std::min(arcs, mostArcs));
    for (int i = 0; i < pieces; ++i) {
        const double from = halfPi * i / pieces;
        const double to = halfPi * (i + 1) / pieces;
        // Of the upper left quarter; the others mirror it.
        const Rect arc{half.x * (1 - std::cos(from)), half.y * (1 - std::sin(to)),
                       half.x * (1 - std::cos(to)), half.y * (1 - std::sin(from))};
        const PixelRect piece =
            PixelRect{box.left + static_cast<int>(arc.left), box.top + static_cast<int>(arc.top),
                      box.left + static_cast<int>(std::ceil(arc.right)),
                      box.top + static_cast<int>(std::ceil(arc.bottom))}
                .grown(width + 1)
                .intersected(box);
        for (const PixelRect& part : {piece, mirroredAcross(box, piece)}) {
            add(part);
            add(mirroredDown(box, part));
        }
    }
}

PixelRect DirtyRegion::bounds() const {
    PixelRect all;
    for (const PixelRect& rect : rects_) {
        all = all.united(rect);
    }
    return all;
}

bool DirtyRegion::dense() const {
    const auto areaOf = [](const PixelRect& rect) {
        return static_cast<double>(rect.width()) * rect.height();
    };
    double sum = 0;
    for (const PixelRect& rect : rects_) {
        sum += areaOf(rect);
    }
    return areaOf(bounds()) <= sum;
}

bool DirtyRegion::meets(const PixelRect& rect) const {
    return std::ranges::any_of(rects_, [&](const PixelRect& mine) { return mine.meets(rect); });
}

}  // namespace ormala
