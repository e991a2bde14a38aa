#pragma once

#include "magnifier/LensLayout.h"
#include "magnifier/LensOptions.h"
#include "magnifier/ScaleGlyphs.h"
#include "magnifier/rasterLines.h"
#include "modAPI/colors.h"

namespace ormala {

/// Where a scale counts from.
namespace scaleOrigin {
constexpr int worksheet = 0;
constexpr int magnifier = 1;
constexpr int primaryScreen = 2;
constexpr int allScreens = 3;
}  // namespace scaleOrigin

/// The upper left corners that scales count from, in pixels of the virtual screen.
struct ScaleOrigins {
    /// Of what is captured.
    PixelPoint source;
    PixelPoint worksheet;
    /// Of all screens together.
    PixelPoint bounds;

    bool operator==(const ScaleOrigins&) const = default;
};

/// The number of the image's first column, for the scales at the top and bottom, or of its first
/// row. An unknown origin counts as the worksheet's.
int scaleBase(LensScale scale, int origin, const ScaleOrigins& origins);

/// The number of a captured place, counted from the upper left captured one, by the scales at the
/// top and left, or by the others if only those are on.
PixelPoint countedPlace(PixelPoint place, const LensOptions& options, const ScaleOrigins& origins);

/// The length of the tick of that number in pixels at 96 DPI; 0 for none.
int TickLength(int Value, int factor);

/// Labels stand ten times so many screen pixels apart. `sampleWidth` is that of the text "-0000 ".
int labelStep(int sampleWidth, int factor);

/// All that one scale shows depends on.
struct RulerLook {
    LensScale scale = LensScale::top;
    PixelSize canvas;
    int factor = 1;
    int dpi = designDpi;
    /// The number at position 0, the image's first column or row.
    int base = 0;
    /// From a position to the middle of its enlarged pixel, in the pixels of the canvas.
    int middle = 0;
    int LabelStep = 1;
    /// The first and the last position, in pixels of the image; steps are of the factor.
    int first = 0;
    int last = 0;

    bool operator==(const RulerLook&) const = default;
    [[nodiscard]] bool isRow() const {
        return scale == LensScale::top || scale == LensScale::bottom;
    }
};

/// How the scale looks for a visible scale of the layout.
RulerLook rulerLook(LensScale scale, const LensLayout& layout, const ScaleGlyphs& glyphs, int base,
                    int dpi);

/// One position of a scale, in the pixels of its canvas.
struct RulerMark {
    int Value = 0;
    /// 0 means that there is nothing.
    int Length = 0;
    Segment tick;
    /// A tick with a number goes on to the far edge, beside a shadow.
    bool isLabel = false;
    Segment toEdge;
    Segment shadow;
    /// The upper left corner of the number in the rows, the upper right one in the columns.
    PixelPoint text;
};
RulerMark rulerMark(const RulerLook& look, int position);
/// Whether the whole label lies on the scale. One that either end would cut is not drawn.
bool labelFits(const RulerLook& look, const RulerMark& mark, const ScaleGlyphs& glyphs);

/// The empty scales: from a lighter grey to a darker one, downwards and to the right.
void FillRows(const PixelView& canvas, Color from, Color to);
void FillColumns(const PixelView& canvas, Color from, Color to);
void fillRuler(const PixelView& canvas, LensScale scale);

/// Draws the scale over its empty background, which has the same size.
void drawRuler(const PixelView& canvas, const PixelView& background, const RulerLook& look,
               const ScaleGlyphs& glyphs);

}  // namespace ormala
