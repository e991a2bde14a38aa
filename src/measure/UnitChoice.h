#pragma once

#include <array>
#include <string>
#include <string_view>

#include "storage/CodePage.h"
#include "toolkit/MeasureUnits.h"

namespace ormala {

/// The names of units that the dialog proposes. Nothing stands behind them: no number follows a
/// name.
inline constexpr std::array<std::string_view, 15> unitProposals = {
    "nm", "µm", "mm", "cm", "dm", "m", "km", "in", "ft", "yd", "mi", "NM", "pc", "AU", "ly"};

/// The longest name of a unit, in UTF-16 characters.
inline constexpr int longestUnit = 15;

/// What is entered in the dialog of the units.
struct UnitChoice {
    MeasureUnits units;
    /// New tools get these units too.
    bool asDefault = false;

    /// Pixels have neither factor nor name.
    [[nodiscard]] bool hasRealUnit() const { return units.LengthMode != 0; }
    /// Whether it can be confirmed: a real unit has a factor above 0.
    [[nodiscard]] bool isValid() const;
    /// The units as they are stored, the name without blanks at its ends.
    [[nodiscard]] MeasureUnits stored() const;
};

/// Whether one more character can be typed into a name.
bool unitTakesKey(std::string_view name);

/// Whether a settings file gives the name back as it is: it drops blanks in front, and knows only
/// the characters of its code page.
bool unitIsStorable(std::string_view name, const CodePage& codePage);

/// What becomes of a name that has changed, such as by pasting: without blanks in front, cut to its
/// longest, and the former one if that can't be stored.
std::string unitCorrected(std::string_view former, std::string_view name, const CodePage& codePage);

}  // namespace ormala
