#include "stencil/StencilPanel.h"

#include <cstddef>

#include "language/MlStringModule.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilReadOuts.h"

namespace ormala {

namespace {

constexpr int solidOnePixel = 2;

// Of a stencil whose keys are missing in its file.
constexpr Rect fileRect{10, 10, 80, 60};
constexpr Color fileColor = 0xFFFF00;
constexpr int fileFirstPattern = 6;
constexpr int noPattern = -1;

/// The keys of a pattern slot, counted from 1.
std::string patternKey(std::size_t slot) {
    return "PatternID" + std::to_string(slot + 1);
}
std::string preRotationKey(std::size_t slot) {
    return "PatternPreRotation" + std::to_string(slot + 1);
}

Rect rectValue(INIFile& file) {
    Rect rect;
    rect.top = finiteValue(file, "RectBoundTop", fileRect.top);
    rect.right = finiteValue(file, "RectBoundRight", fileRect.right);
    rect.bottom = finiteValue(file, "RectBoundBottom", fileRect.bottom);
    rect.left = finiteValue(file, "RectBoundLeft", fileRect.left);
    return rect;
}

PatternSetting patternValue(INIFile& file, std::size_t slot) {
    const int missing = slot == 0 ? fileFirstPattern : noPattern;
    return {PatternIndexFromId(file.LongValue(patternKey(slot), missing)),
            finiteValue(file, preRotationKey(slot), 0)};
}

}  // namespace

StencilPanel::StencilPanel(ctlRatioGrid& tool, const PanelPorts& ports,
                           const ToolSettings& settings, const SpecialRatios& ratios)
    : PanelCore(tool, tool.events(), tool.History(), ports),
      tool_(tool),
      settings_(settings),
      ratios_(ratios) {
    ShowAllProps(false);
}

void StencilPanel::setColor(ormala::Color color) {
    view().showButton("cmdColor", colorButtonLook(color));
    tool_.setColor(color);
}

void StencilPanel::setLineWidth(int lineCode) {
    tool_.setLineWidth(lineCode);
    view().showLineStyle(lineCode);
}

void StencilPanel::LoadFromFile(INIFile& file) {
    tool_.setRectBound(rectValue(file));
    tool_.setRotationAngle(finiteValue(file, "RotationAngle", 0));
    setColor(file.LongValue("Color", fileColor));
    setLineWidth(file.LongValue("LineWidth", solidOnePixel));
    PatternList patterns = tool_.PatternList();
    for (std::size_t slot = 0; slot < patterns.size(); ++slot) {
        patterns[slot] = patternValue(file, slot);
    }
    tool_.setPatternList(patterns);
    setPause(flagValue(file, "Hide", false));
    finish();
}

void StencilPanel::StoreToFile(INIFile& file) const {
    ToolKeyWriter writer(file);
    visitKeys(writer);
}

bool StencilPanel::EqualsFile(INIFile& file) const {
    ToolKeyComparer comparer(file);
    return visitKeys(comparer);
}

bool StencilPanel::visitKeys(ToolKeys& keys) const {
    const Rect& rect = tool_.RectBound();
    bool going =
        keys.number("RectBoundTop", rect.top) && keys.number("RectBoundRight", rect.right) &&
        keys.number("RectBoundBottom", rect.bottom) && keys.number("RectBoundLeft", rect.left) &&
        keys.number("RotationAngle", tool_.RotationAngle()) && keys.integer("Color", Color()) &&
        keys.integer("LineWidth", LineWidth());
    const PatternList& patterns = tool_.PatternList();
    for (std::size_t slot = 0; slot < patterns.size(); ++slot) {
        going = going &&
                keys.integer(patternKey(slot), PatternIdFromIndex(patterns[slot].Pattern)) &&
                keys.number(preRotationKey(slot), patterns[slot].PreRotation);
    }
    return going && keys.flag("Hide", Pause());
}

void StencilPanel::setDefaultLook(ToolColors& colors) {
    setColor(colors.NextDefaultToolColor(static_cast<int>(ToolKind::stencil), false));
    setLineWidth(solidOnePixel);
}

void StencilPanel::inherit(const ToolPanel& former) {
    setLineWidth(dynamic_cast<const StencilPanel&>(former).LineWidth());
}

void StencilPanel::CenterToScreen(double offset) {
    tool_.CenterToScreen(false, offset, false, true);
}

void StencilPanel::finish() {
    ShowAllProps(false);
    InitializeFinished();
    view().showPattern();
}

std::vector<ControlText> StencilPanel::texts() const {
    return stencilReadOuts(tool_.RectBound(), tool_.RotationAngle(), ratios_, settings_.textForm);
}

ButtonLook StencilPanel::pauseLook() const {
    return {Pause() ? offColor : onColor, Pause()};
}

std::string StencilPanel::removeText() const {
    return MlString(328, "Remove stencil tool ");
}

void StencilPanel::placeByDefault() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, false, true);
}

void StencilPanel::otherKeyDown(int key) {
    if (key == key::end) {
        setDefaultPlace();
    }
}

}  // namespace ormala
