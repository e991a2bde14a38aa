#pragma once

#include <optional>
#include <string>

#include "measure/MeasureAids.h"
#include "measure/MeasureDrag.h"
#include "measure/MeasureGrips.h"
#include "measure/MeasureLabels.h"
#include "measure/MeasureState.h"
#include "measure/OtherMeasures.h"
#include "scene/ToolSettings.h"
#include "storage/StateHistory.h"
#include "toolkit/GripTool.h"

namespace ormala {

/// The measuring tool: two lines that are laid over what is to be measured, and labels with their
/// lengths, the ratio of these and the angle between the lines. Owned by the worksheet; host,
/// settings and others must outlive it.
class ctlMeasure : public GripTool {
  public:
    /// Laid out by its first change.
    ctlMeasure(ToolHost& host, const ToolSettings& settings, const OtherMeasures& others);

    void keyDown(int key, int shift) override;
    void draw(Canvas& canvas) const override;

    /// Both kinds of labels, and connected lines.
    void SetDefaultProperties();
    /// Brings every visual item in line with the state, unless several changes are under way.
    void PositionGrips();

    // A new unit shows with the next `PositionGrips`.
    [[nodiscard]] int LengthMode() const { return signs_.units.LengthMode; }
    void setLengthMode(int mode) { signs_.units.LengthMode = mode; }
    [[nodiscard]] double LengthFactor() const { return signs_.units.LengthFactor; }
    void setLengthFactor(double factor) { signs_.units.LengthFactor = factor; }
    [[nodiscard]] const std::string& LengthUnit() const { return signs_.units.LengthUnit; }
    void setLengthUnit(std::string unit) { signs_.units.LengthUnit = std::move(unit); }
    [[nodiscard]] int AngleMode() const { return signs_.units.AngleMode; }
    void setAngleMode(int mode) { signs_.units.AngleMode = mode; }

    [[nodiscard]] Color ColorA() const { return signs_.ColorA; }
    void setColorA(Color color);
    [[nodiscard]] Color ColorB() const { return signs_.ColorB; }
    void setColorB(Color color);
    [[nodiscard]] bool Connected() const { return state_.Connected; }
    void setConnected(bool connected);
    [[nodiscard]] int Number() const { return signs_.Number; }
    void setNumber(int number);
    [[nodiscard]] bool LabelsLengthVisible() const { return signs_.LabelsLengthVisible; }
    void setLabelsLengthVisible(bool visible);
    [[nodiscard]] bool LabelsAngleVisible() const { return signs_.LabelsAngleVisible; }
    void setLabelsAngleVisible(bool visible);
    [[nodiscard]] const Line& LineA() const { return state_.LineA; }
    void setLineA(const Line& line);
    [[nodiscard]] const Line& LineB() const { return state_.LineB; }
    void setLineB(const Line& line);
    /// Puts the second end of line a on the centre of the worksheet, shifted by `offset` pixels
    /// both ways. `resetGeometry` gives the lines the shape of a new tool.
    void CenterToScreen(bool alignToGrid, double offset, bool resetGeometry);

    [[nodiscard]] const MeasureState& state() const { return state_; }
    [[nodiscard]] double PixelLengthA() const { return ormala::PixelLengthA(state_); }
    [[nodiscard]] double PixelLengthB() const { return ormala::PixelLengthB(state_); }
    [[nodiscard]] double RatioAToB() const { return ormala::RatioAToB(state_); }
    [[nodiscard]] double RatioBToA() const { return ormala::RatioBToA(state_); }
    [[nodiscard]] double AngleAToB() const { return ormala::AngleAToB(state_); }
    [[nodiscard]] double AngleBToA() const { return ormala::AngleBToA(state_); }
    [[nodiscard]] double AngleVertA() const { return ormala::AngleVertA(state_); }
    [[nodiscard]] double AngleVertB() const { return ormala::AngleVertB(state_); }
    [[nodiscard]] Point IntersectPoint() const { return ormala::IntersectPoint(state_); }

    [[nodiscard]] HistoryHelper& History() override { return history_.helper(); }
    [[nodiscard]] const MeasureLabels& labels() const { return labels_; }
    [[nodiscard]] const MeasureAids& aids() const { return aids_; }

  private:
    void layOut() override { PositionGrips(); }
    void beginDrag(const MouseInput& input) override;
    void drag(const MouseInput& input) override;
    void hideAids() override { aids_.hide(); }
    [[nodiscard]] TipId tipOf(int grip) const override;
    /// Called by its number.
    [[nodiscard]] SpokenTool words(int ordinal) const override;
    [[nodiscard]] std::string gripName(int grip) const override;
    [[nodiscard]] std::string gripValue(int grip) const override;
    void addItemsTo(DirtyRegion& region, const PixelRect& area) const override;

    void load(const MeasureState& state);
    [[nodiscard]] Point dragState();
    /// `joined` becomes the end that the grip has joined, if it has.
    [[nodiscard]] Point dragTo(std::optional<Point>& joined);
    void tagGrips();
    void drawStroke(Canvas& canvas, MeasureStroke stroke) const;
    [[nodiscard]] const Line& lineOf(MeasureStroke stroke) const;
    [[nodiscard]] Pen penOf(MeasureStroke stroke) const;

    const ToolSettings& settings_;
    const OtherMeasures& others_;

    MeasureState state_;
    MeasureSigns signs_;

    MeasureLabels labels_;
    MeasureAids aids_;
    MeasureDrag held_;
    Point pressPoint_;
    StateHistory<MeasureState> history_;
};

}  // namespace ormala
