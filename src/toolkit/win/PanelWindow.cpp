#include "toolkit/win/PanelWindow.h"

#include <utility>

#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

/// Shows the popup menu once the event that asked for it is over: a menu has a message loop of its
/// own, in which the asking tool may come to its end.
constexpr UINT wmPopUpMenu = WM_APP + 1;
constexpr UINT_PTR mnuDelete = 1;

/// The control as it is called where there are several of it, such as of panels in a list.
std::string nameOf(const PanelDesign& design, int number) {
    constexpr std::size_t prefix = 3;
    return design.className.substr(prefix) + "(" + std::to_string(number) + ")";
}

}  // namespace

PanelWindow::PanelWindow(const Ports& ports, const MakeCore& makeCore)
    : host_(ports.host), store_(ports.store), core_(makeCore(*this)) {
    const PanelDesign& design = core_->design();
    const std::wstring className = wide(design.className);
    WindowDesign window;
    window.className = className.c_str();
    window.style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    window.extendedStyle = WS_EX_CONTROLPARENT;
    window.owner = ports.parent;
    window.id = ports.id;
    create(window);
    setControlName(handle(), nameOf(design, ports.id));
    subscriptions_ = {
        ports.fontSizeChange.subscribe([this](int points) {
            if (controls_) {
                controls_->setFontSize(points);
            }
        }),
        GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); }),
    };
    ApplyLanguage();
}

PanelWindow::~PanelWindow() {
    if (!holds({})) {
        strip();
    }
    destroy();
}

void PanelWindow::equip() {
    if (controls_) {
        return;
    }
    controls_ = store_.take(core_->design(), handle());
    controls_->layOut(dpi_);
    memory_.tell(core_->design(), *controls_);
    controls_->serve({*core_, [this] { host_.panelGotFocus(*this); }});
    controls_->show();
}

void PanelWindow::strip() {
    if (controls_) {
        store_.giveBack(std::move(controls_));
    }
}

bool PanelWindow::holds(const HeldWindows& held) const {
    const auto isInside = [this](HWND window) {
        return window != nullptr && (window == handle() || IsChild(handle(), window) != FALSE);
    };
    return isInside(held.focus) || isInside(held.capture);
}

bool PanelWindow::drawPart(HDC context, const PixelRect& part) const {
    if (controls_) {
        return controls_->drawPart(context, part);
    }
    fillRect(context, toRect(part), memory_.look().background);
    return true;
}

PixelSize PanelWindow::size() const {
    const PixelSize designed = core_->design().size;
    return {scaledLength(designed.width, dpi_), scaledLength(designed.height, dpi_)};
}

PixelRect PanelWindow::placeInList() const {
    const PixelSize own = size();
    return {0, top_, own.width, top_ + own.height};
}

void PanelWindow::takePlace() {
    if (const PixelRect wanted = placeInList(); place_ != wanted) {
        place_ = wanted;
        place(wanted);
    }
}

void PanelWindow::setDpi(int dpi) {
    dpi_ = dpi;
    if (controls_) {
        controls_->layOut(dpi);
    }
}

void PanelWindow::setGrowing(bool growing) {
    if (growing == tmrButtonBig_.isRunning()) {
        return;
    }
    tmrButtonBig_.keep(handle(), growing ? core_->design().growthInterval : 0);
    if (!growing && controls_) {
        controls_->shrinkButtons();
    }
}

void PanelWindow::ApplyLanguage() {
    if (controls_) {
        controls_->ApplyLanguage();
    }
    core_->ShowAllProps(true);
}

void PanelWindow::showTexts(const std::vector<ControlText>& texts) {
    tell([&](PanelFace& face) { face.showTexts(texts); });
}

void PanelWindow::showLook(const PanelLook& look) {
    tell([&](PanelFace& face) { face.showLook(look); });
    InvalidateRect(handle(), nullptr, FALSE);
}

void PanelWindow::showButton(ControlId button, const ButtonLook& look) {
    tell([&](PanelFace& face) { face.showButton(button, look); });
}

void PanelWindow::showPicture(ControlId button, PictureMaker maker) {
    tell([&](PanelFace& face) { face.showPicture(button, maker); });
}

void PanelWindow::enable(const PanelEnabling& enabling) {
    tell([&](PanelFace& face) { face.enable(enabling); });
}

void PanelWindow::runTimer(PanelTimer timer, unsigned interval) {
    timers_[static_cast<std::size_t>(timer)].start(handle(), interval);
}

void PanelWindow::showMenu(const std::string& removeText) {
    menuText_ = wide(removeText);
    menuPlace_ = cursorPlace();
    PostMessageW(handle(), wmPopUpMenu, 0, 0);
}

void PanelWindow::popUpMenu() {
    const Handle<HMENU, &DestroyMenu> menu(CreatePopupMenu());
    AppendMenuW(menu.get(), MF_STRING, mnuDelete, menuText_.c_str());
    const HWND window = handle();
    const BOOL chosen = TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON,
                                       menuPlace_.x, menuPlace_.y, 0, window, nullptr);
    // The panel may have gone meanwhile.
    if (chosen == static_cast<BOOL>(mnuDelete) && IsWindow(window) != FALSE) {
        core_->remove({.byMouse = true});
    }
}

LRESULT PanelWindow::onPaint() {
    const PaintScope scope(handle());
    fillRect(scope.context(), scope.area(), memory_.look().background);
    return 0;
}

void PanelWindow::growButtons() {
    if (controls_) {
        controls_->growButtons();
    }
}

LRESULT PanelWindow::onTimer(WPARAM id) {
    if (id == tmrButtonBig_.number()) {
        growButtons();
    } else {
        core_->timerTicked(static_cast<PanelTimer>(id - timers_[0].number()));
    }
    return 0;
}

std::optional<LRESULT> PanelWindow::onMessage(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            if (GetFocus() == handle()) {
                host_.panelGotFocus(*this);
            }
            SetFocus(handle());
            return 0;
        case WM_SETFOCUS:
            host_.panelGotFocus(*this);
            return 0;
        case WM_TIMER:
            return onTimer(wParam);
        case wmPopUpMenu:
            popUpMenu();
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace ormala
