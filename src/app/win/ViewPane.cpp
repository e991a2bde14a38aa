#include "app/win/ViewPane.h"

#include "app/modes.h"
#include "app/version.h"
#include "app/win/settingsIds.h"
#include "dialogs/win/frmOptions.h"
#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "worksheet/transparency.h"

namespace ormala {

namespace {

/// A menu has a message loop of its own, which must not run within the event that asks for it.
constexpr UINT wmPopUpMenu = WM_APP + 3;

/// Pages of the options dialog.
constexpr int worksheetOptions = 1;
constexpr int lensOptions = 2;

/// The command of an entry that has a button too.
std::optional<Command> commandOf(MenuEntry entry) {
    switch (entry) {
        case MenuEntry::mnuWindowNormal:
            return Command::worksheetNormal;
        case MenuEntry::mnuModePause:
            return Command::pauseMode;
        case MenuEntry::mnuModeTemplate:
            return Command::templateMode;
        case MenuEntry::mnuAddGrid:
            return Command::addStencil;
        case MenuEntry::mnuAddMeasure:
            return Command::addMeasure;
        case MenuEntry::mnuGridVisible:
            return Command::grid;
        case MenuEntry::mnuCrossHairVisible:
            return Command::crossHair;
        case MenuEntry::mnuReferenceLinesEnabled:
            return Command::referenceLines;
        case MenuEntry::mnuCircleCompassEnabled:
            return Command::circleCompass;
        case MenuEntry::mnuLensVisible:
            return Command::lens;
        case MenuEntry::mnuHelp:
            return Command::help;
        default:
            return std::nullopt;
    }
}

}  // namespace

ViewPane::ViewPane(const Ports& ports)
    : ports_(ports),
      controls_(ports.window.handle()),
      lens_({ports.host, ports.worksheet, frmMenu_, [this](int page) { ShowOptions(page); },
             [this](POINT screen) { askForMenu(true, screen); }, [this] { SetLens(false); }}),
      shot_(ports.window.handle(), tmrClipboard) {
    editTransparency_ =
        controls_.transparencyEditModeChanged().subscribe([this] { applyTransparency(); });
    templateTransparency_ =
        controls_.transparencyTemplateModeChanged().subscribe([this] { applyTransparency(); });
    shotTold_ = shot_.told.subscribe([this](const std::string& note) { showNote(note); });
    color_ = controls_.worksheetColorChanged().subscribe([this] { applyColor(); });
}

ViewPane::~ViewPane() = default;

void ViewPane::load(INIFile& file) {
    const Options& options = ports_.options;
    ports_.worksheet.aidsChanged();
    ports_.toolSettings.grid = options.aids.grid.steps;
    ports_.toolSettings.showReferenceLines = options.showReferenceLines;
    controls_.setTransparencyEditMode(options.transparencyEditMode);
    controls_.setTransparencyTemplateMode(options.transparencyTemplateMode);
    controls_.setWorksheetColor(options.worksheetColor);
    // Also where the first mode is another one than edit: the colour is its key.
    ports_.worksheet.setBackground(colorRef(options.worksheetColor));
    applyTransparency();
    lens_.lens().setOptions(options.lens);
    lens_.restorePlace(file);
}

void ViewPane::fetchOptions() {
    // The worksheet's colour is the user's last one, though it may wait for edit mode.
    Options& options = ports_.options;
    options.lensVisible = toggleStates().lens;
    options.lens = lens_.lens().options();
}

void ViewPane::layOut(const SettingsLayout& layout, int dpi) {
    controls_.layOut(layout, dpi);
}

void ViewPane::SetGrid(bool enabled) {
    ports_.options.aids.grid.enabled = enabled;
    RefreshToggleStates();
    ports_.worksheet.aidsChanged();
}

void ViewPane::SetCrossHair(bool enabled) {
    ports_.options.aids.crossHair = enabled;
    ports_.worksheet.aidsChanged();
    RefreshToggleStates();
}

void ViewPane::SetCircleCompass(bool enabled) {
    ports_.options.aids.circleCompass = enabled;
    RefreshToggleStates();
}

void ViewPane::SetReferenceLines(bool enabled) {
    ports_.options.showReferenceLines = enabled;
    ports_.toolSettings.showReferenceLines = enabled;
    RefreshToggleStates();
}

void ViewPane::SetLens(bool visible) {
    lens_.setVisible(visible);
    RefreshToggleStates();
}

ToggleStates ViewPane::toggleStates() const {
    if (shotOf_) {
        return *shotOf_;
    }
    const AidOptions& aids = ports_.options.aids;
    return {lens_.lens().isVisible(), aids.grid.enabled, aids.crossHair,
            ports_.options.showReferenceLines, aids.circleCompass};
}

void ViewPane::RefreshToggleStates() {
    const ToggleStates states = toggleStates();
    ports_.bar.showToggles(states);
    frmMenu_.setChecked(MenuEntry::mnuGridVisible, states.grid);
    frmMenu_.setChecked(MenuEntry::mnuLensVisible, states.lens);
    frmMenu_.setChecked(MenuEntry::mnuCircleCompassEnabled, states.circleCompass);
    frmMenu_.setChecked(MenuEntry::mnuReferenceLinesEnabled, states.referenceLines);
    frmMenu_.setChecked(MenuEntry::mnuCrossHairVisible, states.crossHair);
}

bool ViewPane::execute(Command command) {
    if (takesScreenShot()) {
        return true;
    }
    if (const auto on = toggleOf(command, toggleStates())) {
        toggle(command, !*on);
        return true;
    }
    switch (command) {
        case Command::screenShot:
            takeScreenShot();
            return true;
        case Command::options:
            ShowOptions(0);
            return true;
        default:
            return false;
    }
}

void ViewPane::toggle(Command command, bool on) {
    switch (command) {
        case Command::lens:
            SetLens(on);
            break;
        case Command::grid:
            SetGrid(on);
            break;
        case Command::crossHair:
            SetCrossHair(on);
            break;
        case Command::referenceLines:
            SetReferenceLines(on);
            break;
        case Command::circleCompass:
            SetCircleCompass(on);
            break;
        default:
            break;
    }
}

void ViewPane::takeScreenShot() {
    const ToggleStates states = toggleStates();
    shotOf_ = states;
    lens_.setAside(true);
    ports_.worksheet.setAidsAside(true);
    ports_.bar.showNote({});
    shot_.take(ports_.worksheet);
    shotOf_.reset();
    if (states.lens) {
        lens_.setAside(false);
    }
    ports_.worksheet.setAidsAside(false);
}

void ViewPane::showNote(const std::string& text) {
    constexpr UINT readingTime = 4000;
    ports_.bar.showNote(text);
    SetTimer(ports_.window.handle(), tmrNote, readingTime, nullptr);
}

void ViewPane::tick(UINT_PTR timer) {
    if (timer == tmrClipboard) {
        shot_.tick();
    } else if (timer == tmrNote) {
        KillTimer(ports_.window.handle(), tmrNote);
        ports_.bar.showNote({});
    }
}

void ViewPane::applyTransparency() {
    Options& options = ports_.options;
    options.transparencyEditMode = controls_.transparencyEditMode();
    options.transparencyTemplateMode = controls_.transparencyTemplateMode();
    ports_.worksheet.setClickAlpha(alphaOfTransparency(options.transparencyEditMode));
    ports_.worksheet.setAlpha(alphaOfTransparency(options.transparencyTemplateMode));
}

void ViewPane::applyColor() {
    ports_.options.worksheetColor = controls_.worksheetColor();
    // In template mode it is the key, and waits for the next change to edit mode.
    if (ports_.host.GetMode() == mode::edit) {
        ports_.worksheet.setBackground(colorRef(ports_.options.worksheetColor));
    }
}

void ViewPane::ShowContextMenu(POINT screen) {
    const bool maxSized = ports_.worksheet.MaxSized();
    frmMenu_.setEnabled(MenuEntry::mnuWindowNormal, maxSized);
    frmMenu_.setEnabled(MenuEntry::mnuWindowMaximized, !maxSized);
    askForMenu(false, screen);
}

void ViewPane::askForMenu(bool ofLens, POINT screen) {
    menuPlace_ = screen;
    PostMessageW(ports_.window.handle(), wmPopUpMenu, ofLens ? 1 : 0, 0);
}

std::optional<LRESULT> ViewPane::onMessage(UINT message, WPARAM wParam) {
    if (message != wmPopUpMenu) {
        return std::nullopt;
    }
    popUpMenu(wParam != 0);
    return 0;
}

void ViewPane::popUpMenu(bool ofLens) {
    const auto chosen =
        ofLens ? frmMenu_.popUp(frmMenu_.mnuLens(), lens_.lens().handle(), menuPlace_)
               : frmMenu_.popUp(frmMenu_.mnuPopup(), ports_.worksheet.handle(), menuPlace_);
    if (chosen) {
        choose(*chosen);
    }
}

void ViewPane::choose(MenuEntry entry) {
    if (const auto command = commandOf(entry)) {
        ports_.host.execute(*command);
    } else if (entry == MenuEntry::mnuWindowMaximized) {
        ports_.host.maximiseWorksheet();
    } else if (entry == MenuEntry::mnuOptions) {
        ShowOptions(worksheetOptions);
    } else if (entry == MenuEntry::mnuLensOptions) {
        ShowOptions(lensOptions);
    } else {
        lens_.choose(entry);
    }
}

void ViewPane::ShowOptions(int Page) {
    const HWND window = ports_.window.handle();
    if (IsWindowEnabled(window) == FALSE) {
        // Another dialog is open.
        return;
    }
    if (frmOptions_ == nullptr) {
        frmOptions_ =
            std::make_unique<frmOptions>(*this, programFacts(applicationTitle, versionText));
    }
    frmOptions_->ShowForm(ownerOfDialogs(), Page);
}

/// The window in which the user goes on afterwards.
HWND ViewPane::ownerOfDialogs() const {
    const HWND active = GetActiveWindow();
    const HWND window = active != nullptr ? active : ports_.window.handle();
    // What belongs to a minimised window is hidden with it.
    return IsIconic(window) != FALSE ? ports_.worksheet.handle() : window;
}

OptionValues ViewPane::optionValues() const {
    return {CurrentLanguage(), ports_.options.templateWithBorder, ports_.options.aids.grid,
            lens_.lens().options()};
}

void ViewPane::applyOptions(const OptionValues& values) {
    ports_.toolSettings.grid = values.grid.steps;
    ports_.options.aids.grid = values.grid;
    ports_.worksheet.aidsChanged();
    ports_.options.templateWithBorder = values.templateWithBorder;
    if (values.language != CurrentLanguage()) {
        changeLanguage(values.language);
    }
    lens_.lens().setOptions(values.lens);
    if (ports_.host.GetMode() == mode::templateMode) {
        // A changed border takes effect at once.
        ports_.host.SetMode(mode::templateMode, false);
    }
}

void ViewPane::changeLanguage(int language) {
    MlSetLanguage(language, {});
    ports_.host.RefreshRuntimeStrings();
    if (frmOptions_ != nullptr) {
        frmOptions_->SetRuntimeTexts(applicationTitle);
    }
    GetLanguageSupport().ChangeLanguage(language);
}

}  // namespace ormala
