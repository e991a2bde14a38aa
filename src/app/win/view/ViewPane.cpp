#include "app/win/view/ViewPane.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/CommandTable.h"
#include "app/commands.h"
#include "app/keyTables.h"
#include "app/version.h"
#include "app/win/shell/settingsIds.h"
#include "app/win/view/help.h"
#include "dialogs/win/WindowsMessagePresenter.h"
#include "dialogs/win/frmOptions.h"
#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "worksheet/transparency.h"

namespace ormala {

ViewPane::ViewPane(const Ports& ports)
    : ports_(ports),
      shot_(ports.window.handle(), tmrClipboard),
      copied_(ports.window.handle(), tmrCopy) {
    const auto keep = [this](Subscription subscription) {
        subscriptions_.push_back(std::move(subscription));
    };
    loadLook();
    showState();
    WorksheetControls& look = ports_.window.look();
    keep(look.transparencyEditModeChanged().subscribe([this] { takeLook(); }));
    keep(look.transparencyTemplateModeChanged().subscribe([this] { takeLook(); }));
    keep(look.worksheetColorChanged().subscribe([this] { takeLook(); }));
    keep(ports_.state.changed.subscribe([this] { showState(); }));
    keep(shot_.told.subscribe([this](const std::string& note) { showNote(note); }));
    keep(copied_.told.subscribe([this](const std::string& note) { showNote(note); }));
    keep(ports_.window.ticked.subscribe([this](UINT_PTR timer) { onTimer(timer); }));
}

ViewPane::~ViewPane() = default;

/// Also where the first mode is another one than edit: the colour is its key.
void ViewPane::loadLook() {
    const Options& options = ports_.state.options();
    WorksheetControls& look = ports_.window.look();
    look.setTransparencyEditMode(options.transparencyEditMode);
    look.setTransparencyTemplateMode(options.transparencyTemplateMode);
    look.setWorksheetColor(options.worksheetColor);
    ports_.worksheet.setBackground(colorRef(options.worksheetColor));
}

void ViewPane::takeLook() {
    ports_.state.set([&look = ports_.window.look()](Options& options) {
        options.transparencyEditMode = look.transparencyEditMode();
        options.transparencyTemplateMode = look.transparencyTemplateMode();
        options.worksheetColor = look.worksheetColor();
    });
}

void ViewPane::showState() {
    const Options& options = ports_.state.options();
    ports_.window.bar().showToggles(ports_.state);
    frmMenu_.showState(ports_.state);
    ports_.worksheet.aidsChanged();
    ports_.worksheet.setClickAlpha(alphaOfTransparency(options.transparencyEditMode));
    ports_.worksheet.setAlpha(alphaOfTransparency(options.transparencyTemplateMode));
    if (options.mode == Mode::edit) {
        // In template mode it is the key, and waits for the next change to edit mode.
        ports_.worksheet.setBackground(colorRef(options.worksheetColor));
    }
    tellLens([](LensPane& pane) { pane.showState(); });
}

void ViewPane::tellLens(const std::function<void(LensPane&)>& tell) {
    if (lens_) {
        tell(*lens_);
    }
}

LensPane& ViewPane::lens() {
    return lens_ ? *lens_ : makeLens();
}

LensPane& ViewPane::makeLens() {
    LensPane& made =
        lens_.emplace(LensPane::Ports{ports_.worksheet, ports_.state, ports_.execute,
                                      [this](PixelPoint screen) { askForLensMenu(screen); }});
    made.showState();
    made.lens().SetMode(ports_.state.options().mode);
    return made;
}

void ViewPane::showMode(Mode mode) {
    tellLens([mode](LensPane& pane) { pane.lens().SetMode(mode); });
}

bool ViewPane::raiseLens(bool onlySticked) {
    return lens_ && lens_->raise(onlySticked);
}

bool ViewPane::execute(Command command) {
    static constexpr std::array<CommandAction<ViewPane>, 5> rows{{
        {Command::screenShot, [](ViewPane& self) { self.takeScreenShot(); }},
        {Command::worksheetMaximised, [](ViewPane& self) { self.ports_.resizer.maximise(); }},
        {Command::worksheetMenu, [](ViewPane& self) { self.ports_.worksheet.ShowContextMenu(); }},
        {Command::copyColor, [](ViewPane& self) { self.copyColor(); }},
        {Command::lensMenu, [](ViewPane& self) { self.lens().lens().showMenuAtOrigin(); }},
    }};
    if (const auto page = optionsPageOf(command)) {
        ShowOptions(*page);
        return true;
    }
    return ports_.state.execute(command) || runCommand<ViewPane>(rows, *this, command);
}

void ViewPane::takeScreenShot() {
    takesScreenShot_ = true;
    lens().setAside(true);
    ports_.worksheet.setAidsAside(true);
    ports_.window.bar().showNote({});
    shot_.take(ports_.worksheet);
    takesScreenShot_ = false;
    lens().setAside(false);
    ports_.worksheet.setAidsAside(false);
}

void ViewPane::showNote(const std::string& text) {
    constexpr UINT readingTime = 4000;
    ports_.window.bar().showNote(text);
    tmrNote_.start(ports_.window.handle(), text.empty() ? 0 : readingTime);
}

void ViewPane::onTimer(UINT_PTR timer) {
    static constexpr std::array<std::pair<UINT_PTR, void (*)(ViewPane&)>, 3> rows{{
        {tmrClipboard, [](ViewPane& self) { self.shot_.tick(); }},
        {tmrCopy, [](ViewPane& self) { self.copied_.tick(); }},
        {tmrNote,
         [](ViewPane& self) {
             self.tmrNote_.stop();
             self.ports_.window.bar().showNote({});
         }},
    }};
    const auto* const row = std::ranges::find(rows, timer, &decltype(rows)::value_type::first);
    if (row != rows.end()) {
        row->second(*this);
    }
}

void ViewPane::copyColor() {
    if (const auto pixel = lens().lens().pixelUnderHotSpot()) {
        copy(copyOfColor(pixel->color));
    }
}

void ViewPane::ShowContextMenu(POINT screen) {
    const bool maxSized = ports_.worksheet.MaxSized();
    frmMenu_.setEnabled(Command::worksheetNormal, maxSized);
    frmMenu_.setEnabled(Command::worksheetMaximised, !maxSized);
    ports_.window.later(
        [this, screen] { popUpMenu(frmMenu_.mnuPopup(), ports_.worksheet, screen); });
}

void ViewPane::askForLensMenu(PixelPoint screen) {
    ports_.window.later([this, place = POINT{screen.x, screen.y}] {
        popUpMenu(frmMenu_.mnuLens(), lens().lens(), place);
    });
}

/// A menu has a message loop of its own, which must not run within the event that asks for it.
void ViewPane::popUpMenu(HMENU menu, const Window& owner, POINT place) const {
    if (const auto command = frmMenu::popUp(menu, owner.handle(), place)) {
        ports_.execute(*command);
    }
}

void ViewPane::ShowOptions(int Page) {
    if (IsWindowEnabled(ports_.window.handle()) == FALSE) {
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

void ViewPane::applyOptions(const OptionValues& values) {
    const bool otherLanguage = values.language != CurrentLanguage();
    ports_.state.apply(values);
    if (otherLanguage) {
        changeLanguage(values.language);
    }
    applied.raise();
}

void ViewPane::changeLanguage(int language) {
    MlSetLanguage(language, {});
    languageChanged.raise();
    if (frmOptions_ != nullptr) {
        frmOptions_->SetRuntimeTexts(applicationTitle);
    }
    GetLanguageSupport().ChangeLanguage(language);
}

bool ViewPane::ShowHelp() {
    if (openHelp(ports_.window.handle())) {
        return true;
    }
    const std::array file{helpFileName()};
    WindowsMessagePresenter(applicationTitle)
        .showError(MlFormat(MlString(562, "The help could not be opened:%n%0"), file));
    return false;
}

void ViewPane::raiseAboveAll() {
    ports_.window.raise();
    raiseLens(true);
}

void ViewPane::putWindowsAside(bool aside) {
    // Below it lies the program that the drag is for.
    ports_.worksheet.setTransparentToMouse(aside);
    if (aside) {
        frameAside_ = ports_.resizer.isVisible();
        ports_.resizer.hide();
    } else if (frameAside_) {
        ports_.resizer.show();
    }
    // In front of the frame, where it was.
    lens().setAside(aside);
}

}  // namespace ormala
