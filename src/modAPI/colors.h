#pragma once

#include <array>
#include <cstdint>

namespace ormala {

/// The plain linear mix of `BlendColor`.
inline constexpr double plainMix = 100;

/// 0x00BBGGRR. A negative value is a colour of the system: its low byte is the system's index.
using Color = std::int32_t;

/// Components from 0 to 255.
constexpr Color rgb(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}

struct ColorParts {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const ColorParts&) const = default;
};

/// Answers the plain colour of a system colour index.
using SystemColorLookup = Color (*)(int index);

ColorParts ColorComponents(Color color, SystemColorLookup systemColor);

/// Perceived brightness of a plain colour, from 0 to 1, by the weights of the sRGB primaries.
float Luminance(Color color);

/// The colour of a step of a walk from one colour to another; the last of the steps has the other.
/// A percent of 100 is the plain linear mix, less strengthens the first colour and weakens the
/// other.
Color BlendColor(int step, int steps, Color colorA, Color colorB, double percent,
                 SystemColorLookup systemColor);

/// The same walk, by its name in the gradient panels.
Color GradientColor(int step, int steps, Color colorA, Color colorB, double reduce,
                    SystemColorLookup systemColor);

/// `delta` added to each component, which stays within 0 to 255.
Color OffsetColor(Color color, int delta, SystemColorLookup systemColor);

/// Hands out the default colours for new tools, each kind from a counter of its own.
class ToolColors {
  public:
    /// The kind is 0, 1 or 2. A reset starts that kind again and answers 0.
    Color NextDefaultToolColor(int kind, bool reset);

  private:
    std::array<int, 3> counters_{};
};

}  // namespace ormala
