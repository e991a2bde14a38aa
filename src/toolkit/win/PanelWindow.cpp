#include "toolkit/win/PanelWindow.h"

#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "pictures/linePicture.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/text.h"
#include "scene/Input.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

namespace {

constexpr UINT_PTR tmrShowProps = 1;
constexpr UINT tmrShowPropsInterval = 110;
constexpr UINT_PTR tmrButtonBig = 2;

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

template <typename Controls>
auto* find(const Controls& controls, std::string_view name) {
    const auto at = controls.find(name);
    return at == controls.end() ? nullptr : at->second.get();
}

}  // namespace

PanelWindow::PanelWindow(const wchar_t* className, std::string_view name, const PanelDesign& design,
                         const Ports& ports)
    : design_(design), host_(ports.host), dpi_(USER_DEFAULT_SCREEN_DPI) {
    WindowDesign window;
    window.className = className;
    window.style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    window.extendedStyle = WS_EX_CONTROLPARENT;
    window.owner = ports.parent;
    window.id = ports.id;
    create(window);
    setControlName(handle(), std::string(name) + "(" + std::to_string(ports.id) + ")");
    subscriptions_.push_back(ports.fontSizeChange.subscribe(
        [this](int points) { SetFontSizeOfControls(handle(), points); }));
    int id = 1;
    for (const PanelControl& control : design_.controls) {
        makeControl(control, id++);
    }
}

void PanelWindow::open() {
    constexpr int toggle = 1;
    button("cmdPause").setControlType(toggle);
    connectDelete();
    onClick("cmdUndo", [this] { core().Undo(); });
    onClick("cmdRedo", [this] { core().Redo(); });
    onClick("cmdPause", [this] { core().togglePause(); });
    onClick("cmdDefaultPos", [this] { core().setDefaultPlace(); });
    subscriptions_.push_back(
        GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); }));
    ApplyLanguage();
}

PanelWindow::~PanelWindow() {
    destroy();
}

void PanelWindow::makeControl(const PanelControl& control, int id) {
    switch (control.part) {
        case PanelPart::titleBand:
        case PanelPart::bottomBand:
            makeBand(control, id);
            break;
        case PanelPart::button:
        case PanelPart::image:
            makeButton(control, id);
            break;
        default:
            makeLabel(control, id);
            break;
    }
}

void PanelWindow::makeBand(const PanelControl& control, int id) {
    auto band = std::make_unique<GradShape>(handle(), id, control.name);
    band->setColorBottomRight(control.part == PanelPart::titleBand ? look_.titleBottomRight
                                                                   : dark::deepestEdge);
    bands_.emplace(control.name, std::move(band));
}

void PanelWindow::makeLabel(const PanelControl& control, int id) {
    auto label = std::make_unique<Label>(handle(), id, control.name);
    label->setTextColor(control.part == PanelPart::value ? dark::text : dark::quietText);
    label->setBold(control.part == PanelPart::title);
    labels_.emplace(control.name, std::move(label));
}

void PanelWindow::makeButton(const PanelControl& control, int id) {
    auto made = std::make_unique<ZelvikButtonXP>(handle(), id, control.name);
    made->setBackColor(dark::off);
    if (control.picture) {
        made->setPicture(pictureMaker(*control.picture));
        const int side = control.box.height() < commandHeight ? stepPicture : commandPicture;
        made->setPictureSize(side, side);
    }
    if (control.part == PanelPart::image) {
        made->setBackColor(dark::liftedGround);
        made->setPlaneFace(true);
        made->setPictureSize(control.box.width() - imageEdges, control.box.height() - imageEdges);
        // A picture is no stop of the Tab key.
        SetWindowLongPtrW(made->handle(), GWL_STYLE,
                          GetWindowLongPtrW(made->handle(), GWL_STYLE) & ~WS_TABSTOP);
    }
    made->setCornerStyle(control.cornerStyle);
    // A press goes through its click, so that the focus is not taken from a held button.
    subscriptions_.push_back(made->gotFocus.subscribe([this] {
        if (GetKeyState(VK_LBUTTON) >= 0) {
            host_.panelGotFocus(*this);
        }
    }));
    subscriptions_.push_back(made->Click.subscribe([this] { host_.panelGotFocus(*this); }));
    growth_.add(*made);
    buttons_.emplace(control.name, std::move(made));
}

PixelSize PanelWindow::size() const {
    return {scaledLength(design_.size.width, dpi_), scaledLength(design_.size.height, dpi_)};
}

void PanelWindow::setDpi(int dpi) {
    growth_.reset(dpi_);
    dpi_ = dpi;
    layOut();
}

void PanelWindow::setSeen(bool seen) {
    if (std::exchange(seen_, seen) == seen) {
        return;
    }
    if (seen) {
        SetTimer(handle(), tmrButtonBig, growthInterval(), nullptr);
    } else {
        KillTimer(handle(), tmrButtonBig);
        growth_.reset(dpi_);
    }
}

void PanelWindow::layOut() {
    for (const PanelControl& control : design_.controls) {
        const PixelRect box = scaledToDpi(control.box, dpi_);
        if (GradShape* band = find(bands_, control.name)) {
            band->place(box);
        } else if (Label* label = find(labels_, control.name)) {
            label->setDpi(dpi_);
            label->place(box);
        } else if (ZelvikButtonXP* shown = find(buttons_, control.name)) {
            shown->setDpi(dpi_);
            shown->place(box);
        }
    }
}

void PanelWindow::ApplyLanguage() {
    for (const PanelControl& control : design_.controls) {
        const std::string tip = control.tip != 0 ? MlString(control.tip, {}) : std::string();
        if (Label* label = find(labels_, control.name)) {
            if (control.caption != 0) {
                label->setText(MlString(control.caption, {}));
            }
            label->SetTooltip(tip);
        } else if (ZelvikButtonXP* shown = find(buttons_, control.name)) {
            shown->SetTooltip(tip);
        }
    }
    core().ShowAllProps(true);
}

ZelvikButtonXP& PanelWindow::button(std::string_view name) {
    return *buttons_.find(name)->second;
}

void PanelWindow::onClick(std::string_view name, std::function<void()> action) {
    subscriptions_.push_back(button(name).Click.subscribe(std::move(action)));
}

void PanelWindow::onShiftClick(std::string_view name, std::function<void(int)> action) {
    // The click itself doesn't know them.
    auto held = std::make_shared<int>(0);
    ZelvikButtonXP& pressed = button(name);
    subscriptions_.push_back(
        pressed.MouseDown.subscribe([held](MouseArguments at) { *held = at.shift; }));
    subscriptions_.push_back(
        pressed.KeyDown.subscribe([held](KeyArguments key) { *held = key.shift; }));
    onClick(name, [held, act = std::move(action)] { act(std::exchange(*held, 0)); });
}

void PanelWindow::onHold(std::string_view name, Hold hold) {
    const auto shared = std::make_shared<const Hold>(std::move(hold));
    ZelvikButtonXP& held = button(name);
    subscriptions_.push_back(held.MouseDown.subscribe([shared](MouseArguments at) {
        if (at.button == mouseButton::left) {
            shared->press(at.shift);
        }
    }));
    subscriptions_.push_back(held.MouseUp.subscribe([shared](MouseArguments at) {
        if (at.button == mouseButton::left) {
            shared->release();
        }
    }));
    subscriptions_.push_back(held.KeyDown.subscribe([shared](KeyArguments key) {
        if (key.keyCode == key::space) {
            shared->key(key.shift);
        }
    }));
    subscriptions_.push_back(held.KeyUp.subscribe([shared](KeyArguments key) {
        if (key.keyCode == key::space) {
            shared->releaseKey();
        }
    }));
    subscriptions_.push_back(held.lostFocus.subscribe([shared] { shared->releaseKey(); }));
}

/// The click itself doesn't know whether it came from the mouse.
void PanelWindow::connectDelete() {
    const auto byMouse = std::make_shared<bool>(false);
    ZelvikButtonXP& cmdDelete = button("cmdDelete");
    subscriptions_.push_back(
        cmdDelete.MouseDown.subscribe([byMouse](MouseArguments) { *byMouse = true; }));
    subscriptions_.push_back(
        cmdDelete.KeyDown.subscribe([byMouse](KeyArguments) { *byMouse = false; }));
    onClick("cmdDelete", [this, byMouse] { host_.removePanel(*this, *byMouse); });
}

void PanelWindow::onHover(std::string_view name, const std::function<void(bool)>& action) {
    subscriptions_.push_back(button(name).MouseEnter.subscribe([action](int) { action(true); }));
    subscriptions_.push_back(button(name).MouseExit.subscribe([action](int) { action(false); }));
}

void PanelWindow::showTexts(const std::vector<ControlText>& texts) {
    for (const ControlText& shown : texts) {
        if (Label* label = find(labels_, shown.name)) {
            label->setText(shown.text);
        }
    }
}

void PanelWindow::showLook(const PanelLook& look) {
    look_ = look;
    for (const auto& [name, label] : labels_) {
        label->setBackColor(look.background);
    }
    GradShape& title = *bands_.at("gradTitle");
    title.setColorTopLeft(look.titleTopLeft);
    title.setColorBottomRight(look.titleBottomRight);
    bands_.at("gradBottom")->setColorTopLeft(look.bottomTopLeft);
    Label& lblTitle = *labels_.at("lblTitle");
    lblTitle.setTextColor(look.titleText);
    lblTitle.setGradient(look.titleTopLeft, look.titleBottomRight);
    InvalidateRect(handle(), nullptr, FALSE);
}

void PanelWindow::showButton(std::string_view name, const ButtonLook& look) {
    if (ZelvikButtonXP* shown = find(buttons_, name)) {
        shown->setBackColor(look.back);
        shown->setValue(look.down);
        if (look.text) {
            shown->setForeColor(*look.text);
        }
        if (look.picture) {
            shown->setPicture(pictureMaker(*look.picture));
        }
    }
}

void PanelWindow::showLineStyle(int lineCode) {
    button("cmdLineStyle").setPicture([lineCode](PixelSize size) {
        return drawLinePicture(lineCode, size);
    });
}

void PanelWindow::enable(const PanelEnabling& enabling) {
    for (const auto& [name, shown] : buttons_) {
        if (name == "cmdUndo") {
            shown->setEnabled(enabling.undo);
        } else if (name == "cmdRedo") {
            shown->setEnabled(enabling.redo);
        } else if (name != "cmdPause") {
            shown->setEnabled(enabling.controls);
        }
    }
    for (const auto& [name, label] : labels_) {
        if (name != "lblTitle") {
            label->setEnabled(enabling.labels);
        }
    }
}

void PanelWindow::runRefreshTimer(bool run) {
    if (run) {
        SetTimer(handle(), tmrShowProps, tmrShowPropsInterval, nullptr);
    } else {
        KillTimer(handle(), tmrShowProps);
    }
}

void PanelWindow::showMenu(const std::string& removeText) {
    menuText_ = wide(removeText);
    GetCursorPos(&menuPlace_);
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
        host_.removePanel(*this, true);
    }
}

LRESULT PanelWindow::onPaint() {
    const PaintScope scope(handle());
    fillRect(scope.context(), scope.area(), look_.background);
    return 0;
}

LRESULT PanelWindow::onTimer(WPARAM id) {
    if (id == tmrShowProps) {
        core().ShowAllProps(true);
    } else if (id == tmrButtonBig) {
        growth_.tick(dpi_);
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
