#pragma once

#include <string>

#include "magnifier/LensOptions.h"
#include "modAPI/drawingColors.h"
#include "scene/Mode.h"
#include "storage/INIFile.h"
#include "toolkit/MeasureUnits.h"
#include "worksheet/AidOptions.h"

namespace ormala {

/// All that the options file keeps, with the defaults of a first start.
struct Options {
    bool showReferenceLines = true;
    bool templateWithBorder = false;
    Mode mode = Mode::edit;
    /// Percent, 0 to 100.
    int transparencyEditMode = 25;
    int transparencyTemplateMode = 50;
    /// 9 English, 1031 German.
    int language = 9;
    /// Twips.
    int editModeFormHeight = 0;
    /// Of new measuring tools. The file holds the factor as a whole number.
    MeasureUnits defaultUnits;
    Color worksheetColor = firstColor::worksheet;
    AidOptions aids;
    bool lensVisible = false;
    LensOptions lens;
    /// The read-outs count in logical pixels of the worksheet's monitor.
    bool logicalPixels = false;

    bool operator==(const Options&) const = default;
};

/// The section of the options file.
inline constexpr const char* optionsSection = "Options";

/// Reads every key from the current section. `language` is the one of a first start. A value that
/// would harm, such as a grid without a step, becomes one that a control of the program could set.
Options readOptions(INIFile& file, int language);

/// Writes every key to the current section, in the file's order.
void writeOptions(INIFile& file, const Options& options);

}  // namespace ormala
