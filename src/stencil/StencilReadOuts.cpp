#include "stencil/StencilReadOuts.h"

#include "language/MlStringModule.h"
#include "modAPI/rounding.h"
#include "stencil/StencilTexts.h"
#include "stencil/stencilPanelDesign.h"

namespace ormala {

namespace {

/// Half a pixel short of the middle of the pixels.
double center(double first, double last) {
    return CountedPixels(first, last) / 2 + RoundHalfAway(first, 0) - 1;
}

/// The name of the ratio, empty if it is none of the well-known ones.
std::string description(double ratio, const SpecialRatios& ratios) {
    const std::string name = specialRatioText(ratio, ratios);
    return name.empty() ? name : name + " ";
}

}  // namespace

std::vector<ControlText> stencilReadOuts(const Rect& rectBound, double rotationAngle,
                                         const SpecialRatios& ratios, const TextForm& form) {
    using enum StencilControl;
    const Rect& r = rectBound;
    const auto whole = [&form](double value) { return formatPixels(value, "0", form) + " "; };
    const auto place = [&whole](double value) { return whole(RoundHalfAway(value, 0)); };
    const auto ratio = [&form](double value) { return FormatRatio(value, form) + " "; };
    return {
        {lblAngle1, degreesText(rotationAngle, form) + " "},
        {lblAngle2, radiansText(rotationAngle, form) + " "},
        {lblCenterX, "X = " + formatPixels(center(r.left, r.right), "#0.0", form) + " "},
        {lblCenterY, "Y = " + formatPixels(center(r.top, r.bottom), "#0.0", form) + " "},
        {lblSizeWidth, MlString(329, "W = ") + whole(CountedPixels(r.left, r.right))},
        {lblSizeHeight, MlString(330, "H = ") + whole(CountedPixels(r.top, r.bottom))},
        {lblPositionLeft, MlString(331, "left = ") + place(r.left)},
        {lblPositionRight, MlString(332, "right = ") + place(r.right)},
        {lblPositionTop, MlString(333, "top = ") + place(r.top)},
        {lblPositionBottom, MlString(334, "bottom = ") + place(r.bottom)},
        {lblRatioWH, MlString(335, "W:H = ") + ratio(PixelRatio(rectBound, false))},
        {lblRatioHW, MlString(336, "H:W = ") + ratio(PixelRatioReciprocal(rectBound))},
        {lblRatioDescription, description(PixelRatio(rectBound, false), ratios)},
    };
}

}  // namespace ormala
