#include "worksheet/GridRows.h"

#include <algorithm>
#include <cstddef>

#include "scene/Canvas.h"

namespace ormala {

namespace {

enum Style { points = 1, lines = 2 };

/// A point is a pixel, whatever the lines' width.
int widthOf(const BackgroundGrid& grid) {
    return grid.style == points ? 1 : Pen{grid.color, grid.lineWidth}.width();
}

/// Which pixels of one direction lie in the grid's lines across it.
std::vector<bool> inLines(std::int64_t origin, std::int64_t step, int width, int extent) {
    std::vector<bool> covered(static_cast<std::size_t>(extent), false);
    if (step < 1) {
        return covered;
    }
    const std::int64_t before = width / 2;
    std::int64_t at = origin;
    if (at + width < before) {
        // Lines that end before the first pixel.
        at += (before - width - at) / step * step;
    }
    std::int64_t done = 0;
    for (; at <= extent; at += step) {
        const std::int64_t end = std::min<std::int64_t>(at - before + width, extent);
        for (done = std::max(done, at - before); done < end; ++done) {
            covered[static_cast<std::size_t>(done)] = true;
        }
    }
    return covered;
}

/// The strokes and gaps of a pen that sets out from the edge.
bool inked(int lineCode, int along) {
    switch (lineCode) {
        case 0:
            return along % 6 < 3;
        case 1:
            return along % 24 < 18;
        default:
            return true;
    }
}

}  // namespace

bool GridRows::shows(const BackgroundGrid& grid) {
    return grid.enabled && (grid.style == points || grid.style == lines);
}

GridRows::GridRows(const BackgroundGrid& grid, PixelSize client, const Pixels& pixels) {
    chooseKinds(grid, std::max(client.height, 0));
    makeRows(grid, std::max(client.width, 0), pixels);
}

void GridRows::chooseKinds(const BackgroundGrid& grid, int height) {
    kinds_.assign(static_cast<std::size_t>(height), plain);
    if (!shows(grid)) {
        return;
    }
    const std::vector<bool> line =
        inLines(grid.steps.originY, grid.steps.stepY, widthOf(grid), height);
    for (int y = 0; y < height; ++y) {
        const auto at = static_cast<std::size_t>(y);
        if (grid.style == points) {
            kinds_[at] = line[at] ? crossesColumns : plain;
        } else {
            kinds_[at] = static_cast<std::uint8_t>((inked(grid.lineWidth, y) ? crossesColumns : 0) |
                                                   (line[at] ? liesInLine : 0));
        }
    }
}

void GridRows::makeRows(const BackgroundGrid& grid, int width, const Pixels& pixels) {
    const std::vector<bool> column =
        inLines(grid.steps.originX, grid.steps.stepX, widthOf(grid), width);
    for (std::size_t kind = 0; kind < rows_.size(); ++kind) {
        rows_[kind].resize(static_cast<std::size_t>(width));
        for (int x = 0; x < width; ++x) {
            const auto at = static_cast<std::size_t>(x);
            const bool set = ((kind & crossesColumns) != 0 && column[at]) ||
                             ((kind & liesInLine) != 0 && inked(grid.lineWidth, x));
            rows_[kind][at] = set ? pixels.grid : pixels.background;
        }
    }
}

}  // namespace ormala
