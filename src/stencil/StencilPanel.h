#pragma once

#include "base/Event.h"
#include "scene/PixelImage.h"
#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilCommands.h"
#include "stencil/ctlRatioGrid.h"
#include "toolkit/PanelCore.h"
#include "toolkit/RepeatButton.h"
#include "toolkit/toolKeys.h"

namespace ormala {

/// What a stencil's panel works with beside what all panels do. All must outlive it.
struct StencilPorts {
    StencilCommands& commands;
    PreviewTimer& previewTimer;
    /// The shared clock of held buttons, 40 ms.
    Event<>& tmrFast;
};

/// The core of a stencil's panel. Each event of a button is one call; `shift` are the modifiers of
/// the press.
class StencilPanel : public PanelCore {
  public:
    /// All must outlive the panel.
    StencilPanel(ctlRatioGrid& tool, const PanelPorts& ports, const StencilPorts& stencilPorts,
                 const ToolSettings& settings, const SpecialRatios& ratios);

    [[nodiscard]] ctlRatioGrid& RefControl() { return tool_; }

    [[nodiscard]] ormala::Color Color() const { return tool_.Color(); }
    void setColor(ormala::Color color);
    [[nodiscard]] int LineWidth() const { return tool_.LineWidth(); }
    void setLineWidth(int lineCode);

    /// The left button goes down on `cmdMove(index)` or `cmdAngle(index)`: a step at once, and more
    /// while it is held.
    void pressMove(int index, int shift);
    void pressAngle(int index, int shift);
    /// The same by the space bar: one step at each key-down.
    void pressMoveKey(int index, int shift);
    void pressAngleKey(int index, int shift);
    /// The mouse button goes up, or the button loses the mouse: all steps since the press are one
    /// step of undo. Nothing if the mouse holds none.
    void release() { repeat_.release(); }
    /// The same of the space bar, which also ends its steps by losing the focus.
    void releaseKey() { repeat_.releaseKey(); }

    void clickAngleZero(int shift);
    void clickFullSize();
    void clickMoveCenter(int shift);
    void clickEditRatio();
    void clickSelectPattern();
    void clickColor();
    void clickLineStyle();
    void clickSendMouseInput();
    /// The mouse comes over `cmdSendMouseInput` or leaves it.
    void hoverSendMouseInput(bool over);
    /// The tick of `tmrDelayMousePreview`.
    void showMousePreview();

    /// All patterns of the tool together, for `imgPattern`, in lines of that width.
    [[nodiscard]] PixelImage patternPicture(PixelSize size, int lineWidth = 1) const;

    void LoadFromFile(INIFile& file) override;
    void StoreToFile(INIFile& file) const override;
    [[nodiscard]] bool EqualsFile(INIFile& file) const override;

    [[nodiscard]] int Number() const override { return 0; }
    void setNumber(int /*number*/) override {}
    void setDefaultLook(ToolColors& colors) override;
    void SetDefaultProperties() override { tool_.SetDefaultProperties(); }
    void setUnits(const MeasureUnits& /*units*/) override {}
    void inherit(const ToolPanel& former) override;
    void CenterToScreen(double offset) override;
    void finish() override;

  private:
    [[nodiscard]] std::vector<ControlText> texts() const override;
    [[nodiscard]] ButtonLook pauseLook() const override;
    [[nodiscard]] bool pauseDimsLabels() const override { return true; }
    [[nodiscard]] std::string removeText() const override;
    void showState() override {}
    void stateReplaced() override { view().showPattern(); }
    void placeByDefault() override;
    void otherKeyDown(int key) override;
    void letGo() override;
    void moveStep(int index, int shift);
    void angleStep(int index, int shift);
    void endPreview();
    /// A change by the panel is complete and shows.
    void changed();
    bool visitKeys(ToolKeys& keys) const;

    ctlRatioGrid& tool_;
    StencilCommands& commands_;
    PreviewTimer& previewTimer_;
    const ToolSettings& settings_;
    const SpecialRatios& ratios_;
    RepeatButton repeat_;
    /// The page at which the dialog of patterns opens.
    int patternTab_ = 0;
};

}  // namespace ormala
