#pragma once

#include "app/ModeSwitch.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/view/ViewPane.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

/// The windows of the program, as a change of mode sets them.
class ModeStage : public ModePort {
  public:
    struct Windows {
        frmSettings& settings;
        frmWorksheet& worksheet;
        frmResizer& resizer;
        ViewPane& view;
        const ViewState& state;
    };

    /// All must outlive it.
    explicit ModeStage(const Windows& windows) : windows_(windows) {}

    void SyncModeButtons(Mode mode, bool worksheetMaxSized) override;
    void refresh() override;
    void AdjustFormHeight(Mode mode, Mode former) override;
    void keyboardToControlWindow() override;
    void keyboardToProgramBelow() override;
    [[nodiscard]] bool MaxSized() const override;
    void showWorksheet(const ModeWindows& windows) override;
    void showMode(Mode mode, bool minimise) override;

  private:
    [[nodiscard]] bool worksheetHasKeyboard() const;
    void layOutAnew();

    Windows windows_;
};

}  // namespace ormala
