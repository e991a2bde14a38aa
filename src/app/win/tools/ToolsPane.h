#pragma once

#include <array>

#include "app/AutomaticTools.h"
#include "app/Documents.h"
#include "app/PanelLayout.h"
#include "app/ToolFile.h"
#include "app/ToolList.h"
#include "app/version.h"
#include "app/win/tools/DocumentDialogs.h"
#include "app/win/tools/PanelFocus.h"
#include "app/win/tools/PanelList.h"
#include "app/win/tools/PanelMaker.h"
#include "dialogs/win/WindowsMessagePresenter.h"
#include "toolkit/win/PanelSupply.h"
#include "toolkit/win/UncoveredPanels.h"

namespace ormala {

/// The tools of the control window: the list of their panels, and the documents they are kept in.
class ToolsPane : private ToolListView, private BusyView {
  public:
    struct Ports {
        frmSettings& window;
        frmWorksheet& worksheet;
        ViewPane& view;
        ViewState& state;
        FocusMemory& focus;
        const SpecialRatios& ratios;
        FileStore& store;
        const CodePage& codePage;
        clsGlobalEvents& globalEvents;
    };

    /// All must outlive it.
    explicit ToolsPane(const Ports& ports);
    ~ToolsPane() override;

    [[nodiscard]] ToolList& tools() { return tools_; }
    [[nodiscard]] Documents& documents() { return documents_; }

    /// The tools of the last run, or the first ones.
    void load();
    /// Saves the tools to the automatic file; false if they could not be written. `quietly` says
    /// that the user hears nothing of that.
    bool save(bool quietly);
    [[nodiscard]] AutomaticTools& automatic() { return automatic_; }
    /// The same, quietly, if they differ.
    bool saveChanges();
    /// Whether a set of tools comes or goes at this moment.
    [[nodiscard]] bool isBusy() const { return list_.bulkUpdate(); }

    /// Notches of the wheel; positive ones turn away from the user.
    void Scroll(int notches) { list_.Scroll(notches); }
    /// A command of tools or documents; false for any other one.
    bool execute(Command command);
    [[nodiscard]] bool hasKeyboard() const { return focus_.hasKeyboard(); }
    [[nodiscard]] bool canTakeKeyboard() const {
        return list_.isVisible() && tools_.contentHeight() > 0;
    }
    /// For the panel of the selected tool.
    void takeKeyboard() { focus_.goToPanel(0); }
    /// The tools may be other ones, or changed.
    Event<> changed;

    /// Whether a message of the program ends here.
    bool swallows(const MSG& message) { return focus_.swallows(message); }

  private:
    void UpdatePanelLayout(bool AdjustFormHeight, bool Force) override;
    void refresh() override;
    void beginBusy(const std::string& info, bool hourglass) override;
    void endBusy() override;
    void refreshWorksheet() override;
    void refreshControlWindow() override { refresh(); }

    [[nodiscard]] Sheet& sheet() { return ports_.worksheet.sheet(); }
    void addTool(ToolKind kind);
    void copyReadOuts();
    void runClock(bool running);
    void onTimer(UINT_PTR timer);
    void takePlace();
    void takeDpi();
    void tellPanelsWhatShows();

    Ports ports_;
    WindowsMessagePresenter messages_;
    WindowsMessagePresenter fileMessages_{applicationTitle};
    PanelLayout layout_;
    INIFile toolsFile_;
    INIFile automaticFile_;
    Timer tmrFast_{tmrFast};
    /// Of held buttons.
    Clock clock_{[this](bool running) { runClock(running); }};
    PanelList list_;
    PanelDialogs panelDialogs_;
    PanelFocus focus_;
    PanelControlStore panelControls_;
    PanelMaker panelMaker_;
    PanelSupply supply_;
    UncoveredPanels uncovered_;
    DocumentDialogs dialogs_;
    ToolList tools_;
    RemovedTools removed_;
    ToolFile toolFile_;
    ToolFile automaticToolFile_;
    AutomaticTools automatic_;
    Documents documents_;
    std::array<Subscription, 10> subscriptions_;
};

}  // namespace ormala
