#include "dialogs/win/ctlLineSelect.h"

#include "pictures/linePicture.h"
#include "platform/win/OriginScope.h"
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

ctlLineSelect::ctlLineSelect(HWND parent, int id, std::string_view name) : PickerControl(model_) {
    open(parent, id, name, {L"ctlLineSelect", CS_DBLCLKS, WS_TABSTOP});
    changing_ = model_.Change.subscribe([this] {
        invalidateValue();
        Change.raise();
    });
    ending_ = model_.DoubleClick.subscribe([this] { DoubleClick.raise(); });
}

void ctlLineSelect::setLineIndex(int index) {
    model_.setLineIndex(index);
    invalidateValue();
}

PixelRect ctlLineSelect::picLine(int index) const {
    return model_.row(index).grown(-scaledLength(rowMargin, dpi()));
}

void ctlLineSelect::drawRow(HDC context, int index) const {
    const PixelRect box = picLine(index);
    const OriginScope origin(context, box.left, box.top);
    copyPixels(context, drawLinePicture(index, {box.width(), box.height()}));
}

void ctlLineSelect::draw(HDC context) {
    fillRect(context, clientRectangle(), dark::ground);
    fillRect(context, toRect(shpFocus()), dark::on);
    const int line = lineWidthAt(dpi());
    if (GetFocus() == handle()) {
        frameRect(context, shpFocus(), line, dark::focusMark);
    }
    for (int index = 0; index < LineSelectModel::rowCount; ++index) {
        frameRect(context, picLine(index).grown(line), line, dark::outline);
        drawRow(context, index);
    }
}

std::optional<LRESULT> ctlLineSelect::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            model_.resize(size());
            invalidate();
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            invalidate();
            return 0;
        case WM_GETDLGCODE:
            return wantedKeys(lParam, takesEnter_);
        case WM_KEYDOWN:
            return model_.keyDown(static_cast<int>(wParam)) ? std::optional<LRESULT>(0)
                                                            : std::nullopt;
        default:
            break;
    }
    return PickerControl::onMessage(message, wParam, lParam);
}

}  // namespace ormala
