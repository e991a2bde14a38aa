#include "app/win/LensPane.h"

#include "app/win/ViewHost.h"
#include "app/win/screens.h"
#include "platform/win/windowOrder.h"

namespace ormala {

namespace {

constexpr const char* placementSection = "FormLens";

}  // namespace

LensPane::LensPane(Ports ports) : ports_(std::move(ports)), frmLens_(*this) {
    menuChanged_ = frmLens_.menuChanged.subscribe([this] {
        showMenuState();
        // Attached just now, it may lie behind the control window.
        raise(true);
    });
    closeRequested_ = frmLens_.closeRequested.subscribe([this] { ports_.closed(); });
    worksheetPlaced_ = ports_.worksheet.placed.subscribe([this] { tellOrigin(); });
    worksheetPainted_ = ports_.worksheet.painted.subscribe([this] { frmLens_.Update(); });
    showMenuState();
}

void LensPane::restorePlace(INIFile& options) {
    RestoreFormPlacement(frmLens_.handle(), options, placementSection, false);
}

void LensPane::savePlace(INIFile& options) const {
    SaveFormPlacement(frmLens_.handle(), options, placementSection);
}

void LensPane::setVisible(bool visible) {
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

void LensPane::setAside(bool aside) {
    ShowWindow(frmLens_.handle(), aside ? SW_HIDE : SW_SHOWNA);
}

bool LensPane::raise(bool onlySticked) {
    if (!frmLens_.isVisible() || (onlySticked && !frmLens_.Sticked())) {
        return false;
    }
    raiseWithoutActivating(frmLens_.handle());
    frmLens_.Update();
    return true;
}

bool LensPane::choose(MenuEntry entry) {
    if (const int factor = lensFactorOf(entry); factor != 0) {
        frmLens_.mnuLensFactor_Click(factor);
        return true;
    }
    switch (entry) {
        case MenuEntry::mnuLensStick:
            frmLens_.mnuLensStick_Click();
            return true;
        case MenuEntry::mnuLensCursor:
            frmLens_.mnuLensCursor_Click();
            return true;
        case MenuEntry::mnuLensHotSpot:
            frmLens_.mnuLensHotSpot_Click();
            return true;
        case MenuEntry::mnuLensGrid:
            frmLens_.mnuLensGrid_Click();
            return true;
        case MenuEntry::mnuLensTopLeftScales:
            frmLens_.mnuLensTopLeftScales_Click();
            return true;
        case MenuEntry::mnuLensBottomRightScales:
            frmLens_.mnuLensBottomRightScales_Click();
            return true;
        default:
            return false;
    }
}

void LensPane::SetMode(int mode, bool minimise) {
    ports_.host.SetMode(mode, minimise);
}

void LensPane::ShowHelp() {
    ports_.host.execute(Command::help);
}

void LensPane::showLensMenu(PixelPoint screen) {
    ports_.showMenu({screen.x, screen.y});
}

PixelRect LensPane::RefreshScreenBounds() {
    const PlacementRect all = screenAreas().virtualScreen;
    return {all.left, all.top, all.right, all.bottom};
}

void LensPane::tellOrigin() {
    const RECT place = ports_.worksheet.rectangle();
    frmLens_.setWorksheetOrigin({static_cast<int>(place.left), static_cast<int>(place.top)});
}

void LensPane::showMenuState() {
    const LensMenuState state = frmLens_.menuState();
    const frmMenu& menu = ports_.menu;
    menu.setLensFactor(state.factor);
    menu.setChecked(MenuEntry::mnuLensStick, state.sticked);
    menu.setChecked(MenuEntry::mnuLensCursor, state.cursorOn);
    menu.setChecked(MenuEntry::mnuLensHotSpot, state.hotSpotOn);
    menu.setChecked(MenuEntry::mnuLensGrid, state.gridOn);
    menu.setEnabled(MenuEntry::mnuLensGrid, state.gridAllowed);
    menu.setChecked(MenuEntry::mnuLensTopLeftScales, state.topScales);
    menu.setChecked(MenuEntry::mnuLensBottomRightScales, state.bottomScales);
}

}  // namespace ormala
