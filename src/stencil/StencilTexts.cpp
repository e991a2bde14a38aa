#include "stencil/StencilTexts.h"

#include <array>

#include "language/MlStringModule.h"
#include "modAPI/constants.h"

namespace ormala {

namespace {

std::string counted(double first, double last, const TextForm& form) {
    return formatPixels(CountedPixels(first, last), "0", form);
}

std::string sizeAlone(const Rect& rectBound, const TextForm& form) {
    return counted(rectBound.left, rectBound.right, form) + " x " +
           counted(rectBound.top, rectBound.bottom, form) + MlString(324, "  ratio = ") +
           FormatRatio(PixelRatio(rectBound, false), form);
}

std::string nameOf(SpecialRatioRow row, const SpecialRatios& ratios) {
    return ratios.SpecialRatioCaption(row.index, row.inverted, "  ", true);
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
    return row ? nameOf(*row, ratios) : "";
}

std::string sizeText(const Rect& rectBound, const SpecialRatios& ratios, const TextForm& form) {
    const std::string name = specialRatioText(PixelRatio(rectBound, false), ratios);
    return sizeAlone(rectBound, form) + (name.empty() ? "" : "\r\n" + name);
}

std::string sizeTextNearRatio(const Rect& rectBound, const SpecialRatios& ratios,
                              const TextForm& form) {
    SpecialRatioRow row;
    row.index = NearestSpecialRatio(PixelRatio(rectBound, false), row.inverted);
    return sizeAlone(rectBound, form) + "\r\n" + nameOf(row, ratios);
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
