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

    /// That region of the window is to be painted anew; with `atRest` the layer at rest, too.
    void changed(HWND window, HRGN region, bool atRest);
    /// The whole work of a WM_PAINT.
    void paint(HWND window, SheetLayers& layers);
    /// What was shown last; empty without memory for it.
    [[nodiscard]] const BackBuffer& picture() const { return shown_; }

    /// A step of a drag. What it changes is kept from the system, which takes longer to ask for the
    /// painting than that takes. None begins within another one.
    class Step {
      public:
        Step(SheetPainter& painter, HWND window) : painter_(painter), window_(window) {
            painter.step_.emplace();
        }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        /// What has not been shown is left to the system.
        ~Step() {
            painter_.handStepOver(window_);
            painter_.step_.reset();
        }
        /// Brings what has changed so far to the screen.
        void show(SheetLayers& layers) { painter_.showStep(window_, layers); }

      private:
        SheetPainter& painter_;
        HWND window_;
    };

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
    void showStep(HWND window, SheetLayers& layers);
    /// Lets the system ask for the painting of what the step has changed so far.
    void handStepOver(HWND window);

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
    /// What a step has changed, null if nothing. None between the steps.
    std::optional<RegionHandle> step_;
    /// Without memory for the bitmaps everything is drawn at once on the window.
    bool buffered_ = true;
};

}  // namespace ormala
