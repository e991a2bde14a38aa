#include "stencil/StencilTexts.h"

#include "language/MlStringModule.h"
#include "modAPI/constants.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

std::string wholeNumber(double value) {
    return formatNumber(value, "0", {});
}

/// Both end pixels of a side count.
double countedPixels(double from, double to) {
    return RoundHalfAway(to, 0) - RoundHalfAway(from, 0) + 1;
}

}  // namespace

std::string rotationText(double angle, const TextForm& form) {
    return formatNumber(angle * 180 / pi, "0.0", form) + "\u00b0\r\n" +
           formatNumber(angle, "0.000", form) + " rad";
}

std::string sizeText(const Rect& rectBound, const SpecialRatios& ratios, const TextForm& form) {
    const double ratio = PixelRatio(rectBound, false);
    std::string text = wholeNumber(countedPixels(rectBound.left, rectBound.right)) + " x " +
                       wholeNumber(countedPixels(rectBound.top, rectBound.bottom)) +
                       MlString(324, "  ratio = ") + FormatRatio(ratio, form);
    bool inverted = false;
    const int nearest = NearestSpecialRatio(ratio, inverted);
    if (SameSignificant(PixelRatio(rectBound, true),
                        specialRatioValues[static_cast<std::size_t>(nearest)], 3)) {
        text += "\r\n" + ratios.SpecialRatioCaption(nearest, inverted, "  ", true);
    }
    return text;
}

}  // namespace ormala
