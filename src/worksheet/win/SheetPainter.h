#pragma once

#include "platform/win/BackBuffer.h"
#include "platform/win/GdiCanvas.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// Paints the worksheet in two layers: everything at rest (the background and all tools but the
/// foremost) is kept in a bitmap, and the foremost tool is drawn over it, both within the changed
/// region. So a drag costs one copy of that region and the drawing of one tool.
class SheetPainter {
  public:
    SheetPainter(const Sheet& sheet, const GdiFonts& fonts) : sheet_(sheet), fonts_(fonts) {}

    void resize(PixelSize size);
    void setBackground(COLORREF color);
    [[nodiscard]] COLORREF background() const { return background_; }

    /// The layer at rest is to be drawn anew in this region before it is shown the next time.
    void restChanged(HRGN region);
    /// The whole work of a WM_PAINT.
    void paint(HWND window);

  private:
    void allChanged();
    void refreshRest();
    void fill(HDC context, const PixelRect& area) const;
    void drawAtRest(HDC context, const PixelRect& area) const;
    void drawFront(HDC context, const PixelRect& area) const;
    void paintThroughBuffer(HDC context, HRGN region, const PixelRect& area);

    const Sheet& sheet_;
    const GdiFonts& fonts_;
    COLORREF background_ = 0;
    BackBuffer rest_;
    BackBuffer shown_;
    /// Null if the layer at rest is up to date.
    RegionHandle restDirty_;
    /// Without memory for the bitmaps everything is drawn at once on the window.
    bool buffered_ = true;
};

}  // namespace ormala
