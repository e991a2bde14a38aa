#pragma once

#include <memory>

#include "app/Documents.h"
#include "app/FocusMemory.h"
#include "app/PanelLayout.h"
#include "app/PressGuard.h"
#include "app/ToolFile.h"
#include "app/ToolList.h"
#include "app/win/CommandBar.h"
#include "app/win/DocumentDialogs.h"
#include "app/win/PanelList.h"
#include "app/win/PanelMaker.h"
#include "app/win/WindowsMessagePresenter.h"
#include "worksheet/win/frmWorksheet.h"

namespace ormala {

/// The control window, as the tools in it see it.
class ControlWindow {
  public:
    virtual ~ControlWindow() = default;

    [[nodiscard]] virtual PanelLayout::Window layoutWindow() const = 0;
    /// The outer height, in pixels.
    virtual void takeHeight(int height) = 0;
    /// In front of the worksheet, without activating it.
    virtual void raiseAboveAll() = 0;
    /// Hides the magnifier and the worksheet's frame, which would lie under a drag on the screen,
    /// and lets the mouse through the worksheet, or undoes all of that.
    virtual void putWindowsAside(bool aside) = 0;
};

/// The tools of the control window: the list of their panels, the documents they are kept in, and
/// the focus and the selection that panels and tools share.
class ToolsPane : private ToolListView, private BusyView, private PanelHost {
  public:
    struct Ports {
        HWND window;
        ControlWindow& controlWindow;
        CommandBar& bar;
        frmWorksheet& worksheet;
        FocusMemory& focus;
        const ToolSettings& settings;
        const SpecialRatios& ratios;
        MeasureUnits& defaultUnits;
        FileStore& store;
        const CodePage& codePage;
        clsGlobalEvents& globalEvents;
    };

    /// All must outlive it. `id` is the list's control ID.
    ToolsPane(const Ports& ports, int id);
    ~ToolsPane() override;

    [[nodiscard]] ToolList& tools() { return tools_; }
    [[nodiscard]] Documents& documents() { return documents_; }

    void setDpi(int dpi);
    /// The list's place in the client area.
    void resize(const PixelRect& box);
    void UpdatePanelLayout(bool AdjustFormHeight, bool Force) override;
    void Scroll(bool down) { list_.Scroll(down); }
    /// The shared clock of 40 ms.
    void tick();

    /// Takes back the last step of a tool or brings it again.
    void stepHistory(const OverlayItem& tool, bool back);
    /// Saves the tools to the automatic file; the open document stays what it is. `quietly` says
    /// that the user hears nothing of a failure.
    void keepTools(bool quietly);
    /// A command of tools or documents; others do nothing.
    void execute(Command command);
    [[nodiscard]] bool hasPanelAt(POINT screen) const;
    /// The control window has got the keyboard: the panel that had it last gets it again.
    void giveFocusToPanel();
    /// Scrolls so that a control shows that has got the focus by a key.
    void ensureControlVisible(HWND control);
    /// Whether a message of the program ends here: the second press of a double click that has
    /// removed a panel.
    bool swallows(const MSG& message);
    /// A message that the pane has sent the window.
    std::optional<LRESULT> onMessage(UINT message, LPARAM lParam);

  private:
    void addTool(ToolKind kind);

    void refresh() override;
    void beginBusy(const std::string& info, bool hourglass) override;
    void endBusy() override;
    void refreshWorksheet() override;
    void refreshControlWindow() override { refresh(); }

    void panelSelected(PanelWindow& panel) override;
    void panelGotFocus(PanelWindow& panel) override;
    void removePanel(PanelWindow& panel, bool byMouse) override;

    void tellPanelsWhatShows();
    void SetFocusToSelectedControl();
    void remove(PanelWindow& panel);
    void focusWithoutSelecting(HWND window);
    [[nodiscard]] PanelWindow* windowOf(const ToolPanel* panel) const;
    void EnsurePanelVisible(const PanelWindow& panel);

    Ports ports_;
    WindowsMessagePresenter messages_;
    WindowsMessagePresenter fileMessages_;
    PanelLayout layout_;
    INIFile toolsFile_;
    PanelList list_;
    PanelDialogs panelDialogs_;
    PanelMaker panelMaker_;
    DocumentDialogs dialogs_;
    ToolList tools_;
    Subscription defaultUnitsChanged_;
    Subscription viewChanged_;
    ToolFile toolFile_;
    Documents documents_;
    /// The panel that gets the focus when the window gets it; compared only, since it may be gone.
    HWND focused_ = nullptr;
    bool restoringFocus_ = false;
    PressGuard pressGuard_;
};

}  // namespace ormala
