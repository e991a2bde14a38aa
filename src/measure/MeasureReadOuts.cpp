#include "measure/MeasureReadOuts.h"

#include "measure/measurePanelDesign.h"

namespace ormala {

std::vector<ControlText> measureReadOuts(const MeasureState& state, const MeasureUnits& units,
                                         const TextForm& form) {
    using enum MeasureControl;
    const auto angle = [&](double value) {
        return FormatAngle(value, units.AngleMode, form) + " ";
    };
    const auto ratio = [&](double value) { return FormatRatio(value, form) + " "; };
    // The length of line a is the reference of both lines.
    const auto length = [&](double value) {
        return FormatLength(value, units.LengthMode, units.LengthFactor, units.LengthUnit,
                            PixelLengthA(state), form) +
               " ";
    };
    return {
        {lblAngleA, "ab = " + angle(AngleAToB(state))},
        {lblAngleB, "ba = " + angle(AngleBToA(state))},
        {lblAngleVertA, angle(AngleVertA(state))},
        {lblAngleVertB, angle(AngleVertB(state))},
        {lblRatioA, "a:b = " + ratio(RatioAToB(state))},
        {lblRatioB, "b:a = " + ratio(RatioBToA(state))},
        {lblLengthA, "a = " + length(PixelLengthA(state))},
        {lblLengthB, "b = " + length(PixelLengthB(state))},
    };
}

}  // namespace ormala
