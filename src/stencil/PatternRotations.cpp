#include "stencil/PatternRotations.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "language/MlStringModule.h"
#include "modAPI/constants.h"
#include "modAPI/rounding.h"
#include "stencil/PatternTable.h"

namespace ormala {

namespace {

constexpr std::array<std::string_view, 13> captions{
    "", "1/8", "1/4", "1/3", "3/8", "1/2", "5/8", "2/3", "3/4", "7/8", "1/20", "2/20", "3/20"};

std::string caption(std::size_t row) {
    return row == 0 ? MlString(319, "none") : std::string(captions.at(row));
}

/// Whole millionths of a turn. An angle that was made from whole ones may lie a hair below them.
double millionthsOfTurn(double angle) {
    constexpr double hair = 1e-3;
    return std::floor(angle / twoPi * 1000000 + hair);
}

}  // namespace

std::vector<std::string> rotationTexts(const TextForm& form) {
    std::vector<std::string> texts;
    for (const double angle : preRotations()) {
        const double degrees = RoundSignificant(angle / twoPi * 360, 3, false);
        texts.push_back(caption(texts.size()) + " = " + formatNumber(degrees, "0", form) +
                        "\u00b0");
    }
    return texts;
}

std::optional<double> rotationOfRow(int row) {
    const auto angles = preRotations();
    if (row < 0 || row >= static_cast<int>(angles.size())) {
        return std::nullopt;
    }
    return angles.at(static_cast<std::size_t>(row));
}

std::optional<int> rowOfRotation(double preRotation) {
    const auto angles = preRotations();
    for (std::size_t row = 0; row < angles.size(); ++row) {
        if (millionthsOfTurn(angles.at(row)) == millionthsOfTurn(preRotation)) {
            return static_cast<int>(row);
        }
    }
    return std::nullopt;
}

}  // namespace ormala
