#include "measure/MeasureReadOuts.h"

#include "measure/measurePanelDesign.h"

namespace ormala {

std::vector<ControlText> measureReadOuts(const MeasureState& state, const MeasureUnits& units,
                                         const TextForm& form) {
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
        {MeasureControl::lblAngleA, "ab = " + angle(AngleAToB(state))},
        {MeasureControl::lblAngleB, "ba = " + angle(AngleBToA(state))},
        {MeasureControl::lblAngleVertA, angle(AngleVertA(state))},
        {MeasureControl::lblAngleVertB, angle(AngleVertB(state))},
        {MeasureControl::lblRatioA, "a:b = " + ratio(RatioAToB(state))},
        {MeasureControl::lblRatioB, "b:a = " + ratio(RatioBToA(state))},
        {MeasureControl::lblLengthA, "a = " + length(PixelLengthA(state))},
        {MeasureControl::lblLengthB, "b = " + length(PixelLengthB(state))},
    };
}

}  // namespace ormala
