#pragma once

#include <map>
#include <memory>

#include "base/Event.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/Timer.h"
#include "platform/win/TipWindow.h"
#include "platform/win/Window.h"
#include "scene/Command.h"
#include "worksheet/AidOptions.h"
#include "worksheet/Aids.h"
#include "worksheet/ForegroundMemory.h"
#include "worksheet/Sheet.h"
#include "worksheet/SheetMouse.h"
#include "worksheet/SheetParts.h"
#include "worksheet/SheetTip.h"
#include "worksheet/transparency.h"
#include "worksheet/win/SheetLayers.h"
#include "worksheet/win/SheetPainter.h"
#include "worksheet/win/SheetTeller.h"
#include "worksheet/win/frmCrossHair.h"

namespace ormala {

/// What the worksheet asks of the application.
class WorksheetCommands {
  public:
    virtual ~WorksheetCommands() = default;

    virtual void execute(Command command) = 0;
    /// A key was pressed: true if it was that of a command, which has been obeyed.
    virtual bool takeKey(int key, int modifiers) = 0;
    /// A click on the sheet may have been meant for a control window beneath it.
    virtual void raiseControlWindowAt(POINT screen) = 0;
    /// Brings the magnifier to the top without activating it, if it is shown and, with
    /// `onlySticked`, follows the mouse. Whether it did.
    virtual bool raiseLens(bool onlySticked) = 0;
    /// At a place of the screen.
    virtual void ShowContextMenu(POINT screen) = 0;
    virtual void closeProgram() = 0;
};

/// The see-through window on which the tools lie. In edit mode a veil over the screen that takes
/// the mouse; otherwise only the tools show, and every click falls through to the program below.
class frmWorksheet : public Window, private SheetPort, private MousePort, private ToolHost {
  public:
    /// Stays hidden. The arguments must outlive the worksheet, which reads the options, and the
    /// form of numbers, at each use.
    frmWorksheet(ToolFactory& factory, ForegroundMemory& foreground, WorksheetCommands& commands,
                 const AidOptions& aids, const TextForm& form);
    ~frmWorksheet() override;

    [[nodiscard]] Sheet& sheet() { return sheet_; }
    /// A window that the worksheet lies above and that keeps it off the task bar.
    void setOwner(HWND owner);

    [[nodiscard]] bool Clickable() const { return transparency_.clickable; }
    void setClickable(bool clickable);
    /// While set, every click falls through to the program below, whatever the mode; nothing that
    /// is seen changes.
    void setTransparentToMouse(bool transparent);
    [[nodiscard]] int Alpha() const { return transparency_.alpha; }
    void setAlpha(int alpha);
    [[nodiscard]] int ClickAlpha() const { return transparency_.clickAlpha; }
    void setClickAlpha(int alpha);
    [[nodiscard]] bool MaxSized() const { return maxSized_; }
    /// True: the window fills its screen and leaves a task bar there free; false: it has the place
    /// that it is given. A window that is hidden stays so.
    void setMaxSized(bool maxSized);
    void setBackground(COLORREF color);

    /// The options of the aids have changed. Paints at once if the grid looks different.
    void aidsChanged();
    /// Hides the cross hair for the time of a screen shot.
    void setAidsAside(bool aside) { aids_.setAside(aside); }

    /// Meanwhile the tools do not learn that the window gets or loses the keyboard; at the end they
    /// learn who has it then.
    void setFocusHeld(bool held);
    /// The frame passes its keys on: its keyboard is the worksheet's. `other` had it before, or has
    /// it then.
    void frameFocusChanged(bool got, HWND other);
    /// What the menu key does: asks for the context menu.
    void ShowContextMenu() override;
    void show();
    void hide();
    /// The one or the other, unless it is so already.
    void setShown(bool shown);
    /// Lets the window lay itself out and repaint after it was hidden.
    void narrowAndWiden();
    /// The resolution of its monitor.
    [[nodiscard]] int dpi() const { return fonts_.scale().dpi(); }

    /// A key pressed here or in a window that passes its keys on: true if it was a command. None is
    /// while the worksheet does not take the mouse.
    bool KeyDown(int key, int shift);

    /// Raised when the window has become the active one, which brings it to the front.
    Event<> activated;
    /// The window has come to another resolution.
    Event<> dpiChanged;
    /// Raised when the window has a new size.
    Event<> resized;
    /// Raised when the window has moved.
    Event<> placed;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool wasInFront() const override;
    void rememberForeground() override;
    void repaintTool(const OverlayItem& item) override;

    float now() const override;
    Pointer pointer() const override;
    void movePointer(PixelPoint by) override;
    void repaintInFront(const DirtyRegion& region) override { invalidate(region, false); }
    void showCrossHair(const CrossHairLine& along, const CrossHairLine& down) override;
    bool raiseLens(bool onlySticked) override { return commands_.raiseLens(onlySticked); }
    void raiseWorksheet(bool crossHair) override;
    void raiseControlWindow() override;

    void repaint(const OverlayItem& item, const DirtyRegion& region) override;
    void showTip(const OverlayItem& item, TipId tip) override;
    const TextMeter& textMeter() const override { return fonts_; }
    void runTimer(Ticking& ticking, int interval, bool running) override;

    /// The owner; null without one.
    [[nodiscard]] HWND frame() const;
    void ApplyLayered();
    /// The picture on the screen has to be the painter's.
    void layerAnew();
    void invalidate(const DirtyRegion& region, bool atRest);
    /// Of the monitor that the window is on.
    void takeDpi(UINT dpi);
    std::optional<LRESULT> onPlaceMessage(UINT message, WPARAM wParam);
    LRESULT onFocusLost(HWND other);
    std::optional<LRESULT> onScreenReader(UINT message, WPARAM wParam, LPARAM lParam);
    /// What screen readers know of the tools may have changed. A drag is told of at its end.
    void tellScreenReaders();
    LRESULT onPress(int button, WPARAM wParam, LPARAM lParam);
    LRESULT onMove(WPARAM wParam, LPARAM lParam);
    LRESULT onRelease(int button, WPARAM wParam, LPARAM lParam);
    LRESULT onTimer(WPARAM id);
    void keepTime();
    LRESULT onResize();
    std::optional<LRESULT> onKey(WPARAM key);
    [[nodiscard]] bool takesKey(int key, int shift) const;
    LRESULT paintNow();

    GdiFonts fonts_;
    ForegroundMemory& foreground_;
    WorksheetCommands& commands_;
    Timer tmrCrosshair_{1};
    /// Of the tools, by the places of their `Ticking`, which are their numbers too. Before the
    /// sheet, since a tool stops its timer when it is destroyed.
    std::map<UINT_PTR, Timer> timers_;
    Sheet sheet_;
    Aids aids_;
    SheetMouse mouse_;
    SheetParts parts_{sheet_};
    SheetTeller teller_{parts_};
    SheetPainter painter_;
    std::optional<SheetLayers> layers_;
    SheetTip sheetTip_;
    HoverTip tip_;
    Subscription languageChanged_;
    /// The line along the worksheet, and the one down it; made when they are first shown.
    std::unique_ptr<frmCrossHair> CrossHairX_;
    std::unique_ptr<frmCrossHair> CrossHairY_;
    Transparency transparency_;
    bool maxSized_ = true;
};

/// Makes a window wider by so many pixels and takes them back, so that it lays itself out and
/// repaints after it was hidden.
void widenAndTakeBack(const Window& window, int by);

}  // namespace ormala
