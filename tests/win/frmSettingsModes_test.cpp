#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "language/MlStringModule.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "platform/win/regions.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"
#include "win/ModesStage.h"

// The modes of the running program, and where they leave its windows.

namespace ormala {
namespace {

class Modes : public ModesStage {};

bool isOnAScreen(HWND window) {
    return MonitorFromWindow(window, MONITOR_DEFAULTTONULL) != nullptr;
}

void placeOffAllScreens(HWND window) {
    SetWindowPos(window, nullptr, 9000, 7000, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_FALSE(isOnAScreen(window));
}

bool comesBack(HWND window) {
    return test::waitUntil([window] { return isOnAScreen(window); });
}

constexpr std::array<bool, 3> allShown{true, true, true};
constexpr std::array<bool, 3> veilAlone{true, false, true};
constexpr std::array<bool, 3> templateAlone{true, false, false};
constexpr std::array<bool, 3> templateInFrame{true, true, false};
constexpr std::array<bool, 3> nothing{false, false, false};

TEST_F(Modes, FirstStartShowsTheFrameOfTheGoldenSectionCentred) {
    start();
    EXPECT_EQ(shown(), allShown);
    EXPECT_TRUE(worksheetLiesInTheFrame());
    const RECT place = program_->resizer().rectangle();
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_NEAR(widthOf(place), 0.618 * width, 3);
    EXPECT_NEAR(heightOf(place), 0.618 * height, 3);
    EXPECT_NEAR(place.left + place.right, width, 3);
    EXPECT_NEAR(place.top + place.bottom, height, 3);
}

TEST_F(Modes, EachMakesItsOwnOfTheFramedWindows) {
    start();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_EQ(shown(), templateAlone);
    program_->modes().SetMode(Mode::pause, false);
    EXPECT_EQ(shown(), nothing);
    program_->modes().SetMode(Mode::edit, false);
    EXPECT_EQ(shown(), allShown);
    keepBorder();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_EQ(shown(), templateInFrame);
    program_->modes().SetMode(Mode::pause, false);
    EXPECT_EQ(shown(), nothing);
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_EQ(shown(), templateInFrame);
    EXPECT_FALSE(program_->modes().WorksheetMaxSized());
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, AStartInTemplateModeKeysOutTheUsersColour) {
    option("Options", "Mode", " 1");
    option("Options", "WorksheetColor", " 255");
    start();
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    GetLayeredWindowAttributes(program_->worksheet().handle(), &key, &alpha, &flags);
    EXPECT_EQ(key, RGB(255, 0, 0));
    EXPECT_EQ(end().number("Options", "WorksheetColor"), 255);
}

TEST_F(Modes, EachMakesItsOwnOfTheFullScreenWindows) {
    start();
    program_->resizer().maximise();
    EXPECT_EQ(shown(), veilAlone);
    keepBorder();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_EQ(shown(), templateAlone);
    program_->modes().SetMode(Mode::pause, false);
    EXPECT_EQ(shown(), nothing);
    program_->modes().SetMode(Mode::edit, false);
    EXPECT_EQ(shown(), veilAlone);
    EXPECT_TRUE(worksheetFillsScreen());
}

TEST_F(Modes, OneOfNoKnownNumberChangesNoWindow) {
    start();
    program_->modes().SetMode(static_cast<Mode>(7), false);
    EXPECT_EQ(shown(), allShown);
    EXPECT_EQ(program_->modes().GetMode(), static_cast<Mode>(7));
}

TEST_F(Modes, FrameGoesInTemplateModeAndTheWorksheetStaysInPlace) {
    start();
    ASSERT_TRUE(worksheetLiesInTheFrame());
    const RECT before = program_->worksheet().rectangle();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_FALSE(program_->resizer().isVisible());
    const RECT after = program_->worksheet().rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
}

TEST_F(Modes, FrameWithBorderCanBeMovedInTemplateModeAndTheToolsMoveAlong) {
    option("Options", "TemplateWithBorder", "-1");
    option("Options", "Mode", "1");
    start();
    ASSERT_EQ(shown(), templateInFrame);
    SetWindowPos(program_->resizer().handle(), nullptr, 60, 50, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(worksheetLiesInTheFrame());
    EXPECT_TRUE(program_->worksheet().isVisible());
    EXPECT_EQ(program_->modes().GetMode(), Mode::templateMode);
}

TEST_F(Modes, FullScreenWorksheetComesBackIntoAFrameOfTheOldSize) {
    start();
    const RECT before = program_->resizer().rectangle();
    SendMessageW(program_->resizer().handle(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    EXPECT_TRUE(worksheetFillsScreen());
    EXPECT_TRUE(program_->modes().WorksheetMaxSized());
    EXPECT_EQ(shown(), veilAlone);
    program_->execute(Command::worksheetNormal);
    EXPECT_FALSE(program_->modes().WorksheetMaxSized());
    EXPECT_EQ(shown(), allShown);
    const RECT after = program_->resizer().rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, FullScreenWorksheetCanComeBackInTemplateModeOnlyWithTheBorder) {
    start();
    program_->resizer().maximise();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_FALSE(program_->modes().WorksheetMaxSized());
    keepBorder();
    program_->modes().SetMode(Mode::templateMode, false);
    EXPECT_TRUE(program_->modes().WorksheetMaxSized());
    program_->modes().SetMode(Mode::pause, false);
    EXPECT_FALSE(program_->modes().WorksheetMaxSized());
}

TEST_F(Modes, CloseBoxOfTheFrameIsAPauseAndNoEnd) {
    start();
    SendMessageW(program_->resizer().handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(program_->modes().GetMode(), Mode::pause);
    EXPECT_EQ(shown(), nothing);
    MSG message{};
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE));
    program_->modes().SetMode(Mode::edit, false);
    EXPECT_EQ(shown(), allShown);
}

TEST_F(Modes, F3WithCtrlAndShiftLeavesTheControlWindowUp) {
    start();
    const HeldKeys held{VK_CONTROL, VK_SHIFT};
    press(VK_F3);
    EXPECT_EQ(program_->modes().GetMode(), Mode::pause);
    EXPECT_FALSE(IsIconic(settings_->handle()));
}

TEST_F(Modes, PauseLeavesTheKeysOfTheOtherModes) {
    option("Options", "Mode", "2");
    start();
    EXPECT_EQ(height(), shortHeight());
    press(VK_F4);
    EXPECT_EQ(program_->modes().GetMode(), Mode::templateMode);
    press(VK_F3);
    EXPECT_EQ(program_->modes().GetMode(), Mode::pause);
    press(VK_F2);
    EXPECT_EQ(program_->modes().GetMode(), Mode::edit);
    EXPECT_EQ(shown(), allShown);
}

TEST_F(Modes, VeilIsWholeAgainAfterTemplateModeAndPause) {
    start();
    const RECT place = program_->worksheet().rectangle();
    const test::ScreenPoint beside{static_cast<int>(place.left) + 20,
                                   static_cast<int>(place.top) + 20};
    const auto now = [&] {
        return test::screen::waitUntilStill({beside.x, beside.y, beside.x + 1, beside.y + 1})
            .at(beside);
    };
    const test::Color veil = now();
    program_->modes().SetMode(Mode::templateMode, false);
    const test::Color ground = now();
    EXPECT_NE(veil, ground);
    program_->modes().SetMode(Mode::pause, false);
    EXPECT_EQ(now(), ground);
    program_->modes().SetMode(Mode::edit, false);
    EXPECT_TRUE(test::waitUntil([&] { return test::screen::pixel(beside) == veil; }));
}

TEST_F(Modes, StartInPauseShowsNoWorksheet) {
    option("Options", "Mode", "2");
    start();
    EXPECT_EQ(shown(), nothing);
    program_->modes().SetMode(Mode::edit, false);
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, StartWithAFrameStoredAsMaximisedIsFullScreen) {
    option("FormResizer", "Left", "300");
    option("FormResizer", "Top", "200");
    option("FormResizer", "Right", "1000");
    option("FormResizer", "Bottom", "700");
    option("FormResizer", "WindowState", "3");
    start();
    EXPECT_EQ(shown(), veilAlone);
    EXPECT_TRUE(worksheetFillsScreen());
    EXPECT_TRUE(program_->modes().WorksheetMaxSized());
    program_->execute(Command::worksheetNormal);
    const RECT place = program_->resizer().rectangle();
    EXPECT_EQ(widthOf(place), 700);
    EXPECT_EQ(heightOf(place), 500);
}

TEST_F(Modes, PlaceOfTheFrameComesBackAtTheNextStart) {
    start();
    SetWindowPos(program_->resizer().handle(), nullptr, 90, 80, 640, 480,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    const PixelRect place = fromRect(program_->resizer().rectangle());
    file_ = end();
    EXPECT_EQ(file_.number("FormResizer", "WindowState"), 1);
    EXPECT_EQ(file_.number("FormResizer", "Left"), place.left);
    EXPECT_EQ(file_.number("FormResizer", "Bottom"), place.bottom);
    start();
    EXPECT_EQ(fromRect(program_->resizer().rectangle()), place);
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, SecondCopyShiftsTheControlWindowAndNotTheFrame) {
    for (const char* section : {"FormSettings", "FormResizer"}) {
        option(section, "Left", "100");
        option(section, "Top", "90");
        option(section, "Right", "800");
        option(section, "Bottom", "600");
    }
    start(true);
    EXPECT_EQ(program_->resizer().rectangle().left, 100);
    EXPECT_EQ(program_->resizer().rectangle().top, 90);
    EXPECT_EQ(settings_->rectangle().left, 120);
    EXPECT_EQ(settings_->rectangle().top, 110);
}

TEST_F(Modes, WindowsOfAMonitorThatIsGoneComeBackAtTheStart) {
    for (const char* section : {"FormSettings", "FormResizer"}) {
        option(section, "Left", "9000");
        option(section, "Top", "7000");
        option(section, "Right", "9700");
        option(section, "Bottom", "7500");
    }
    start();
    for (const HWND window : {settings_->handle(), program_->resizer().handle()}) {
        EXPECT_TRUE(isOnAScreen(window));
    }
    const RECT place = program_->resizer().rectangle();
    EXPECT_EQ(place.right,
              GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN));
    EXPECT_EQ(widthOf(place), 700);
}

TEST_F(Modes, WindowsComeBackWhenTheirMonitorGoesWhileTheProgramRuns) {
    start();
    program_->modes().SetMode(Mode::templateMode, false);
    placeOffAllScreens(program_->resizer().handle());
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    EXPECT_TRUE(isOnAScreen(program_->resizer().handle()));
    EXPECT_FALSE(program_->resizer().isVisible()) << "still hidden by the mode";
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, WindowsThatSomethingPlacesAfterAChangeOfTheScreensComeBackToo) {
    start();
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    placeOffAllScreens(program_->resizer().handle());
    EXPECT_TRUE(comesBack(program_->resizer().handle()));
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, AWindowThatSomethingPlacesOffAllScreensComesBack) {
    start();
    for (const HWND window : {settings_->handle(), program_->resizer().handle()}) {
        placeOffAllScreens(window);
        EXPECT_TRUE(comesBack(window));
    }
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, AWindowPartlyBeyondTheEdgeStaysWhereAnotherComesBack) {
    start();
    const HWND frame = program_->resizer().handle();
    SetWindowPos(frame, nullptr, -200, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    const RECT place = program_->resizer().rectangle();
    ASSERT_LT(place.left, 0);
    placeOffAllScreens(settings_->handle());
    ASSERT_TRUE(comesBack(settings_->handle()));
    EXPECT_EQ(fromRect(program_->resizer().rectangle()), fromRect(place));
}

TEST_F(Modes, AMinimisedControlWindowKeepsThePlaceItComesBackTo) {
    start();
    const HWND window = settings_->handle();
    SetWindowPos(window, nullptr, -60, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    const PixelRect place = normalPlaceOf(window);
    ShowWindow(window, SW_MINIMIZE);
    placeOffAllScreens(program_->resizer().handle());
    ASSERT_TRUE(comesBack(program_->resizer().handle()));
    EXPECT_NE(IsIconic(window), FALSE);
    EXPECT_EQ(normalPlaceOf(window), place);
}

TEST_F(Modes, FullScreenWorksheetFitsTheScreenAgainAfterItsChange) {
    start();
    program_->resizer().maximise();
    ASSERT_TRUE(worksheetFillsScreen());
    SetWindowPos(program_->worksheet().handle(), nullptr, 0, 0, 800, 600,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(program_->worksheet().handle(), WM_DISPLAYCHANGE, 32, 0);
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    EXPECT_TRUE(worksheetFillsScreen());
    EXPECT_TRUE(program_->worksheet().MaxSized());
    EXPECT_FALSE(program_->resizer().isVisible());
}

TEST_F(Modes, ShellKnowsBeforeTheFirstShowingThatTheWorksheetIsNoProgramInFullScreen) {
    option("Options", "Mode", "2");
    start();
    EXPECT_FALSE(program_->worksheet().isVisible());
    EXPECT_NE(GetPropW(program_->worksheet().handle(), L"NonRudeHWND"), nullptr);
}

TEST_F(Modes, FullScreenWorksheetFollowsAMovedTaskBar) {
    start();
    program_->resizer().maximise();
    ASSERT_TRUE(worksheetFillsScreen());
    const HWND worksheet = program_->worksheet().handle();
    SetWindowPos(worksheet, nullptr, 0, 0, 800, 600, SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(worksheet, WM_SETTINGCHANGE, SPI_SETMOUSE, 0);
    EXPECT_EQ(widthOf(program_->worksheet().rectangle()), 800) << "no work area has changed";
    SendMessageW(worksheet, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    EXPECT_TRUE(worksheetFillsScreen());
}

TEST_F(Modes, FrameAndControlWindowComeBackWhenTheTaskBarTakesTheirPlace) {
    start();
    const std::array windows{settings_->handle(), program_->resizer().handle()};
    const auto areOnAScreen = [&] {
        return std::ranges::all_of(windows, [](HWND window) {
            return MonitorFromWindow(window, MONITOR_DEFAULTTONULL) != nullptr;
        });
    };
    program_->modes().SetMode(Mode::templateMode, false);
    for (const HWND window : windows) {
        SetWindowPos(window, nullptr, 9000, 7000, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    SendMessageW(settings_->handle(), WM_SETTINGCHANGE, SPI_SETMOUSE, 0);
    EXPECT_FALSE(areOnAScreen());
    SendMessageW(settings_->handle(), WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    EXPECT_TRUE(areOnAScreen());
}

TEST_F(Modes, MinimisedControlWindowStaysSoWhenTheScreensChange) {
    start();
    ShowWindow(settings_->handle(), SW_MINIMIZE);
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    EXPECT_TRUE(IsIconic(settings_->handle()));
}

TEST_F(Modes, GermanFrameSaysArbeitsblatt) {
    option("Options", "Language", "1031");
    start();
    wchar_t text[100]{};
    GetWindowTextW(program_->resizer().handle(), text, 100);
    EXPECT_STREQ(text, L"Ormala Arbeitsblatt");
    program_.reset();
    MlSetLanguage(languageEnglish, {});
}

}  // namespace
}  // namespace ormala
