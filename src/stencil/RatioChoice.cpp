#include "stencil/RatioChoice.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "language/MlStringModule.h"
#include "modAPI/placing.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr double widestPreview = 32000;

}  // namespace

void RatioChoice::begin(double current) {
    current_ = current;
    NearestSpecialRatio(current, inverted_);
    const auto same = SameSpecialRatio(current);
    row_ = same ? same->index : -1;
}

std::optional<double> RatioChoice::newRatio() const {
    if (row_ < 0 || row_ >= specialRatioCount) {
        return std::nullopt;
    }
    return inverted_ ? 1 / ratios_[row_] : ratios_[row_];
}

std::vector<std::string> RatioChoice::rows(const TextWidth& widthOf) const {
    std::vector<int> widths;
    widths.reserve(specialRatioCount);
    for (int i = 0; i < specialRatioCount; ++i) {
        widths.push_back(widthOf(ratios_.caption(i, inverted_)));
    }
    const int widest = *std::ranges::max_element(widths);
    const int blank = std::max(widthOf(" "), 1);
    std::vector<std::string> rows;
    for (int i = 0; i < specialRatioCount; ++i) {
        const int blanks = (widest - widths[static_cast<std::size_t>(i)]) / blank;
        const std::string separator = std::string(static_cast<std::size_t>(blanks), ' ') + "\t";
        rows.push_back(ratios_.SpecialRatioCaption(i, inverted_, separator, false));
    }
    return rows;
}

std::string RatioChoice::currentText() const {
    return MlString(261, "Current W:H = ") + FormatRatio(current_, form_);
}

std::string RatioChoice::newText() const {
    if (const auto ratio = newRatio()) {
        return MlString(263, "New W:H = ") + FormatRatio(*ratio, form_);
    }
    return MlString(262, "Please select a special ratio.");
}

PixelRect previewOfRatio(double ratio, int height, PixelPoint centre) {
    const double wanted = std::abs(height * ratio);
    const double width = wanted < widestPreview ? wanted : widestPreview;
    const Point middle{static_cast<double>(centre.x), static_cast<double>(centre.y)};
    const Point corner = PlaceByAnchor(width, height, middle, Anchor::centre);
    const int left = static_cast<int>(corner.x);
    const int top = static_cast<int>(corner.y);
    const int shown = std::max(static_cast<int>(RoundHalfAway(width)), 1);
    return {left, top, left + shown, top + height};
}

}  // namespace ormala
