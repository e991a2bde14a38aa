#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "support/win/Picture.h"

namespace ormala::test {

/// How the backdrop is coloured. Columns changes with x only, Rows with y only, each with another
/// colour for every pixel; Points gives every pixel of the screen a colour of its own.
enum class BackdropPattern { Solid, Columns, Rows, Points };

struct BackdropLook {
    BackdropPattern pattern = BackdropPattern::Solid;
    /// For Solid.
    Color color = 0;

    bool operator==(const BackdropLook&) const = default;
};

/// The exact colour of the screen's pixel; unique in the ways told above up to 4096 pixels from the
/// upper left corner of the virtual screen, where x and y are 0.
constexpr Color backdropColor(const BackdropLook& look, int x, int y) {
    const auto ux = static_cast<Color>(x);
    const auto uy = static_cast<Color>(y);
    switch (look.pattern) {
        case BackdropPattern::Columns:
            return (ux & 0xFFU) | (ux >> 8U) << 20U | (0xFFU - (ux & 0xFFU)) << 8U;
        case BackdropPattern::Rows:
            return (uy & 0xFFU) | (uy >> 8U) << 20U | (0xFFU - (uy & 0xFFU)) << 8U;
        case BackdropPattern::Points:
            return (ux & 0xFFU) | (uy & 0xFFU) << 8U | (ux >> 8U) << 20U | (uy >> 8U) << 16U;
        case BackdropPattern::Solid:
            break;
    }
    return look.color;
}

/// As the backdrop program takes it on its command line: "solid:00BBGGRR", "columns", "rows",
/// "points".
std::string textOf(const BackdropLook& look);
std::optional<BackdropLook> lookFromText(std::string_view text);

}  // namespace ormala::test
