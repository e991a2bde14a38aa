#include "stencil/StencilPanel.h"

#include <algorithm>
#include <cstddef>

#include "stencil/PatternPicture.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilReadOuts.h"
#include "stencil/StencilSteps.h"
#include "stencil/stencilPanelDesign.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

// Of a stencil whose keys are missing in its file.
constexpr Rect fileRect{10, 10, 80, 60};
constexpr int fileFirstPattern = 6;
constexpr int noPattern = -1;

/// At 96 DPI.
constexpr int pictureWidth = 44;

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

StencilPanel::StencilPanel(ctlRatioGrid& tool, const PanelPorts& ports, StencilCommands& commands,
                           const ToolSettings& settings, const SpecialRatios& ratios)
    : SettingControl(tool, stencilPanelDesign(), ports),
      tool_(tool),
      commands_(commands),
      settings_(settings),
      ratios_(ratios) {}

void StencilPanel::setColor(ormala::Color color) {
    view().showButton(StencilControl::cmdColor, colorButtonLook(color));
    tool_.setColor(color);
}

void StencilPanel::stepMove(const Press& press) {
    const Grid* grid = press.shift != 0 ? &settings_.grid : nullptr;
    const StencilState state{tool_.RectBound(), tool_.RotationAngle(), {}};
    tool_.setRectBound(afterMoveStep(state, press.index, grid));
}

void StencilPanel::stepAngle(const Press& press) {
    tool_.ModifyAngle(press.index == 1, angleStepOf(press.shift));
}

void StencilPanel::clickAngleZero(const Press& press) {
    tool_.setRotationAngle(zeroAngleOf(press.shift));
    changed();
}

void StencilPanel::clickFullSize() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, true, false);
    changed();
}

void StencilPanel::clickMoveCenter(const Press& press) {
    tool_.CenterToScreen((press.shift & modifier::ctrl) != 0, 0, false, false);
    changed();
}

void StencilPanel::clickEditRatio() {
    const double present = PixelRatio(tool_.RectBound(), false);
    const auto wished = commands_.EditRatio(present);
    if (wished && *wished != present) {
        tool_.setRectBound(withPixelRatio(tool_.RectBound(), *wished));
        changed();
    }
}

void StencilPanel::clickSelectPattern() {
    PatternList patterns = tool_.PatternList();
    if (commands_.SelectPattern(patterns, patternTab_)) {
        tool_.setPatternList(patterns);
        changed();
    }
}

void StencilPanel::clickColor() {
    setColor(dialogs().SelectColor(Color()));
    AddHistoryStep();
}

void StencilPanel::clickSendMouseInput() {
    endPreview();
    commands_.applyMouseAction(tool_);
}

void StencilPanel::hoverSendMouseInput(bool over) {
    if (over) {
        view().runTimer(PanelTimer::tmrDelayMousePreview, previewMilliseconds);
    } else {
        endPreview();
    }
}

void StencilPanel::timerTicked(PanelTimer timer) {
    if (timer == PanelTimer::tmrDelayMousePreview) {
        view().runTimer(timer, 0);
        tool_.setPreviewMouseAction(true);
    } else {
        SettingControl::timerTicked(timer);
    }
}

void StencilPanel::endPreview() {
    view().runTimer(PanelTimer::tmrDelayMousePreview, 0);
    tool_.setPreviewMouseAction(false);
}

void StencilPanel::letGo() {
    SettingControl::letGo();
    endPreview();
}

/// All patterns of the tool together.
void StencilPanel::showState() {
    if (shownPatterns_ == tool_.PatternList()) {
        return;
    }
    shownPatterns_ = tool_.PatternList();
    view().showPicture(StencilControl::imgPattern, [patterns = *shownPatterns_](PixelSize size) {
        return GetPatternPicture(patterns, size, dark::liftedGround, plain::black,
                                 std::max(1, size.width / pictureWidth));
    });
}

void StencilPanel::readKeys(INIFile& file) {
    tool_.setRectBound(rectValue(file));
    tool_.setRotationAngle(finiteValue(file, "RotationAngle", 0));
    setColor(file.LongValue("Color", missingColor::stencil));
    setLineWidth(file.LongValue("LineWidth", ToolHabits{}.LineWidth));
    PatternList patterns = tool_.PatternList();
    for (std::size_t slot = 0; slot < patterns.size(); ++slot) {
        patterns[slot] = patternValue(file, slot);
    }
    tool_.setPatternList(patterns);
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
    return going;
}

void StencilPanel::setDefaultColors(ToolColors& colors) {
    setColor(colors.NextDefaultToolColor(static_cast<int>(ToolKind::stencil), false));
}

void StencilPanel::CenterToScreen(double offset) {
    tool_.CenterToScreen(false, offset, false, true);
}

std::vector<ControlText> StencilPanel::texts() const {
    return stencilReadOuts(tool_.RectBound(), tool_.RotationAngle(), ratios_, settings_.textForm);
}

void StencilPanel::placeByDefault() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, false, true);
}

}  // namespace ormala
