#include "dialogs/win/ctlLineSelect.h"

#include <oleacc.h>

#include "pictures/linePicture.h"
#include "platform/win/Accessible.h"
#include "platform/win/OriginScope.h"
#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// Round each sample, in pixels at 96 DPI; the frame of the chosen row fills it.
constexpr int rowMargin = 4;

/// Enter that belongs to the control that has it, and not to the dialog's button.
LRESULT wantedKeys(LPARAM lParam, bool takesEnter) {
    const auto* const asked = reinterpret_cast<const MSG*>(lParam);
    const bool isEnter =
        asked != nullptr && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
    return DLGC_WANTARROWS | (isEnter && takesEnter ? DLGC_WANTMESSAGE : 0);
}

}  // namespace

ctlLineSelect::ctlLineSelect(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"ctlLineSelect";
    design.classStyle = CS_DBLCLKS;
    design.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
    changing_ = model_.Change.subscribe([this] {
        showChoice();
        Change.raise();
    });
    ending_ = model_.DoubleClick.subscribe([this] { DoubleClick.raise(); });
    setDpi(static_cast<int>(GetDpiForWindow(handle())));
}

void ctlLineSelect::setLineIndex(int index) {
    model_.setLineIndex(index);
    showChoice();
}

void ctlLineSelect::setDpi(int dpi) {
    dpi_ = dpi;
    InvalidateRect(handle(), nullptr, FALSE);
}

PixelRect ctlLineSelect::picLine(int index) const {
    return model_.row(index).grown(-scaledLength(rowMargin, dpi_));
}

void ctlLineSelect::showChoice() {
    InvalidateRect(handle(), nullptr, FALSE);
    NotifyWinEvent(EVENT_OBJECT_VALUECHANGE, handle(), OBJID_CLIENT, CHILDID_SELF);
}

void ctlLineSelect::paintRow(HDC context, int index) const {
    const PixelRect box = picLine(index);
    const OriginScope origin(context, box.left, box.top);
    copyPixels(context, drawLinePicture(index, {box.width(), box.height()}));
}

void ctlLineSelect::paint(HDC context, const RECT& client) const {
    fillRect(context, client, dark::ground);
    fillRect(context, toRect(shpFocus()), dark::on);
    const int line = lineWidthAt(dpi_);
    if (GetFocus() == handle()) {
        frameRect(context, shpFocus(), line, dark::focusMark);
    }
    for (int index = 0; index < LineSelectModel::rowCount; ++index) {
        frameRect(context, picLine(index).grown(line), line, dark::outline);
        paintRow(context, index);
    }
}

LRESULT ctlLineSelect::onPaint() {
    const PaintScope scope(handle());
    const RECT client = clientRectangle();
    const PixelSize size{static_cast<int>(client.right), static_cast<int>(client.bottom)};
    if (buffer_.resize(size)) {
        paint(buffer_.context(), client);
        BitBlt(scope.context(), 0, 0, size.width, size.height, buffer_.context(), 0, 0, SRCCOPY);
    }
    return 0;
}

LRESULT ctlLineSelect::onSize() {
    const RECT client = clientRectangle();
    model_.resize({static_cast<int>(client.right), static_cast<int>(client.bottom)});
    InvalidateRect(handle(), nullptr, FALSE);
    return 0;
}

LRESULT ctlLineSelect::onFocus() {
    InvalidateRect(handle(), nullptr, FALSE);
    return 0;
}

LRESULT ctlLineSelect::onAccessibleFacts(LPARAM lParam) const {
    AccessibleFacts& facts = wantedFacts(lParam);
    facts.name = tip_.text();
    facts.value = model_.valueText();
    facts.role = ROLE_SYSTEM_LIST;
    return TRUE;
}

std::optional<LRESULT> ctlLineSelect::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    tip_.relay(handle(), message, wParam, lParam);
    switch (message) {
        case WM_PAINT:
            return onPaint();
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            return onSize();
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            return onFocus();
        case WM_GETDLGCODE:
            return wantedKeys(lParam, takesEnter_);
        case WM_KEYDOWN:
            return model_.keyDown(static_cast<int>(wParam)) ? std::optional<LRESULT>(0)
                                                            : std::nullopt;
        case WM_GETOBJECT:
            return answerAccessible(handle(), wParam, lParam);
        case accessibleFactsMessage:
            return onAccessibleFacts(lParam);
        default:
            return mouse_.onMessage(handle(), message, lParam);
    }
}

}  // namespace ormala
