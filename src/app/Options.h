#pragma once

#include <string>

#include "modAPI/colors.h"
#include "modAPI/transforms.h"
#include "storage/INIFile.h"
#include "widgets/MeasureUnits.h"

namespace ormala {

/// The magnifier's part of the options.
struct LensOptions {
    /// 1 to 10.
    int factor = 4;
    bool sticked = false;
    bool cursorOn = true;
    bool hotSpotOn = true;
    Color hotSpotColor = rgb(0, 0, 255);
    int hotSpotStyle = 2;
    int hotSpotDrawMode = 9;
    bool gridOn = true;
    Color gridColor = rgb(191, 191, 191);
    int gridDrawMode = 9;
    bool topScales = true;
    bool bottomScales = true;
    int topOrigin = 0;
    int bottomOrigin = 1;

    bool operator==(const LensOptions&) const = default;
};

/// All that the options file keeps, with the defaults of a first start.
struct Options {
    bool showReferenceLines = true;
    bool templateWithBorder = false;
    bool circleCompass = true;
    /// 0 edit, 1 template, 2 pause.
    int mode = 0;
    /// Percent, 0 to 100.
    int transparencyEditMode = 25;
    int transparencyTemplateMode = 50;
    /// 9 English, 1031 German.
    int language = 9;
    /// Twips.
    int editModeFormHeight = 0;
    /// Of new measuring tools. The file holds the factor as a whole number.
    MeasureUnits defaultUnits;
    Color worksheetColor = 0x4F4F4F;
    bool crossHairEnabled = false;
    bool gridEnabled = false;
    /// 0 none, 1 points, 2 lines.
    int gridStyle = 2;
    int gridLineWidth = 2;
    Color gridColor = 0x7D7D7D;
    Grid grid;
    bool lensVisible = false;
    LensOptions lens;

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
