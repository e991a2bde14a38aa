#pragma once

#include "scene/GripSet.h"
#include "scene/ToolControl.h"
#include "stencil/StencilState.h"

namespace ormala {

/// What a grip of a stencil does.
enum class StencilGripKind { move, rotate, size, sizeCorner };

/// The thirteen grips stand in this order: the centre, then 0 to 3 of each further kind.
struct StencilGrip {
    StencilGripKind kind = StencilGripKind::move;
    /// Within its kind: sides top, right, bottom, left; corners and rotation from the top right
    /// clockwise.
    int number = 0;
};

constexpr int stencilGripCount = 13;

StencilGrip stencilGrip(int index);
std::vector<Grip> makeStencilGrips();
/// Where the grip's centre belongs.
Point stencilGripPoint(StencilGrip grip, const StencilCorners& corners);
TipId stencilGripTip(StencilGripKind kind);

}  // namespace ormala
