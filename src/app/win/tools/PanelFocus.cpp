#include "app/win/tools/PanelFocus.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "widgets/win/tabStops.h"

namespace ormala {

namespace {

PressGuard::DoubleClick doubleClickOfSystem() {
    return {{GetSystemMetrics(SM_CXDOUBLECLK), GetSystemMetrics(SM_CYDOUBLECLK)},
            static_cast<std::int32_t>(GetDoubleClickTime())};
}

bool isPress(UINT message) {
    constexpr std::array presses{WM_LBUTTONDOWN,   WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,
                                 WM_RBUTTONDBLCLK, WM_MBUTTONDOWN,   WM_MBUTTONDBLCLK};
    return std::ranges::find(presses, message) != presses.end();
}

bool holdsFocus(HWND window) {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == window || IsChild(window, focus) != FALSE);
}

}  // namespace

PanelFocus::PanelFocus(const Ports& ports)
    : ports_(ports),
      pressGuard_(doubleClickOfSystem()),
      subscriptions_{
          ports.window.pressed.subscribe(
              [this](POINT screen) { ports_.focus.pressed(hasPanelAt(screen)); }),
          ports.window.keyboardArrived.subscribe([this] { giveFocusToPanel(); }),
          ports.window.tabbed.subscribe([this](HWND control) { ensureControlVisible(control); }),
      } {}

void PanelFocus::keepInList() {
    passFocus(ports_.list.handle(), ports_.list.handle());
}

void PanelFocus::panelSelected(PanelWindow& panel) {
    focused_ = panel.handle();
    const bool active = GetActiveWindow() == ports_.window.handle();
    // Otherwise the keyboard stays with the tool. A press that is under way would lose its click
    // with the keyboard: a selection can be shown a tenth of a second late.
    if (active && GetCapture() == nullptr && IsChild(focused_, GetFocus()) == FALSE) {
        SetFocus(focused_);
    }
    if (!ports_.list.bulkUpdate()) {
        // What its panel shows stays in sight, also where a window manager lets the worksheet come
        // up above an active window.
        ports_.view.raiseAboveAll();
    }
    EnsurePanelVisible(panel);
}

void PanelFocus::panelGotFocus(PanelWindow& panel) {
    if (restoringFocus_) {
        return;
    }
    if (ports_.focus.panelIsChosen(ports_.window.handle())) {
        focused_ = panel.handle();
        ports_.sheet.SelectControl(panel.core().RefControlControl());
    } else {
        SetFocusToSelectedControl();
    }
}

void PanelFocus::SetFocusToSelectedControl() {
    const auto& panels = ports_.panels.panels();
    const auto at = std::ranges::find_if(
        panels, [](PanelWindow* panel) { return panel->core().Selected() && panel->isVisible(); });
    if (at != panels.end()) {
        focused_ = (*at)->handle();
        focusWithoutSelecting(ports_.list.handle());
        focusWithoutSelecting(focused_);
    }
}

bool PanelFocus::hasPanelAt(POINT screen) const {
    return std::ranges::any_of(ports_.panels.panels(), [screen](const PanelWindow* panel) {
        const RECT place = panel->rectangle();
        return panel->isVisible() && PtInRect(&place, screen) != FALSE;
    });
}

void PanelFocus::giveFocusToPanel() {
    if (!ports_.focus.passesKeyboardOn()) {
        return;
    }
    // A focus that comes back is no choice of the user's.
    const PanelWindow* panel = ports_.panels.panelOf(focused_);
    focusWithoutSelecting(panel != nullptr && panel->isVisible() ? panel->handle()
                                                                 : ports_.list.handle());
}

void PanelFocus::passFocus(HWND from, HWND to) {
    if (holdsFocus(from)) {
        focusWithoutSelecting(to);
    }
}

void PanelFocus::focusWithoutSelecting(HWND window) {
    const bool former = std::exchange(restoringFocus_, true);
    SetFocus(window);
    restoringFocus_ = former;
}

void PanelFocus::EnsurePanelVisible(const PanelWindow& panel) {
    const PixelRect box = panel.placeInList();
    ports_.list.EnsurePanelVisible(box.top, box.height());
}

void PanelFocus::ensureControlVisible(HWND control) {
    if (const PanelWindow* const panel = ports_.panels.panelWith(control)) {
        constexpr int room = 4;
        // Not beyond the panel, and so not beyond the content.
        const PixelRect box =
            placeIn(ports_.list.picInner(), control).grown(room).intersected(panel->placeInList());
        ports_.list.EnsurePanelVisible(box.top, box.height());
    }
}

void PanelFocus::removePanel(PanelWindow& panel, bool byMouse) {
    if (byMouse) {
        const POINT mouse = cursorPlace();
        pressGuard_.removed({mouse.x, mouse.y}, GetTickCount());
    }
    ports_.window.later([this, window = panel.handle()] { removeNow(window); });
}

/// The keyboard goes on to a neighbour, whose tool stays as it is.
void PanelFocus::removeNow(HWND window) {
    PanelWindow* const panel = ports_.panels.panelOf(window);
    if (panel == nullptr || panel->core().Hidden()) {
        return;
    }
    const HWND follower = followerOf(*panel);
    if (focused_ == window) {
        focused_ = follower;
    }
    passFocus(window, follower);
    ports_.removed.remove(panel->core());
}

HWND PanelFocus::followerOf(PanelWindow& panel) const {
    const PanelWindow* const next = windowOf(ports_.tools.successorOf(panel.core()));
    return next != nullptr ? next->handle() : ports_.list.handle();
}

PanelWindow* PanelFocus::windowOf(const SettingControl* core) const {
    const auto& panels = ports_.panels.panels();
    const auto at = std::ranges::find_if(
        panels, [core](PanelWindow* window) { return &window->core() == core; });
    return at != panels.end() ? *at : nullptr;
}

PanelWindow* PanelFocus::panelWithKeyboard() const {
    const auto& panels = ports_.panels.panels();
    const auto at = std::ranges::find_if(
        panels, [](const PanelWindow* window) { return holdsFocus(window->handle()); });
    return at != panels.end() ? *at : nullptr;
}

void PanelFocus::goToPanel(int places) {
    PanelWindow* const from = panelWithKeyboard();
    const SettingControl* const core = from != nullptr ? &from->core() : nullptr;
    if (PanelWindow* const to = windowOf(ports_.tools.panelBeside(core, places))) {
        EnsurePanelVisible(*to);
        to->equip();
        const HWND first = nextTabStop(to->handle(), nullptr, false);
        SetFocus(first != nullptr ? first : to->handle());
    }
}

bool PanelFocus::swallows(const MSG& message) {
    const PixelPoint mouse{message.pt.x, message.pt.y};
    if (message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE) {
        pressGuard_.mouseMoved(mouse);
    }
    return isPress(message.message) && IsChild(ports_.list.picInner(), message.hwnd) != FALSE &&
           !pressGuard_.takesPress(mouse, message.time);
}

}  // namespace ormala
