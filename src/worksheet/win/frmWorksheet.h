#pragma once

#include <memory>
#include <vector>

#include "base/Event.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/TipWindow.h"
#include "platform/win/Window.h"
#include "worksheet/BackgroundGrid.h"
#include "worksheet/CircleCompass.h"
#include "worksheet/ForegroundMemory.h"
#include "worksheet/RateLimit.h"
#include "worksheet/Sheet.h"
#include "worksheet/SheetMouse.h"
#include "worksheet/SheetTip.h"
#include "worksheet/sheetKeys.h"
#include "worksheet/win/SheetPainter.h"
#include "worksheet/win/frmCrossHair.h"

namespace ormala {

/// What the worksheet asks of the application.
class WorksheetCommands {
  public:
    virtual ~WorksheetCommands() = default;

    virtual void SetMode(int mode, bool minimise) = 0;
    virtual void ShowHelp() = 0;
    /// Takes back the last step of a tool or brings it again.
    virtual void stepHistory(OverlayItem& item, bool back) = 0;
    /// A click on the sheet may have been meant for a control window beneath it.
    virtual void raiseControlWindowAt(POINT screen) = 0;
    /// Brings the magnifier to the top without activating it, if it is shown and, with
    /// `onlySticked`, follows the mouse. Whether it did.
    virtual bool raiseLens(bool onlySticked) = 0;
    /// At a place of the screen.
    virtual void ShowContextMenu(POINT screen) = 0;
    /// The pages are numbered from 0.
    virtual void ShowOptions(int page) = 0;
    virtual void closeProgram() = 0;
};

/// The see-through window on which the tools lie. In edit mode a veil over the screen that takes
/// the mouse; otherwise only the tools show, and every click falls through to the program below.
class frmWorksheet : public Window, private SheetPort, private ToolHost {
  public:
    /// Stays hidden. The arguments must outlive the worksheet.
    frmWorksheet(ToolFactory& factory, ForegroundMemory& foreground, WorksheetCommands& commands);
    ~frmWorksheet() override;

    [[nodiscard]] Sheet& sheet() { return sheet_; }
    /// A window that the worksheet lies above and that keeps it off the task bar.
    void setOwner(HWND owner);

    [[nodiscard]] bool Clickable() const { return clickable_; }
    void setClickable(bool clickable);
    /// While set, every click falls through to the program below, whatever the mode; nothing that
    /// is seen changes.
    void setTransparentToMouse(bool transparent);
    [[nodiscard]] int Alpha() const { return alpha_; }
    void setAlpha(int alpha);
    [[nodiscard]] int ClickAlpha() const { return clickAlpha_; }
    void setClickAlpha(int alpha);
    [[nodiscard]] bool MaxSized() const { return maxSized_; }
    /// True: the window fills its screen and leaves the primary screen's task bar free; false: it
    /// has the place that it is given. Shows the window.
    void setMaxSized(bool maxSized);
    /// The same for a window that is hidden, and stays so until `show`.
    void prepareMaxSized(bool maxSized);
    void setBackground(COLORREF color);

    [[nodiscard]] const BackgroundGrid& grid() const { return grid_; }
    [[nodiscard]] bool GridEnabled() const { return grid_.enabled; }
    /// Paints nothing: the grid is seen after `RefreshGrid`.
    void setGrid(const BackgroundGrid& grid) { grid_ = grid; }
    void RefreshGrid();
    [[nodiscard]] bool CrossHairEnabled() const { return crossHairEnabled_; }
    /// Two lines through the mouse, shown while the worksheet takes it.
    void setCrossHairEnabled(bool enabled);
    /// Two circles that open with a drag on the background.
    void setCircleCompassEnabled(bool enabled) { circleCompassEnabled_ = enabled; }

    /// Meanwhile the tools do not learn that the window gets or loses the keyboard; at the end they
    /// learn who has it then.
    void setFocusHeld(bool held);
    void show();
    void hide();
    /// Lets the window lay itself out and repaint after it was hidden.
    void narrowAndWiden();

    /// A key pressed here or in a window that passes its keys on: true if it was a command. None is
    /// while the worksheet does not take the mouse.
    bool KeyDown(int key, int shift);

    /// Raised when the window has a new size.
    Event<> resized;
    /// Raised when the window has moved.
    Event<> placed;
    /// Raised after each painting.
    Event<> painted;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool wasInFront() const override;
    void rememberForeground() override;
    void repaintTool(const OverlayItem& item) override;
    void repaint(const OverlayItem& item, const DirtyRegion& region) override;
    void showTip(const OverlayItem& item, TipId tip) override;
    const TextMeter& textMeter() const override { return fonts_; }
    void runTimer(Ticking& ticking, int interval, bool running) override;

    void ApplyLayered();
    void fillScreen();
    void letGoOfMouse();
    /// Of the monitor that the window is on.
    void takeDpi(UINT dpi);
    LRESULT onPress(int button, WPARAM wParam, LPARAM lParam);
    LRESULT onMove(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onRelease(int button, WPARAM wParam, LPARAM lParam);
    LRESULT onCaptureLost();
    LRESULT onFocus(bool focused);
    LRESULT onTimer(WPARAM id);
    LRESULT onResize();
    LRESULT onDisplayChange();
    std::optional<LRESULT> onKey(WPARAM key);
    std::optional<LRESULT> onKeyUp(WPARAM key);
    void tellModifiers(int shift);
    [[nodiscard]] bool takesKey(int key, int shift) const;
    bool obey(SheetCommand command);
    void pollOutside();
    void subscribeToMouse();
    void onBackgroundDown(const MouseInput& input);
    void onBackgroundMove(const MouseInput& input);
    void onBackgroundUp(const MouseInput& input);
    void raiseUppermost();
    void ShowContextMenu();
    void hideCompass();
    void repaintCompass();
    void SyncCrossHair();
    void UpdateCrossHair();
    void placeCrossHair();
    LRESULT onPaint();
    void paintNow();

    GdiFonts fonts_;
    ForegroundMemory& foreground_;
    WorksheetCommands& commands_;
    /// Before the sheet, since a tool stops its timer when it is destroyed.
    std::vector<Ticking*> timers_;
    Sheet sheet_;
    SheetMouse mouse_;
    CircleCompass compass_;
    SheetPainter painter_;
    std::vector<Subscription> subscriptions_;
    std::unique_ptr<TipWindow> tip_;
    SheetTip sheetTip_;
    /// The line along the worksheet, and the one down it.
    std::unique_ptr<frmCrossHair> CrossHairX_;
    std::unique_ptr<frmCrossHair> CrossHairY_;
    BackgroundGrid grid_;
    RateLimit outsidePolls_;
    RateLimit crossHairMoves_;
    bool crossHairEnabled_ = false;
    bool circleCompassEnabled_ = false;
    bool clickable_ = false;
    bool transparentToMouse_ = false;
    bool focusHeld_ = false;
    /// What the tools know.
    bool focusKnown_ = false;
    bool maxSized_ = true;
    int alpha_ = 255;
    int clickAlpha_ = 255;
};

}  // namespace ormala
