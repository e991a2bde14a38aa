#include "dialogs/palettes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "modAPI/drawingColors.h"
#include "scene/pixelImages.h"

namespace ormala {

namespace {

/// The hue in degrees, all else from 0 to 1.
Color colorOf(double hue, double saturation, double lightness) {
    const double reach = saturation * std::min(lightness, 1 - lightness);
    const auto component = [&](double offset) {
        const double place = std::fmod(offset + hue / 30, 12);
        const double share = std::clamp(std::min(place - 3, 9 - place), -1.0, 1.0);
        return static_cast<int>(std::lround(255 * (lightness - reach * share)));
    };
    return rgb(component(0), component(8), component(4));
}

Color grey(double lightness) {
    return colorOf(0, 0, lightness);
}

double between(double first, double last, int step, int steps) {
    return first + (last - first) * step / (steps - 1);
}

/// A row of equally spaced hues.
void addHues(Palette& palette, int count, double saturation, double lightness) {
    for (int column = 0; column < count; ++column) {
        palette.colors.push_back(colorOf(360.0 * column / count, saturation, lightness));
    }
}

/// From light to dark, with one row of the pure hues on the way.
double lightnessOfRow(int row, int rows) {
    constexpr double lightest = 0.92;
    constexpr double pure = 0.5;
    constexpr double darkest = 0.1;
    const int middle = rows / 2;
    return row <= middle ? between(lightest, pure, row, middle + 1)
                         : between(pure, darkest, row - middle, rows - middle);
}

/// The sum of the squares, from 0 on.
int squaredDistance(Color a, Color b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = (a >> shift & 0xFF) - (b >> shift & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

/// A colour that the program begins with, on the field whose colour came nearest to it.
struct FirstColor {
    PixelPoint field;
    Color color;
};

constexpr std::array firstColors{
    FirstColor{{3, 6}, firstColor::tools[0]},  FirstColor{{12, 8}, firstColor::tools[1]},
    FirstColor{{8, 8}, firstColor::tools[3]},  FirstColor{{4, 9}, firstColor::tools[6]},
    FirstColor{{19, 6}, firstColor::tools[7]}, FirstColor{{0, 2}, firstColor::tools[8]},
    FirstColor{{15, 2}, firstColor::tools[9]}, FirstColor{{24, 6}, firstColor::backgroundGrid},
    FirstColor{{24, 3}, firstColor::lensGrid},
};

Palette huesByLightness() {
    Palette palette{{25, 12}, {}};
    for (int row = 0; row < palette.size.height; ++row) {
        addHues(palette, 24, 1, lightnessOfRow(row, palette.size.height));
        palette.colors.push_back(grey(between(1, 0, row, palette.size.height)));
    }
    for (const auto& [field, color] : firstColors) {
        const int index = field.y * palette.size.width + field.x;
        palette.colors.at(static_cast<std::size_t>(index)) = color;
    }
    return palette;
}

Palette pureColors() {
    Palette palette{{12, 4}, {}};
    for (int column = 0; column < palette.size.width; ++column) {
        palette.colors.push_back(grey(between(0, 1, column, palette.size.width)));
    }
    for (const double lightness : {0.5, 0.25, 0.75}) {
        addHues(palette, palette.size.width, 1, lightness);
    }
    return palette;
}

Palette mutedColors() {
    // White, black and the first colour of the worksheet among the greys.
    constexpr std::array<int, 8> greys{255, 219, 183, 147, 111, 79, 40, 0};
    Palette palette{{13, 8}, {}};
    for (int row = 0; row < palette.size.height; ++row) {
        const double lightness = between(0.88, 0.18, row, palette.size.height);
        addHues(palette, 12, 0.28, lightness);
        const int level = greys.at(static_cast<std::size_t>(row));
        palette.colors.push_back(rgb(level, level, level));
    }
    return palette;
}

}  // namespace

Color Palette::at(PixelPoint field) const {
    const int place = field.y * size.width + field.x;
    return colors.at(static_cast<std::size_t>(place));
}

PixelPoint Palette::clamped(PixelPoint field) const {
    return {std::clamp(field.x, 0, size.width - 1), std::clamp(field.y, 0, size.height - 1)};
}

bool Palette::holds(Color color) const {
    return std::ranges::find(colors, color) != colors.end();
}

PixelPoint Palette::nearest(Color color) const {
    const auto found = std::ranges::min_element(
        colors, {}, [color](Color each) { return squaredDistance(each, color); });
    const int index = static_cast<int>(found - colors.begin());
    return {index % size.width, index / size.width};
}

const Palette& paletteOf(int index) {
    static const std::array<Palette, paletteCount> palettes = {huesByLightness(), pureColors(),
                                                               mutedColors()};
    return palettes.at(static_cast<std::size_t>(std::clamp(index, 0, paletteCount - 1)));
}

int paletteFor(Color color) {
    for (int index = 0; index < paletteCount; ++index) {
        if (paletteOf(index).holds(color)) {
            return index;
        }
    }
    return palette::hues;
}

PixelImage palettePicture(int index, PixelSize size) {
    const Palette& palette = paletteOf(index);
    PixelImage picture = filledImage(size, 0);
    for (int y = 0; y < palette.size.height; ++y) {
        for (int x = 0; x < palette.size.width; ++x) {
            const PixelRect box{x * size.width / palette.size.width,
                                y * size.height / palette.size.height,
                                (x + 1) * size.width / palette.size.width,
                                (y + 1) * size.height / palette.size.height};
            fillBox(picture, box, opaquePixel(palette.at({x, y})));
        }
    }
    return picture;
}

}  // namespace ormala
