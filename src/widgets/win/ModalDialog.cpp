#include "widgets/win/ModalDialog.h"

#include <algorithm>
#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/FairMessages.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "platform/win/controlDpi.h"
#include "platform/win/fills.h"
#include "platform/win/fonts.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "widgets/dialogPlace.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/OptionGroup.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

namespace {

constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD extendedStyle = WS_EX_TOPMOST | WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

constexpr UINT tmrFocusInterval = 300;

void setOwner(HWND window, HWND owner) {
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

PixelRect workAreaOf(HWND window) {
    return fromRect(workAreaAround(window));
}

/// Of a window that cannot be seen the middle of its screen.
PixelRect placeOf(HWND window) {
    if (IsWindowVisible(window) == FALSE || IsIconic(window) != FALSE) {
        return workAreaOf(window);
    }
    RECT rect{};
    GetWindowRect(window, &rect);
    return fromRect(rect);
}

/// Ends what the user holds in another window.
void cancelCapture() {
    if (const HWND holder = GetCapture(); holder != nullptr) {
        SendMessageW(holder, WM_CANCELMODE, 0, 0);
    }
}

void giveFocusBack(HWND former) {
    if (former != nullptr && GetActiveWindow() == GetAncestor(former, GA_ROOT)) {
        SetFocus(former);
    }
}

}  // namespace

void ModalDialog::open(const Design& design) {
    design_ = design;
    WindowDesign window;
    window.className = design.className;
    // What is drawn along the edges depends on the whole size.
    window.classStyle = CS_HREDRAW | CS_VREDRAW;
    window.style = style;
    window.extendedStyle = extendedStyle;
    create(window);
    makeControls();
    ApplyLanguage();
    relabeling_ = GetLanguageSupport().LanguageChange.subscribe([this] { ApplyLanguage(); });
    takeDpi(GetDpiForWindow(handle()));
}

/// Of its monitor.
void ModalDialog::takeDpi(UINT dpi) {
    frameDpi_ = dpi;
    setDpi(controlDpi(static_cast<int>(dpi)));
}

void ModalDialog::setDpi(int dpi) {
    if (dpi_ == dpi) {
        return;
    }
    dpi_ = dpi;
    // The children let go of the former font before it ends.
    const FontHandle former = std::exchange(font_, controlFont(dpi, FontLook::normal));
    layOut();
    InvalidateRect(handle(), nullptr, FALSE);
}

void ModalDialog::place(HWND child, const PixelRect& designed) const {
    const PixelRect box = scaledToDpi(designed, dpi_);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font()), FALSE);
    SetWindowPos(child, nullptr, box.left, box.top, box.width(), box.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void ModalDialog::place(ZelvikButtonXP& button, const PixelRect& designed) const {
    button.setDpi(dpi_);
    button.place(scaledToDpi(designed, dpi_));
}

std::unique_ptr<ZelvikButtonXP> ModalDialog::makeButton(int id, std::string_view name,
                                                        std::string_view caption) {
    auto button = std::make_unique<ZelvikButtonXP>(handle(), id, name);
    button->setCaption(caption);
    dressButton(*button);
    if (id == IDOK || id == IDCANCEL) {
        leaving_.push_back(button->Click.subscribe([this, id] { onCommand(id, BN_CLICKED); }));
    }
    buttons_.push_back(id);
    return button;
}

PixelSize ModalDialog::outerSize() const {
    RECT rect{0, 0, scaledLength(design_.client.width, dpi_),
              scaledLength(design_.client.height, dpi_)};
    AdjustWindowRectExForDpi(&rect, style, FALSE, extendedStyle, frameDpi_);
    const PixelRect outer = fromRect(rect);
    return {outer.width(), outer.height()};
}

bool ModalDialog::centreOn(HWND owner) {
    takeDpi(GetDpiForWindow(handle()));
    const PixelRect box = placeOfDialog(outerSize(), placeOf(owner), workAreaOf(owner));
    SetWindowPos(handle(), HWND_TOPMOST, box.left, box.top, box.width(), box.height(),
                 SWP_NOACTIVATE);
    return fromRect(rectangle()) == box && frameDpi_ == GetDpiForWindow(handle());
}

/// The way to the owner's monitor may change the resolution, and with it the size.
void ModalDialog::placeOver(HWND owner) {
    setOwner(handle(), owner);
    placeSteadily([this, owner] { return centreOn(owner); });
}

bool ModalDialog::showModal(HWND owner) {
    if (shown_) {
        return false;
    }
    cancelled_ = true;
    const HWND formerFocus = GetFocus();
    cancelCapture();
    placeOver(owner != nullptr ? owner : GetActiveWindow());
    barrier_.emplace(handle());
    shown_ = true;
    focusFirst();
    ShowWindow(handle(), SW_SHOW);
    runMessages();
    leave();
    setOwner(handle(), nullptr);
    giveFocusBack(formerFocus);
    return !cancelled_;
}

void ModalDialog::focusFirst() {
    focus_ = nullptr;
    if (design_.delayedFocus) {
        tmrFocus_.start(handle(), tmrFocusInterval);
    } else {
        focus_ = firstFocus();
    }
}

void ModalDialog::runMessages() {
    FairMessages messages;
    while (shown_ && handle() != nullptr) {
        MSG message{};
        if (!messages.next(message)) {
            cancelled_ = true;
            leave();
            // The end of the program is for the loop outside too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (IsDialogMessageW(handle(), &message) == FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

void ModalDialog::accept() {
    cancelled_ = false;
    leave();
}

void ModalDialog::cancel() {
    leave();
}

void ModalDialog::leave() {
    if (!shown_) {
        return;
    }
    shown_ = false;
    tmrFocus_.stop();
    // First, so that the owner can take the activation.
    barrier_.reset();
    ShowWindow(handle(), SW_HIDE);
}

int ModalDialog::defaultButton() const {
    constexpr LRESULT pushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
    const HWND focus = GetFocus();
    const bool isButton = focus != nullptr && IsChild(handle(), focus) != FALSE &&
                          (SendMessageW(focus, WM_GETDLGCODE, 0, 0) & pushButton) != 0;
    return isButton ? GetDlgCtrlID(focus) : IDOK;
}

LRESULT ModalDialog::onPaint() {
    const PaintScope scope(handle());
    const RECT client = clientRectangle();
    if (buffer_.resize({static_cast<int>(client.right), static_cast<int>(client.bottom)})) {
        const HDC target = buffer_.context();
        fillRect(target, client, dark::ground);
        const Selected font(target, font_.get());
        SetBkMode(target, TRANSPARENT);
        SetTextColor(target, colorRef(dark::text));
        paint(target);
        BitBlt(scope.context(), 0, 0, client.right, client.bottom, target, 0, 0, SRCCOPY);
    }
    return 0;
}

/// A window that comes back into the foreground goes on where it was left.
LRESULT ModalDialog::onActivate(bool active) {
    if (!active) {
        const HWND focus = GetFocus();
        focus_ = IsChild(handle(), focus) != FALSE ? focus : focus_;
    } else {
        SetFocus(focus_ != nullptr ? focus_ : handle());
    }
    return 0;
}

LRESULT ModalDialog::onCommand(int id, int notification) {
    if (id == IDOK) {
        const HWND button = GetDlgItem(handle(), IDOK);
        if (button == nullptr || IsWindowEnabled(button) != FALSE) {
            confirm();
        }
    } else if (id == IDCANCEL) {
        cancel();
    } else if (notification == BN_CLICKED && std::ranges::count(buttons_, id) != 0) {
        // Enter on a button that has the focus.
        SendMessageW(GetDlgItem(handle(), id), BM_CLICK, 0, 0);
    } else {
        command(id, notification);
    }
    return 0;
}

/// The system asks for the control that is named, or for the neighbour of the present one.
LRESULT ModalDialog::onNextControl(WPARAM wParam, bool isNamed) {
    SetFocus(isNamed ? reinterpret_cast<HWND>(wParam)
                     : GetNextDlgTabItem(handle(), GetFocus(), wParam != 0 ? TRUE : FALSE));
    return 0;
}

LRESULT ModalDialog::onDpiChanged(UINT dpi, const RECT& suggested) {
    takeDpi(dpi);
    const PixelSize size = outerSize();
    SetWindowPos(handle(), nullptr, suggested.left, suggested.top, size.width, size.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

/// The size of text may be another one.
void ModalDialog::onSettingChange() {
    readTextSize();
    if (shown_ && dpi_ != controlDpi(handle())) {
        onDpiChanged(frameDpi_, rectangle());
    }
}

/// Whether the client area becomes what the design wants, with the frame that the window has now.
bool ModalDialog::fitsDesign(const WINDOWPOS& place) const {
    const RECT outer = rectangle();
    const RECT client = clientRectangle();
    const PixelSize frame{sizeOf(outer).width - sizeOf(client).width,
                          sizeOf(outer).height - sizeOf(client).height};
    return place.cx == frame.width + scaledLength(design_.client.width, dpi_) &&
           place.cy == frame.height + scaledLength(design_.client.height, dpi_);
}

/// A dialog has one size. Under Wine a display may tell late of one that it had before, which would
/// then stay.
void ModalDialog::onPlaceChanging(WINDOWPOS& place) const {
    if (dpi_ != 0 && (place.flags & SWP_NOSIZE) == 0 && !fitsDesign(place)) {
        const PixelSize size = outerSize();
        place.cx = size.width;
        place.cy = size.height;
    }
}

LRESULT ModalDialog::onTimer() {
    tmrFocus_.stop();
    focus_ = firstFocus();
    if (GetActiveWindow() == handle()) {
        SetFocus(focus_);
    }
    return 0;
}

std::optional<LRESULT> ModalDialog::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_ACTIVATE:
            return onActivate(LOWORD(wParam) != WA_INACTIVE);
        case WM_CLOSE:
            cancel();
            return 0;
        case WM_COMMAND:
            return onCommand(LOWORD(wParam), HIWORD(wParam));
        case WM_NEXTDLGCTL:
            return onNextControl(wParam, LOWORD(lParam) != 0);
        case DM_GETDEFID:
            return MAKELRESULT(defaultButton(), DC_HASDEFID);
        case WM_WINDOWPOSCHANGING:
            onPlaceChanging(*reinterpret_cast<WINDOWPOS*>(lParam));
            return std::nullopt;
        case WM_DPICHANGED:
            return onDpiChanged(HIWORD(wParam), *reinterpret_cast<const RECT*>(lParam));
        case WM_SETTINGCHANGE:
            onSettingChange();
            return std::nullopt;
        case WM_TIMER:
            return onTimer();
        default:
            return darkControlColors(message, wParam);
    }
}

}  // namespace ormala
