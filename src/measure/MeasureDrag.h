#pragma once

#include <functional>

#include "measure/MeasureGrips.h"
#include "measure/MeasureState.h"
#include "modAPI/transforms.h"

// How the mouse on a grip changes the lines: functions of the lines at the press and the whole way
// of the mouse since then, so that no rounding adds up and the number of moves changes nothing. A
// mouse that is where it was pressed changes nothing either, unless a modifier takes the grip away.

namespace ormala {

/// The mouse holding a grip.
struct MeasureDrag {
    MeasureGrip grip = MeasureGrip::intersect;
    /// The lines at the press.
    MeasureState press;
    /// From the mouse position at the press to the present one.
    double dx = 0;
    double dy = 0;
    /// Modifier bits.
    int shift = 0;
};

/// Brings a point onto a near end of another tool's lines.
using EndSnap = std::function<void(Point&)>;

/// A drag leaves at least this between the ends of a line.
constexpr float smallestLength = 2;

/// Whether the grid holds the grip.
bool bindsToGrid(const MeasureDrag& drag);

// Each answers where the mouse wants the grip to be, for the read-out.

/// Where the end would come too near to its other one, it stops on the straight way there, at the
/// last place that is far enough.
Point DragEndGrip(MeasureState& state, const MeasureDrag& drag, const EndSnap& snap);
Point DragCenterGrip(MeasureState& state, const MeasureDrag& drag, const Grid& grid);
/// Moves both lines.
Point DragIntersectGrip(MeasureState& state, const MeasureDrag& drag, const Grid& grid,
                        const EndSnap& snap);

}  // namespace ormala
