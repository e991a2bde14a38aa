#include "stencil/StencilTexts.h"

#include <array>

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

std::string stencilName(int ordinal) {
    const std::array<std::string, 1> arguments{std::to_string(ordinal)};
    return MlFormat(MlString(611, "Stencil %0"), arguments);
}

std::string stencilGripName(StencilGrip grip) {
    constexpr int centerName = 612;
    constexpr int firstSideName = 613;
    constexpr int firstCornerName = 617;
    constexpr int firstRotationName = 621;
    switch (grip.kind) {
        case StencilGripKind::size:
            return MlString(firstSideName + grip.number, {});
        case StencilGripKind::sizeCorner:
            return MlString(firstCornerName + grip.number, {});
        case StencilGripKind::rotate:
            return MlString(firstRotationName + grip.number, {});
        case StencilGripKind::move:
            break;
    }
    return MlString(centerName, {});
}

}  // namespace ormala
