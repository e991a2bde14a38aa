#include "stencil/win/frmRatio.h"

#include <commctrl.h>

#include "platform/win/fills.h"
#include "platform/win/handles.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

enum Id { idList = 11, idInvert = 21, idOld = 31, idNew };

// In pixels at 96 DPI.
constexpr PixelSize clientSize{632, 344};
constexpr PixelRect listPlace{8, 8, 280, 300};
constexpr int tabStop = 108;
constexpr PixelRect previewPlace{288, 44, 624, 244};
/// The height of the present proportion and of the chosen one.
constexpr int previewHeight = 64;

int widthInFont(HFONT font, const std::string& text) {
    const WindowContext context(nullptr);
    const Selected selected(context.get(), font);
    const std::wstring shown = wide(text);
    SIZE size{};
    GetTextExtentPoint32W(context.get(), shown.c_str(), static_cast<int>(shown.size()), &size);
    return static_cast<int>(size.cx);
}

}  // namespace

frmRatio::frmRatio(const SpecialRatios& ratios, const TextForm& form) : choice_(ratios, form) {
    open({L"frmRatio", clientSize});
}

void frmRatio::makeControls() {
    setCaption("Select Special Ratio");
    lstRatio_.create(handle(), idList, "lstRatio");
    optInvert_.create(handle(), idInvert, "optInvert", {"Width <= Height", "Width >= Height"});
    lblPreviewOld_.create(
        handle(), {WC_STATICW, SS_CENTER | SS_NOPREFIX | WS_GROUP, idOld, "lblPreviewOld", "Old"});
    lblPreviewNew_.create(handle(),
                          {WC_STATICW, SS_CENTER | SS_NOPREFIX, idNew, "lblPreviewNew", "New"});
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    cmdCancel_ = makeButton(IDCANCEL, "cmdCancel", "Cancel");
    startGroup(cmdOK_->handle());
    inverting_ = optInvert_.Change.subscribe([this] {
        choice_.setInverted(optInvert_.selected() == 1);
        fillList();
        showPreview();
    });
}

void frmRatio::layOut() {
    place(lstRatio_.handle(), listPlace);
    lstRatio_.setTabStop(scaledLength(tabStop, dpi()));
    place(optInvert_[0], {288, 8, 452, 32});
    place(optInvert_[1], {460, 8, 624, 32});
    place(lblPreviewOld_.handle(), {288, 252, 624, 268});
    place(lblPreviewNew_.handle(), {288, 276, 624, 292});
    place(*cmdOK_, {440, 312, 528, 336});
    place(*cmdCancel_, {536, 312, 624, 336});
    fillList();
}

void frmRatio::ApplyLanguage() {
    label(handle(), 144);
    label(optInvert_[0], 146);
    label(optInvert_[1], 145);
    label(*cmdOK_, 210);
    label(*cmdCancel_, 227);
    fillList();
    showPreview();
}

void frmRatio::fillList() {
    const HFONT listFont = font();
    lstRatio_.fill(
        choice_.rows([listFont](const std::string& text) { return widthInFont(listFont, text); }));
    lstRatio_.select(choice_.row());
}

void frmRatio::showPreview() {
    lblPreviewOld_.setText(choice_.currentText());
    lblPreviewNew_.setText(choice_.newText());
    cmdOK_->setEnabled(choice_.newRatio().has_value());
    const RECT area = toRect(scaledToDpi(previewPlace, dpi()));
    InvalidateRect(handle(), &area, FALSE);
}

PixelRect frmRatio::preview(double ratio) const {
    const PixelRect place = scaledToDpi(previewPlace, dpi());
    return previewOfRatio(ratio, scaledLength(previewHeight, dpi()),
                          {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
}

/// The present proportion lies beneath the chosen one and is outlined again above it, so that both
/// can be compared.
void frmRatio::paint(HDC context) {
    const int line = lineWidthAt(dpi());
    fillRect(context, toRect(scaledToDpi(listPlace, dpi()).grown(line)), dark::outline);
    const PixelRect place = scaledToDpi(previewPlace, dpi());
    fillRect(context, toRect(place), dark::outline);
    fillRect(context, toRect(place.grown(-line)), dark::ground);
    const PixelRect inner = place.grown(-2 * line);
    IntersectClipRect(context, inner.left, inner.top, inner.right, inner.bottom);
    const PixelRect old = preview(choice_.current());
    frameRect(context, old, line, plain::black);
    if (const auto ratio = choice_.newRatio()) {
        fillRect(context, toRect(preview(*ratio)), dark::quietText);
    }
    frameRect(context, old, line, plain::black);
    SelectClipRgn(context, nullptr);
}

void frmRatio::command(int id, int notification) {
    if (id != idList) {
        return;
    }
    if (notification == LBN_SELCHANGE) {
        choice_.setRow(lstRatio_.selected());
        showPreview();
    } else if (notification == LBN_DBLCLK && choice_.newRatio()) {
        accept();
    }
}

std::optional<LRESULT> frmRatio::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto drawn = lstRatio_.ownerMessage(message, lParam)) {
        return drawn;
    }
    return ModalDialog::onMessage(message, wParam, lParam);
}

std::optional<double> frmRatio::EditRatio(HWND owner, double current) {
    choice_.begin(current);
    optInvert_.select(choice_.inverted() ? 1 : 0);
    fillList();
    showPreview();
    return showModal(owner) ? choice_.newRatio() : std::nullopt;
}

}  // namespace ormala
