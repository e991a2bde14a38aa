#include "dialogs/win/frmOptions.h"

#include <utility>

#include "dialogs/optionsLayout.h"
#include "dialogs/win/GeneralPage.h"
#include "dialogs/win/GridPage.h"
#include "dialogs/win/LensPage.h"
#include "dialogs/win/frmAbout.h"
#include "dialogs/win/frmColor.h"
#include "language/MlStringModule.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/labeling.h"

namespace ormala {

namespace {

enum OptionsId { idTab = 11, idPage = 21, idAbout = 31 };

// In pixels at 96 DPI.
constexpr int optionsMargin = 8;
constexpr int tabTop = 8;
constexpr int tabHeight = 28;
constexpr int tabWidth = 192;
constexpr int tabGap = 4;
/// The page begins below a line that joins the open tab to it.
constexpr int lineTop = tabTop + tabHeight + 2;
constexpr int lineHeight = 2;
constexpr PixelRect pagePlace{optionsMargin, lineTop + lineHeight,
                              optionsMargin + optionPageSize.width,
                              lineTop + lineHeight + optionPageSize.height};
constexpr int buttonTop = pagePlace.bottom + optionsMargin;
constexpr int buttonBottom = buttonTop + 24;
constexpr PixelSize optionsClientSize{pagePlace.right + optionsMargin,
                                      buttonBottom + optionsMargin};

constexpr PixelRect tabPlace(int index) {
    const int left = optionsMargin + index * (tabWidth + tabGap);
    return {left, tabTop, left + tabWidth, tabTop + tabHeight};
}

}  // namespace

frmOptions::frmOptions(OptionsPort& port, ProgramFacts facts, LinkOpener openLink)
    : port_(port), facts_(std::move(facts)), openLink_(std::move(openLink)) {
    open({L"frmOptions", optionsClientSize});
    openPage(0);
}

frmOptions::~frmOptions() {
    destroy();
}

void frmOptions::makeControls() {
    btnTab_.create(handle(), idTab, "btnTab", std::vector<std::string>(optionPageCount));
    btnTab_.setSign(ButtonSign::none);
    handlers_.push_back(btnTab_.Change.subscribe([this] { openPage(btnTab_.selected()); }));
    picTab_[0] = std::make_unique<GeneralPage>(handle(), idPage, values_);
    picTab_[1] = std::make_unique<GridPage>(handle(), idPage + 1, values_.grid);
    picTab_[2] = std::make_unique<LensPage>(
        handle(), idPage + 2, values_.lens,
        [this](HWND owner, Color present) { return chooseColor(owner, present); });
    cmdAbout_ = makeButton(idAbout, "cmdAbout", "About...");
    startGroup(cmdAbout_->handle());
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    cmdCancel_ = makeButton(IDCANCEL, "cmdCancel", "Cancel");
    handlers_.push_back(cmdAbout_->Click.subscribe([this] { showAbout(); }));
}

void frmOptions::layOut() {
    for (int index = 0; index < optionPageCount; ++index) {
        place(btnTab_[index], tabPlace(index));
    }
    for (const auto& page : picTab_) {
        page->place(scaledToDpi(pagePlace, dpi()).grown(-lineWidthAt(dpi())));
        page->layOut(dpi(), font());
    }
    place(*cmdAbout_, {optionsMargin, buttonTop, optionsMargin + 96, buttonBottom});
    place(*cmdOK_, {pagePlace.right - 184, buttonTop, pagePlace.right - 96, buttonBottom});
    place(*cmdCancel_, {pagePlace.right - 88, buttonTop, pagePlace.right, buttonBottom});
}

void frmOptions::ApplyLanguage() {
    label(btnTab_[0], 228);
    label(btnTab_[1], 229);
    label(btnTab_[2], 64);
    for (const auto& page : picTab_) {
        page->ApplyLanguage();
    }
    label(*cmdAbout_, 348);
    label(*cmdCancel_, 227);
    label(*cmdOK_, 210);
    SetRuntimeTexts(facts_.title);
}

void frmOptions::SetRuntimeTexts(const std::string& title) {
    facts_.title = title;
    setCaption(title + MlString(260, " Options"));
}

HWND frmOptions::firstFocus() const {
    return GetNextDlgTabItem(picTab_.at(static_cast<std::size_t>(page_))->handle(), nullptr, FALSE);
}

/// Enter on a button of a page.
void frmOptions::command(int id, int notification) {
    if (const HWND focus = GetFocus(); notification == BN_CLICKED && GetDlgCtrlID(focus) == id) {
        SendMessageW(focus, BM_CLICK, 0, 0);
    }
}

void frmOptions::openPage(int index) {
    page_ = index;
    btnTab_.select(index);
    for (int each = 0; each < optionPageCount; ++each) {
        btnTab_[each].setPlaneFace(each == index);
        btnTab_[each].setOpenBelow(each == index);
        picTab_.at(static_cast<std::size_t>(each))->setVisible(each == index);
    }
    InvalidateRect(handle(), nullptr, FALSE);
}

/// The frame of the page with the line under the tabs, to which the open tab reaches down without
/// an edge between them.
void frmOptions::paint(HDC context) {
    const auto fill = [&](const PixelRect& designed, Color color) {
        fillRect(context, toRect(scaledToDpi(designed, dpi())), color);
    };
    fill(pagePlace, dark::outline);
    fill({pagePlace.left, lineTop, pagePlace.right, pagePlace.top}, dark::on);
    const PixelRect tab = tabPlace(page_);
    const PixelRect joint = scaledToDpi({tab.left, tab.bottom, tab.right, lineTop}, dpi());
    const int line = lineWidthAt(dpi());
    fillRect(context, toRect(joint), dark::outline);
    fillRect(context, toRect({joint.left + line, joint.top, joint.right - line, joint.bottom}),
             dark::on);
}

Color frmOptions::chooseColor(HWND owner, Color present) {
    if (frmColor_ == nullptr) {
        frmColor_ = std::make_unique<frmColor>();
    }
    return frmColor_->GetColor(owner, present);
}

void frmOptions::showAbout() {
    if (frmAbout_ == nullptr) {
        frmAbout_ = std::make_unique<frmAbout>(facts_, openLink_);
    }
    frmAbout_->ShowAbout(handle());
}

void frmOptions::ShowForm(HWND owner, int TabIndex) {
    if (isVisible()) {
        return;
    }
    values_ = port_.optionValues();
    for (const auto& page : picTab_) {
        page->show();
    }
    openPage(pageToOpen(TabIndex, page_));
    if (showModal(owner)) {
        port_.applyOptions(values_);
    }
}

}  // namespace ormala
