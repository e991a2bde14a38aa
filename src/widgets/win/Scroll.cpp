#include "widgets/win/Scroll.h"

#include <oleacc.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/controlDpi.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "scene/dpi.h"
#include "widgets/win/scrollFace.h"

namespace ormala {

namespace {

// Of the texts of the arrows.
constexpr int textTopLeft = 101;
constexpr int textBottomRight = 102;

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

Scroll::Button::Button(Scroll& bar, ScrollPart part, std::string_view name)
    : ZelvikButtonXP(bar.handle(), static_cast<int>(part), name), bar_(bar), part_(part) {
    constexpr int square = 3;
    setCornerStyle(square);
}

void Scroll::Button::place(const PixelRect& box) {
    if (std::exchange(box_, box) == box) {
        return;
    }
    const UINT visibility = box.empty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
    SetWindowPos(handle(), nullptr, box.left, box.top, box.width(), box.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW | SWP_NOCOPYBITS | visibility);
}

std::optional<LRESULT> Scroll::Button::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto answer = bar_.buttonMessage(*this, message, wParam, lParam);
    // A button of its own would answer other mouse buttons too.
    return answer || isMouseMessage(message) ? answer
                                             : ZelvikButtonXP::onMessage(message, wParam, lParam);
}

Scroll::Scroll(HWND parent, int id, std::string_view name, Clock& clock) : clock_(clock) {
    WindowDesign design;
    design.className = L"Scroll";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    buttons_ = {std::make_unique<Button>(*this, ScrollPart::topLeft, "cmdTL"),
                std::make_unique<Button>(*this, ScrollPart::thumb, "cmdMove"),
                std::make_unique<Button>(*this, ScrollPart::bottomRight, "cmdBR")};
    placing_ = model_.LayoutChange.subscribe([this] { onLayout(); });
    following_ = model_.Change.subscribe([this] { Change.raise(); });
    relabeling_ = GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); });
    ApplyLanguage();
    setDpi(controlDpi(handle()));
}

void Scroll::ApplyLanguage() {
    // Signs, which are the texts of the windows and not written on them.
    button(ScrollPart::topLeft).Window::setCaption(MlString(textTopLeft, "6"));
    button(ScrollPart::bottomRight).Window::setCaption(MlString(textBottomRight, "5"));
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

Scroll::Button& Scroll::button(ScrollPart part) const {
    return **std::ranges::find(buttons_, part, [](const auto& each) { return each->part(); });
}

ScrollPart Scroll::focusedPart() const {
    const HWND focus = GetFocus();
    for (const auto& each : buttons_) {
        if (focus != nullptr && each->handle() == focus) {
            return each->part();
        }
    }
    return ScrollPart::none;
}

void Scroll::placeButtons() {
    const ScrollLayout& layout = model_.layout();
    const bool hasThumb = model_.Enabled() && !layout.cmdMove.empty();
    if (!hasThumb && focusedPart() == ScrollPart::thumb) {
        SetFocus(button(ScrollPart::topLeft).handle());
    }
    button(ScrollPart::topLeft).place(layout.cmdTL);
    button(ScrollPart::thumb).place(hasThumb ? layout.cmdMove : PixelRect{});
    button(ScrollPart::bottomRight).place(layout.cmdBR);
}

void Scroll::refresh() {
    if (handle() == nullptr) {
        return;
    }
    drawn_ = false;
    placeButtons();
    RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

/// A step of the thumb leaves the rest of the picture as it is.
void Scroll::onLayout() {
    const ScrollLayout former = std::exchange(layout_, model_.layout());
    ScrollLayout moved = former;
    moved.cmdMove = layout_.cmdMove;
    if (handle() == nullptr || moved != layout_ || former.cmdMove.empty() ||
        layout_.cmdMove.empty()) {
        refresh();
        return;
    }
    drawn_ = false;
    placeButtons();
    const RECT way = toRect(former.cmdMove.united(layout_.cmdMove));
    RedrawWindow(handle(), &way, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
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
    ticks_.reset();
    hover_ = ScrollPart::none;
    for (const auto& each : buttons_) {
        EnableWindow(each->handle(), enabled ? TRUE : FALSE);
    }
    refresh();
    return 0;
}

LRESULT Scroll::onCaptureChanged() {
    if (captured_) {
        captured_ = false;
        model_.cancel();
        ticks_.reset();
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
    for (const auto& each : buttons_) {
        if (each->part() == part) {
            SetFocus(each->handle());
        }
    }
    SetCapture(handle());
    captured_ = true;
    hover_ = part;
    model_.press(part, point);
    if (model_.wantsTicks()) {
        ticks_ = clock_.subscribe([this] { model_.tick(); });
    }
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
        ticks_.reset();
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
            SetFocus(button(ScrollPart::topLeft).handle());
            return 0;
        case WM_MOUSELEAVE:
            hover(ScrollPart::none);
            return 0;
        case WM_CAPTURECHANGED:
            return onCaptureChanged();
        case WM_DPICHANGED_AFTERPARENT:
            setDpi(controlDpi(handle()));
            return 0;
        default:
            return mouseMessage(handle(), message, lParam);
    }
}

std::optional<LRESULT> Scroll::buttonMessage(const Button& button, UINT message, WPARAM wParam,
                                             LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint(button.handle());
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
