#pragma once

#include "scene/GripSet.h"
#include "scene/ToolControl.h"
#include "storage/HistoryHelper.h"

namespace ormala {

/// What all tools have in common: grips that grow under the mouse and are dragged one at a time,
/// selection and focus, a step of undo at the end of each drag, and the repainting of what has
/// changed. A kind of tool adds its state, its shape and what its grips do.
class GripTool : public ToolControl, public OverlayItem {
  public:
    GripTool(const GripTool&) = delete;
    GripTool& operator=(const GripTool&) = delete;

    [[nodiscard]] ToolEvents& events() { return events_; }

    void GlobalMouseMove(const MouseInput& input, const MouseSource& source) override;
    [[nodiscard]] bool Selected() const override { return selected_; }
    void setSelected(bool selected) override;
    [[nodiscard]] bool EditMode() const override { return editMode_; }
    void setEditMode(bool editMode) override;
    void LoseFocus() override;
    void beginChanges() override { ++openChanges_; }
    void endChanges() override;
    [[nodiscard]] SpokenTool spoken(int ordinal) const override;
    [[nodiscard]] std::vector<SpokenGrip> spokenGrips(int ordinal) const override;

    [[nodiscard]] ToolControl& control() override { return *this; }
    [[nodiscard]] bool HitTest(double x, double y) const override;
    void mouseDown(const MouseInput& input, const MouseSource& source) override;
    void mouseMove(const MouseInput& input, const MouseSource& source) override;
    void mouseUp(const MouseInput& input, const MouseSource& source) override;
    void gotFocus() override;
    void resize(PixelSize size) override;
    [[nodiscard]] const DirtyRegion& footprint() const override { return footprint_; }

    [[nodiscard]] bool HasFocus() const { return hasFocus_; }
    [[nodiscard]] int LineWidth() const { return lineWidth_; }
    void setLineWidth(int lineCode);
    [[nodiscard]] virtual HistoryHelper& History() = 0;
    [[nodiscard]] const GripSet& grips() const { return grips_; }

  protected:
    /// `host` must outlive the tool.
    GripTool(ToolHost& host, GripSet grips);

    /// Brings every visual item in line with the state and repaints, unless several changes are
    /// under way.
    virtual void layOut() = 0;
    /// The mouse has taken hold of the active grip.
    virtual void beginDrag(const MouseInput& input) = 0;
    /// The mouse has moved the active grip.
    virtual void drag(const MouseInput& input) = 0;
    /// What only a drag shows is not to be seen any more.
    virtual void hideAids() = 0;
    [[nodiscard]] virtual TipId tipOf(int grip) const = 0;
    /// What the tool says of itself, without its grips.
    [[nodiscard]] virtual SpokenTool words(int ordinal) const = 0;
    [[nodiscard]] virtual std::string gripName(int grip) const = 0;
    /// Where it is or what it has made of the tool, as a drag of it reads out.
    [[nodiscard]] virtual std::string gripValue(int grip) const = 0;
    /// The pixels that `draw` covers beside the grips, cut to `area`.
    virtual void addItemsTo(DirtyRegion& region, const PixelRect& area) const = 0;

    /// Repaints what the tool covered and what it covers now, unless several changes are under
    /// way.
    void refresh();
    [[nodiscard]] bool changing() const { return openChanges_ > 0; }
    void SetGripColors();

    [[nodiscard]] ToolHost& host() { return host_; }
    [[nodiscard]] GripSet& gripSet() { return grips_; }
    [[nodiscard]] PixelSize sheet() const { return sheet_; }

  private:
    void UpdateGripHover(const MouseInput& input, HoverMode mode, bool ours, bool heldElsewhere);
    void setTip(TipId tip);
    void endDrag();
    void measureFootprint();

    ToolHost& host_;
    ToolEvents events_;
    GripSet grips_;
    bool selected_ = false;
    bool editMode_ = true;
    bool hasFocus_ = false;
    int lineWidth_ = 2;
    int openChanges_ = 0;
    PixelSize sheet_;
    TipId tip_ = 0;
    DirtyRegion footprint_;
};

}  // namespace ormala
