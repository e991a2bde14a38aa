#include "app/win/ToolsPane.h"

#include <algorithm>
#include <utility>

#include "app/programFiles.h"
#include "app/version.h"
#include "app/win/timeOfSaving.h"
#include "storage/win/SpecialFolder.h"

namespace ormala {

namespace {

/// A panel is removed once the event is over in which its tool or its button asked for that.
constexpr UINT wmRemovePanel = WM_APP + 1;

PressGuard::DoubleClick doubleClickOfSystem() {
    return {{GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK)},
            static_cast<std::int32_t>(GetDoubleClickTime())};
}

bool isPress(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
            return true;
        default:
            return false;
    }
}

bool holdsFocus(HWND window) {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == window || IsChild(window, focus) != FALSE);
}

}  // namespace

ToolsPane::ToolsPane(const Ports& ports, int id)
    : ports_(ports),
      messages_(ports.window),
      toolsFile_(ports.store, ports.codePage, fileMessages_),
      list_(ports.window, id),
      panelDialogs_({ports.window, ports.worksheet.handle(), ports.ratios, ports.settings.textForm,
                     ports.codePage, ports.defaultUnits,
                     [this](bool aside) { ports_.controlWindow.putWindowsAside(aside); }}),
      panelMaker_({list_, ports.worksheet.sheet(), *this, panelDialogs_, ports.settings,
                   ports.ratios, ports.globalEvents}),
      dialogs_(ports.window, ports.bar),
      tools_({ports.worksheet.sheet(), panelMaker_, *this, messages_}),
      defaultUnitsChanged_(panelDialogs_.defaultUnitsChanged.subscribe(
          [this] { tools_.setUnits(ports_.defaultUnits); })),
      viewChanged_(list_.viewChanged.subscribe([this] { tellPanelsWhatShows(); })),
      toolFile_({toolsFile_, ports.store, tools_, *this}, {versionText, timeOfSaving}),
      documents_({toolsFile_, ports.store, toolFile_, tools_, *this, dialogs_}),
      pressGuard_(doubleClickOfSystem()) {
    tools_.setUnits(ports.defaultUnits);
}

ToolsPane::~ToolsPane() = default;

void ToolsPane::setDpi(int dpi) {
    list_.setDpi(dpi);
    panelMaker_.setDpi(dpi);
    tools_.ArrangePanels();
}

void ToolsPane::resize(const PixelRect& box) {
    list_.resize(box);
}

void ToolsPane::UpdatePanelLayout(bool AdjustFormHeight, bool Force) {
    const int content = tools_.contentHeight();
    if (AdjustFormHeight) {
        const auto height =
            layout_.UpdatePanelLayout(content, Force, ports_.controlWindow.layoutWindow());
        if (height) {
            ports_.controlWindow.takeHeight(*height);
        }
    }
    list_.setContentHeight(content);
}

void ToolsPane::tellPanelsWhatShows() {
    for (PanelWindow* panel : panelMaker_.panels()) {
        panel->setSeen(list_.shows(panel->handle()));
    }
}

void ToolsPane::tick() {
    list_.tick();
    panelMaker_.tmrFast.raise();
}

void ToolsPane::stepHistory(const OverlayItem& tool, bool back) {
    for (PanelWindow* panel : panelMaker_.panels()) {
        PanelCore& core = panel->core();
        if (&core.RefControlControl() == &tool) {
            // Steps of the keys are in no record yet: without this they would be lost.
            core.AddHistoryStep();
            if (back) {
                core.Undo();
            } else {
                core.Redo();
            }
        }
    }
}

void ToolsPane::execute(Command command) {
    switch (command) {
        case Command::addStencil:
            addTool(ToolKind::stencil);
            break;
        case Command::addMeasure:
            addTool(ToolKind::measurement);
            break;
        case Command::newTools:
            documents_.New();
            break;
        case Command::load:
            documents_.Load();
            break;
        case Command::save:
            documents_.Save();
            break;
        case Command::saveAs:
            documents_.SaveAs();
            break;
        default:
            break;
    }
}

void ToolsPane::keepTools(bool quietly) {
    const QuietMessages messages(fileMessages_, quietly);
    documents_.keepAutomatic(toolsFilePath(GetSpecialFolder(folderApplicationData)));
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
    RedrawWindow(ports_.window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void ToolsPane::beginBusy(const std::string& info, bool hourglass) {
    if (hourglass) {
        SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    }
    if (holdsFocus(list_.handle())) {
        // The panels may go, and with them the keyboard.
        SetFocus(list_.handle());
    }
    list_.setBulkUpdate(true);
    ports_.bar.showInfo(info);
    refresh();
}

void ToolsPane::endBusy() {
    list_.setBulkUpdate(false);
    ports_.bar.showInfo({});
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void ToolsPane::refreshWorksheet() {
    UpdateWindow(ports_.worksheet.handle());
}

void ToolsPane::panelSelected(PanelWindow& panel) {
    focused_ = panel.handle();
    if (GetActiveWindow() == ports_.window) {
        if (IsChild(focused_, GetFocus()) == FALSE) {
            SetFocus(focused_);
        }
    } else {
        // The keyboard stays with the tool, and what its panel shows stays in sight.
        ports_.controlWindow.raiseAboveAll();
    }
    EnsurePanelVisible(panel);
}

void ToolsPane::panelGotFocus(PanelWindow& panel) {
    if (restoringFocus_) {
        return;
    }
    if (ports_.focus.panelIsChosen(ports_.window)) {
        focused_ = panel.handle();
        ports_.worksheet.sheet().SelectControl(panel.core().RefControlControl());
    } else {
        SetFocusToSelectedControl();
    }
}

void ToolsPane::SetFocusToSelectedControl() {
    const bool former = std::exchange(restoringFocus_, true);
    for (PanelWindow* panel : panelMaker_.panels()) {
        if (panel->core().Selected() && panel->isVisible()) {
            SetFocus(list_.handle());
            SetFocus(panel->handle());
            focused_ = panel->handle();
            break;
        }
    }
    restoringFocus_ = former;
}

bool ToolsPane::hasPanelAt(POINT screen) const {
    return std::ranges::any_of(panelMaker_.panels(), [screen](const PanelWindow* panel) {
        const RECT place = panel->rectangle();
        return panel->isVisible() && PtInRect(&place, screen) != FALSE;
    });
}

void ToolsPane::giveFocusToPanel() {
    // A focus that comes back is no choice of the user's.
    const PanelWindow* panel = panelMaker_.panelOf(focused_);
    focusWithoutSelecting(panel != nullptr && panel->isVisible() ? panel->handle()
                                                                 : list_.handle());
}

void ToolsPane::focusWithoutSelecting(HWND window) {
    const bool former = std::exchange(restoringFocus_, true);
    SetFocus(window);
    restoringFocus_ = former;
}

void ToolsPane::EnsurePanelVisible(const PanelWindow& panel) {
    const PixelRect box = list_.placeInContent(panel.handle());
    list_.EnsurePanelVisible(box.top, box.height());
}

void ToolsPane::ensureControlVisible(HWND control) {
    const HWND panel = GetParent(control);
    if (panelMaker_.panelOf(panel) != nullptr) {
        constexpr int room = 4;
        // Not beyond the panel, and so not beyond the content.
        const PixelRect box =
            list_.placeInContent(control).grown(room).intersected(list_.placeInContent(panel));
        list_.EnsurePanelVisible(box.top, box.height());
    }
}

PanelWindow* ToolsPane::windowOf(const ToolPanel* panel) const {
    const auto& panels = panelMaker_.panels();
    const auto at = std::ranges::find_if(
        panels, [panel](PanelWindow* window) { return &window->core() == panel; });
    return at == panels.end() ? nullptr : *at;
}

/// The keyboard goes on to a neighbour, whose tool stays as it is.
void ToolsPane::remove(PanelWindow& panel) {
    const PanelWindow* next = windowOf(tools_.successorOf(panel.core()));
    const HWND follower = next != nullptr ? next->handle() : list_.handle();
    if (focused_ == panel.handle()) {
        focused_ = follower;
    }
    if (holdsFocus(panel.handle())) {
        focusWithoutSelecting(follower);
    }
    tools_.RemovePanel(panel.core());
}

bool ToolsPane::swallows(const MSG& message) {
    const PixelPoint mouse{message.pt.x, message.pt.y};
    if (message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE) {
        pressGuard_.mouseMoved(mouse);
    }
    return isPress(message.message) && IsChild(list_.picInner(), message.hwnd) != FALSE &&
           !pressGuard_.takesPress(mouse, message.time);
}

void ToolsPane::removePanel(PanelWindow& panel, bool byMouse) {
    if (byMouse) {
        POINT mouse{};
        GetCursorPos(&mouse);
        pressGuard_.removed({mouse.x, mouse.y}, GetTickCount());
    }
    PostMessageW(ports_.window, wmRemovePanel, 0, reinterpret_cast<LPARAM>(panel.handle()));
}

std::optional<LRESULT> ToolsPane::onMessage(UINT message, LPARAM lParam) {
    if (message != wmRemovePanel) {
        return std::nullopt;
    }
    if (PanelWindow* panel = panelMaker_.panelOf(reinterpret_cast<HWND>(lParam))) {
        if (!panel->core().Hidden()) {
            remove(*panel);
        }
    }
    return 0;
}

}  // namespace ormala
