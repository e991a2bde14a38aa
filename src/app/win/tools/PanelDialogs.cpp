#include "app/win/tools/PanelDialogs.h"

#include <utility>

#include "app/version.h"
#include "app/win/tools/MouseAction.h"
#include "dialogs/win/WindowsMessagePresenter.h"
#include "dialogs/win/frmColor.h"
#include "dialogs/win/frmLineStyle.h"
#include "measure/win/frmUnit.h"
#include "stencil/win/frmPatternSelect.h"
#include "stencil/win/frmRatio.h"

namespace ormala {

namespace {

/// Made with these arguments if it isn't there yet.
template <typename Dialog, typename... Args>
Dialog& made(std::unique_ptr<Dialog>& dialog, const Args&... args) {
    if (dialog == nullptr) {
        dialog = std::make_unique<Dialog>(args...);
    }
    return *dialog;
}

}  // namespace

PanelDialogs::PanelDialogs(Ports ports) : ports_(std::move(ports)) {}

PanelDialogs::~PanelDialogs() = default;

Color PanelDialogs::SelectColor(Color present) {
    return made(frmColor_).GetColor(ports_.owner, present);
}

int PanelDialogs::SelectLineStyle(int present) {
    return made(frmLineStyle_).GetLineStyle(ports_.owner, present);
}

bool PanelDialogs::SelectPattern(PatternList& patterns, int& tab) {
    return made(frmPatternSelect_).SelectPattern(patterns, tab, ports_.owner);
}

std::optional<double> PanelDialogs::EditRatio(double present) {
    return made(frmRatio_, ports_.ratios, textForm()).EditRatio(ports_.owner, present);
}

void PanelDialogs::applyMouseAction(ctlRatioGrid& stencil) {
    // None of the program's windows may lie under the drag.
    ports_.putWindowsAside(true);
    const bool taken =
        ormala::applyMouseAction(stencil, ports_.worksheet, ports_.owner, ports_.dragSystem);
    ports_.putWindowsAside(false);
    if (!taken) {
        WindowsMessagePresenter(applicationTitle)
            .showError(MlFormat(MlString(610,
                                         "Windows does not let Ormala use the mouse in the program "
                                         "below.%nThat program may run as administrator."),
                                {}));
    }
}

bool PanelDialogs::SelectUnits(ctlMeasure& tool) {
    frmUnit& dialog =
        made(frmUnit_, std::string(applicationTitle), textForm().decimalSeparator, ports_.codePage);
    MeasureUnits units = ports_.state.options().defaultUnits;
    const bool changed = dialog.SelectUnits(ports_.owner, tool, units) == frmUnit::changed;
    ports_.state.set([&units](Options& options) { options.defaultUnits = units; });
    return changed;
}

}  // namespace ormala
