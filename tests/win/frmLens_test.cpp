#include "magnifier/win/frmLens.h"

#include <gtest/gtest.h>
#include <imm.h>

#include "e2e/support/DesktopWindow.h"
#include "language/MlStringModule.h"
#include "win/AccessibleReader.h"
#include "win/ControlPanel.h"
#include "win/HeldKeys.h"
#include "win/LensFixture.h"

namespace ormala {
namespace {

class frmLensTest : public LensFixture {};

TEST_F(frmLensTest, IsATopmostToolWindowThatCanBeSized) {
    const auto style = GetWindowLongPtrW(lens_.handle(), GWL_STYLE);
    const auto extended = GetWindowLongPtrW(lens_.handle(), GWL_EXSTYLE);
    EXPECT_EQ(windowClass(lens_.handle()), "frmLens");
    EXPECT_NE(style & WS_THICKFRAME, 0);
    EXPECT_EQ(style & WS_CAPTION, WS_CAPTION);
    EXPECT_NE(extended & WS_EX_TOPMOST, 0);
    EXPECT_NE(extended & WS_EX_TOOLWINDOW, 0);
    EXPECT_FALSE(lens_.isVisible());
    for (const char* name : {"picLens", "picRulTop", "picRulBottom", "picRulLeft", "picRulRight"}) {
        EXPECT_NE(part(name), nullptr) << name;
    }
}

TEST_F(frmLensTest, ShowsItselfInFrontOfItsOwnerWithoutTakingTheFocus) {
    const ControlPanel owner;
    SetForegroundWindow(owner.handle());
    SetFocus(owner.handle());
    lens_.show(owner.handle());
    EXPECT_TRUE(lens_.isVisible());
    EXPECT_EQ(GetWindow(lens_.handle(), GW_OWNER), owner.handle());
    EXPECT_EQ(GetFocus(), owner.handle());
    lens_.hide();
    SetWindowLongPtrW(lens_.handle(), GWLP_HWNDPARENT, 0);
}

TEST_F(frmLensTest, MenuProceduresSwitchWhatTheySay) {
    lens_.setOptions(LensOptions{});
    int told = 0;
    const Subscription telling = lens_.menuChanged.subscribe([&told] { ++told; });
    lens_.mnuLensGrid_Click();
    lens_.mnuLensCursor_Click();
    lens_.mnuLensHotSpot_Click();
    lens_.mnuLensTopLeftScales_Click();
    lens_.mnuLensBottomRightScales_Click();
    lens_.mnuLensFactor_Click(7);
    lens_.mnuLensStick_Click();
    EXPECT_EQ(told, 7);
    EXPECT_EQ(lens_.menuState(), (LensMenuState{7, true, false, false, false, true, false, false}));
    EXPECT_FALSE(lens_.RulTOn());
    EXPECT_FALSE(lens_.RulLOn());
    EXPECT_FALSE(lens_.RulBOn());
    EXPECT_FALSE(lens_.RulROn());
    lens_.mnuLensStick_Click();
    EXPECT_FALSE(lens_.Sticked());
}

TEST_F(frmLensTest, ScalesComeAndGoOneByOne) {
    show();
    lens_.setRulLOn(true);
    EXPECT_TRUE(lens_.RulLOn());
    EXPECT_FALSE(lens_.RulTOn());
    EXPECT_TRUE(IsWindowVisible(part("picRulLeft")));
    EXPECT_FALSE(IsWindowVisible(part("picRulTop")));
    EXPECT_TRUE(IsWindowEnabled(part("picRulLeft")));
    lens_.setRulLOn(false);
    EXPECT_FALSE(IsWindowVisible(part("picRulLeft")));
    EXPECT_FALSE(IsWindowEnabled(part("picRulLeft")));
}

TEST_F(frmLensTest, KeepsTheOptionsItWasGiven) {
    LensOptions options;
    options.factor = 9;
    options.sticked = true;
    options.cursorOn = false;
    options.hotSpotStyle = 6;
    options.hotSpotDrawMode = 13;
    options.gridColor = rgb(1, 2, 3);
    options.topScales = false;
    options.topOrigin = 3;
    options.bottomOrigin = 2;
    lens_.setOptions(options);
    EXPECT_EQ(lens_.options(), options);
    options.factor = 44;
    lens_.setOptions(options);
    EXPECT_EQ(lens_.Factor(), 10);
    lens_.setFactor(0);
    EXPECT_EQ(lens_.Factor(), 1);
}

TEST_F(frmLensTest, HiddenItReadsTheMouseAndTheScreensAndStaysWhereItIs) {
    lens_.setSticked(true);
    standAt({1000, 500});
    const int before = commands_.refreshes;
    SetCursorPos(300, 300);
    for (int i = 0; i < 301; ++i) {
        SendMessageW(lens_.handle(), WM_TIMER, frmLens::tmrMain, 0);
    }
    EXPECT_EQ(commands_.refreshes, before + 1);
    EXPECT_EQ(windowPlace(), (PixelPoint{1000, 500}));
    EXPECT_FALSE(lens_.isVisible());
    lens_.Update();
    EXPECT_EQ(windowPlace(), (PixelPoint{1000, 500}));
}

TEST_F(frmLensTest, FollowsTheMouseAndFlipsInTheLowerRightCorner) {
    lens_.setSticked(true);
    show();
    const PixelSize screen = backdrop_.size();
    const PixelSize window = windowSize();
    look({300, 200});
    EXPECT_EQ(windowPlace(), (PixelPoint{300 + scaled(24), 200 + scaled(32)}));
    look({300, screen.height - 5});
    EXPECT_EQ(windowPlace(), (PixelPoint{300 + scaled(24), screen.height - window.height}));
    look({screen.width - 5, 200});
    EXPECT_EQ(windowPlace(), (PixelPoint{screen.width - window.width, 200 + scaled(32)}));
    look({screen.width - 5, screen.height - 5});
    EXPECT_EQ(windowPlace(), (PixelPoint{screen.width - window.width,
                                         screen.height - 5 - window.height - scaled(24)}));
}

TEST_F(frmLensTest, StaysOpaqueInEditModeWhileItFollowsTheMouse) {
    const auto layered = [this] {
        return (GetWindowLongPtrW(lens_.handle(), GWL_EXSTYLE) & WS_EX_LAYERED) != 0;
    };
    lens_.SetMode(Mode::edit);
    EXPECT_FALSE(layered());
    lens_.setSticked(true);
    EXPECT_TRUE(layered());
    BYTE alpha = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(lens_.handle(), nullptr, &alpha, &flags));
    EXPECT_EQ(alpha, 255);
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
    lens_.SetMode(Mode::templateMode);
    EXPECT_FALSE(layered());
    lens_.SetMode(Mode::edit);
    EXPECT_TRUE(layered());
    lens_.setSticked(false);
    EXPECT_FALSE(layered());
}

TEST_F(frmLensTest, CannotBeMadeSmallerThan64By64) {
    const int dpi = static_cast<int>(GetDpiForWindow(lens_.handle()));
    MINMAXINFO limits{};
    SendMessageW(lens_.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(limits.ptMinTrackSize.x, MulDiv(64, dpi, 96));
    EXPECT_EQ(limits.ptMinTrackSize.y, MulDiv(64, dpi, 96));
    show();
    SetWindowPos(lens_.handle(), nullptr, 0, 0, 10, 10, quietly | SWP_NOMOVE);
    EXPECT_EQ(windowSize(), (PixelSize{MulDiv(64, dpi, 96), MulDiv(64, dpi, 96)}));
    look({400, 300});
    EXPECT_GE(image().size.width, 4);
}

TEST_F(frmLensTest, KeysAskTheApplication) {
    for (const WPARAM key :
         std::initializer_list<WPARAM>{VK_F2, VK_F3, VK_F4, VK_F1, VK_F12, VK_APPS}) {
        SendMessageW(lens_.handle(), WM_KEYDOWN, key, 0);
    }
    const std::vector<Command> asked{Command::editMode, Command::pauseMode,   Command::templateMode,
                                     Command::help,     Command::lensOptions, Command::lensMenu};
    EXPECT_EQ(commands_.executed, asked);
    lens_.showMenuAtOrigin();
    POINT origin{0, 0};
    ClientToScreen(lens_.handle(), &origin);
    ASSERT_EQ(commands_.menus.size(), 1U);
    EXPECT_EQ(commands_.menus[0],
              (PixelPoint{static_cast<int>(origin.x), static_cast<int>(origin.y)}));
}

TEST_F(frmLensTest, ShiftAndF10AreTheMenuKey) {
    const HeldKeys held{VK_SHIFT};
    EXPECT_EQ(SendMessageW(lens_.handle(), WM_SYSKEYDOWN, VK_F10, 0), 0);
    EXPECT_EQ(commands_.executed, std::vector{Command::lensMenu});
}

TEST_F(frmLensTest, TakesNoInputMethod) {
    EXPECT_EQ(ImmGetContext(lens_.handle()), nullptr);
}

TEST_F(frmLensTest, RightReleasePopsUpTheMenuAtTheMouseAnywhere) {
    lens_.setOptions(LensOptions{});
    show();
    SetCursorPos(1050, 560);
    SendMessageW(lens_.handle(), WM_RBUTTONUP, 0, MAKELPARAM(3, 3));
    for (const char* name : {"picLens", "picRulTop", "picRulBottom", "picRulLeft", "picRulRight"}) {
        SendMessageW(part(name), WM_RBUTTONUP, 0, MAKELPARAM(3, 3));
    }
    EXPECT_EQ(commands_.menus, std::vector<PixelPoint>(6, PixelPoint{1050, 560}));
}

TEST_F(frmLensTest, CloseBoxAsksTheApplicationAndDestroysNothing) {
    int asked = 0;
    const Subscription closing = lens_.closeRequested.subscribe([&asked] { ++asked; });
    SendMessageW(lens_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(IsWindow(lens_.handle()));
}

TEST_F(frmLensTest, CaptionFollowsFactorLanguageAndStick) {
    EXPECT_EQ(windowText(lens_.handle()), "Magnifier 4 X");
    lens_.setFactor(10);
    EXPECT_EQ(windowText(lens_.handle()), "Magnifier 10 X");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(windowText(lens_.handle()), "Lupe 10 X");
    lens_.setSticked(true);
    EXPECT_EQ(windowText(lens_.handle()), "");
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    lens_.setSticked(false);
    EXPECT_EQ(windowText(lens_.handle()), "Magnifier 10 X");
}

TEST_F(frmLensTest, HasANameForScreenReadersWhileItsCaptionIsEmpty) {
    lens_.setSticked(true);
    const AccessibleReader reader(lens_.handle());
    ASSERT_TRUE(reader.found());
    EXPECT_EQ(reader.name(), "Magnifier 4 X");
}

/// What the magnifier is to tell of a place of the backdrop.
LensPixel toldPixel(const LensBackdrop& backdrop, PixelPoint at, PixelPoint origin) {
    const std::uint32_t pixel = backdrop.at(at);
    return {rgb(static_cast<int>(pixel >> 16U & 0xFFU), static_cast<int>(pixel >> 8U & 0xFFU),
                static_cast<int>(pixel & 0xFFU)),
            {at.x - origin.x, at.y - origin.y}};
}

TEST_F(frmLensTest, ItsNameTellsThePixelUnderTheMouseWhenItIsAskedFor) {
    constexpr PixelPoint origin{10, 20};
    lens_.setWorksheetOrigin(origin);
    show();
    look({300, 200});
    const AccessibleReader reader(lens_.handle());
    ASSERT_TRUE(reader.found());
    EXPECT_EQ(reader.name(), lensName(4, toldPixel(backdrop_, {300, 200}, origin)));
    // No frame comes in between.
    SetCursorPos(420, 260);
    EXPECT_TRUE(test::waitUntil([&] {
        return reader.name() == lensName(4, toldPixel(backdrop_, {420, 260}, origin));
    }));
}

TEST_F(frmLensTest, ATipTellsThePixelAfterASecondOfRestAndGoesWithTheColour) {
    show();
    look({300, 200});
    const auto tip = [this] {
        lens_.Update();
        return test::shownTip(GetCurrentProcessId());
    };
    EXPECT_EQ(tip(), "");
    const std::string text = lensPixelText(toldPixel(backdrop_, {300, 200}, {}));
    EXPECT_TRUE(test::waitUntil([&] { return tip() == text; }));
    backdrop_.show(lensPattern(backdrop_.size(), 1));
    EXPECT_TRUE(test::waitUntil([&] { return tip().empty(); }));
    EXPECT_TRUE(test::waitUntil([&] {
        return tip() == lensPixelText(toldPixel(backdrop_, {300, 200}, {}));
    }));
    lens_.hide();
    EXPECT_EQ(test::shownTip(GetCurrentProcessId()), "");
}

TEST_F(frmLensTest, LooksHalfAsOftenWhereNothingChangesUntilTheMouseMovesOrThePictureIsAnother) {
    const double others = Timer::wakeUps();
    const auto looksEach = [this, others](double milliseconds) {
        lens_.Update();
        return std::abs(Timer::wakeUps() - others - 1000 / milliseconds) < 0.1;
    };
    const auto comesToRest = [&] {
        return test::waitUntil([&] { return looksEach(LensPace::atRest); });
    };
    show();
    look({300, 200});
    EXPECT_TRUE(looksEach(LensPace::usual));
    ASSERT_TRUE(comesToRest());
    look({301, 200});
    EXPECT_TRUE(looksEach(LensPace::usual));
    ASSERT_TRUE(comesToRest());
    backdrop_.show(lensPattern(backdrop_.size(), 1));
    EXPECT_TRUE(test::waitUntil([&] { return looksEach(LensPace::usual); }));
    lens_.hide();
    EXPECT_NEAR(Timer::wakeUps(), others, 0.1);
}

TEST_F(frmLensTest, FollowsTheResolutionOfItsMonitor) {
    lens_.setOptions(LensOptions{});
    show();
    RECT suggested{900, 300, 1700, 1000};
    SendMessageW(lens_.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&suggested));
    const RECT place = lens_.rectangle();
    EXPECT_NE(EqualRect(&place, &suggested), FALSE);
    EXPECT_EQ(shown("picRulTop").size.height, 32);
    EXPECT_EQ(shown("picRulLeft").size.width, 56);
    look({400, 300});
    const int width = image().size.width + 1;
    EXPECT_EQ(width % 4, 0) << "the factor counts the screen's own pixels";
}

TEST_F(frmLensTest, ComesToTheTopOfTheTopmostGroupWhenItIsActivated) {
    show();
    TestSheet other({200, 150});
    SetWindowPos(other.window().handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_TRUE(test::waitUntil([&] {
        // A window manager may still be raising the other one.
        SendMessageW(lens_.handle(), WM_ACTIVATE, WA_ACTIVE, 0);
        HWND above = GetWindow(lens_.handle(), GW_HWNDPREV);
        while (above != nullptr && above != other.window().handle()) {
            above = GetWindow(above, GW_HWNDPREV);
        }
        return above == nullptr;
    }));
}

}  // namespace
}  // namespace ormala
