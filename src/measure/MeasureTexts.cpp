#include "measure/MeasureTexts.h"

#include "language/MlStringModule.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

/// The length of line a is the reference of both lines.
std::string lengthText(const MeasureState& state, double length, const MeasureUnits& units,
                       const TextForm& form) {
    return FormatLength(length, units.LengthMode, units.LengthFactor, units.LengthUnit,
                        PixelLengthA(state), form);
}

}  // namespace

std::string lengthTextA(const MeasureState& state, int number, const MeasureUnits& units,
                        const TextForm& form) {
    return std::to_string(number) + " a = " + lengthText(state, PixelLengthA(state), units, form) +
           lineBreak + "a:b = " + FormatRatio(RatioAToB(state), form);
}

std::string lengthTextB(const MeasureState& state, int number, const MeasureUnits& units,
                        const TextForm& form) {
    return std::to_string(number) + " b = " + lengthText(state, PixelLengthB(state), units, form) +
           lineBreak + "b:a = " + FormatRatio(RatioBToA(state), form);
}

std::string angleText(double angle, int number, const MeasureUnits& units, const TextForm& form) {
    return std::to_string(number) + lineBreak + FormatAngle(angle, units.AngleMode, form);
}

std::string bothAnglesText(const MeasureState& state, int number, const MeasureUnits& units,
                           const TextForm& form) {
    return angleText(AngleBToA(state), number, units, form) + " (" +
           FormatAngle(AngleAToB(state), units.AngleMode, form) + ")";
}

std::string measureName(int number) {
    return MlString(325, "Measurement Tool ") + std::to_string(number);
}

std::string measureGripName(MeasureGrip grip) {
    constexpr int firstName = 625;
    return MlString(firstName + static_cast<int>(grip), {});
}

std::string measuredText(const MeasureState& state, const MeasureUnits& units,
                         const TextForm& form) {
    return "a = " + lengthText(state, PixelLengthA(state), units, form) +
           ", b = " + lengthText(state, PixelLengthB(state), units, form) +
           ", a:b = " + FormatRatio(RatioAToB(state), form) +
           ", ab = " + FormatAngle(AngleAToB(state), units.AngleMode, form);
}

}  // namespace ormala
