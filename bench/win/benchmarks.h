#pragma once

#include "scene/PixelRect.h"

namespace ormala::bench {

/// One step of a drag on a sheet with 33 stencils of five patterns each, and on one with 33
/// measuring tools, from the mouse message to the finished pixels.
void dragStep(PixelSize sheetSize);

/// Moves across the sheet of stencils on which no grip changes.
void hoverMoves(PixelSize sheetSize);

/// Saving and loading 33 tools of a kind, without repainting.
void toolFiles();

/// Adding the last tool that there can be of a kind, without repainting.
void addedTools();

/// The control window on the screen with 33 panels: adding, loading, refreshing and scrolling them.
void controlWindow();

/// From the start of the program to its painted worksheet.
void start();

/// Processor time with 33 panels while nothing happens.
void idlePanels();

/// Processor time of the program while nothing happens.
void idle();

}  // namespace ormala::bench
