#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace ormala {

/// The plain linear mix of `BlendColor`.
inline constexpr double plainMix = 100;

/// 0x00BBGGRR. A negative value is a colour of the system, its low byte being the system's index,
/// or one that gives way to a colour of the system in high contrast; see `roleColor`.
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

/// What a colour of a control is for, by the system's own numbers. In high contrast only these can
/// be told apart: each ground with the text that belongs to it.
enum class ColorRole {
    window = 5,
    windowText = 8,
    highlight = 13,
    highlightText = 14,
    buttonFace = 15,
    grayText = 17,
    buttonText = 18,
    hotlight = 26,
};

inline constexpr std::uint32_t systemColorMark = 0x80000000U;
inline constexpr int roleShift = 24;
inline constexpr Color figures = 0xFFFFFFU;

/// That colour in figures, and in high contrast the system's own for the role.
constexpr Color roleColor(Color plain, ColorRole role) {
    return static_cast<Color>(systemColorMark | (static_cast<std::uint32_t>(role) + 1)
                                                    << roleShift) |
           plain;
}
/// Nothing for a colour that stays what it is.
constexpr std::optional<ColorRole> roleOf(Color color) {
    constexpr std::uint32_t roles = 0x7FU;
    const std::uint32_t number = (static_cast<std::uint32_t>(color) >> roleShift) & roles;
    return color < 0 && number != 0 ? std::optional(static_cast<ColorRole>(number - 1))
                                    : std::nullopt;
}
/// The role of a text on a ground of that role.
constexpr ColorRole textRoleOn(ColorRole ground) {
    switch (ground) {
        case ColorRole::highlight:
            return ColorRole::highlightText;
        case ColorRole::buttonFace:
            return ColorRole::buttonText;
        default:
            return ColorRole::windowText;
    }
}

/// Answers the plain colours of the system, and whether it is in high contrast.
class SystemColorLookup {
  public:
    /// `ofIndex` answers the plain colour of a system colour index.
    constexpr SystemColorLookup(Color (*ofIndex)(int index), bool highContrast = false)
        : ofIndex_(ofIndex), highContrast_(highContrast) {}

    [[nodiscard]] bool highContrast() const { return highContrast_; }
    [[nodiscard]] Color operator()(int index) const { return ofIndex_(index); }
    [[nodiscard]] Color operator()(ColorRole role) const {
        return ofIndex_(static_cast<int>(role));
    }

  private:
    Color (*ofIndex_)(int index);
    bool highContrast_;
};

/// The colour in figures as it is to be seen now.
Color plainColor(Color color, SystemColorLookup systemColor);
/// The same of a text on a ground: in high contrast the one that belongs to the ground, if that is
/// the system's then.
Color plainTextColor(Color text, Color ground, SystemColorLookup systemColor);

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

/// `delta` added to each component, which stays within 0 to 255. A colour of the system is not
/// changed in high contrast, where it belongs to another one.
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
