#include "toolkit/win/PanelControls.h"

#include <algorithm>
#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/fills.h"
#include "platform/win/mousePassing.h"
#include "platform/win/regions.h"
#include "scene/Input.h"
#include "toolkit/PanelMemory.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/controlFontSize.h"

namespace ormala {

namespace {

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

}  // namespace

PanelControls::PanelControls(HWND parent, const PanelDesign& design) : design_(design) {
    WindowDesign window;
    window.className = L"PanelControls";
    window.style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    window.extendedStyle = WS_EX_CONTROLPARENT;
    window.owner = parent;
    create(window);
    int id = 1;
    for (const PanelControl& row : design.controls) {
        makeControl(row, id++);
    }
    ApplyLanguage();
}

void PanelControls::makeControl(const PanelControl& row, int id) {
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

void PanelControls::makeBand(Control& made, const PanelControl& row, int id) {
    made.band = std::make_unique<GradShape>(handle(), id, row.name);
    made.band->setColorBottomRight(row.part == PanelPart::titleBand ? look_.titleBottomRight
                                                                    : dark::titleEnd);
}

void PanelControls::makeLabel(Control& made, const PanelControl& row, int id) {
    made.label = std::make_unique<Label>(handle(), id, row.name);
    made.label->setTextColor(row.part == PanelPart::value ? dark::text : dark::quietText);
    made.label->setBold(row.part == PanelPart::title);
}

void PanelControls::makeButton(Control& made, const PanelControl& row, int id) {
    made.button = std::make_unique<ZelvikButtonXP>(handle(), id, row.fullName());
    ZelvikButtonXP& button = *made.button;
    button.setControlType(controlTypeOf(row.part));
    button.setBackColor(firstLook(row).back);
    if (row.letter != nullptr) {
        button.setCaption(row.letter);
    }
    if (row.picture) {
        button.setPicture(pictureMaker(*row.picture));
        const int side = row.box.height() < commandHeight ? stepPicture : commandPicture;
        button.setPictureSize(side, side);
    }
    if (row.part == PanelPart::image) {
        button.setPlaneFace(true);
        button.setPictureSize(row.box.width() - imageEdges, row.box.height() - imageEdges);
        // A picture is no stop of the Tab key.
        SetWindowLongPtrW(button.handle(), GWL_STYLE,
                          GetWindowLongPtrW(button.handle(), GWL_STYLE) & ~WS_TABSTOP);
    }
    button.setCornerStyle(row.cornerStyle);
    growth_.add(button);
    connectFocus(button);
    if (row.part == PanelPart::step) {
        connectStep(button, row);
    } else {
        connectClick(button, row);
    }
    connectHover(button, row);
}

void PanelControls::wentToButton() const {
    if (user_) {
        // The controls may serve nobody any more when it returns.
        const auto went = user_->wentToButton;
        went();
    }
}

void PanelControls::connectFocus(ZelvikButtonXP& button) {
    // A press goes through its click, so that the focus is not taken from a held button.
    subscriptions_.push_back(button.gotFocus.subscribe([this] {
        if (GetKeyState(VK_LBUTTON) >= 0) {
            wentToButton();
        }
    }));
    subscriptions_.push_back(button.Click.subscribe([this] { wentToButton(); }));
}

/// The panel may end in what it does.
void PanelControls::connectClick(ZelvikButtonXP& button, const PanelControl& row) {
    // The click itself doesn't know what it came from.
    const auto last = std::make_shared<Press>();
    subscriptions_.push_back(button.MouseDown.subscribe([last](MouseArguments at) {
        *last = {0, at.shift, true};
    }));
    subscriptions_.push_back(button.KeyDown.subscribe([last](KeyArguments key) {
        *last = {0, key.shift, false};
    }));
    subscriptions_.push_back(button.Click.subscribe([this, last, &row] {
        withCore([&](SettingControl& core) { row.press.perform(core, std::exchange(*last, {})); });
    }));
}

void PanelControls::connectStep(ZelvikButtonXP& button, const PanelControl& row) {
    subscriptions_.push_back(button.MouseDown.subscribe([this, &row](MouseArguments at) {
        if (at.button == mouseButton::left) {
            withCore([&](SettingControl& core) { core.press(row, at.shift); });
        }
    }));
    subscriptions_.push_back(button.MouseUp.subscribe([this](MouseArguments at) {
        if (at.button == mouseButton::left) {
            withCore([](SettingControl& core) { core.release(); });
        }
    }));
    subscriptions_.push_back(button.KeyDown.subscribe([this, &row](KeyArguments key) {
        if (key.keyCode == key::space) {
            withCore([&](SettingControl& core) { core.pressKey(row, key.shift); });
        }
    }));
    subscriptions_.push_back(button.KeyUp.subscribe([this](KeyArguments key) {
        if (key.keyCode == key::space) {
            withCore([](SettingControl& core) { core.releaseKey(); });
        }
    }));
    subscriptions_.push_back(button.lostFocus.subscribe(
        [this] { withCore([](SettingControl& core) { core.releaseKey(); }); }));
}

void PanelControls::connectHover(ZelvikButtonXP& button, const PanelControl& row) {
    if (!row.hover) {
        return;
    }
    const auto hover = [this, &row](bool over) {
        withCore([&](SettingControl& core) { row.hover.perform(core, over); });
    };
    subscriptions_.push_back(button.MouseEnter.subscribe([hover](int) { hover(true); }));
    subscriptions_.push_back(button.MouseExit.subscribe([hover](int) { hover(false); }));
}

void PanelControls::retire() {
    shrinkButtons();
    for (const Control& control : controls_) {
        if (control.button) {
            control.button->leaveMouse();
        }
    }
    user_.reset();
    setVisible(false);
}

void PanelControls::layOut(int dpi) {
    shrinkButtons();
    if (std::exchange(dpi_, dpi) == dpi) {
        return;
    }
    const PixelSize size = design_.size;
    place({0, 0, scaledLength(size.width, dpi), scaledLength(size.height, dpi)});
    for (std::size_t row = 0; row < controls_.size(); ++row) {
        const Control& control = controls_[row];
        const PixelRect box = scaledToDpi(design_.controls[row].box, dpi);
        if (control.band) {
            control.band->place(box);
        } else if (control.label) {
            control.label->setDpi(dpi);
            control.label->place(box);
        } else {
            control.button->setDpi(dpi);
            control.button->place(box);
        }
    }
}

void PanelControls::ApplyLanguage() {
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelControl& row = design_.controls[number];
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
}

void PanelControls::setFontSize(int points) const {
    SetFontSizeOfControls(handle(), points);
}

void PanelControls::showTexts(const std::vector<ControlText>& texts) {
    for (const ControlText& shown : texts) {
        controlOf(shown.control).label->setText(shown.text);
    }
}

void PanelControls::showLook(const PanelLook& look) {
    look_ = look;
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelPart part = design_.controls[number].part;
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

void PanelControls::showButton(ControlId button, const ButtonLook& look) {
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

void PanelControls::showPicture(ControlId button, PictureMaker maker) {
    controlOf(button).button->setPicture(std::move(maker), PictureKind::preview);
}

void PanelControls::enable(const PanelEnabling& enabling) {
    for (std::size_t number = 0; number < controls_.size(); ++number) {
        const Control& control = controls_[number];
        const PanelControl& row = design_.controls[number];
        if (control.button && row.id != CommonControl::cmdPause) {
            control.button->setEnabled(row.id == CommonControl::cmdUndo   ? enabling.undo
                                       : row.id == CommonControl::cmdRedo ? enabling.redo
                                                                          : enabling.controls);
        } else if (control.label && row.part != PanelPart::title) {
            control.label->setEnabled(enabling.labels);
        }
    }
}

bool PanelControls::drawPart(HDC context, const PixelRect& part) const {
    if (growth_.someGrown()) {
        return false;
    }
    fillRect(context, toRect(part), look_.background);
    // The bands lie beneath all others.
    for (const bool bands : {true, false}) {
        for (std::size_t row = 0; row < controls_.size(); ++row) {
            const PixelRect box = scaledToDpi(design_.controls[row].box, dpi_);
            const bool isBand = controls_[row].band != nullptr;
            if (isBand == bands && box.meets(part)) {
                controls_[row].drawInto(context, {box.left, box.top});
            }
        }
    }
    return true;
}

void PanelControls::Control::drawInto(HDC context, PixelPoint corner) const {
    if (band) {
        band->drawInto(context, corner);
    } else if (label) {
        label->drawInto(context, corner);
    } else {
        button->drawInto(context, corner);
    }
}

LRESULT PanelControls::onPaint() {
    const PaintScope scope(handle());
    fillRect(scope.context(), scope.area(), look_.background);
    return 0;
}

std::optional<LRESULT> PanelControls::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SETFOCUS:
            SetFocus(GetParent(handle()));
            return 0;
        default:
            if (passMouseToParent(handle(), message, wParam, lParam)) {
                return 0;
            }
            return std::nullopt;
    }
}

}  // namespace ormala
