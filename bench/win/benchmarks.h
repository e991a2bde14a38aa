#pragma once

#include "scene/PixelRect.h"

namespace ormala::bench {

/// One step of a drag on a sheet with 33 stencils of five patterns each, from the mouse message to
/// the finished pixels.
void dragStep(PixelSize sheetSize);

/// Moves across the sheet on which no grip changes.
void hoverMoves(PixelSize sheetSize);

/// From the start of the program to its painted worksheet.
void start();

/// Processor time of the program while nothing happens.
void idle();

}  // namespace ormala::bench
