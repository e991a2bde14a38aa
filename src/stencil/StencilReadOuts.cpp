#include "stencil/StencilReadOuts.h"

#include "language/MlStringModule.h"
#include "modAPI/constants.h"
#include "modAPI/rounding.h"
#include "stencil/stencilPanelDesign.h"

namespace ormala {

namespace {

/// The first and the last pixel of a side.
struct Span {
    Span(double from, double to) : first(RoundHalfAway(from, 0)), last(RoundHalfAway(to, 0)) {}

    [[nodiscard]] double count() const { return last - first + 1; }
    /// Half a pixel short of the middle of the pixels.
    [[nodiscard]] double center() const { return count() / 2 + first - 1; }

    double first;
    double last;
};

std::string whole(double value) {
    return formatNumber(value, "0", {}) + " ";
}

/// The name of the ratio, empty if it is none of the well-known ones to three digits.
std::string description(const Rect& rectBound, const SpecialRatios& ratios) {
    bool inverted = false;
    const int nearest = NearestSpecialRatio(PixelRatio(rectBound, false), inverted);
    if (!SameSignificant(PixelRatio(rectBound, true), ratios[nearest], 3)) {
        return {};
    }
    return ratios.SpecialRatioCaption(nearest, inverted, "  ", true) + " ";
}

}  // namespace

std::vector<ControlText> stencilReadOuts(const Rect& rectBound, double rotationAngle,
                                         const SpecialRatios& ratios, const TextForm& form) {
    const Span across(rectBound.left, rectBound.right);
    const Span down(rectBound.top, rectBound.bottom);
    const auto ratio = [&form](double value) { return FormatRatio(value, form) + " "; };
    return {
        {StencilControl::lblAngle1,
         formatNumber(rotationAngle * 180 / pi, "0.0", form) + "\u00b0 "},
        {StencilControl::lblAngle2, formatNumber(rotationAngle, "0.000", form) + " rad "},
        {StencilControl::lblCenterX, "X = " + formatNumber(across.center(), "#0.0", form) + " "},
        {StencilControl::lblCenterY, "Y = " + formatNumber(down.center(), "#0.0", form) + " "},
        {StencilControl::lblSizeWidth, MlString(329, "W = ") + whole(across.count())},
        {StencilControl::lblSizeHeight, MlString(330, "H = ") + whole(down.count())},
        {StencilControl::lblPositionLeft, MlString(331, "left = ") + whole(across.first)},
        {StencilControl::lblPositionRight, MlString(332, "right = ") + whole(across.last)},
        {StencilControl::lblPositionTop, MlString(333, "top = ") + whole(down.first)},
        {StencilControl::lblPositionBottom, MlString(334, "bottom = ") + whole(down.last)},
        {StencilControl::lblRatioWH, MlString(335, "W:H = ") + ratio(PixelRatio(rectBound, false))},
        {StencilControl::lblRatioHW,
         MlString(336, "H:W = ") + ratio(PixelRatioReciprocal(rectBound))},
        {StencilControl::lblRatioDescription, description(rectBound, ratios)},
    };
}

}  // namespace ormala
