#include "measure/win/frmUnit.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "base/Utf8.h"
#include "language/MlStringModule.h"
#include "platform/win/text.h"
#include "widgets/dpi.h"

namespace ormala {

namespace {

enum Id {
    idLengthUnit = 11,
    idEquals = 21,
    idFactor,
    idUnit,
    idAngleUnit = 31,
    idDefault = 41,
    idLengthFrame,
    idAngleFrame
};

/// As many as a number has digits.
constexpr int mostDecimals = 15;

// In pixels at 96 DPI.
constexpr PixelSize clientSize{392, 264};
constexpr PixelRect unitField{280, 76, 372, 98};
constexpr int listHeight = 200;

}  // namespace

frmUnit::frmUnit(std::string title, std::string_view decimalSeparator, const CodePage& codePage)
    : title_(std::move(title)), decimalSeparator_(decimalSeparator), codePage_(codePage) {
    open({L"frmUnit", clientSize});
}

void frmUnit::makeControls() {
    setCaption("Select Units");
    optLengthUnit_.create(handle(), idLengthUnit, "optLengthUnit",
                          {"Pixel (no real world unit)", "1 pixel", "Length a"});
    lblEquals_.create(handle(), {WC_STATICW, SS_CENTER | WS_GROUP, idEquals, "lblEquals", "="});
    txnFactor_ =
        std::make_unique<TextBoxNumeric>(handle(), idFactor, "txnFactor", decimalSeparator_);
    txnFactor_->setDecimalsMax(mostDecimals);
    makeUnit();
    optAngleUnit_.create(handle(), idAngleUnit, "optAngleUnit", {"Degrees (°)", "Radians (rad)"});
    makeButtons();
    fraLength_.create(handle(), idLengthFrame, "fraLength", " Unit of line length ");
    fraAngle_.create(handle(), idAngleFrame, "fraAngle", " Unit of angle ");
}

void frmUnit::makeUnit() {
    const auto isStorable = [this](std::string_view name) {
        return unitIsStorable(name, codePage_);
    };
    std::vector<std::string_view> proposals;
    std::ranges::copy_if(unitProposals, std::back_inserter(proposals), isStorable);
    cboUnit_.create(handle(), idUnit, "cboUnit", proposals);
    cboUnit_.takesKey = &unitTakesKey;
    cboUnit_.takesText = isStorable;
    cboUnit_.corrected = [this](std::string_view former, std::string_view name) {
        return unitCorrected(former, name, codePage_);
    };
}

void frmUnit::makeButtons() {
    chkDefault_ = std::make_unique<CheckButton>(handle(), idDefault, "chkDefault");
    chkDefault_->setCaption("Use as default for new measurement tools");
    startGroup(chkDefault_->handle());
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    cmdCancel_ = makeButton(IDCANCEL, "cmdCancel", "Cancel");
    handlers_.push_back(optLengthUnit_.Change.subscribe([this] { updateEnabled(); }));
}

void frmUnit::layOut() {
    place(optLengthUnit_[0], {20, 28, 240, 52});
    place(optLengthUnit_[1], {20, 60, 120, 84});
    place(optLengthUnit_[2], {20, 92, 120, 116});
    place(lblEquals_.handle(), {124, 81, 140, 97});
    place(txnFactor_->handle(), {144, 76, 272, 98});
    PixelRect unit = unitField;
    unit.bottom += listHeight;
    place(cboUnit_.handle(), unit);
    cboUnit_.setFieldHeight(scaledLength(unitField.height(), dpi()));
    place(fraLength_.handle(), {8, 8, 384, 128});
    place(optAngleUnit_[0], {20, 156, 190, 180});
    place(optAngleUnit_[1], {202, 156, 372, 180});
    place(fraAngle_.handle(), {8, 136, 384, 192});
    place(*chkDefault_, {8, 200, 384, 224});
    place(*cmdOK_, {200, 232, 288, 256});
    place(*cmdCancel_, {296, 232, 384, 256});
}

void frmUnit::ApplyLanguage() {
    label(handle(), 133);
    label(optLengthUnit_[0], 137);
    label(optLengthUnit_[1], 135);
    label(optLengthUnit_[2], 134);
    label(fraLength_.handle(), 138);
    label(optAngleUnit_[0], 141);
    label(optAngleUnit_[1], 140);
    label(fraAngle_.handle(), 142);
    label(*chkDefault_, 143);
    label(*cmdOK_, 210);
    label(*cmdCancel_, 227);
    const std::string unit = MlString(136, "Real world unit");
    cboUnit_.SetTooltip(unit);
    cboUnit_.setAccessibleName(unit);
    txnFactor_->setAccessibleName(std::string(trimBlanks(MlString(138, "Unit of line length"))));
}

HWND frmUnit::firstFocus() const {
    return optLengthUnit_.selected() == 0 ? optLengthUnit_.focusTarget() : txnFactor_->handle();
}

void frmUnit::show(const MeasureUnits& units) {
    chkDefault_->setChecked(false);
    optAngleUnit_.select(units.AngleMode);
    optLengthUnit_.select(units.LengthMode);
    txnFactor_->setValue(units.LengthFactor);
    cboUnit_.setText(units.LengthUnit);
    updateEnabled();
}

UnitChoice frmUnit::entered() const {
    return {
        {optAngleUnit_.selected(), optLengthUnit_.selected(), txnFactor_->Value(), cboUnit_.text()},
        chkDefault_->checked()};
}

void frmUnit::updateEnabled() {
    const bool enabled = entered().hasRealUnit();
    txnFactor_->setEnabled(enabled);
    cboUnit_.setEnabled(enabled);
}

void frmUnit::command(int id, int notification) {
    if (id == idUnit) {
        cboUnit_.notified(notification);
    }
}

void frmUnit::confirm() {
    if (entered().isValid()) {
        accept();
        return;
    }
    const std::string text =
        MlString(312, "Please enter a unit conversion factor greater than zero.");
    MessageBoxW(handle(), wide(text).c_str(), wide(title_).c_str(),
                MB_OK | MB_ICONINFORMATION | MB_TOPMOST);
    SetFocus(txnFactor_->handle());
}

int frmUnit::SelectUnits(HWND owner, ctlMeasure& tool, MeasureUnits& defaults) {
    show({tool.AngleMode(), tool.LengthMode(), tool.LengthFactor(), tool.LengthUnit()});
    if (!showModal(owner)) {
        return cancelled;
    }
    const UnitChoice choice = entered();
    const MeasureUnits units = choice.stored();
    tool.setAngleMode(units.AngleMode);
    tool.setLengthMode(units.LengthMode);
    tool.setLengthFactor(units.LengthFactor);
    tool.setLengthUnit(units.LengthUnit);
    if (choice.asDefault) {
        defaults = units;
    }
    return changed;
}

}  // namespace ormala
