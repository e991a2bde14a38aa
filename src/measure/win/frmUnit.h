#pragma once

#include <string>

#include "measure/UnitChoice.h"
#include "measure/ctlMeasure.h"
#include "widgets/win/CheckButton.h"
#include "widgets/win/ComboField.h"
#include "widgets/win/GroupBox.h"
#include "widgets/win/ModalDialog.h"
#include "widgets/win/OptionGroup.h"
#include "widgets/win/TextBoxNumeric.h"

namespace ormala {

/// The dialog in which the user says what a measuring tool's lengths and angles are shown in.
class frmUnit : public ModalDialog {
  public:
    static constexpr int changed = 1;
    static constexpr int cancelled = 2;

    /// The title is the caption of messages. The code page of the settings files, which must
    /// outlive the dialog, says which units can be kept.
    frmUnit(std::string title, std::string_view decimalSeparator, const CodePage& codePage);
    ~frmUnit() override { destroy(); }

    /// Shows the dialog for a tool. By OK the tool gets what was entered, and `defaults` too if the
    /// user wishes so; the result is `changed` then, else `cancelled`. The new units show with the
    /// tool's next `PositionGrips`.
    int SelectUnits(HWND owner, ctlMeasure& tool, MeasureUnits& defaults);

  private:
    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override;
    void confirm() override;
    void command(int id, int notification) override;

    void makeUnit();
    void makeButtons();
    void show(const MeasureUnits& units);
    [[nodiscard]] UnitChoice entered() const;
    void updateEnabled();

    std::string title_;
    std::string decimalSeparator_;
    const CodePage& codePage_;
    OptionGroup optLengthUnit_;
    StandardControl lblEquals_;
    std::unique_ptr<TextBoxNumeric> txnFactor_;
    ComboField cboUnit_;
    OptionGroup optAngleUnit_;
    std::unique_ptr<CheckButton> chkDefault_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    std::unique_ptr<ZelvikButtonXP> cmdCancel_;
    GroupBox fraLength_;
    GroupBox fraAngle_;
    std::vector<Subscription> handlers_;
};

}  // namespace ormala
