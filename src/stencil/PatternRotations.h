#pragma once

#include <optional>
#include <string>
#include <vector>

#include "modAPI/textForms.h"

// The rows of the list `cboRotation`, counted from 0.

namespace ormala {

/// "1/8 = 45°", in the user's language.
std::vector<std::string> rotationTexts(const TextForm& form);

/// Radians; nothing for a row that there isn't.
std::optional<double> rotationOfRow(int row);

/// The row of an angle to a millionth of a turn; nothing for any other angle.
std::optional<int> rowOfRotation(double preRotation);

}  // namespace ormala
