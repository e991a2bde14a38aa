#include "stencil/win/ctlPatternSelect.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include "language/MlStringModule.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "stencil/PatternPicture.h"
#include "stencil/PatternRotations.h"
#include "stencil/PatternSelectLayout.h"
#include "toolkit/PanelView.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/ModalDialog.h"
#include "widgets/win/OptionGroup.h"
#include "widgets/win/fieldLook.h"

namespace ormala {

namespace {

constexpr int idFirstPattern = 100;
constexpr int idFirstLabel = 130;
constexpr int idNoPattern = 160;
constexpr int idFirstGroup = 170;
constexpr int idRotationLabel = 180;
constexpr int idRotation = 181;

/// "Golden section ratio", "Whole number ratios", "Other ratios".
constexpr std::array<int, 3> groupTextIds{121, 120, 119};
constexpr int textRotation = 116;
constexpr int textNoPattern = 117;

constexpr int pictureSide = 48;

void makeText(StandardControl& label, HWND parent, DWORD style, int id, const std::string& name) {
    label.create(parent, {WC_STATICW, style | SS_NOPREFIX, id, name, {}});
}

void setOn(ZelvikButtonXP& button, bool on) {
    button.setValue(on);
    button.setBackColor(on ? dark::on : dark::off);
}

PictureMaker pictureOf(int pattern) {
    return [pattern](PixelSize size) {
        PatternList patterns;
        patterns[0].Pattern = pattern;
        return patternLines(patterns, size, plain::black, std::max(1, size.width / pictureSide));
    };
}

}  // namespace

ctlPatternSelect::Choice::Choice(HWND parent, int id, const std::string& nameEnd)
    : suffix(nameEnd), button(parent, id, "opt" + nameEnd) {
    button.setControlType(2);
    button.setPlaneFace(true);
}

void ctlPatternSelect::Choice::makeLabel(HWND parent, DWORD style) {
    const int labelId = GetDlgCtrlID(button.handle()) - idFirstPattern + idFirstLabel;
    makeText(label, parent, style, labelId, "lbl" + suffix);
}

ctlPatternSelect::ctlPatternSelect(HWND parent, int id, PatternPage& page) : page_(&page) {
    WindowDesign design;
    design.className = L"ctlPatternSelect";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    design.owner = parent;
    design.id = id;
    create(design);
    Initialize();
}

void ctlPatternSelect::Initialize() {
    makePatterns();
    makeNoPattern();
    makeTexts();
    ApplyLanguage();
}

void ctlPatternSelect::makePatterns() {
    patterns_.resize(static_cast<std::size_t>(PatternTable::count()));
    for (const int i : patternsAsSeen()) {
        auto choice = std::make_unique<Choice>(handle(), idFirstPattern + i,
                                               "Pattern(" + std::to_string(i) + ")");
        choice->button.setPictureSize(pictureSide, pictureSide);
        choice->button.setPicture(pictureOf(i), PictureKind::lines);
        choice->click = choice->button.Click.subscribe([this, i] {
            page_->choosePattern(i);
            showSetting();
        });
        patterns_.at(static_cast<std::size_t>(i)) = std::move(choice);
    }
    startGroup(GetWindow(handle(), GW_CHILD));
}

void ctlPatternSelect::makeNoPattern() {
    noPattern_ = std::make_unique<Choice>(handle(), idNoPattern, "NoPattern");
    noPattern_->click = noPattern_->button.Click.subscribe([this] {
        page_->chooseNoPattern();
        showSetting();
    });
}

void ctlPatternSelect::makeTexts() {
    cboRotation_.create(handle(), idRotation, "cboRotation");
    startGroup(cboRotation_.handle());
    rotationPicked_ =
        cboRotation_.Change.subscribe([this] { page_->chooseRotation(cboRotation_.selected()); });
    for (const auto& choice : patterns_) {
        choice->makeLabel(handle(), SS_CENTER);
    }
    startGroup(patterns_.front()->label.handle());
    noPattern_->makeLabel(handle(), SS_LEFT);
    for (std::size_t i = 0; i < lblPatternGroup_.size(); ++i) {
        makeText(lblPatternGroup_.at(i), handle(), SS_LEFT, idFirstGroup + static_cast<int>(i),
                 "lblPatternGroup(" + std::to_string(i) + ")");
    }
    makeText(lblRotation_, handle(), SS_RIGHT, idRotationLabel, "lblRotation");
}

void ctlPatternSelect::setPage(PatternPage& page) {
    page_ = &page;
    showSetting();
}

void ctlPatternSelect::showSetting() {
    const PatternPageLook look = page_->look();
    for (std::size_t i = 0; i < patterns_.size(); ++i) {
        setOn(patterns_.at(i)->button, look.pattern == static_cast<int>(i));
    }
    setOn(noPattern_->button, look.pattern < 0);
    noPattern_->button.setVisible(look.noPatternVisible);
    ShowWindow(noPattern_->label.handle(), look.noPatternVisible ? SW_SHOWNA : SW_HIDE);
    cboRotation_.select(look.rotationRow);
    cboRotation_.setEnabled(look.rotationEnabled);
}

void ctlPatternSelect::ApplyLanguage() {
    const auto relabel = [](StandardControl& label, int id, std::string_view text) {
        if (const std::string shown = MlString(id, text); !shown.empty()) {
            label.setText(shown);
        }
    };
    for (std::size_t i = 0; i < patterns_.size(); ++i) {
        const PatternRecord& pattern = PatternTable::instance()[static_cast<int>(i)];
        relabel(patterns_.at(i)->label, pattern.NameTextId, pattern.Name);
        patterns_.at(i)->button.SetTooltip(patterns_.at(i)->label.text());
    }
    for (std::size_t i = 0; i < lblPatternGroup_.size(); ++i) {
        relabel(lblPatternGroup_.at(i), groupTextIds.at(i), {});
    }
    relabel(noPattern_->label, textNoPattern, "No pattern");
    noPattern_->button.SetTooltip(noPattern_->label.text());
    relabel(lblRotation_, textRotation, "Rotation");
    cboRotation_.setAccessible(lblRotation_.text(), ROLE_SYSTEM_COMBOBOX);
    cboRotation_.setRows(rotationTexts({}));
    showSetting();
}

void ctlPatternSelect::move(HWND child, const PixelRect& designed, HFONT font) const {
    const PixelRect box = scaledToDpi(designed, dpi_);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SetWindowPos(child, nullptr, box.left, box.top, box.width(), box.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void ctlPatternSelect::place(PixelPoint corner, int dpi) {
    dpi_ = dpi;
    // The children let go of the former fonts before they end.
    const FontHandle former = std::exchange(font_, controlFont(dpi, FontLook::normal));
    const FontHandle formerHeading = std::exchange(headingFont_, controlFont(dpi, FontLook::bold));
    const PatternSelectLayout layout = patternSelectLayout();
    const auto placeChoice = [this](Choice& choice, const PatternSelectLayout::Choice& at) {
        choice.button.setDpi(dpi_);
        choice.button.place(scaledToDpi(at.button, dpi_));
        move(choice.label.handle(), at.label, font_.get());
    };
    for (std::size_t i = 0; i < patterns_.size(); ++i) {
        placeChoice(*patterns_.at(i), layout.patterns.at(i));
    }
    placeChoice(*noPattern_, layout.noPattern);
    for (std::size_t i = 0; i < lblPatternGroup_.size(); ++i) {
        move(lblPatternGroup_.at(i).handle(), layout.groups.at(i), headingFont_.get());
    }
    move(lblRotation_.handle(), layout.rotationLabel, font_.get());
    SendMessageW(cboRotation_.handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    cboRotation_.place(scaledToDpi(layout.rotation, dpi), dpi);
    SetWindowPos(handle(), nullptr, corner.x, corner.y, scaledLength(layout.size.width, dpi),
                 scaledLength(layout.size.height, dpi), SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND ctlPatternSelect::chosen() const {
    const int pattern = page_->look().pattern;
    return patterns_.at(static_cast<std::size_t>(std::max(pattern, 0)))->button.handle();
}

void ctlPatternSelect::eraseGround(HDC context) const {
    fillRect(context, clientRectangle(), dark::ground);
}

std::optional<LRESULT> ctlPatternSelect::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            eraseGround(reinterpret_cast<HDC>(wParam));
            return 1;
        case WM_COMMAND:
            if (LOWORD(wParam) == idRotation) {
                cboRotation_.notified(HIWORD(wParam));
            }
            return 0;
        case WM_DRAWITEM:
            cboRotation_.drawRow(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        default:
            return darkControlColors(message, wParam);
    }
}

}  // namespace ormala
