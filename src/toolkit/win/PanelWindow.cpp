#include "toolkit/win/PanelWindow.h"

#include <algorithm>
#include <utility>

#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/monitors.h"
#include "platform/win/text.h"
#include "scene/Input.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

namespace {

/// Shows the popup menu once the event that asked for it is over: a menu has a message loop of its
/// own, in which the asking tool may come to its end.
constexpr UINT wmPopUpMenu = WM_APP + 1;
constexpr UINT_PTR mnuDelete = 1;

/// What the edges of a picture take of its size.
constexpr int imageEdges = 8;

constexpr int stepPicture = 14;
constexpr int commandPicture = 16;
/// Buttons below this height show the small picture, in pixels at 96 DPI.
constexpr int commandHeight = 20;

PictureMaker pictureMaker(Picture picture) {
    return [picture](PixelSize size) { return drawPicture(picture, size); };
}

/// As the button knows them: a push button, a toggle, one of several.
int controlTypeOf(PanelPart part) {
    switch (part) {
        case PanelPart::toggle:
            return 1;
        case PanelPart::option:
            return 2;
        default:
            return 0;
    }
}

/// The control as it is called where there are several of it, such as of panels in a list.
std::string nameOf(const PanelDesign& design, int number) {
    constexpr std::size_t prefix = 3;
    return design.className.substr(prefix) + "(" + std::to_string(number) + ")";
}

}  // namespace

PanelWindow::PanelWindow(const Ports& ports, const MakeCore& makeCore)
    : host_(ports.host), core_(makeCore(*this)) {
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
    subscriptions_.push_back(ports.fontSizeChange.subscribe(
        [this](int points) { SetFontSizeOfControls(handle(), points); }));
    int id = 1;
    for (const PanelControl& row : design.controls) {
        makeControl(row, id++);
    }
    subscriptions_.push_back(
        GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); }));
    ApplyLanguage();
}

void PanelWindow::makeControl(const PanelControl& row, int id) {
    rowOf_.resize(std::max(rowOf_.size(), row.id.index() + 1));
    rowOf_[row.id.index()] = controls_.size();
    Control& made = controls_.emplace_back();
    switch (row.part) {
        case PanelPart::titleBand:
        case PanelPart::bottomBand:
            makeBand(made, row, id);
            break;
        case PanelPart::title:
        case PanelPart::header:
        case PanelPart::value:
            makeLabel(made, row, id);
            break;
        default:
            makeButton(made, row, id);
            break;
    }
}

void PanelWindow::makeBand(Control& made, const PanelControl& row, int id) {
    made.band = std::make_unique<GradShape>(handle(), id, row.name);
    made.band->setColorBottomRight(row.part == PanelPart::titleBand ? look_.titleBottomRight
                                                                    : dark::titleEnd);
}

void PanelWindow::makeLabel(Control& made, const PanelControl& row, int id) {
    made.label = std::make_unique<Label>(handle(), id, row.name);
    made.label->setTextColor(row.part == PanelPart::value ? dark::text : dark::quietText);
    made.label->setBold(row.part == PanelPart::title);
}

void PanelWindow::makeButton(Control& made, const PanelControl& row, int id) {
    made.button = std::make_unique<ZelvikButtonXP>(handle(), id, row.fullName());
    ZelvikButtonXP& button = *made.button;
    button.setControlType(controlTypeOf(row.part));
    button.setBackColor(dark::off);
    if (row.letter != nullptr) {
        button.setCaption(row.letter);
    }
    if (row.picture) {
        button.setPicture(pictureMaker(*row.picture));
        const int side = row.box.height() < commandHeight ? stepPicture : commandPicture;
        button.setPictureSize(side, side);
    }
    if (row.part == PanelPart::image) {
        button.setBackColor(dark::liftedGround);
        button.setPlaneFace(true);
        button.setPictureSize(row.box.width() - imageEdges, row.box.height() - imageEdges);
        // A picture is no stop of the Tab key.
        SetWindowLongPtrW(button.handle(), GWL_STYLE,
                          GetWindowLongPtrW(button.handle(), GWL_STYLE) & ~WS_TABSTOP);
    }
    button.setCornerStyle(row.cornerStyle);
    growth_.add(button);
    // A press goes through its click, so that the focus is not taken from a held button.
    subscriptions_.push_back(button.gotFocus.subscribe([this] {
        if (GetKeyState(VK_LBUTTON) >= 0) {
            host_.panelGotFocus(*this);
        }
    }));
    subscriptions_.push_back(button.Click.subscribe([this] { host_.panelGotFocus(*this); }));
    if (row.part == PanelPart::step) {
        connectStep(button, row);
    } else {
        connectClick(button, row);
    }
    connectHover(button, row);
}

/// The panel may end in what it does.
void PanelWindow::connectClick(ZelvikButtonXP& button, const PanelControl& row) {
    // The click itself doesn't know what it came from.
    const auto last = std::make_shared<Press>();
    subscriptions_.push_back(button.MouseDown.subscribe([last](MouseArguments at) {
        *last = {0, at.shift, true};
    }));
    subscriptions_.push_back(button.KeyDown.subscribe([last](KeyArguments key) {
        *last = {0, key.shift, false};
    }));
    subscriptions_.push_back(button.Click.subscribe(
        [this, last, &row] { row.press.perform(*core_, std::exchange(*last, {})); }));
}

void PanelWindow::connectStep(ZelvikButtonXP& button, const PanelControl& row) {
    subscriptions_.push_back(button.MouseDown.subscribe([this, &row](MouseArguments at) {
        if (at.button == mouseButton::left) {
            core_->press(row, at.shift);
        }
    }));
    subscriptions_.push_back(button.MouseUp.subscribe([this](MouseArguments at) {
        if (at.button == mouseButton::left) {
            core_->release();
        }
    }));
    subscriptions_.push_back(button.KeyDown.subscribe([this, &row](KeyArguments key) {
        if (key.keyCode == key::space) {
            core_->pressKey(row, key.shift);
        }
    }));
    subscriptions_.push_back(button.KeyUp.subscribe([this](KeyArguments key) {
        if (key.keyCode == key::space) {
            core_->releaseKey();
        }
    }));
    subscriptions_.push_back(button.lostFocus.subscribe([this] { core_->releaseKey(); }));
}

void PanelWindow::connectHover(ZelvikButtonXP& button, const PanelControl& row) {
    if (!row.hover) {
        return;
    }
    subscriptions_.push_back(
        button.MouseEnter.subscribe([this, &row](int) { row.hover.perform(*core_, true); }));
    subscriptions_.push_back(
        button.MouseExit.subscribe([this, &row](int) { row.hover.perform(*core_, false); }));
}

PixelSize PanelWindow::size() const {
    const PixelSize designed = core_->design().size;
    return {scaledLength(designed.width, dpi_), scaledLength(designed.height, dpi_)};
}

void PanelWindow::setDpi(int dpi) {
    growth_.reset(dpi_);
    dpi_ = dpi;
    layOut();
}

void PanelWindow::setGrowing(bool growing) {
    if (growing == tmrButtonBig_.isRunning()) {
        return;
    }
    tmrButtonBig_.keep(handle(), growing ? core_->design().growthInterval : 0);
    if (!growing) {
        growth_.reset(dpi_);
    }
}

void PanelWindow::layOut() {
    for (std::size_t row = 0; row < controls_.size(); ++row) {
        const Control& control = controls_[row];
        const PixelRect box = scaledToDpi(core_->design().controls[row].box, dpi_);
        if (control.band) {
            control.band->place(box);
        } else if (control.label) {
            control.label->setDpi(dpi_);
            control.label->place(box);
        } else {
            control.button->setDpi(dpi_);
            control.button->place(box);
        }
    }
}

void PanelWindow::ApplyLanguage() {
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelControl& row = core_->design().controls[number];
        const std::string tip = row.tip != 0 ? MlString(row.tip, {}) : std::string();
        if (control.label) {
            if (row.caption != 0) {
                control.label->setText(MlString(row.caption, {}));
            }
            control.label->SetTooltip(tip);
        } else if (control.button) {
            control.button->SetTooltip(tip);
        }
    }
    core_->ShowAllProps(true);
}

void PanelWindow::showTexts(const std::vector<ControlText>& texts) {
    for (const ControlText& shown : texts) {
        controlOf(shown.control).label->setText(shown.text);
    }
}

void PanelWindow::showLook(const PanelLook& look) {
    look_ = look;
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelPart part = core_->design().controls[number].part;
        if (control.label) {
            control.label->setBackColor(look.background);
        }
        if (part == PanelPart::title) {
            control.label->setTextColor(look.titleText);
            control.label->setGradient(look.titleTopLeft, look.titleBottomRight);
        } else if (part == PanelPart::titleBand) {
            control.band->setColorTopLeft(look.titleTopLeft);
            control.band->setColorBottomRight(look.titleBottomRight);
        } else if (part == PanelPart::bottomBand) {
            control.band->setColorTopLeft(look.bottomTopLeft);
        }
    }
    InvalidateRect(handle(), nullptr, FALSE);
}

void PanelWindow::showButton(ControlId button, const ButtonLook& look) {
    ZelvikButtonXP& shown = *controlOf(button).button;
    shown.setBackColor(look.back);
    shown.setValue(look.down);
    if (look.text) {
        shown.setForeColor(*look.text);
    }
    if (look.picture) {
        shown.setPicture(pictureMaker(*look.picture));
    }
}

void PanelWindow::showPicture(ControlId button, PictureMaker maker) {
    controlOf(button).button->setPicture(std::move(maker), PictureKind::preview);
}

void PanelWindow::enable(const PanelEnabling& enabling) {
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelControl& row = core_->design().controls[number];
        if (control.button && row.id != CommonControl::cmdPause) {
            control.button->setEnabled(row.id == CommonControl::cmdUndo   ? enabling.undo
                                       : row.id == CommonControl::cmdRedo ? enabling.redo
                                                                          : enabling.controls);
        } else if (control.label && row.part != PanelPart::title) {
            control.label->setEnabled(enabling.labels);
        }
    }
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
    fillRect(scope.context(), scope.area(), look_.background);
    return 0;
}

LRESULT PanelWindow::onTimer(WPARAM id) {
    if (id == tmrButtonBig_.number()) {
        growth_.tick(dpi_);
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
