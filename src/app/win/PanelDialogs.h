#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "base/Event.h"
#include "measure/MeasureCommands.h"
#include "modAPI/textForms.h"
#include "stencil/SpecialRatios.h"
#include "stencil/StencilCommands.h"
#include "storage/CodePage.h"
#include "toolkit/MeasureUnits.h"

namespace ormala {

class frmColor;
class frmLineStyle;
class frmPatternSelect;
class frmRatio;
class frmUnit;

/// The dialogs that the panels open, each made when it is first wanted and kept.
class PanelDialogs : public StencilCommands, public MeasureCommands {
  public:
    /// What the dialogs work with. All must outlive them.
    struct Ports {
        /// The window that the dialogs belong to, and the one that the tools lie on.
        HWND owner;
        HWND worksheet;
        const SpecialRatios& ratios;
        const TextForm& textForm;
        /// Of the settings files.
        const CodePage& codePage;
        /// What new measuring tools measure in, which the dialog of units can change.
        MeasureUnits& defaultUnits;
        /// Hides the windows that would lie under a drag on the screen, or shows them again.
        std::function<void(bool aside)> putWindowsAside;
    };

    explicit PanelDialogs(const Ports& ports);
    ~PanelDialogs() override;

    /// The user has wished other units for new measuring tools.
    Event<> defaultUnitsChanged;

  private:
    Color SelectColor(Color present) override;
    int SelectLineStyle(int present) override;
    bool SelectPattern(PatternList& patterns, int& tab) override;
    std::optional<double> EditRatio(double present) override;
    void applyMouseAction(ctlRatioGrid& stencil) override;
    bool SelectUnits(ctlMeasure& tool) override;

    Ports ports_;
    std::unique_ptr<frmColor> frmColor_;
    std::unique_ptr<frmLineStyle> frmLineStyle_;
    std::unique_ptr<frmPatternSelect> frmPatternSelect_;
    std::unique_ptr<frmRatio> frmRatio_;
    std::unique_ptr<frmUnit> frmUnit_;
};

}  // namespace ormala
