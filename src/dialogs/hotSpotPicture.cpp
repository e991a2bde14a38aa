#include "dialogs/hotSpotPicture.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "modAPI/drawingColors.h"
#include "scene/pixelImages.h"

namespace ormala {

namespace {

constexpr int sideOfOneLine = 16;

enum class Rays { none, cross, diagonals };

/// What a style is made of.
struct Parts {
    Rays rays = Rays::none;
    /// The rays end at the square round the marked pixel.
    bool open = false;
    bool square = false;
    bool dot = false;
};

std::optional<Parts> partsOf(int style) {
    switch (style) {
        case 0:
            return Parts{.square = true};
        case 1:
            return Parts{.rays = Rays::cross};
        case 2:
            return Parts{.rays = Rays::cross, .open = true};
        case 3:
            return Parts{.rays = Rays::cross, .open = true, .square = true};
        case 4:
            return Parts{.dot = true};
        case 5:
            return Parts{.rays = Rays::diagonals};
        case 6:
            return Parts{.rays = Rays::diagonals, .open = true};
        case 7:
            return Parts{.rays = Rays::diagonals, .open = true, .square = true};
        default:
            return std::nullopt;
    }
}

/// The lengths of a picture. Distances are taken from its middle in half pixels, so that they are
/// whole numbers whether a pixel or an edge lies there.
struct Measures {
    int side;
    int line;
    /// From the middle to the outside of the square.
    int square;
};

/// The side is such that a line can lie in the middle of it.
Measures measuresFor(PixelSize size) {
    const int room = std::min(size.width, size.height);
    const int line = std::max(1, room / sideOfOneLine);
    const int side = room - (room - line) % 2;
    return {side, line, side / 2 + line};
}

bool onRay(Rays rays, int x, int y, int line) {
    switch (rays) {
        case Rays::cross:
            return std::min(x, y) < line;
        case Rays::diagonals:
            return std::abs(x - y) <= 2 * (line - 1);
        default:
            return false;
    }
}

/// For the distances of a pixel from the middle.
bool isMarked(const Parts& parts, int x, int y, const Measures& measures) {
    const int distance = std::max(x, y);
    const bool inSquare = distance < measures.square;
    const bool inHole = distance < measures.square - 2 * measures.line;
    return (parts.square && inSquare && !inHole) || (parts.dot && distance <= 2 * measures.line) ||
           (!(parts.open && inSquare) && onRay(parts.rays, x, y, measures.line));
}

void drawMark(PixelImage& image, const PixelRect& field, const Parts& parts,
              const Measures& measures) {
    for (int y = field.top; y < field.bottom; ++y) {
        for (int x = field.left; x < field.right; ++x) {
            const int fromMiddleX = std::abs(2 * x + 1 - field.left - field.right);
            const int fromMiddleY = std::abs(2 * y + 1 - field.top - field.bottom);
            if (isMarked(parts, fromMiddleX, fromMiddleY, measures)) {
                fillBox(image, {x, y, x + 1, y + 1}, opaquePixel(pictureInk::ink));
            }
        }
    }
}

}  // namespace

PixelImage drawHotSpotPicture(int style, PixelSize size) {
    if (size.width < 1 || size.height < 1) {
        return {};
    }
    PixelImage image = filledImage(size, 0);
    const Measures measures = measuresFor(size);
    const int left = (size.width - measures.side) / 2;
    const int top = (size.height - measures.side) / 2;
    const PixelRect field{left, top, left + measures.side, top + measures.side};
    fillBox(image, field, opaquePixel(pictureInk::paper));
    if (const auto parts = partsOf(style)) {
        drawMark(image, field, *parts, measures);
    }
    return image;
}

}  // namespace ormala
