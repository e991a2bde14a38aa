#pragma once

#include "base/Event.h"
#include "modAPI/drawingColors.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "platform/win/Timer.h"
#include "platform/win/Window.h"
#include "widgets/ctlFrame.h"
#include "worksheet/frameRules.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

/// Gives the worksheet a title bar and a border by which it can be moved and sized. Its inside is
/// keyed out; the worksheet, which it owns as a window, lies in that hole and follows it. A
/// maximised frame means a full-screen worksheet and no frame.
class frmResizer : public Window {
  public:
    /// Stays hidden, at the place of a first start. Both must outlive the frame.
    frmResizer(frmWorksheet& worksheet, WorksheetCommands& commands);
    ~frmResizer() override;

    /// Composes the caption of the program's title and the language's word for the worksheet.
    void SetRuntimeTexts(std::string_view title);
    /// Takes the place of an earlier run, while it is hidden.
    void restore(const PixelRect& place, bool maximised);

    /// Lays the worksheet into the frame, or lets it fill the screen if the frame is maximised. A
    /// worksheet that is hidden stays so.
    void PositionWorksheet();

    /// Does not activate it.
    void show();
    void hide();
    void setShown(bool shown) { shown ? show() : hide(); }
    /// The worksheet fills its screen, and the frame is hidden and keeps its size.
    void maximise();
    /// The way back from full screen.
    void showNormal();
    /// Lets the worksheet lay itself out and repaint after it was hidden.
    void widenAndNarrow();

    /// The worksheet has a new place: its left and top on the screen.
    Event<PixelPoint> worksheetPlaced;

  private:
    static constexpr COLORREF keyColor = static_cast<COLORREF>(sheetColor::frameKey);
    static constexpr UINT tmrSetSizeInterval = 87;
    /// Reads back where the worksheet lies, once what moved it is over.
    static constexpr UINT wmCheckHole = WM_APP + 1;
    /// Goes full screen. wParam: asked for, and not because the system has maximised the frame.
    static constexpr UINT wmFullScreen = WM_APP + 2;

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void layerAnew();
    void keepBeneathWorksheet();
    void follow();
    [[nodiscard]] RECT holeInClient() const;
    [[nodiscard]] PixelRect hole() const;
    void layWorksheetInside(POINT shift = {0, 0});
    void checkHoleSoon();
    void checkHole();
    void checkFullScreen();
    void goFullScreenSoon();
    LRESULT onFullScreen(bool asked);
    void makeUnseen() const;
    void leaveMaximised();
    void tellPlace() const;
    std::optional<LRESULT> onSystemCommand(WPARAM command);
    std::optional<LRESULT> onKey(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onHitTest(LPARAM lParam);
    LRESULT onPaint();
    LRESULT onSize(WPARAM wParam, LPARAM lParam);
    LRESULT onGetMinMaxInfo(LPARAM lParam);
    void onEnterSizeMove();
    void onExitSizeMove();
    void followUnseen();
    LRESULT onTimer(WPARAM id);
    LRESULT onDpiChanged(int dpi, const RECT& suggested);

    frmWorksheet& worksheet_;
    WorksheetCommands& commands_;
    GdiFonts fonts_;
    ctlFrame FormFrame_;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    PlaceAcrossDpi acrossDpi_;
    FrameSizeMemory size_;
    HoleKeeper keeper_;
    Timer tmrRefresh_{1};
    Timer tmrSetSize_{2};
    bool checking_ = false;
    Subscription worksheetMoved_;
    Subscription worksheetSized_;
    /// While the user drags the title bar and no message tells of it: where the drag began.
    std::optional<POINT> unseenDrag_;
    /// While it waits, maximised and unseen, until the system's own call is over.
    bool goingFullScreen_ = false;
    /// While it returns from the maximised state, which it does unseen.
    bool leavingMaximised_ = false;
};

}  // namespace ormala
