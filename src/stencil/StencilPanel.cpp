#include "stencil/StencilPanel.h"

#include <cstddef>

#include "language/MlStringModule.h"
#include "stencil/PatternPicture.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilReadOuts.h"
#include "stencil/StencilSteps.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

constexpr int solidOnePixel = 2;

// Of a stencil whose keys are missing in its file.
constexpr Rect fileRect{10, 10, 80, 60};
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
                           const StencilPorts& stencilPorts, const ToolSettings& settings,
                           const SpecialRatios& ratios)
    : PanelCore(tool, tool.events(), tool.History(), ports),
      tool_(tool),
      commands_(stencilPorts.commands),
      previewTimer_(stencilPorts.previewTimer),
      settings_(settings),
      ratios_(ratios),
      repeat_(stencilPorts.tmrFast, [this] {
          setRepeating(false);
          AddHistoryStep();
      }) {
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

void StencilPanel::pressMove(int index, int shift) {
    setRepeating(true);
    repeat_.press(shift, [this, index, shift] { moveStep(index, shift); });
}

void StencilPanel::pressAngle(int index, int shift) {
    setRepeating(true);
    repeat_.press(shift, [this, index, shift] { angleStep(index, shift); });
}

void StencilPanel::pressMoveKey(int index, int shift) {
    repeat_.pressKey([this, index, shift] { moveStep(index, shift); });
}

void StencilPanel::pressAngleKey(int index, int shift) {
    repeat_.pressKey([this, index, shift] { angleStep(index, shift); });
}

void StencilPanel::moveStep(int index, int shift) {
    const Grid* grid = shift != 0 ? &settings_.grid : nullptr;
    const StencilState state{tool_.RectBound(), tool_.RotationAngle(), {}};
    tool_.setRectBound(afterMoveStep(state, index, grid));
    ShowAllProps(false);
}

void StencilPanel::angleStep(int index, int shift) {
    tool_.ModifyAngle(index == 1, angleStepOf(shift));
    ShowAllProps(false);
}

void StencilPanel::clickAngleZero(int shift) {
    tool_.setRotationAngle(zeroAngleOf(shift));
    changed();
}

void StencilPanel::clickFullSize() {
    tool_.setRotationAngle(0);
    tool_.CenterToScreen(false, 0, true, false);
    changed();
}

void StencilPanel::clickMoveCenter(int shift) {
    tool_.CenterToScreen((shift & modifier::ctrl) != 0, 0, false, false);
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
        AddHistoryStep();
        view().showPattern();
    }
}

void StencilPanel::clickColor() {
    setColor(commands_.SelectColor(Color()));
    AddHistoryStep();
}

void StencilPanel::clickLineStyle() {
    setLineWidth(commands_.SelectLineStyle(LineWidth()));
    AddHistoryStep();
}

void StencilPanel::clickSendMouseInput() {
    endPreview();
    commands_.applyMouseAction(tool_);
}

void StencilPanel::hoverSendMouseInput(bool over) {
    if (over) {
        previewTimer_.runPreviewTimer(true);
    } else {
        endPreview();
    }
}

void StencilPanel::showMousePreview() {
    previewTimer_.runPreviewTimer(false);
    tool_.setPreviewMouseAction(true);
}

void StencilPanel::endPreview() {
    previewTimer_.runPreviewTimer(false);
    tool_.setPreviewMouseAction(false);
}

void StencilPanel::letGo() {
    repeat_.stop();
    endPreview();
}

void StencilPanel::changed() {
    AddHistoryStep();
    ShowAllProps(false);
}

PixelImage StencilPanel::patternPicture(PixelSize size, int lineWidth) const {
    return GetPatternPicture(tool_.PatternList(), size, dark::liftedGround, plain::black,
                             lineWidth);
}

void StencilPanel::LoadFromFile(INIFile& file) {
    const ToolChanges changes(tool_);
    tool_.setRectBound(rectValue(file));
    tool_.setRotationAngle(finiteValue(file, "RotationAngle", 0));
    setColor(file.LongValue("Color", missingColor::stencil));
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
    return {Pause() ? dark::off : dark::on, Pause()};
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
