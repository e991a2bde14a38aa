#pragma once

#include "modAPI/PixelRect.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// Where the mouse is, whoever has it. Both on the screen.
struct Pointer {
    PixelPoint at;
    PixelRect worksheet;
    /// A window of the program holds the mouse, the worksheet or another one.
    bool held = false;
};

/// A line of the cross hair on the screen.
struct CrossHairLine {
    PixelRect place;
    bool shown = false;

    bool operator==(const CrossHairLine&) const = default;
};

/// What the worksheet's mouse and the aids that follow it ask of the window.
class MousePort {
  public:
    virtual ~MousePort() = default;

    /// In seconds since midnight.
    [[nodiscard]] virtual float now() const = 0;
    [[nodiscard]] virtual Pointer pointer() const = 0;
    /// As far as the screens reach. The worksheet hears of it like of any other move.
    virtual void movePointer(PixelPoint by) = 0;

    /// These pixels, over all tools, look different now.
    virtual void repaintInFront(const DirtyRegion& region) = 0;
    virtual void showCrossHair(const CrossHairLine& along, const CrossHairLine& down) = 0;

    /// See `WorksheetCommands`. None of these activates a window.
    virtual bool raiseLens(bool onlySticked) = 0;
    /// The worksheet, or the cross hair above it.
    virtual void raiseWorksheet(bool crossHair) = 0;
    /// Of a control window that lies beneath the mouse.
    virtual void raiseControlWindow() = 0;
    virtual void ShowContextMenu() = 0;
};

}  // namespace ormala
