#pragma once

#include <string>

#include "scene/ToolSettings.h"
#include "stencil/MouseActionPreview.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilAids.h"
#include "stencil/StencilDrag.h"
#include "stencil/StencilGrips.h"
#include "stencil/StencilState.h"
#include "storage/StateHistory.h"
#include "toolkit/GripTool.h"

namespace ormala {

/// The stencil: a rectangle that is placed, sized and turned on the worksheet and shows up to five
/// patterns. Owned by the worksheet; host, settings and ratios must outlive it.
class ctlRatioGrid : public GripTool {
  public:
    /// Laid out by its first change.
    ctlRatioGrid(ToolHost& host, const ToolSettings& settings, const SpecialRatios& ratios);
    ~ctlRatioGrid() override;
    ctlRatioGrid(const ctlRatioGrid&) = delete;
    ctlRatioGrid& operator=(const ctlRatioGrid&) = delete;

    void mouseMove(const MouseInput& input, const MouseSource& source) override;
    void mouseUp(const MouseInput& input, const MouseSource& source) override;
    void keyDown(int key, int shift) override;
    void gotFocus() override;
    void resize(PixelSize size) override;
    void draw(Canvas& canvas) const override;

    /// Angle 0 and the one pattern "Section double".
    void SetDefaultProperties();
    [[nodiscard]] ormala::Color Color() const { return color_; }
    void setColor(ormala::Color color);
    [[nodiscard]] const ormala::PatternList& PatternList() const { return state_.PatternList; }
    void setPatternList(const ormala::PatternList& patterns);
    [[nodiscard]] const Rect& RectBound() const { return state_.RectBound; }
    void setRectBound(const Rect& rect);
    [[nodiscard]] double RotationAngle() const { return state_.RotationAngle; }
    void setRotationAngle(double angle);
    /// Brings every visual item in line with the state, unless several changes are under way.
    void PositionAll();
    void ModifyAngle(bool negative, AngleStep stepKind);
    /// To the centre of the worksheet, shifted by `offset` pixels both ways; over the whole of it
    /// with `fitWorksheet`. The angle stays.
    void CenterToScreen(bool alignToGrid, double offset, bool fitWorksheet, bool defaultSize);

    [[nodiscard]] bool PreviewMouseAction() const { return previewMouseAction_; }
    void setPreviewMouseAction(bool preview);
    void ShowMouseAction();

    [[nodiscard]] HistoryHelper& History() override { return history_.helper(); }
    [[nodiscard]] const StencilAids& aids() const { return aids_; }
    [[nodiscard]] const MouseActionPreview& mouseAction() const { return mouseAction_; }

  private:
    void layOut() override { PositionAll(); }
    void beginDrag(const MouseInput& input) override;
    void drag(const MouseInput& input) override;
    void hideAids() override { aids_.hide(); }
    [[nodiscard]] TipId tipOf(int grip) const override;
    [[nodiscard]] SpokenTool words(int ordinal) const override;
    [[nodiscard]] std::string gripName(int grip) const override;
    [[nodiscard]] std::string gripValue(int grip) const override;
    void addItemsTo(DirtyRegion& region, const PixelRect& area) const override;
    void playMouseAction();

    void setDefaultState();
    void load(const StencilState& state);
    [[nodiscard]] std::string dragState(const GripDrag& held);
    [[nodiscard]] std::string dragText(const GripDrag& held) const;
    /// What the read-out beside such a grip says of the state.
    [[nodiscard]] std::string gripText(StencilGripKind kind) const;
    void moveCenterByKey(int dx, int dy, bool byGrid);
    void PositionGrips();
    [[nodiscard]] bool turned() const;
    [[nodiscard]] Pen pen() const { return {color_, LineWidth()}; }

    const ToolSettings& settings_;
    const SpecialRatios& ratios_;

    StencilState state_;
    ormala::Color color_ = 0;
    bool previewMouseAction_ = false;
    /// The move that comes with a change of focus is no move of the hand.
    bool skipNextMove_ = false;

    StencilAids aids_;
    MouseActionPreview mouseAction_;
    Ticking mouseActionTicking_{[this] { playMouseAction(); }};
    GripDrag held_;
    /// Rectangle and angle at the press, from which each move of a drag is worked out.
    Rect pressBound_;
    double pressAngle_ = 0;
    /// A move of the drag was left out; the release makes up for it.
    bool moveOwed_ = false;
    StateHistory<StencilState> history_;
};

}  // namespace ormala
