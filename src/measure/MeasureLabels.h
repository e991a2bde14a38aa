#pragma once

#include <optional>

#include "measure/MeasureState.h"
#include "measure/MeasureTexts.h"
#include "scene/DirtyRegion.h"
#include "toolkit/ctlLabel.h"

namespace ormala {

/// Which of its labels a tool shows, and how.
struct MeasureSigns {
    int Number = 0;
    MeasureUnits units;
    Color ColorA = 0;
    Color ColorB = 0;
    bool LabelsLengthVisible = true;
    bool LabelsAngleVisible = true;
};

/// The labels of a measuring tool and the circle about the common point. Owned by the tool.
class MeasureLabels {
  public:
    MeasureLabels();

    /// Puts them all in their places. Without `editMode` all are hidden.
    void arrange(const MeasureState& state, const MeasureSigns& signs, bool editMode,
                 const TextForm& form, const TextMeter& meter);

    [[nodiscard]] const ctlLabel& lblLengthA() const { return lengthA_; }
    [[nodiscard]] const ctlLabel& lblLengthB() const { return lengthB_; }
    /// The angle from b to a, or both angles of lines that are not connected.
    [[nodiscard]] const ctlLabel& lblAngle1() const { return angle1_; }
    /// The angle from a to b.
    [[nodiscard]] const ctlLabel& lblAngle2() const { return angle2_; }
    [[nodiscard]] const std::optional<PixelRect>& shpCircle() const { return circle_; }

    void draw(Canvas& canvas) const;
    void addTo(DirtyRegion& region) const;

  private:
    struct Task;

    void arrangeLengths(const Task& task);
    void arrangeConnectedAngles(const Task& task);
    void arrangeSeparateAngles(const Task& task);
    void placeCircle(const Point& center, int diameter);

    ctlLabel lengthA_;
    ctlLabel lengthB_;
    ctlLabel angle1_;
    ctlLabel angle2_;
    std::optional<PixelRect> circle_;
};

}  // namespace ormala
