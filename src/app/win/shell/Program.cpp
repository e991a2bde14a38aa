#include "app/win/shell/Program.h"

#include <array>

#include "app/CommandTable.h"
#include "app/keyTables.h"
#include "app/version.h"
#include "app/win/shell/partsOfProgram.h"
#include "dialogs/win/formPlacement.h"
#include "language/LanguageSupport.h"
#include "language/MlStringModule.h"
#include "language/win/UserLocale.h"
#include "platform/win/callbackGuard.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "platform/win/windowOrder.h"

namespace ormala {

namespace {

/// Tells other programs, such as a screen reader or a test, that the load has ended.
constexpr const wchar_t* readyProperty = L"Ready";

/// Messages about the options file are in the language of the system.
int useLanguageOfSystem() {
    const int language =
        languageForLocaleName(MlGetLocaleInfo(localeUserDefault, localeEnglishLanguageName));
    MlSetLanguage(language, {});
    return language;
}

SpecialRatios translatedRatios(const TextForm& form) {
    return {[](int id, std::string_view defaultText) { return MlString(id, defaultText); }, form};
}

}  // namespace

Program::Program(bool anotherRuns)
    : localeLanguage_(useLanguageOfSystem()),
      optionsKeeper_(store_, codePage_),
      state_(optionsKeeper_.read(localeLanguage_)),
      ratios_(translatedRatios({})) {
    MlSetLanguage(state_.options().language, {});
    state_.set([](Options& options) { options.language = CurrentLanguage(); });
    state_.toolSettings().textForm.decimalSeparator = decimalSeparator();
    makeWindows();
    listen();
    RefreshRuntimeStrings();
    tools_->load();
    if (life_.abandoned()) {
        return;
    }
    restoreLook(anotherRuns);
    optionsKeeper_.ShowLastError();
    // What has failed within a message so far is a failure of the start.
    throwKeptFailure();
    if (life_.started()) {
        autoSave_->begin();
        // Shown last, so that it comes up in front of the worksheet and with the focus.
        settings_->size().acrossDpi().show(settings_->handle(), SW_SHOWNORMAL);
        SetPropW(settings_->handle(), readyProperty, settings_->handle());
    }
}

void Program::makeWindows() {
    settings_ =
        std::make_unique<frmSettings>(frmSettings::Ports{life_, focus_, state_, globalEvents_});
    worksheet_ =
        std::make_unique<frmWorksheet>(factory_, focus_.foreground(), *this, state_.options().aids,
                                       state_.toolSettings().textForm);
    factory_.setSheet(worksheet_->sheet());
    state_.setWorksheetDpi(worksheet_->dpi());
    resizer_ = std::make_unique<frmResizer>(*worksheet_, *this);
    view_ = std::make_unique<ViewPane>(ViewPane::Ports{
        *settings_, *worksheet_, *resizer_, state_, [this](Command command) { execute(command); }});
    tools_ = std::make_unique<ToolsPane>(ToolsPane::Ports{*settings_, *worksheet_, *view_, state_,
                                                          focus_, ratios_, store_, codePage_,
                                                          globalEvents_});
    const RestoredPlacement frame = optionsKeeper_.place(resizer_->handle(), formSection::frame);
    resizer_->restore(frame.rect, frame.maximise);
    stage_ = std::make_unique<ModeStage>(
        ModeStage::Windows{*settings_, *worksheet_, *resizer_, *view_, state_});
    modes_ = std::make_unique<ModeSwitch>(*stage_, state_);
    autoSave_ = std::make_unique<AutoSaveStage>(AutoSaveStage::Parts{
        *settings_, *resizer_, *view_, *tools_, state_, *modes_, optionsKeeper_});
    wheelHook_ = std::make_unique<MouseWheelHook>([this](int notches) {
        // Later, when what the hook sees is out of the queue, and only what follows it waits there.
        settings_->later([this, notches] { tools_->Scroll(notches); });
    });
}

void Program::listen() {
    const auto keep = [this](Subscription subscription) {
        subscriptions_.push_back(std::move(subscription));
    };
    keep(settings_->chosen.subscribe([this](Command command) { execute(command); }));
    keep(settings_->orderChanged.subscribe([this] { view_->raiseLens(true); }));
    keep(settings_->displayChanged.subscribe([this] { lostWindows_.screensChanged(); }));
    keep(settings_->placed.subscribe([this] { lostWindows_.placed(settings_->handle()); }));
    keep(worksheet_->activated.subscribe([this] {
        // A worksheet that comes to the front must not cover the panels.
        settings_->later([this] {
            raiseAgainOver(settings_->handle(), worksheet_->handle());
            view_->raiseAboveAll();
        });
    }));
    keep(worksheet_->dpiChanged.subscribe([this] { state_.setWorksheetDpi(worksheet_->dpi()); }));
    keep(worksheet_->resized.subscribe([this] { modes_->worksheetResized(); }));
    keep(resizer_->worksheetPlaced.subscribe([this](PixelPoint) {
        lostWindows_.placed(resizer_->handle());
        if (worksheet_->MaxSized()) {
            // Nobody could see the way back under a worksheet that has just covered the screen.
            view_->raiseAboveAll();
        }
    }));
    keep(view_->applied.subscribe([this] { modes_->refreshTemplateMode(); }));
    keep(view_->languageChanged.subscribe([this] { RefreshRuntimeStrings(); }));
}

void Program::restoreLook(bool anotherRuns) {
    SetWindowPos(settings_->handle(), HWND_TOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    optionsKeeper_.restorePlace(settings_->handle(), settings_->size().acrossDpi(),
                                formSection::control, anotherRuns);
    const Mode first = state_.options().mode;
    state_.setMode(Mode::edit);
    modes_->SetMode(first, false);
    settings_->size().restoreEditModeHeight(state_.options().editModeFormHeight);
    // What lies beside the worksheet could wait until that is painted.
    makeLens();
    GetLanguageSupport().ChangeLanguage(CurrentLanguage());
}

void Program::makeLens() {
    LensPane& pane = view_->lens();
    frmLens& lens = pane.lens();
    optionsKeeper_.restorePlace(lens.handle(), lens.acrossDpi(), formSection::lens, false);
    parts_ = partsOfProgram(*settings_, *tools_, *worksheet_, *resizer_, lens);
    pane.setAside(false);
}

void Program::RefreshRuntimeStrings() {
    TextForm& form = state_.toolSettings().textForm;
    form.infinite = MlString(313, "infinite");
    ratios_ = translatedRatios(form);
    settings_->RefreshRuntimeStrings();
    tools_->documents().UpdatePathLine();
    resizer_->SetRuntimeTexts(applicationTitle);
}

void Program::execute(Command command) {
    static constexpr std::array<CommandAction<Program>, 4> rows{{
        {Command::worksheetNormal, [](Program& self) { self.worksheetWindowNormal(); }},
        {Command::help, [](Program& self) { self.ShowHelp(); }},
        {Command::nextPart, [](Program& self) { passKeyboardOn(self.parts_, false); }},
        {Command::previousPart, [](Program& self) { passKeyboardOn(self.parts_, true); }},
    }};
    // The screen shot wants the view as it is.
    if (modes_->execute(command) || runCommand<Program>(rows, *this, command) ||
        view_->takesScreenShot() || view_->execute(command)) {
        return;
    }
    tools_->execute(command);
}

void Program::worksheetWindowNormal() {
    resizer_->showNormal();
    modes_->setWorksheetMaxSized(false);
}

void Program::ShowHelp() {
    if (view_->ShowHelp()) {
        modes_->SetMode(Mode::pause, false);
    }
}

bool Program::preview(const MSG& message) {
    return tools_->swallows(message) || settings_->preview(message);
}

bool Program::takeKey(int key, int modifiers) {
    return obeyKey(key, modifiers, KeyWindow::worksheet,
                   [this](Command command) { execute(command); });
}

void Program::raiseControlWindowAt(POINT screen) {
    const RECT place = settings_->rectangle();
    const HWND window = settings_->handle();
    if (settings_->isVisible() && IsIconic(window) == FALSE && PtInRect(&place, screen) != FALSE) {
        SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        SetFocus(window);
    }
}

void Program::closeProgram() {
    PostMessageW(settings_->handle(), WM_CLOSE, 0, 0);
}

bool Program::isBusy() const {
    return IsWindowEnabled(settings_->handle()) == FALSE || view_->takesScreenShot();
}

void Program::keep(bool tell) {
    tools_->save(!tell);
    optionsKeeper_.save(autoSave_->keptOptions(), !tell);
}

void Program::showReason(bool busy) {
    const std::string reason = busy ? MlString(582, "A dialog is still open.")
                                    : MlString(583, "There may be tools that are not saved yet.");
    ShutdownBlockReasonCreate(settings_->handle(), wide(reason).c_str());
}

void Program::hideReason() {
    ShutdownBlockReasonDestroy(settings_->handle());
}

void Program::quit() {
    // A menu or a drag of the frame runs a loop of the system, which need not look for the end.
    EndMenu();
    if (const HWND holder = GetCapture()) {
        SendMessageW(holder, WM_CANCELMODE, 0, 0);
    }
    PostQuitMessage(0);
}

}  // namespace ormala
