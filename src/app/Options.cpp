#include "app/Options.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "modAPI/rounding.h"

namespace ormala {

namespace {

/// Shows `visitor` every key with its value, in the order of the file.
template <typename AnyOptions, typename Visitor>
void visitLens(AnyOptions& lens, Visitor&& visitor) {
    visitor("LensFactor", lens.factor);
    visitor("LensSticked", lens.sticked);
    visitor("LensCursorOn", lens.cursorOn);
    visitor("LensHotSpotOn", lens.hotSpotOn);
    visitor("LensHotSpotColor", lens.hotSpotColor);
    visitor("LensHotSpotStyle", lens.hotSpotStyle);
    visitor("LensHotSpotDrawMode", lens.hotSpotDrawMode);
    visitor("LensGridOn", lens.gridOn);
    visitor("LensGridColor", lens.gridColor);
    visitor("LensGridDrawMode", lens.gridDrawMode);
    visitor("LensRulTOn", lens.topScales);
    visitor("LensRulBOn", lens.bottomScales);
    visitor("LensRulTOrigin", lens.topOrigin);
    visitor("LensRulBOrigin", lens.bottomOrigin);
}

template <typename AnyOptions, typename Visitor>
void visitOptions(AnyOptions& options, Visitor&& visitor) {
    visitor("ShowReferenceLines", options.showReferenceLines);
    visitor("TemplateWithBorder", options.templateWithBorder);
    visitor("CircleCompass", options.aids.circleCompass);
    visitor("Mode", options.mode);
    visitor("TransparencyEditMode", options.transparencyEditMode);
    visitor("TransparencyTemplateMode", options.transparencyTemplateMode);
    visitor("Language", options.language);
    visitor("EditModeFormHeight", options.editModeFormHeight);
    visitor("DefaultAngleMode", options.defaultUnits.AngleMode);
    visitor("DefaultLengthMode", options.defaultUnits.LengthMode);
    visitor("DefaultLengthFactor", options.defaultUnits.LengthFactor);
    visitor("DefaultLengthUnit", options.defaultUnits.LengthUnit);
    visitor("WorksheetColor", options.worksheetColor);
    visitor("CrossHairEnabled", options.aids.crossHair);
    visitor("GridEnabled", options.aids.grid.enabled);
    visitor("GridStyle", options.aids.grid.style);
    visitor("GridLineWidth", options.aids.grid.lineWidth);
    visitor("GridColor", options.aids.grid.color);
    visitor("GridSizeX", options.aids.grid.steps.stepX);
    visitor("GridSizeY", options.aids.grid.steps.stepY);
    visitor("GridOffsetX", options.aids.grid.steps.originX);
    visitor("GridOffsetY", options.aids.grid.steps.originY);
    visitor("LensVisible", options.lensVisible);
    visitLens(options.lens, visitor);
    visitor("LogicalPixels", options.logicalPixels);
}

/// Each value as it stands is the key's default.
class KeyReader {
  public:
    explicit KeyReader(INIFile& file) : file_(file) {}

    void operator()(const char* key, bool& value) const {
        value = file_.LongValue(key, value ? -1 : 0) != 0;
    }
    void operator()(const char* key, int& value) const { value = file_.LongValue(key, value); }
    void operator()(const char* key, Mode& value) const {
        value = static_cast<Mode>(file_.LongValue(key, numberOf(value)));
    }
    /// A whole number, and the only one that can be larger than others.
    void operator()(const char* key, double& value) const {
        const double stored = RoundHalfAway(file_.DoubleValue(key, value), 0);
        const bool large = std::abs(stored) > std::numeric_limits<int>::max();
        value = large ? stored : file_.LongValue(key, static_cast<int>(value));
    }
    void operator()(const char* key, std::string& value) const {
        value = file_.TextValue(key, value);
    }

  private:
    INIFile& file_;
};

class KeyWriter {
  public:
    explicit KeyWriter(INIFile& file) : file_(file) {}

    void operator()(const char* key, bool value) const { file_.setLongValue(key, value ? -1 : 0); }
    void operator()(const char* key, int value) const { file_.setLongValue(key, value); }
    void operator()(const char* key, Mode value) const { file_.setLongValue(key, numberOf(value)); }
    void operator()(const char* key, double value) const {
        file_.setDoubleValue(key, RoundHalfAway(value, 0));
    }
    void operator()(const char* key, const std::string& value) const {
        file_.setStringValue(key, value);
    }

  private:
    INIFile& file_;
};

/// Values that no control of the program could have set.
void mend(Options& options) {
    const Options first;
    if (!isMode(options.mode)) {
        options.mode = first.mode;
    }
    options.transparencyEditMode = std::clamp(options.transparencyEditMode, 0, 100);
    options.transparencyTemplateMode = std::clamp(options.transparencyTemplateMode, 0, 100);
    if (!(options.defaultUnits.LengthFactor > 0)) {
        options.defaultUnits.LengthFactor = first.defaultUnits.LengthFactor;
    }
    if (options.aids.grid.steps.stepX < 1) {
        options.aids.grid.steps.stepX = first.aids.grid.steps.stepX;
    }
    if (options.aids.grid.steps.stepY < 1) {
        options.aids.grid.steps.stepY = first.aids.grid.steps.stepY;
    }
    options.lens.factor = std::clamp(options.lens.factor, 1, 10);
}

}  // namespace

Options readOptions(INIFile& file, int language) {
    Options options;
    options.language = language;
    visitOptions(options, KeyReader(file));
    mend(options);
    return options;
}

void writeOptions(INIFile& file, const Options& options) {
    visitOptions(options, KeyWriter(file));
}

}  // namespace ormala
