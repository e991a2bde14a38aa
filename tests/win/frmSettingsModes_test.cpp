#include <gtest/gtest.h>

#include <array>

#include "language/MlStringModule.h"
#include "platform/win/regions.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"
#include "win/ModesStage.h"

// The modes of the running program, and where they leave its windows.

namespace ormala {
namespace {

class Modes : public ModesStage {};

constexpr std::array<bool, 3> allShown{true, true, true};
constexpr std::array<bool, 3> veilAlone{true, false, true};
constexpr std::array<bool, 3> templateAlone{true, false, false};
constexpr std::array<bool, 3> templateInFrame{true, true, false};
constexpr std::array<bool, 3> nothing{false, false, false};

TEST_F(Modes, FirstStartShowsTheFrameOfTheGoldenSectionCentred) {
    start();
    EXPECT_EQ(shown(), allShown);
    EXPECT_TRUE(worksheetLiesInTheFrame());
    const RECT place = settings_->resizer().rectangle();
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_NEAR(widthOf(place), 0.618 * width, 3);
    EXPECT_NEAR(heightOf(place), 0.618 * height, 3);
    EXPECT_NEAR(place.left + place.right, width, 3);
    EXPECT_NEAR(place.top + place.bottom, height, 3);
}

TEST_F(Modes, EachMakesItsOwnOfTheFramedWindows) {
    start();
    settings_->SetMode(1, false);
    EXPECT_EQ(shown(), templateAlone);
    settings_->SetMode(2, false);
    EXPECT_EQ(shown(), nothing);
    settings_->SetMode(0, false);
    EXPECT_EQ(shown(), allShown);
    keepBorder();
    settings_->SetMode(1, false);
    EXPECT_EQ(shown(), templateInFrame);
    settings_->SetMode(2, false);
    EXPECT_EQ(shown(), nothing);
    settings_->SetMode(1, false);
    EXPECT_EQ(shown(), templateInFrame);
    EXPECT_FALSE(settings_->WorksheetMaxSized());
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, AStartInTemplateModeKeysOutTheUsersColour) {
    option("Options", "Mode", " 1");
    option("Options", "WorksheetColor", " 255");
    start();
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    GetLayeredWindowAttributes(settings_->worksheet().handle(), &key, &alpha, &flags);
    EXPECT_EQ(key, RGB(255, 0, 0));
    EXPECT_EQ(end().number("Options", "WorksheetColor"), 255);
}

TEST_F(Modes, EachMakesItsOwnOfTheFullScreenWindows) {
    start();
    settings_->resizer().maximise();
    EXPECT_EQ(shown(), veilAlone);
    keepBorder();
    settings_->SetMode(1, false);
    EXPECT_EQ(shown(), templateAlone);
    settings_->SetMode(2, false);
    EXPECT_EQ(shown(), nothing);
    settings_->SetMode(0, false);
    EXPECT_EQ(shown(), veilAlone);
    EXPECT_TRUE(worksheetFillsScreen());
}

TEST_F(Modes, OneOfNoKnownNumberChangesNoWindow) {
    start();
    settings_->SetMode(7, false);
    EXPECT_EQ(shown(), allShown);
    EXPECT_EQ(settings_->GetMode(), 7);
}

TEST_F(Modes, FrameGoesInTemplateModeAndTheWorksheetStaysInPlace) {
    start();
    ASSERT_TRUE(worksheetLiesInTheFrame());
    const RECT before = settings_->worksheet().rectangle();
    settings_->SetMode(1, false);
    EXPECT_FALSE(settings_->resizer().isVisible());
    const RECT after = settings_->worksheet().rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
}

TEST_F(Modes, FrameWithBorderCanBeMovedInTemplateModeAndTheToolsMoveAlong) {
    option("Options", "TemplateWithBorder", "-1");
    option("Options", "Mode", "1");
    start();
    ASSERT_EQ(shown(), templateInFrame);
    SetWindowPos(settings_->resizer().handle(), nullptr, 60, 50, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(worksheetLiesInTheFrame());
    EXPECT_TRUE(settings_->worksheet().isVisible());
    EXPECT_EQ(settings_->GetMode(), 1);
}

TEST_F(Modes, FullScreenWorksheetComesBackIntoAFrameOfTheOldSize) {
    start();
    const RECT before = settings_->resizer().rectangle();
    SendMessageW(settings_->resizer().handle(), WM_SYSCOMMAND, SC_MAXIMIZE, 0);
    EXPECT_TRUE(worksheetFillsScreen());
    EXPECT_TRUE(settings_->WorksheetMaxSized());
    EXPECT_EQ(shown(), veilAlone);
    settings_->worksheetWindowNormal();
    EXPECT_FALSE(settings_->WorksheetMaxSized());
    EXPECT_EQ(shown(), allShown);
    const RECT after = settings_->resizer().rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, FullScreenWorksheetCanComeBackInTemplateModeOnlyWithTheBorder) {
    start();
    settings_->resizer().maximise();
    settings_->SetMode(1, false);
    EXPECT_FALSE(settings_->WorksheetMaxSized());
    keepBorder();
    settings_->SetMode(1, false);
    EXPECT_TRUE(settings_->WorksheetMaxSized());
    settings_->SetMode(2, false);
    EXPECT_FALSE(settings_->WorksheetMaxSized());
}

TEST_F(Modes, CloseBoxOfTheFrameIsAPauseAndNoEnd) {
    start();
    SendMessageW(settings_->resizer().handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(settings_->GetMode(), 2);
    EXPECT_EQ(shown(), nothing);
    MSG message{};
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE));
    settings_->SetMode(0, false);
    EXPECT_EQ(shown(), allShown);
}

TEST_F(Modes, F3WithCtrlAndShiftLeavesTheControlWindowUp) {
    start();
    const HeldKeys held{VK_CONTROL, VK_SHIFT};
    press(VK_F3);
    EXPECT_EQ(settings_->GetMode(), 2);
    EXPECT_FALSE(IsIconic(settings_->handle()));
}

TEST_F(Modes, PauseLeavesTheKeysOfTheOtherModes) {
    option("Options", "Mode", "2");
    start();
    EXPECT_EQ(height(), shortHeight());
    press(VK_F4);
    EXPECT_EQ(settings_->GetMode(), 1);
    press(VK_F3);
    EXPECT_EQ(settings_->GetMode(), 2);
    press(VK_F2);
    EXPECT_EQ(settings_->GetMode(), 0);
    EXPECT_EQ(shown(), allShown);
}

TEST_F(Modes, VeilIsWholeAgainAfterTemplateModeAndPause) {
    start();
    const RECT place = settings_->worksheet().rectangle();
    const test::ScreenPoint beside{static_cast<int>(place.left) + 20,
                                   static_cast<int>(place.top) + 20};
    const auto now = [&] {
        return test::screen::waitUntilStill({beside.x, beside.y, beside.x + 1, beside.y + 1})
            .at(beside);
    };
    const test::Color veil = now();
    settings_->SetMode(1, false);
    const test::Color ground = now();
    EXPECT_NE(veil, ground);
    settings_->SetMode(2, false);
    EXPECT_EQ(now(), ground);
    settings_->SetMode(0, false);
    EXPECT_TRUE(test::waitUntil([&] { return test::screen::pixel(beside) == veil; }));
}

TEST_F(Modes, StartInPauseShowsNoWorksheet) {
    option("Options", "Mode", "2");
    start();
    EXPECT_EQ(shown(), nothing);
    settings_->SetMode(0, false);
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
    EXPECT_TRUE(settings_->WorksheetMaxSized());
    settings_->worksheetWindowNormal();
    const RECT place = settings_->resizer().rectangle();
    EXPECT_EQ(widthOf(place), 700);
    EXPECT_EQ(heightOf(place), 500);
}

TEST_F(Modes, PlaceOfTheFrameComesBackAtTheNextStart) {
    start();
    SetWindowPos(settings_->resizer().handle(), nullptr, 90, 80, 640, 480,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    const PixelRect place = fromRect(settings_->resizer().rectangle());
    file_ = end();
    EXPECT_EQ(file_.number("FormResizer", "WindowState"), 1);
    EXPECT_EQ(file_.number("FormResizer", "Left"), place.left);
    EXPECT_EQ(file_.number("FormResizer", "Bottom"), place.bottom);
    start();
    EXPECT_EQ(fromRect(settings_->resizer().rectangle()), place);
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
    EXPECT_EQ(settings_->resizer().rectangle().left, 100);
    EXPECT_EQ(settings_->resizer().rectangle().top, 90);
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
    for (const HWND window : {settings_->handle(), settings_->resizer().handle()}) {
        EXPECT_NE(MonitorFromWindow(window, MONITOR_DEFAULTTONULL), nullptr);
    }
    const RECT place = settings_->resizer().rectangle();
    EXPECT_EQ(place.right,
              GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN));
    EXPECT_EQ(widthOf(place), 700);
}

TEST_F(Modes, WindowsComeBackWhenTheirMonitorGoesWhileTheProgramRuns) {
    start();
    settings_->SetMode(1, false);
    SetWindowPos(settings_->resizer().handle(), nullptr, 9000, 7000, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    EXPECT_NE(MonitorFromWindow(settings_->resizer().handle(), MONITOR_DEFAULTTONULL), nullptr);
    EXPECT_FALSE(settings_->resizer().isVisible()) << "still hidden by the mode";
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

TEST_F(Modes, FullScreenWorksheetFitsTheScreenAgainAfterItsChange) {
    start();
    settings_->resizer().maximise();
    ASSERT_TRUE(worksheetFillsScreen());
    SetWindowPos(settings_->worksheet().handle(), nullptr, 0, 0, 800, 600,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageW(settings_->worksheet().handle(), WM_DISPLAYCHANGE, 32, 0);
    SendMessageW(settings_->handle(), WM_DISPLAYCHANGE, 32, 0);
    EXPECT_TRUE(worksheetFillsScreen());
    EXPECT_TRUE(settings_->worksheet().MaxSized());
    EXPECT_FALSE(settings_->resizer().isVisible());
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
    GetWindowTextW(settings_->resizer().handle(), text, 100);
    EXPECT_STREQ(text, L"Ormala Arbeitsblatt");
    settings_.reset();
    MlSetLanguage(languageEnglish, {});
}

}  // namespace
}  // namespace ormala
