#include "app/win/tools/ToolsPane.h"

#include "app/CommandTable.h"
#include "app/programFiles.h"
#include "app/version.h"
#include "app/win/shell/settingsIds.h"
#include "storage/win/SpecialFolder.h"
#include "storage/win/timeText.h"

namespace ormala {

namespace {

std::string automaticFile() {
    return toolsFilePath(GetSpecialFolder(folderApplicationData));
}

}  // namespace

ToolsPane::ToolsPane(const Ports& ports)
    : ports_(ports),
      messages_(ports.window.handle()),
      toolsFile_(ports.store, ports.codePage, fileMessages_),
      automaticFile_(ports.store, ports.codePage, fileMessages_),
      list_(ports.window.handle(), idList, clock_),
      panelDialogs_({ports.window.handle(), ports.worksheet.handle(), ports.ratios, ports.state,
                     ports.codePage, [this](bool aside) { ports_.view.putWindowsAside(aside); }}),
      focus_({ports.window, ports.view, ports.focus, list_, panelMaker_, ports.worksheet.sheet(),
              tools_, removed_}),
      panelControls_(list_.handle(), ports.globalEvents.FontSizeChange),
      panelMaker_({list_, clock_, ports.worksheet.sheet(), focus_, panelDialogs_,
                   ports.state.toolSettings(), ports.ratios, ports.globalEvents, panelControls_,
                   [this] { changed.raise(); }}),
      supply_({list_, panelMaker_.panels(), panelControls_}, ports.window.handle(), tmrSupply),
      dialogs_(ports.window.handle(), ports.window.bar()),
      tools_({ports.worksheet.sheet(), panelMaker_, *this, messages_,
              ports.state.options().defaultUnits}),
      removed_(tools_, [this](const std::string& note) { ports_.view.showNote(note); }),
      toolFile_({toolsFile_, ports.store, tools_, *this}, {versionText, presentTime}),
      automaticToolFile_({automaticFile_, ports.store, tools_, *this}, {versionText, presentTime}),
      automatic_({automaticFile_, automaticToolFile_, ports.store, tools_}, automaticFile()),
      documents_({toolsFile_, ports.store, toolFile_, tools_, removed_, *this, dialogs_}),
      subscriptions_{list_.viewChanged.subscribe([this] { tellPanelsWhatShows(); }),
                     list_.uncovered.subscribe([this](const UncoveredPart& part) {
                         uncovered_.show(list_.picInner(), panelMaker_.panels(), part.shown,
                                         part.withBeyond);
                     }),
                     panelMaker_.useChanged.subscribe([this] { tellPanelsWhatShows(); }),
                     ports.window.ticked.subscribe([this](UINT_PTR timer) { onTimer(timer); }),
                     ports.window.tabbing.subscribe(
                         [this](bool backwards) { supply_.prepareTab(GetFocus(), backwards); }),
                     ports.window.mouseNear().subscribe([this] { tellPanelsWhatShows(); }),
                     ports.window.listPlaced.subscribe([this] { takePlace(); }),
                     ports.window.dpiChanged.subscribe([this] { takeDpi(); }),
                     ports.state.countChanged.subscribe([this] { tools_.showTextsAnew(); }),
                     // The panel that has the keyboard may go.
                     removed_.bringingBack.subscribe([this] { focus_.keepInList(); })} {
    takeDpi();
}

ToolsPane::~ToolsPane() = default;

void ToolsPane::load() {
    tools_.prepareFirstTools();
    automatic_.load(presentTime());
    documents_.UpdatePathLine();
    UpdatePanelLayout(true, true);
}

bool ToolsPane::save(bool quietly) {
    const QuietMessages messages(fileMessages_, quietly);
    return automatic_.save();
}

bool ToolsPane::saveChanges() {
    const QuietMessages messages(fileMessages_, true);
    return automatic_.saveChanges();
}

void ToolsPane::takeDpi() {
    const int dpi = ports_.window.size().dpi();
    list_.setDpi(dpi);
    panelMaker_.setDpi(dpi);
    tools_.ArrangePanels();
}

void ToolsPane::takePlace() {
    list_.resize(ports_.window.listPlace());
    UpdatePanelLayout(false, false);
}

void ToolsPane::UpdatePanelLayout(bool AdjustFormHeight, bool Force) {
    changed.raise();
    const int content = tools_.contentHeight();
    if (AdjustFormHeight) {
        SettingsSize& size = ports_.window.size();
        const auto place = size.forPanels(ports_.state.options().mode);
        if (const auto height = layout_.UpdatePanelLayout(content, Force, place)) {
            size.takeHeight(*height);
        }
    }
    list_.setContentHeight(content);
}

void ToolsPane::tellPanelsWhatShows() {
    supply_.update();
    const bool isNear = ports_.window.isMouseNear();
    for (PanelWindow* panel : panelMaker_.panels()) {
        panel->setGrowing(isNear && list_.shows(panel->handle()));
    }
}

void ToolsPane::runClock(bool running) {
    constexpr UINT interval = 40;
    tmrFast_.keep(ports_.window.handle(), running ? interval : 0);
}

void ToolsPane::onTimer(UINT_PTR timer) {
    if (timer == tmrFast) {
        clock_.tick();
    }
    supply_.onTimer(timer);
}

bool ToolsPane::execute(Command command) {
    static constexpr std::array<CommandAction<ToolsPane>, 13> rows{{
        {Command::addStencil, [](ToolsPane& self) { self.addTool(ToolKind::stencil); }},
        {Command::addMeasure, [](ToolsPane& self) { self.addTool(ToolKind::measurement); }},
        {Command::newTools, [](ToolsPane& self) { self.documents_.New(); }},
        {Command::load, [](ToolsPane& self) { self.documents_.Load(); }},
        {Command::save, [](ToolsPane& self) { self.documents_.Save(); }},
        {Command::saveAs, [](ToolsPane& self) { self.documents_.SaveAs(); }},
        {Command::nextTool, [](ToolsPane& self) { self.sheet().focusNext(false); }},
        {Command::previousTool, [](ToolsPane& self) { self.sheet().focusNext(true); }},
        {Command::undo, [](ToolsPane& self) { self.removed_.undo(self.sheet().toolOfKeys()); }},
        {Command::redo, [](ToolsPane& self) { self.removed_.redo(self.sheet().toolOfKeys()); }},
        {Command::nextPanel, [](ToolsPane& self) { self.focus_.goToPanel(1); }},
        {Command::previousPanel, [](ToolsPane& self) { self.focus_.goToPanel(-1); }},
        {Command::copyReadOuts, [](ToolsPane& self) { self.copyReadOuts(); }},
    }};
    return runCommand<ToolsPane>(rows, *this, command);
}

void ToolsPane::copyReadOuts() {
    if (const SettingControl* const core = tools_.panelOf(sheet().toolOfKeys())) {
        ports_.view.copy(copyOfReadOuts(core->readOuts()));
    }
}

void ToolsPane::addTool(ToolKind kind) {
    tools_.AddNewControl(static_cast<int>(kind));
    if (!list_.isVisible()) {
        // A window that has come up without tools has no room for the first one's panel.
        UpdatePanelLayout(true, true);
    }
}

void ToolsPane::refresh() {
    // What has changed is invalid already.
    RedrawWindow(ports_.window.handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void ToolsPane::beginBusy(const std::string& info, bool hourglass) {
    SetCursor(LoadCursorW(nullptr, hourglass ? IDC_WAIT : IDC_ARROW));
    focus_.keepInList();
    list_.setBulkUpdate(true);
    ports_.window.bar().showInfo(info);
    refresh();
}

void ToolsPane::endBusy() {
    panelMaker_.takePlaces();
    list_.setBulkUpdate(false);
    ports_.window.bar().showInfo({});
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void ToolsPane::refreshWorksheet() {
    UpdateWindow(ports_.worksheet.handle());
}

}  // namespace ormala
