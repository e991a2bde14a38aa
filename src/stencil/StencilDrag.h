#pragma once

#include "modAPI/transforms.h"
#include "stencil/StencilGrips.h"
#include "stencil/StencilState.h"

// How a drag of the centre or of a rotate grip and a step of the rotation change a stencil: pure
// functions of the state at the press, the mouse and the modifiers. They are never applied to what
// an earlier move has made of the stencil, so that the number of moves changes nothing.

namespace ormala {

/// The mouse holding a grip.
struct GripDrag {
    StencilGrip grip;
    /// Mouse position, and the position at the press.
    double x = 0;
    double y = 0;
    double pressX = 0;
    double pressY = 0;
    /// Mouse position minus the grip's left and top at the press.
    double grabX = 0;
    double grabY = 0;
    double gripWidth = 0;
    double gripHeight = 0;
    /// Modifier bits.
    int shift = 0;
};

/// Where `DragMove` has put the grip's centre, for the read-out.
Point DragMove(StencilState& state, const GripDrag& drag, const Grid& grid);
void DragRotate(StencilState& state, const GripDrag& drag);

/// The mouse is where it was pressed, and no modifier asks for a place, an angle or a ratio of its
/// own: then nothing has changed, although a grip only stands on whole pixels.
bool leavesAsPressed(const GripDrag& drag);

/// Whether the grid holds the centre.
bool bindsToGrid(const GripDrag& drag);
/// Whether the dragged side goes to a special ratio.
bool snapsToRatio(const GripDrag& drag);

/// Steps of `ModifyAngle`.
enum class AngleStep { degree = 0, tenthOfDegree = 1, twentiethOfPi = 2, sixteenthOfPi = 3 };

/// Ctrl before Shift before Alt, a degree without any.
AngleStep angleStepOf(int shift);
/// `angle` one step further, to the next multiple for the two fixed steps.
double modifiedAngle(double angle, bool negative, AngleStep stepKind);

}  // namespace ormala
