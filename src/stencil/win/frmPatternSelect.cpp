#include "stencil/win/frmPatternSelect.h"

#include <commctrl.h>

#include <algorithm>
#include <cstddef>

#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"
#include "stencil/PatternPicture.h"
#include "stencil/PatternSelectLayout.h"
#include "toolkit/PanelView.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/OptionGroup.h"

namespace ormala {

namespace {

constexpr int idFirstTab = 101;
constexpr int idPatternSelect = 110;
constexpr int idPreviewLabel = 111;
constexpr int idPreview = 112;

constexpr int textCaption = 122;
constexpr int textPreview = 123;
constexpr int textOK = 210;
constexpr int textCancel = 227;
constexpr int textFirstTab = 230;

// The design, in pixels at 96 DPI.
constexpr int margin = 12;
constexpr int tabTop = 10;
constexpr int tabHeight = 38;
constexpr int tabGap = 4;
constexpr int tabPicture = 28;
/// The page begins below a line that joins the open tab to it.
constexpr int lineTop = tabTop + tabHeight + 2;
constexpr int pageTop = lineTop + 2;
constexpr int previewSide = 208;
constexpr int textHeight = 16;
constexpr PixelSize commandSize{88, 24};

struct Places {
    PixelRect page;
    PixelPoint select;
    PixelRect preview;
    PixelSize client;
};

Places places() {
    const PixelSize select = patternSelectLayout().size;
    Places found;
    found.page = {margin, pageTop, margin + select.width + 2 * margin,
                  pageTop + select.height + 2 * margin};
    found.select = {2 * margin, pageTop + margin};
    const int left = found.page.right + margin;
    const int top = pageTop + textHeight + 4;
    found.preview = {left, top, left + previewSide, top + previewSide};
    found.client = {found.preview.right + margin, found.page.bottom + margin};
    return found;
}

PixelRect tabPlace(int tab) {
    const PixelRect page = places().page;
    const int width = (page.width() - (patternSlots - 1) * tabGap) / patternSlots;
    const int left = page.left + tab * (width + tabGap);
    return {left, tabTop, left + width, tabTop + tabHeight};
}

/// Counted from the right.
PixelRect commandPlace(int number) {
    const Places at = places();
    const int right = at.preview.right - number * (commandSize.width + 8);
    return {right - commandSize.width, at.page.bottom - commandSize.height, right, at.page.bottom};
}

}  // namespace

frmPatternSelect::frmPatternSelect() {
    open({L"frmPatternSelect", places().client});
}

void frmPatternSelect::makeControls() {
    for (int tab = 0; tab < patternSlots; ++tab) {
        makeTab(tab);
    }
    PatternSelect_ = std::make_unique<ctlPatternSelect>(handle(), idPatternSelect, choice_->page());
    removeControlName(PatternSelect_->handle());
    setControlName(PatternSelect_->handle(), "PatternSelect");
    startGroup(PatternSelect_->handle());
    constexpr DWORD labelStyle = SS_LEFT | SS_NOPREFIX | WS_GROUP;
    lblPreview_.create(handle(), {WC_STATICW, labelStyle, idPreviewLabel, "lblPreview", {}});
    picPreview_.create(handle(), {WC_STATICW, SS_OWNERDRAW, idPreview, "picPreview", {}});
    makeButtons();
}

void frmPatternSelect::makeTab(int tab) {
    Tab& made = btnTab_.at(static_cast<std::size_t>(tab));
    made.button = std::make_unique<ZelvikButtonXP>(handle(), idFirstTab + tab,
                                                   "btnTab(" + std::to_string(tab) + ")");
    made.button->setControlType(2);
    made.button->setPlaneFace(true);
    made.button->setPictureSize(tabPicture, tabPicture);
    made.click = made.button->Click.subscribe([this, tab] { openTab(tab); });
}

void frmPatternSelect::makeButtons() {
    cmdOK_ = makeButton(IDOK, "cmdOK", {});
    cmdCancel_ = makeButton(IDCANCEL, "cmdCancel", {});
    for (ZelvikButtonXP* button : {cmdOK_.get(), cmdCancel_.get()}) {
        button->setBackColor(dark::patternDialogButton);
    }
    startGroup(cmdOK_->handle());
}

void frmPatternSelect::layOut() {
    const Places at = places();
    for (int tab = 0; tab < patternSlots; ++tab) {
        place(*btnTab_.at(static_cast<std::size_t>(tab)).button, tabPlace(tab));
    }
    PatternSelect_->place({scaledLength(at.select.x, dpi()), scaledLength(at.select.y, dpi())},
                          dpi());
    place(lblPreview_.handle(), {at.preview.left, pageTop, at.preview.right, pageTop + textHeight});
    place(picPreview_.handle(), at.preview);
    place(*cmdOK_, commandPlace(1));
    place(*cmdCancel_, commandPlace(0));
}

void frmPatternSelect::ApplyLanguage() {
    label(handle(), textCaption);
    label(lblPreview_.handle(), textPreview);
    for (int tab = 0; tab < patternSlots; ++tab) {
        label(*btnTab_.at(static_cast<std::size_t>(tab)).button, textFirstTab + tab);
    }
    label(*cmdOK_, textOK);
    label(*cmdCancel_, textCancel);
    PatternSelect_->ApplyLanguage();
}

HWND frmPatternSelect::firstFocus() const {
    return PatternSelect_->chosen();
}

bool frmPatternSelect::SelectPattern(PatternList& patterns, int& tab, HWND owner) {
    choice_ = std::make_unique<PatternChoice>(patterns, tab);
    change_ = choice_->page().change.subscribe([this] { showChange(); });
    openTab(choice_->tab());
    if (showModal(owner)) {
        choice_->confirm();
    }
    return choice_->store(patterns, tab);
}

void frmPatternSelect::openTab(int tab) {
    choice_->openTab(tab);
    PatternSelect_->setPage(choice_->page());
    for (int each = 0; each < patternSlots; ++each) {
        showTab(each);
    }
    InvalidateRect(handle(), nullptr, FALSE);
    InvalidateRect(picPreview_.handle(), nullptr, FALSE);
}

/// With a picture of its own setting, so that the tabs sum up the choice.
void frmPatternSelect::showTab(int tab) {
    ZelvikButtonXP& button = *btnTab_.at(static_cast<std::size_t>(tab)).button;
    const bool open = tab == choice_->tab();
    const Color color = open ? plain::black : dark::text;
    button.setValue(open);
    button.setBackColor(open ? dark::on : dark::off);
    button.setForeColor(color);
    button.setPicture(
        [patterns = choice_->patternsOfTab(tab), color](PixelSize size) {
            return patternLines(patterns, size, color, std::max(1, size.width / tabPicture));
        },
        PictureKind::lines);
}

void frmPatternSelect::showChange() {
    showTab(choice_->tab());
    InvalidateRect(picPreview_.handle(), nullptr, FALSE);
}

void frmPatternSelect::fillBox(HDC context, const PixelRect& designed, Color color) const {
    fillRect(context, toRect(scaledToDpi(designed, dpi())), color);
}

/// The frame of the page with the line under the tabs, to which the open tab reaches down.
void frmPatternSelect::paint(HDC context) {
    const Places at = places();
    const PixelRect tab = tabPlace(choice_->tab());
    fillBox(context, at.page, dark::outline);
    fillBox(context, at.page.grown(-1), dark::ground);
    fillBox(context, {at.page.left, lineTop, at.page.right, pageTop}, dark::on);
    fillBox(context, {tab.left, tab.bottom - 4, tab.right, lineTop}, dark::on);
    fillBox(context, at.preview.grown(1), dark::outline);
}

void frmPatternSelect::drawPreview(const DRAWITEMSTRUCT& item) const {
    const PixelRect box = fromRect(item.rcItem);
    const int inset = scaledLength(8, dpi());
    fillBox(item.hDC, {0, 0, previewSide, previewSide}, dark::ground & figures);
    const PixelSize size{box.width() - 2 * inset, box.height() - 2 * inset};
    SetViewportOrgEx(item.hDC, inset, inset, nullptr);
    copyPixels(item.hDC, GetPatternPicture(choice_->patterns(), size, dark::ground, dark::text,
                                           std::max(1, dpi() / designDpi)));
    SetViewportOrgEx(item.hDC, 0, 0, nullptr);
}

std::optional<LRESULT> frmPatternSelect::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM) {
        drawPreview(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return ModalDialog::onMessage(message, wParam, lParam);
}

}  // namespace ormala
