#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "modAPI/constants.h"
#include "modAPI/textForms.h"

namespace ormala {

inline constexpr int specialRatioCount = 18;

/// Width by height of the well-known proportions, none above 1.
inline constexpr std::array<double, specialRatioCount> specialRatioValues = {
    1.0,     4.0 / 5,  8.5 / 11, 3.0 / 4, 9.0 / 12.5, R,       2.0 / 3, 5.0 / 8, G,
    3.0 / 5, 9.0 / 16, 9.0 / 17, 1.0 / 2, 9.0 / 21,   2.0 / 5, 1.0 / 3, 1.0 / 4, 1.0 / 5};

/// The row nearest to the ratio, the first of equally near ones. A ratio of 1 or more is looked up
/// by its inverse, and `inverted` is true then. The sign of the ratio does not matter.
int NearestSpecialRatio(double ratio, bool& inverted);

/// A row of the special ratios, or its inverse.
struct SpecialRatioRow {
    int index = 0;
    bool inverted = false;
};

/// The row that is equal to the ratio in three digits; nothing if there is none.
std::optional<SpecialRatioRow> SameSpecialRatio(double ratio);

/// The special ratio nearest to w / h, with the sign of w / h. `ratio` becomes w / h, or 0 for h =
/// 0.
double SnapToSpecialRatio(double w, double h, double& ratio);

/// The values with their names in the user's language and number form, fixed when it is made.
class SpecialRatios {
  public:
    /// Answers the text of a string table id in the language in use, or the default text.
    using Translate = std::function<std::string(int id, std::string_view defaultText)>;

    SpecialRatios(const Translate& translate, const TextForm& form);

    /// The index is 0 to 17.
    double operator[](int index) const;

    /// The row's W:H text, or its inverse, and what it is used for: caption, separator and usage,
    /// the usage in brackets if wanted. Empty for an index outside the table.
    std::string SpecialRatioCaption(int index, bool inverted, std::string_view separator,
                                    bool withBrackets) const;

    /// The caption without the usage; the index is 0 to 17.
    const std::string& caption(int index, bool inverted) const;

  private:
    struct Row {
        std::string caption;
        std::string inverse;
        std::string usage;
    };

    std::vector<Row> rows_;
};

}  // namespace ormala
