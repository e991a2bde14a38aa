#include "modAPI/colors.h"

#include <algorithm>
#include <cstddef>

#include "modAPI/drawingColors.h"

namespace ormala {

namespace {

constexpr int lastColorHandedOut = 9;
constexpr int firstColorOfMeasures = 4;

ColorParts partsOf(Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

int mixed(int a, int b, double strength, double part) {
    const double from = a * strength;
    const double to = b / strength;
    return static_cast<int>(std::clamp((to - from) * part + from, 0.0, 255.0));
}

}  // namespace

Color plainColor(Color color, SystemColorLookup systemColor) {
    if (color >= 0) {
        return color;
    }
    const auto role = roleOf(color);
    if (!role) {
        return systemColor(color & 0xFF);
    }
    return systemColor.highContrast() ? systemColor(*role) : color & figures;
}

Color plainTextColor(Color text, Color ground, SystemColorLookup systemColor) {
    const auto role = roleOf(ground);
    return systemColor.highContrast() && role ? systemColor(textRoleOn(*role))
                                              : plainColor(text, systemColor);
}

ColorParts ColorComponents(Color color, SystemColorLookup systemColor) {
    return partsOf(plainColor(color, systemColor));
}

float Luminance(Color color) {
    const ColorParts parts = partsOf(color);
    return static_cast<float>(0.2126 * parts.red / 255 + 0.7152 * parts.green / 255 +
                              0.0722 * parts.blue / 255);
}

Color BlendColor(int step, int steps, Color colorA, Color colorB, double percent,
                 SystemColorLookup systemColor) {
    const int last = std::max(steps - 1, 1);
    const double part = static_cast<double>(std::min(step, last)) / last;
    const double strength = percent == 0 ? 1000000 : 1 / (percent / 100);
    const ColorParts a = ColorComponents(colorA, systemColor);
    const ColorParts b = ColorComponents(colorB, systemColor);
    return rgb(mixed(a.red, b.red, strength, part), mixed(a.green, b.green, strength, part),
               mixed(a.blue, b.blue, strength, part));
}

Color GradientColor(int step, int steps, Color colorA, Color colorB, double reduce,
                    SystemColorLookup systemColor) {
    return BlendColor(step, steps, colorA, colorB, reduce, systemColor);
}

Color OffsetColor(Color color, int delta, SystemColorLookup systemColor) {
    const ColorParts parts = ColorComponents(color, systemColor);
    if (color < 0 && systemColor.highContrast()) {
        return rgb(parts.red, parts.green, parts.blue);
    }
    const auto moved = [delta](int part) { return std::clamp(part + delta, 0, 255); };
    return rgb(moved(parts.red), moved(parts.green), moved(parts.blue));
}

Color ToolColors::NextDefaultToolColor(int kind, bool reset) {
    int& counter = counters_.at(static_cast<std::size_t>(kind));
    if (reset) {
        counter = 0;
        return 0;
    }
    const int first = kind == 1 ? firstColorOfMeasures : 0;
    const int index = counter + first;
    counter = index + 1 > lastColorHandedOut ? -first : counter + 1;
    return firstColor::tools.at(static_cast<std::size_t>(index));
}

}  // namespace ormala
