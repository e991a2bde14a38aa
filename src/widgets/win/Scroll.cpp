#include "widgets/win/Scroll.h"

#include <oleacc.h>
#include <windowsx.h>

#include "language/MlStringModule.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "scene/dpi.h"
#include "widgets/win/scrollFace.h"

namespace ormala {

namespace {

// Of the texts of the arrows.
constexpr int textTopLeft = 101;
constexpr int textBottomRight = 102;

enum ButtonId { idTopLeft = 1, idMove, idBottomRight };

PixelPoint pointOf(HWND from, HWND to, LPARAM lParam) {
    POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    MapWindowPoints(from, to, &point, 1);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

void askForLeave(HWND window) {
    TRACKMOUSEEVENT wanted{sizeof(TRACKMOUSEEVENT), TME_LEAVE, window, 0};
    TrackMouseEvent(&wanted);
}

}  // namespace

Scroll::Scroll(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"Scroll";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    cmdTL_.open(handle(), idTopLeft, "cmdTL");
    cmdMove_.open(handle(), idMove, "cmdMove");
    cmdBR_.open(handle(), idBottomRight, "cmdBR");
    placing_ = model_.LayoutChange.subscribe([this] { refresh(); });
    following_ = model_.Change.subscribe([this] { Change.raise(); });
    relabeling_ = GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); });
    ApplyLanguage();
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
}

void Scroll::ApplyLanguage() {
    cmdTL_.setCaption(MlString(textTopLeft, "6"));
    cmdBR_.setCaption(MlString(textBottomRight, "5"));
}

/// The captions of the arrows are signs, so that all parts have a word of their own to be told by.
LRESULT Scroll::tellFacts(ScrollPart part, AccessibleFacts& facts) const {
    facts.state = model_.Enabled() ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_UNAVAILABLE;
    facts.state |= focusedPart() == part ? STATE_SYSTEM_FOCUSED : 0;
    if (part == ScrollPart::thumb) {
        facts.name = MlString(542, "Scroll position");
        facts.role = ROLE_SYSTEM_INDICATOR;
        return TRUE;
    }
    facts.name = part == ScrollPart::topLeft ? MlString(540, "Up") : MlString(541, "Down");
    facts.role = ROLE_SYSTEM_PUSHBUTTON;
    facts.action = "Press";
    facts.actionMessage = BM_CLICK;
    return TRUE;
}

void Scroll::setDpi(int dpi) {
    dpi_ = dpi;
    onSize();
}

ScrollPart Scroll::focusedPart() const {
    const HWND focus = GetFocus();
    for (const ScrollButton* button : {&cmdTL_, &cmdMove_, &cmdBR_}) {
        if (focus != nullptr && button->handle() == focus) {
            return button->part();
        }
    }
    return ScrollPart::none;
}

void Scroll::placeButtons() {
    const ScrollLayout& layout = model_.layout();
    const bool hasThumb = model_.Enabled() && !layout.cmdMove.empty();
    if (!hasThumb && focusedPart() == ScrollPart::thumb) {
        SetFocus(cmdTL_.handle());
    }
    cmdTL_.place(layout.cmdTL);
    cmdMove_.place(hasThumb ? layout.cmdMove : PixelRect{});
    cmdBR_.place(layout.cmdBR);
}

void Scroll::refresh() {
    if (handle() == nullptr) {
        return;
    }
    drawn_ = false;
    placeButtons();
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

/// Bar and buttons all show their piece of one picture, which is drawn out of sight.
LRESULT Scroll::paint(HWND window) {
    const PaintScope scope(window);
    if (!drawn_) {
        const PixelRect client = fromRect(clientRectangle());
        const PixelSize size{client.width(), client.height()};
        const ScrollPart pressed = model_.pressed();
        const bool held = captured_ && pressed != ScrollPart::none;
        const bool sunk = pressed == hover_ || pressed == ScrollPart::thumb;
        ScrollLook look;
        look.enabled = model_.Enabled();
        look.hover = held && hover_ != pressed ? ScrollPart::none : hover_;
        look.pressed = sunk ? pressed : ScrollPart::none;
        look.focus = focusedPart();
        look.lineWidth = lineWidthAt(dpi_);
        drawn_ = buffer_.resize(size);
        paintScroll(buffer_.context(), size, model_.layout(), look);
    }
    POINT origin{};
    MapWindowPoints(window, handle(), &origin, 1);
    const RECT& area = scope.area();
    BitBlt(scope.context(), area.left, area.top, area.right - area.left, area.bottom - area.top,
           buffer_.context(), area.left + origin.x, area.top + origin.y, SRCCOPY);
    return 0;
}

LRESULT Scroll::onSize() {
    const PixelRect client = fromRect(clientRectangle());
    model_.resize({client.width(), client.height()}, dpi_);
    return 0;
}

LRESULT Scroll::onEnable(bool enabled) {
    if (!enabled && focusedPart() != ScrollPart::none) {
        SetFocus(GetParent(handle()));
    }
    model_.setEnabled(enabled);
    hover_ = ScrollPart::none;
    for (const ScrollButton* button : buttons()) {
        EnableWindow(button->handle(), enabled ? TRUE : FALSE);
    }
    refresh();
    return 0;
}

LRESULT Scroll::onCaptureChanged() {
    if (captured_) {
        captured_ = false;
        model_.cancel();
        refresh();
    }
    return 0;
}

void Scroll::hover(ScrollPart part) {
    if (hover_ != part) {
        hover_ = part;
        refresh();
    }
}

void Scroll::press(PixelPoint point) {
    const ScrollPart part = model_.layout().partAt(point);
    for (const ScrollButton* button : buttons()) {
        if (button->part() == part) {
            SetFocus(button->handle());
        }
    }
    SetCapture(handle());
    captured_ = true;
    hover_ = part;
    model_.press(part, point);
    refresh();
}

void Scroll::move(HWND window, PixelPoint point) {
    askForLeave(window);
    hover(model_.layout().partAt(point));
    if (captured_) {
        model_.move(point);
    }
}

void Scroll::release(PixelPoint point) {
    if (captured_) {
        captured_ = false;
        ReleaseCapture();
        refresh();
        model_.release(point);
    }
}

std::optional<LRESULT> Scroll::mouseMessage(HWND window, UINT message, LPARAM lParam) {
    const PixelPoint point = pointOf(window, handle(), lParam);
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            press(point);
            return 0;
        case WM_MOUSEMOVE:
            move(window, point);
            return 0;
        case WM_LBUTTONUP:
            release(point);
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> Scroll::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint(handle());
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            return onSize();
        case WM_ENABLE:
            return onEnable(wParam != FALSE);
        case WM_SETFOCUS:
            SetFocus(cmdTL_.handle());
            return 0;
        case WM_MOUSELEAVE:
            hover(ScrollPart::none);
            return 0;
        case WM_CAPTURECHANGED:
            return onCaptureChanged();
        case WM_DPICHANGED_AFTERPARENT:
            setDpi(static_cast<int>(GetDpiForWindow(handle())));
            return 0;
        default:
            return mouseMessage(handle(), message, lParam);
    }
}

std::optional<LRESULT> Scroll::buttonMessage(ScrollButton& button, UINT message, WPARAM wParam,
                                             LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint(button.handle());
        case WM_ERASEBKGND:
            return 1;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            refresh();
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_BUTTON;
        case WM_KEYDOWN:
            if (model_.keyDown(button.part(), static_cast<int>(wParam))) {
                return 0;
            }
            return std::nullopt;
        case BM_CLICK:
            model_.stepOnce(button.part());
            return 0;
        case WM_GETOBJECT:
            return answerAccessible(button.handle(), wParam, lParam);
        case accessibleFactsMessage:
            return tellFacts(button.part(), wantedFacts(lParam));
        case WM_MOUSELEAVE:
            if (hover_ == button.part()) {
                hover(ScrollPart::none);
            }
            return 0;
        default:
            return mouseMessage(button.handle(), message, lParam);
    }
}

}  // namespace ormala
