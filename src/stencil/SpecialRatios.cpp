#include "stencil/SpecialRatios.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "modAPI/rounding.h"

namespace ormala {

int NearestSpecialRatio(double ratio, bool& inverted) {
    double sought = std::abs(ratio);
    inverted = sought > 0.9999999999;
    if (inverted) {
        sought = 1 / sought;
    }
    const auto distance = [sought](double value) { return std::abs(value - sought); };
    return static_cast<int>(std::ranges::distance(
        specialRatioValues.begin(), std::ranges::min_element(specialRatioValues, {}, distance)));
}

std::optional<SpecialRatioRow> SameSpecialRatio(double ratio) {
    constexpr int digits = 3;
    SpecialRatioRow row;
    row.index = NearestSpecialRatio(ratio, row.inverted);
    const double value = specialRatioValues.at(static_cast<std::size_t>(row.index));
    if (!SameSignificant(row.inverted ? 1 / ratio : ratio, value, digits)) {
        return std::nullopt;
    }
    return row;
}

double SnapToSpecialRatio(double w, double h, double& ratio) {
    ratio = h == 0 ? 0 : w / h;
    bool inverted = false;
    const int index = NearestSpecialRatio(ratio, inverted);
    const double value = specialRatioValues.at(static_cast<std::size_t>(index));
    const double snapped = inverted ? 1 / value : value;
    return ratio < 0 ? -snapped : snapped;
}

SpecialRatios::SpecialRatios(const Translate& translate, const TextForm& form) {
    const std::string letter = "8" + form.decimalSeparator + "5";
    const std::string film = "12" + form.decimalSeparator + "5";
    rows_ = {
        {"1:1", "1:1", translate(268, "square")},
        {"4:5", "5:4", ""},
        {letter + ":11", "11:" + letter, translate(269, "letter")},
        {"3:4", "4:3", translate(270, "digital photo, TV, monitor")},
        {"9:" + film, film + ":9", translate(271, "35mm movie")},
        {translate(267, "1:root(2)"), translate(278, "root(2):1"), translate(272, "ISO paper")},
        {"2:3", "3:2", translate(273, "chemical photo")},
        {"5:8", "8:5", translate(274, "wide screen monitor")},
        {translate(266, "(root(5)-1):2"), translate(279, "2:(root(5)-1)"),
         translate(275, "golden section")},
        {"3:5", "5:3", translate(276, "cinema")},
        {"9:16", "16:9", "HDTV"},
        {"9:17", "17:9", translate(276, "cinema")},
        {"1:2", "2:1", ""},
        {"9:21", "21:9", "Cinemascope"},
        {"2:5", "5:2", ""},
        {"1:3", "3:1", ""},
        {"1:4", "4:1", ""},
        {"1:5", "5:1", ""},
    };
}

double SpecialRatios::operator[](int index) const {
    return specialRatioValues.at(static_cast<std::size_t>(index));
}

std::string SpecialRatios::SpecialRatioCaption(int index, bool inverted, std::string_view separator,
                                               bool withBrackets) const {
    if (index < 0 || index >= specialRatioCount) {
        return {};
    }
    std::string text = caption(index, inverted);
    const std::string& usage = rows_.at(static_cast<std::size_t>(index)).usage;
    if (!usage.empty()) {
        text += separator;
        text += withBrackets ? "(" + usage + ")" : usage;
    }
    return text;
}

const std::string& SpecialRatios::caption(int index, bool inverted) const {
    const Row& row = rows_.at(static_cast<std::size_t>(index));
    return inverted ? row.inverse : row.caption;
}

}  // namespace ormala
