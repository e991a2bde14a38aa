#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "magnifier/LensLayout.h"
#include "magnifier/LensOptions.h"
#include "magnifier/rasterLines.h"

namespace ormala {

/// All that the image depends on besides the pixels of the screen and the look of the pointer.
struct LensImageLook {
    LensOptions options;
    LensLayout layout;
    /// The screen pixel of the mouse, counted from the upper left captured one.
    PixelPoint hotSpot;

    bool operator==(const LensImageLook&) const = default;
    [[nodiscard]] bool hasGrid() const { return options.gridOn && layout.Factor > 1; }
};

/// What is drawn over the image, each with pens of its own.
enum class LensOverlay { grid, mark };

/// The pen of a draw mode. A mode that hides the colour, such as "Restrained", has a fixed one;
/// all others take the chosen colour, which may be one of the system's.
RasterPen overlayPen(LensOverlay overlay, int mode, Color chosen, SystemColorLookup systemColor);

/// The last pixel row and column of each enlarged pixel, unless it is switched off or nothing is
/// enlarged.
void DrawGrid(const PixelView& picBuff, const LensImageLook& look, SystemColorLookup systemColor);

/// Marks the pixel of the hot spot, if that is switched on.
void DrawHotSpot(const PixelView& picBuff, const LensImageLook& look,
                 SystemColorLookup systemColor);

/// Marks the enlarged pixel of `point`, a screen pixel counted from the upper left captured one. An
/// unknown style draws nothing.
void DrawHotSpotAt(const PixelView& picBuff, const LensImageLook& look, PixelPoint point,
                   const RasterPen& pen, int style);

/// The lines of a mark, at most those of a square and a cross.
class MarkShape {
  public:
    void add(const Segment& line) { lines_[count_++] = line; }
    [[nodiscard]] std::span<const Segment> lines() const { return {lines_.data(), count_}; }

  private:
    std::array<Segment, 8> lines_{};
    std::size_t count_ = 0;
};

/// The lines that mark an enlarged pixel, in the pixels of the image. With a grid the square lies
/// on its lines, without one just outside the pixel.
MarkShape markShape(const LensImageLook& look, PixelPoint point, int style);

}  // namespace ormala
