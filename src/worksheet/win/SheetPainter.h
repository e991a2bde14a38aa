#pragma once

#include <optional>

#include "platform/win/BackBuffer.h"
#include "platform/win/GdiCanvas.h"
#include "worksheet/Aids.h"
#include "worksheet/GridRows.h"
#include "worksheet/Sheet.h"
#include "worksheet/win/SheetLayers.h"

namespace ormala {

/// Paints the worksheet in two layers: everything at rest (the background with its grid and all
/// tools but the foremost) is kept in a bitmap, and the foremost tool and the aids are drawn
/// over it, all within the changed region. So a drag costs one copy of that region and the drawing
/// of one tool.
class SheetPainter {
  public:
    SheetPainter(const Sheet& sheet, const Aids& aids, const GdiFonts& fonts)
        : sheet_(sheet), aids_(aids), fonts_(fonts) {}

    void resize(PixelSize size);
    /// The background has another colour.
    void backgroundChanged();
    /// Takes the grid as it is set now. Whether anything looks different.
    bool RefreshGrid();

    /// The layer at rest is to be drawn anew in this region before it is shown the next time.
    void restChanged(HRGN region);
    /// The whole work of a WM_PAINT.
    void paint(HWND window, SheetLayers& layers);
    /// What was shown last; empty without memory for it.
    [[nodiscard]] const BackBuffer& picture() const { return shown_; }

  private:
    void allChanged();
    void refreshRest();
    void makeGridRows();
    void fill(HDC context, const PixelRect& area) const;
    void layGridInBuffer(HRGN region) const;
    void layGrid(HDC context, const PixelRect& area) const;
    void drawToolsAtRest(HDC context, const PixelRect& area) const;
    void drawFront(HDC context, const PixelRect& area) const;
    void paintDirectly(HDC context, const PixelRect& area) const;
    void drawInBuffer(HRGN region, const PixelRect& area);

    const Sheet& sheet_;
    const Aids& aids_;
    const GdiFonts& fonts_;
    PixelSize size_;
    /// The grid that is drawn and its pixels; none while no grid is to be seen.
    std::optional<BackgroundGrid> grid_;
    std::optional<GridRows> gridRows_;
    BackBuffer rest_;
    BackBuffer shown_;
    /// Null if the layer at rest is up to date.
    RegionHandle restDirty_;
    /// Without memory for the bitmaps everything is drawn at once on the window.
    bool buffered_ = true;
};

}  // namespace ormala
