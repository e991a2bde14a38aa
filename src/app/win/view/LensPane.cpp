#include "app/win/view/LensPane.h"

#include <utility>

#include "app/keyTables.h"
#include "platform/win/monitors.h"
#include "platform/win/regions.h"
#include "platform/win/windowOrder.h"

namespace ormala {

LensPane::LensPane(Ports ports) : ports_(std::move(ports)), frmLens_(*this) {
    closeRequested_ = frmLens_.closeRequested.subscribe(
        [this] { ports_.state.set([](Options& options) { options.lensVisible = false; }); });
    worksheetPlaced_ = ports_.worksheet.placed.subscribe([this] { tellOrigin(); });
}

void LensPane::showState() {
    const LensOptions& wanted = ports_.state.options().lens;
    const LensOptions former = frmLens_.options();
    if (wanted != former) {
        frmLens_.setOptions(wanted);
    }
    showOrHide();
    if (wanted.sticked && !former.sticked) {
        // Attached just now, it may lie behind the control window.
        raise(true);
    }
}

void LensPane::setAside(bool aside) {
    aside_ = aside;
    showOrHide();
}

void LensPane::showOrHide() {
    const bool visible = ports_.state.options().lensVisible && !aside_;
    if (visible == frmLens_.isVisible()) {
        return;
    }
    if (visible) {
        tellOrigin();
        frmLens_.show(ports_.worksheet.handle());
        raise(true);
    } else {
        // Its menu must not outlive its sight.
        EndMenu();
        frmLens_.hide();
    }
}

bool LensPane::raise(bool onlySticked) {
    if (!frmLens_.isVisible() || (onlySticked && !frmLens_.Sticked())) {
        return false;
    }
    raiseWithoutActivating(frmLens_.handle());
    frmLens_.Update();
    return true;
}

bool LensPane::takeKey(int key, int modifiers) {
    return obeyKey(key, modifiers, KeyWindow::magnifier, ports_.execute);
}

PixelRect LensPane::RefreshScreenBounds() {
    return fromRect(virtualScreen());
}

void LensPane::tellOrigin() {
    const RECT place = ports_.worksheet.rectangle();
    frmLens_.setWorksheetOrigin({static_cast<int>(place.left), static_cast<int>(place.top)});
}

}  // namespace ormala
