#include "stencil/LineCoverage.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "modAPI/clipping.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// Cells of a pixel in each direction.
constexpr int finer = 4;
/// From the middle of a pixel to its place among the cells.
double inCells(double pixel) {
    return pixel * finer + finer / 2.0;
}

double squaredDistance(const Line& line, double x, double y) {
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    const double squaredLength = dx * dx + dy * dy;
    const double along =
        squaredLength == 0
            ? 0
            : std::clamp(((x - line.x1) * dx + (y - line.y1) * dy) / squaredLength, 0.0, 1.0);
    const double offX = x - line.x1 - along * dx;
    const double offY = y - line.y1 - along * dy;
    return offX * offX + offY * offY;
}

/// The cells of one row that a line of that width can reach.
std::pair<double, double> reachInRow(const Line& line, double reach, double y) {
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    double first = std::min(line.x1, line.x2) - reach;
    double last = std::max(line.x1, line.x2) + reach;
    if (dy != 0) {
        const double middle = line.x1 + (y - line.y1) / dy * dx;
        const double half = reach * std::hypot(dx, dy) / std::abs(dy);
        first = std::max(first, middle - half);
        last = std::min(last, middle + half);
    }
    return {first, last};
}

}  // namespace

LineCoverage::LineCoverage(PixelSize size, int lineWidth)
    : size_(size),
      lineWidth_(lineWidth),
      cells_{size.width * finer, size.height * finer},
      covered_(static_cast<std::size_t>(cells_.width) * static_cast<std::size_t>(cells_.height)) {}

void LineCoverage::stroke(Point from, Point to) {
    const double reach = lineWidth_ * finer / 2.0;
    const Rect around{-reach, -reach, cells_.width + reach, cells_.height + reach};
    const auto line =
        clipSegment({inCells(from.x), inCells(from.y)}, {inCells(to.x), inCells(to.y)}, around);
    if (!line) {
        return;
    }
    const int top = std::max(0, static_cast<int>(std::floor(std::min(line->y1, line->y2) - reach)));
    const int bottom =
        std::min(cells_.height, static_cast<int>(std::ceil(std::max(line->y1, line->y2) + reach)));
    for (int row = top; row < bottom; ++row) {
        const double y = row + 0.5;
        const auto [first, last] = reachInRow(*line, reach, y);
        const int left = std::max(0, static_cast<int>(std::floor(first)));
        const int right = std::min(cells_.width, static_cast<int>(std::ceil(last)) + 1);
        for (int column = left; column < right; ++column) {
            if (squaredDistance(*line, column + 0.5, y) <= reach * reach) {
                cover({column, row, column + 1, row + 1});
            }
        }
    }
}

void LineCoverage::strokeAlongAxis(Point from, Point to) {
    // Half a line reaches this far before the middle of a pixel.
    const double before = (lineWidth_ - 1) / 2.0;
    const auto firstPixel = [before](double at, int pixels) {
        return static_cast<int>(RoundHalfAway(std::clamp(at - before, -1e6, pixels + 1e6)));
    };
    const auto [left, right] =
        std::minmax({firstPixel(from.x, size_.width), firstPixel(to.x, size_.width)});
    const auto [top, bottom] =
        std::minmax({firstPixel(from.y, size_.height), firstPixel(to.y, size_.height)});
    const PixelRect inside =
        PixelRect{left, top, right + lineWidth_, bottom + lineWidth_}.intersected(
            {0, 0, size_.width, size_.height});
    cover({inside.left * finer, inside.top * finer, inside.right * finer, inside.bottom * finer});
}

void LineCoverage::cover(const PixelRect& cells) {
    for (int y = cells.top; y < cells.bottom; ++y) {
        for (int x = cells.left; x < cells.right; ++x) {
            covered_[static_cast<std::size_t>(y) * static_cast<std::size_t>(cells_.width) +
                     static_cast<std::size_t>(x)] = 1;
        }
    }
}

int LineCoverage::at(int x, int y) const {
    int count = 0;
    for (int row = y * finer; row < (y + 1) * finer; ++row) {
        for (int column = x * finer; column < (x + 1) * finer; ++column) {
            count +=
                covered_[static_cast<std::size_t>(row) * static_cast<std::size_t>(cells_.width) +
                         static_cast<std::size_t>(column)];
        }
    }
    return count;
}

}  // namespace ormala
