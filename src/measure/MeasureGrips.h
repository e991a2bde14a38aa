#pragma once

#include "measure/MeasureState.h"
#include "scene/GripSet.h"

namespace ormala {

/// The grips in their control order.
enum class MeasureGrip { endA1, endB1, endA2, endB2, centerA, centerB, intersect };

constexpr int measureGripCount = 7;

/// What lies among the grips: the two lines, each with the dot on its second end.
enum class MeasureStroke { lineA, lineB };

constexpr int measureStrokeCount = 2;

/// A grown grip comes forward above the other grips of its line and beneath the line.
GripSet makeMeasureGrips();

/// Where the grip's centre belongs.
Point measureGripPoint(MeasureGrip grip, const MeasureState& state);

/// The second ends and the middles are gripped one by one on lines that are not connected, the
/// common point on connected ones.
GripTag measureGripTag(MeasureGrip grip, bool connected);

}  // namespace ormala
