#include "app/win/frmSettings.h"
// Needs the system's basic types, which come with the window.
#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "app/programFiles.h"
#include "app/version.h"
#include "app/win/screens.h"
#include "app/win/settingsIds.h"
#include "app/win/timeOfSaving.h"
#include "language/MlStringModule.h"
#include "language/win/UserLocale.h"
#include "platform/win/callbackGuard.h"
#include "platform/win/text.h"
#include "storage/modStorage.h"
#include "storage/win/SpecialFolder.h"
#include "widgets/win/controlFontSize.h"

// Load and closing of the control window.

namespace ormala {

namespace {

constexpr UINT tmrFastInterval = 40;
constexpr UINT tmrButtonBigInterval = 44;

constexpr const char* placementSection = "FormSettings";
constexpr const char* framePlacementSection = "FormResizer";

/// Tells other programs, such as a screen reader or a test, that the load has ended.
constexpr const wchar_t* readyProperty = L"Ready";

/// From the right edge of the screen on a first start, in pixels.
constexpr int distanceFromRight = 80;

SpecialRatios translatedRatios(const TextForm& form) {
    return SpecialRatios(
        [](int id, std::string_view defaultText) { return MlString(id, defaultText); }, form);
}

}  // namespace

frmSettings::frmSettings(bool anotherRuns) : ratios_(translatedRatios(toolSettings_.textForm)) {
    load(anotherRuns);
}

frmSettings::~frmSettings() {
    // The parts go one by one, and the focus that they leave behind finds the rest half gone.
    closed_ = true;
    wheelHook_.reset();
    tools_.reset();
    resizer_.reset();
    view_.reset();
    worksheet_.reset();
    destroy();
}

void frmSettings::load(bool anotherRuns) {
    const int localeLanguage =
        languageForLocaleName(MlGetLocaleInfo(localeUserDefault, localeEnglishLanguageName));
    // Messages about the options file are in the language of the system.
    MlSetLanguage(localeLanguage, {});
    openOptionsFile();
    chooseLanguage(localeLanguage);
    createWindow();
    loadWorksheet();
    factory_.setSheet(worksheet_->sheet());
    makeControls();
    AddModeSystemMenuItems();
    wheelHook_ = std::make_unique<MouseWheelHook>([this](bool down) { tools_->Scroll(down); });
    loadResizer();
    RefreshRuntimeStrings();
    loadTools();
    if (life_.abandoned()) {
        return;
    }
    SetWindowPos(handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    placeWindow(anotherRuns);
    SetMode(options_.mode, false);
    cutEditModeHeight();
    view_->SetLens(options_.lensVisible);
    GetLanguageSupport().ChangeLanguage(CurrentLanguage());
    optionsFile_.ShowLastError();
    // What has failed within a message so far is a failure of the start.
    throwKeptFailure();
    if (!life_.started()) {
        return;
    }
    SetTimer(handle(), tmrButtonBig, tmrButtonBigInterval, nullptr);
    // Shown last, so that it comes up in front of the worksheet and with the focus.
    ShowWindow(handle(), SW_SHOWNORMAL);
    SetPropW(handle(), readyProperty, handle());
}

void frmSettings::openOptionsFile() {
    const std::string path = optionsFilePath(GetSpecialFolder(folderApplicationData));
    CreateFolderForFile(store_, path);
    optionsFile_.setPath(path);
    optionsFile_.CreateFolderPath();
    optionsFile_.ShowLastError();
    optionsFile_.setCurrentSection(optionsSection);
}

void frmSettings::chooseLanguage(int localeLanguage) {
    {
        const auto group = optionsFile_.group();
        options_ = readOptions(optionsFile_, localeLanguage);
    }
    MlSetLanguage(options_.language, {});
    options_.language = CurrentLanguage();
    toolSettings_.textForm.decimalSeparator = decimalSeparator();
}

void frmSettings::createWindow() {
    WindowDesign design;
    design.className = L"frmSettings";
    design.style =
        WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_CLIPCHILDREN;
    design.extendedStyle = WS_EX_CONTROLPARENT;
    create(design);
    dpi_ = dpiOf(handle());
    const SIZE frame = frameSize();
    const int width = layout().width + frame.cx;
    SetWindowPos(handle(), nullptr, GetSystemMetrics(SM_CXSCREEN) - width - distanceFromRight,
                 distanceFromRight, width, layout().firstHeight + frame.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmSettings::loadWorksheet() {
    worksheet_ =
        std::make_unique<frmWorksheet>(factory_, focus_.foreground(), *this, options_.aids);
    // During a change of mode the new one decides.
    worksheetResized_ = worksheet_->resized.subscribe(
        [this] { setWorksheetMaxSized(windowsOf(lit_).worksheetMaxSized); });
}

void frmSettings::loadResizer() {
    resizer_ = std::make_unique<frmResizer>(*worksheet_, *this);
    const auto group = optionsFile_.group();
    const RestoredPlacement stored =
        storedPlacement(resizer_->handle(), optionsFile_, framePlacementSection, false);
    resizer_->restore(systemRect(stored.rect), stored.maximise);
    worksheetPlaced_ = resizer_->worksheetPlaced.subscribe([this](PixelPoint) {
        if (worksheet_->MaxSized()) {
            // Nobody could see the way back under a worksheet that has just covered the screen.
            raiseAboveAll();
        }
    });
}

void frmSettings::AddModeSystemMenuItems() {
    const HMENU menu = GetSystemMenu(handle(), FALSE);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    for (const int mode : {mode::edit, mode::pause, mode::templateMode}) {
        AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(menuCommandOfMode(mode)), L"");
    }
}

void frmSettings::RefreshRuntimeStrings() {
    toolSettings_.textForm.infinite = MlString(313, "infinite");
    ratios_ = translatedRatios(toolSettings_.textForm);
    bar_->ApplyLanguage();
    view_->ApplyLanguage();
    tools_->documents().UpdatePathLine();
    UpdateCaption();
    resizer_->SetRuntimeTexts(applicationTitle);
    const HMENU menu = GetSystemMenu(handle(), FALSE);
    for (int mode = 0; mode < mode::count; ++mode) {
        const auto command = static_cast<UINT>(menuCommandOfMode(mode));
        ModifyMenuW(menu, command, MF_BYCOMMAND | MF_STRING, command,
                    wide(nameOfMode(mode)).c_str());
    }
    SyncSystemMenu(mode_);
}

void frmSettings::makeControls() {
    bar_ = std::make_unique<CommandBar>(*this);
    chosen_ = bar_->chosen.subscribe([this](Command command) { execute(command); });
    view_ = std::make_unique<ViewPane>(
        ViewPane::Ports{*this, *this, *bar_, *worksheet_, options_, toolSettings_});
    {
        const auto group = optionsFile_.group();
        view_->load(optionsFile_);
    }
    const ToolsPane::Ports ports{handle(), *this,         *bar_,        *worksheet_,
                                 focus_,   toolSettings_, ratios_,      options_.defaultUnits,
                                 store_,   codePage_,     globalEvents_};
    tools_ = std::make_unique<ToolsPane>(ports, idList);
    makeFontSizeBox();
    layOutControls();
    SetTimer(handle(), tmrFast, tmrFastInterval, nullptr);
}

/// No user sees the box: the size of type stays as designed unless a program ticks it.
void frmSettings::makeFontSizeBox() {
    check1_.create(handle(), {WC_BUTTONW, BS_AUTOCHECKBOX, idFontSize, "Check1", {}});
    // A click has to lie inside of it.
    constexpr int side = 16;
    SetWindowPos(check1_.handle(), nullptr, 0, 0, side, side,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    fontSizeChange_ = globalEvents_.FontSizeChange.subscribe(
        [this](int points) { SetFontSizeOfControls(handle(), points); });
}

void frmSettings::layOutControls() {
    bar_->layOut(layout(), dpi_);
    view_->layOut(layout(), dpi_);
    tools_->setDpi(dpi_);
}

void frmSettings::loadTools() {
    tools_->tools().prepareFirstTools();
    tools_->documents().loadAutomatic(toolsFilePath(GetSpecialFolder(folderApplicationData)));
    tools_->UpdatePanelLayout(true, true);
}

void frmSettings::placeWindow(bool anotherRuns) {
    const auto group = optionsFile_.group();
    RestoreFormPlacement(handle(), optionsFile_, placementSection, anotherRuns);
}

void frmSettings::cutEditModeHeight() {
    const int below = GetSystemMetrics(SM_CYSCREEN) - static_cast<int>(rectangle().top);
    height_.setEditModeHeight(
        std::min(pixelsOfTwips(options_.editModeFormHeight, dpi_), std::max(below, 0)));
}

bool frmSettings::isBusy() const {
    return IsWindowEnabled(handle()) == FALSE || view_->takesScreenShot();
}

void frmSettings::keep(bool tell) {
    const QuietMessages optionMessages(messages_, !tell);
    tools_->keepTools(!tell);
    SaveOptions();
}

void frmSettings::save() {
    tools_->documents().saveAutomatic(toolsFilePath(GetSpecialFolder(folderApplicationData)));
    SaveOptions();
}

void frmSettings::quit() {
    // A menu or a drag of the frame runs a loop of the system, which need not look for the end.
    EndMenu();
    if (const HWND holder = GetCapture()) {
        SendMessageW(holder, WM_CANCELMODE, 0, 0);
    }
    PostQuitMessage(0);
}

void frmSettings::showReason(bool busy) {
    const std::string reason = busy ? MlString(582, "A dialog is still open.")
                                    : MlString(583, "There may be tools that are not saved yet.");
    ShutdownBlockReasonCreate(handle(), wide(reason).c_str());
}

void frmSettings::hideReason() {
    ShutdownBlockReasonDestroy(handle());
}

void frmSettings::SaveOptions() {
    options_.mode = mode_;
    options_.language = CurrentLanguage();
    options_.editModeFormHeight = twipsOfPixels(height_.editModeHeight(), dpi_);
    {
        const auto group = optionsFile_.group();
        WriteFileHeader(optionsFile_, versionText, timeOfSaving());
        optionsFile_.setCurrentSection(optionsSection);
        view_->fetchOptions();
        writeOptions(optionsFile_, options_);
        SaveFormPlacement(handle(), optionsFile_, placementSection);
        SaveFormPlacement(resizer_->handle(), optionsFile_, framePlacementSection);
        view_->lens().savePlace(optionsFile_);
    }
    optionsFile_.ShowLastError();
}

}  // namespace ormala
