#pragma once

#include "modAPI/PixelRect.h"

namespace ormala::bench {

/// One step of a drag on a sheet with 33 stencils of five patterns each, and on one with 33
/// measuring tools, from the mouse message to the finished pixels.
void dragStep(PixelSize sheetSize);

/// Moves across the sheet of stencils on which no grip changes.
void hoverMoves(PixelSize sheetSize);

/// A change of the picture in template mode, by a key and by pixels with their opacity.
void templatePicture(PixelSize size);

/// A repaint of the background grid in steps of 5 pixels, beside one without it.
void gridRepaint();

/// A move of the cross hair, which repaints nothing of the worksheet.
void crossHairMoves();

/// Saving and loading 33 tools of a kind, without repainting.
void toolFiles();

/// Adding the last tool that there can be of a kind, without repainting.
void addedTools();

/// The control window on the screen with 33 panels: adding, loading and refreshing them.
void controlWindow();

/// Its list of 33 panels under the wheel.
void wheel();

/// A drag with the magnifier shown, while the mouse moves faster than anybody can paint.
void flood();

/// From the start of the program to its painted worksheet.
void start();
/// Private memory of the program with as many tools as it takes, on a worksheet that fills the
/// screen.
void memory();

/// Processor time with 33 panels while nothing happens.
void idlePanels();

/// Processor time of the program while nothing happens.
void idle();

/// A frame of the magnifier in several sizes and factors, the rate of frames, and its processor
/// time while nothing changes.
void lens();

/// A hundred thousand frames of the magnifier: what they leave of memory and handles.
void lensSoak();

/// A million steps of a drag, ten thousand changes of mode, a thousand openings of each dialog, and
/// a thousand tools removed and added: what each leaves of memory, handles and windows. A divisor
/// plays so much less.
void soak(int divisor);

}  // namespace ormala::bench
