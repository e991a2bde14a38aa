#include "scene/DirtyRegion.h"

#include <algorithm>
#include <cmath>

#include "modAPI/clipping.h"
#include "modAPI/transforms.h"
#include "scene/strokes.h"

namespace ormala {

namespace {

/// A piece of this length has a box of at most this size squared, about what a grip's repaint
/// costs.
constexpr double pieceLength = 96;

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
