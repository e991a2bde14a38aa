#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "app/ViewState.h"
#include "platform/win/sentDrag.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilCommands.h"
#include "storage/CodePage.h"
#include "toolkit/PanelView.h"

namespace ormala {

class ctlMeasure;
class frmColor;
class frmLineStyle;
class frmPatternSelect;
class frmRatio;
class frmUnit;

/// The dialogs that the panels open, each made when it is first wanted and kept.
class PanelDialogs : public LookDialogs, public StencilCommands {
  public:
    /// What the dialogs work with. All must outlive them.
    struct Ports {
        /// The window that the dialogs belong to, and the one that the tools lie on.
        HWND owner;
        HWND worksheet;
        const SpecialRatios& ratios;
        /// With what new measuring tools measure in, which the dialog of units can change.
        ViewState& state;
        /// Of the settings files.
        const CodePage& codePage;
        /// Hides the windows that would lie under a drag on the screen, or shows them again.
        std::function<void(bool aside)> putWindowsAside;
        /// By which the automatic mouse action drags.
        DragSystem dragSystem = windowsDragSystem();
    };

    explicit PanelDialogs(Ports ports);
    ~PanelDialogs() override;

    /// The dialog of a measuring tool's units, which changes the tool; false if it was cancelled.
    bool SelectUnits(ctlMeasure& tool);

  private:
    Color SelectColor(Color present) override;
    int SelectLineStyle(int present) override;
    bool SelectPattern(PatternList& patterns, int& tab) override;
    std::optional<double> EditRatio(double present) override;
    void applyMouseAction(ctlRatioGrid& stencil) override;

    [[nodiscard]] const TextForm& textForm() const { return ports_.state.toolSettings().textForm; }

    Ports ports_;
    std::unique_ptr<frmColor> frmColor_;
    std::unique_ptr<frmLineStyle> frmLineStyle_;
    std::unique_ptr<frmPatternSelect> frmPatternSelect_;
    std::unique_ptr<frmRatio> frmRatio_;
    std::unique_ptr<frmUnit> frmUnit_;
};

}  // namespace ormala
