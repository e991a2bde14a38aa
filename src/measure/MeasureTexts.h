#pragma once

#include <string>

#include "measure/MeasureGrips.h"
#include "measure/MeasureState.h"
#include "modAPI/textForms.h"
#include "toolkit/MeasureUnits.h"

namespace ormala {

// The texts of the labels, on two lines each; the tool's number leads.

std::string lengthTextA(const MeasureState& state, int number, const MeasureUnits& units,
                        const TextForm& form);
std::string lengthTextB(const MeasureState& state, int number, const MeasureUnits& units,
                        const TextForm& form);
std::string angleText(double angle, int number, const MeasureUnits& units, const TextForm& form);
/// Both angles, for lines that are not connected.
std::string bothAnglesText(const MeasureState& state, int number, const MeasureUnits& units,
                           const TextForm& form);

// What tool and grips are called, and what is measured, where it is read aloud.

std::string measureName(int number);
std::string measureGripName(MeasureGrip grip);
/// Both lengths, the ratio and the angle on one line.
std::string measuredText(const MeasureState& state, const MeasureUnits& units,
                         const TextForm& form);

}  // namespace ormala
