#include "stencil/ctlSetRatioGrid.h"

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

ctlSetRatioGrid::ctlSetRatioGrid(ctlRatioGrid& tool, const PanelPorts& ports,
                                 StencilCommands& commands, const ToolSettings& settings,
                                 const SpecialRatios& ratios)
    : SettingControl(tool, stencilPanelDesign(), ports),
      tool_(tool),
      commands_(commands),
      settings_(settings),
      ratios_(ratios) {}

void ctlSetRatioGrid::setColor(ormala::Color color) {
    view().showButton(StencilControl::cmdColor, colorButtonLook(color));
    tool_.setColor(color);
}

void ctlSetRatioGrid::stepMove(const Press& press) {
    const Grid* grid = press.shift != 0 ? &settings_.grid : nullptr;
    const StencilState state{tool_.RectBound(), tool_.RotationAngle(), {}};
    tool_.setRectBound(afterMoveStep(state, press.index, grid));
}

void ctlSetRatioGrid::stepAngle(const Press& press) {
    tool_.ModifyAngle(press.index == 1, angleStepOf(press.shift));
}

void ctlSetRatioGrid::clickAngleZero(const Press& press) {
    tool_.setRotationAngle(zeroAngleOf(press.shift));
    changed();
}

void ctlSetRatioGrid::clickFullSize() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, true, false);
    changed();
}

void ctlSetRatioGrid::clickMoveCenter(const Press& press) {
    tool_.CenterToScreen((press.shift & modifier::ctrl) != 0, 0, false, false);
    changed();
}

void ctlSetRatioGrid::clickEditRatio() {
    const double present = PixelRatio(tool_.RectBound(), false);
    const auto wished = commands_.EditRatio(present);
    if (wished && *wished != present) {
        tool_.setRectBound(withPixelRatio(tool_.RectBound(), *wished));
        changed();
    }
}

void ctlSetRatioGrid::clickSelectPattern() {
    PatternList patterns = tool_.PatternList();
    if (commands_.SelectPattern(patterns, patternTab_)) {
        tool_.setPatternList(patterns);
        changed();
    }
}

void ctlSetRatioGrid::clickColor() {
    setColor(dialogs().SelectColor(Color()));
    AddHistoryStep();
}

void ctlSetRatioGrid::clickSendMouseInput() {
    endPreview();
    commands_.applyMouseAction(tool_);
}

void ctlSetRatioGrid::hoverSendMouseInput(bool over) {
    if (over) {
        view().runTimer(PanelTimer::tmrDelayMousePreview, previewMilliseconds);
    } else {
        endPreview();
    }
}

void ctlSetRatioGrid::timerTicked(PanelTimer timer) {
    if (timer == PanelTimer::tmrDelayMousePreview) {
        view().runTimer(timer, 0);
        tool_.setPreviewMouseAction(true);
    } else {
        SettingControl::timerTicked(timer);
    }
}

void ctlSetRatioGrid::endPreview() {
    view().runTimer(PanelTimer::tmrDelayMousePreview, 0);
    tool_.setPreviewMouseAction(false);
}

void ctlSetRatioGrid::letGo() {
    SettingControl::letGo();
    endPreview();
}

/// All patterns of the tool together.
void ctlSetRatioGrid::showState() {
    if (shownPatterns_ == tool_.PatternList()) {
        return;
    }
    shownPatterns_ = tool_.PatternList();
    view().showPicture(StencilControl::imgPattern, [patterns = *shownPatterns_](PixelSize size) {
        return GetPatternPicture(patterns, size, dark::liftedGround, plain::black,
                                 std::max(1, size.width / pictureWidth));
    });
}

void ctlSetRatioGrid::readKeys(INIFile& file) {
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

bool ctlSetRatioGrid::visitKeys(ToolKeys& keys) const {
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

void ctlSetRatioGrid::setDefaultColors(ToolColors& colors) {
    setColor(colors.NextDefaultToolColor(static_cast<int>(ToolKind::stencil), false));
}

void ctlSetRatioGrid::CenterToScreen(double offset) {
    tool_.CenterToScreen(false, offset, false, true);
}

std::vector<ControlText> ctlSetRatioGrid::texts() const {
    return stencilReadOuts(tool_.RectBound(), tool_.RotationAngle(), ratios_, settings_.textForm);
}

void ctlSetRatioGrid::placeByDefault() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, false, true);
}

}  // namespace ormala
