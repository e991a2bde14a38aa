#include "stencil/StencilTexts.h"

#include "language/MlStringModule.h"
#include "modAPI/constants.h"

namespace ormala {

namespace {

std::string counted(double first, double last) {
    return formatNumber(CountedPixels(first, last), "0", {});
}

}  // namespace

std::string degreesText(double angle, const TextForm& form) {
    return formatNumber(angle * 180 / pi, "0.0", form) + "\u00b0";
}

std::string radiansText(double angle, const TextForm& form) {
    return formatNumber(angle, "0.000", form) + " rad";
}

std::string rotationText(double angle, const TextForm& form) {
    return degreesText(angle, form) + "\r\n" + radiansText(angle, form);
}

std::string specialRatioText(double ratio, const SpecialRatios& ratios) {
    const auto row = SameSpecialRatio(ratio);
    return row ? ratios.SpecialRatioCaption(row->index, row->inverted, "  ", true) : "";
}

std::string sizeText(const Rect& rectBound, const SpecialRatios& ratios, const TextForm& form) {
    const double ratio = PixelRatio(rectBound, false);
    const std::string text = counted(rectBound.left, rectBound.right) + " x " +
                             counted(rectBound.top, rectBound.bottom) +
                             MlString(324, "  ratio = ") + FormatRatio(ratio, form);
    const std::string name = specialRatioText(ratio, ratios);
    return name.empty() ? text : text + "\r\n" + name;
}

}  // namespace ormala
