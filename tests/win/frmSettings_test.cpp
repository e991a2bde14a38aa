#include "app/win/shell/Program.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "e2e/support/AppDataFolder.h"
#include "platform/win/text.h"
#include "stencil/ctlRatioGrid.h"
#include "support/win/Wait.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

std::string captionOf(HWND window) {
    wchar_t text[100]{};
    GetWindowTextW(window, text, 100);
    return narrow(text);
}

int outerHeightOf(const RECT& rect) {
    return static_cast<int>(rect.bottom - rect.top);
}

/// The control window with an application-data folder of its own.
class frmSettingsTest : public testing::Test {
  protected:
    /// As the system does for a window of its monitor. The sizes that a user can give it then.
    MINMAXINFO doubleTheResolution() {
        const RECT place = settings_.rectangle();
        RECT suggested{place.left, place.top, place.left + 2 * (place.right - place.left),
                       place.top + 2 * (place.bottom - place.top)};
        SendMessageW(settings_.handle(), WM_DPICHANGED, MAKEWPARAM(192, 192),
                     reinterpret_cast<LPARAM>(&suggested));
        MINMAXINFO limits{};
        SendMessageW(settings_.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        return limits;
    }

    test::AppDataFolder folder_;
    Program program_{false};
    frmSettings& settings_ = program_.settings();
};

TEST_F(frmSettingsTest, IsReadyInEditModeWithItsCaption) {
    EXPECT_NE(GetPropW(settings_.handle(), L"Ready"), nullptr);
    EXPECT_EQ(program_.modes().GetMode(), Mode::edit);
    EXPECT_EQ(captionOf(settings_.handle()), "Ormala - Edit");
    EXPECT_TRUE(program_.worksheet().isVisible());
    EXPECT_TRUE(program_.worksheet().Clickable());
    EXPECT_EQ(program_.worksheet().ClickAlpha(), 191);
    EXPECT_EQ(program_.worksheet().Alpha(), 128);
}

TEST_F(frmSettingsTest, OneStencilStandsCentredWithItsDefaultSize) {
    auto* stencil = dynamic_cast<ctlRatioGrid*>(program_.worksheet().sheet().GetFirstControl(0));
    ASSERT_NE(stencil, nullptr);
    EXPECT_TRUE(program_.worksheet().sheet().isVisible(*stencil));
    const RECT client = program_.worksheet().clientRectangle();
    const double height = 0.3819660112501051 * client.bottom;
    EXPECT_NEAR(stencil->RectBound().bottom - stencil->RectBound().top, height - 1, 1e-9);
    EXPECT_NEAR((stencil->RectBound().left + stencil->RectBound().right) / 2,
                static_cast<int>(client.right / 2), 1e-9);
    EXPECT_EQ(stencil->Color(), rgb(255, 159, 0));
    EXPECT_EQ(stencil->LineWidth(), 2);
}

TEST_F(frmSettingsTest, ModesSwitchTheWorksheetAndTheCaption) {
    program_.modes().SetMode(Mode::templateMode, false);
    EXPECT_EQ(captionOf(settings_.handle()), "Ormala - Template");
    EXPECT_FALSE(program_.worksheet().Clickable());
    EXPECT_TRUE(program_.worksheet().isVisible());
    program_.modes().SetMode(Mode::pause, false);
    EXPECT_EQ(captionOf(settings_.handle()), "Ormala - Pause");
    EXPECT_FALSE(program_.worksheet().isVisible());
    program_.modes().SetMode(Mode::edit, false);
    EXPECT_TRUE(program_.worksheet().isVisible());
    EXPECT_TRUE(program_.worksheet().Clickable());
}

TEST_F(frmSettingsTest, SystemMenuOffersTheModesAndGreysTheCurrentOne) {
    const HMENU menu = GetSystemMenu(settings_.handle(), FALSE);
    const int count = GetMenuItemCount(menu);
    ASSERT_GE(count, 4);
    EXPECT_EQ(GetMenuItemID(menu, count - 3), 1010U);
    EXPECT_EQ(GetMenuItemID(menu, count - 2), 1012U);
    EXPECT_EQ(GetMenuItemID(menu, count - 1), 1011U);
    const auto greyed = [&](UINT command) {
        return (GetMenuState(menu, command, MF_BYCOMMAND) & MF_GRAYED) != 0;
    };
    EXPECT_TRUE(greyed(1010));
    SendMessageW(settings_.handle(), WM_SYSCOMMAND, 1012, 0);
    EXPECT_EQ(program_.modes().GetMode(), Mode::pause);
    EXPECT_TRUE(greyed(1012));
    EXPECT_FALSE(greyed(1010));
    wchar_t text[40]{};
    GetMenuStringW(menu, 1011, text, 40, MF_BYCOMMAND);
    EXPECT_EQ(narrow(text), "Template");
}

TEST_F(frmSettingsTest, WidthIsFixedAndHeightHasItsLeast) {
    MINMAXINFO limits{};
    SendMessageW(settings_.handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    const RECT place = settings_.rectangle();
    EXPECT_EQ(limits.ptMinTrackSize.x, place.right - place.left);
    EXPECT_EQ(limits.ptMaxTrackSize.x, place.right - place.left);
    program_.modes().SetMode(Mode::templateMode, false);
    const RECT shortPlace = settings_.rectangle();
    EXPECT_EQ(limits.ptMinTrackSize.y, shortPlace.bottom - shortPlace.top);
    EXPECT_LT(limits.ptMinTrackSize.y, place.bottom - place.top);
}

TEST_F(frmSettingsTest, HeightOfEditModeComesBack) {
    const RECT place = settings_.rectangle();
    const int pulled = 333;
    SetWindowPos(settings_.handle(), nullptr, 0, 0, place.right - place.left, pulled,
                 SWP_NOMOVE | SWP_NOZORDER);
    program_.modes().SetMode(Mode::templateMode, false);
    EXPECT_NE(settings_.rectangle().bottom - settings_.rectangle().top, pulled);
    program_.modes().SetMode(Mode::pause, false);
    program_.modes().SetMode(Mode::edit, false);
    EXPECT_EQ(settings_.rectangle().bottom - settings_.rectangle().top, pulled);
}

TEST_F(frmSettingsTest, FollowsTheResolutionOfItsMonitor) {
    const RECT place = settings_.rectangle();
    const MINMAXINFO limits = doubleTheResolution();
    EXPECT_GE(limits.ptMinTrackSize.x, 600);
    const RECT now = settings_.rectangle();
    EXPECT_NEAR(now.right - now.left, 2 * (place.right - place.left), 40);
}

TEST_F(frmSettingsTest, ShortWindowGrowsAgainAfterAChangeOfResolution) {
    const int before = outerHeightOf(settings_.rectangle());
    program_.modes().SetMode(Mode::pause, false);
    const MINMAXINFO limits = doubleTheResolution();
    EXPECT_EQ(outerHeightOf(settings_.rectangle()), limits.ptMinTrackSize.y);
    program_.modes().SetMode(Mode::edit, false);
    EXPECT_NEAR(outerHeightOf(settings_.rectangle()), 2 * before, 2);
}

TEST_F(frmSettingsTest, ButtonsOfTheModesChangeThem) {
    for (const int mode : {2, 1, 0}) {
        const HWND button = namedChild(settings_.handle(), "btnMode(" + std::to_string(mode) + ")");
        ASSERT_NE(button, nullptr);
        SendMessageW(button, BM_CLICK, 0, 0);
        EXPECT_EQ(numberOf(program_.modes().GetMode()), mode);
        EXPECT_EQ(SendMessageW(button, BM_GETCHECK, 0, 0), BST_CHECKED);
    }
}

TEST_F(frmSettingsTest, UndoBringsBackWhatTheKeysMoved) {
    auto& stencil = dynamic_cast<ctlRatioGrid&>(*program_.worksheet().sheet().GetFirstControl(0));
    const Rect before = stencil.RectBound();
    program_.worksheet().sheet().giveFocus(stencil);
    SendMessageW(program_.worksheet().handle(), WM_KEYDOWN, VK_LEFT, 0);
    const Rect moved = stencil.RectBound();
    EXPECT_NE(moved, before);
    program_.execute(Command::undo);
    EXPECT_EQ(stencil.RectBound(), before);
    program_.execute(Command::redo);
    EXPECT_EQ(stencil.RectBound(), moved);
}

TEST_F(frmSettingsTest, OptionsAreWrittenAtTheEndOfTheSession) {
    program_.modes().SetMode(Mode::pause, false);
    SendMessageW(settings_.handle(), WM_ENDSESSION, TRUE, 0);
    WindowsFileStore store;
    const ReadResult read = store.read(narrow(folder_.optionsFile().wstring()));
    ASSERT_EQ(read.status, ReadResult::Status::ok);
    EXPECT_NE(read.bytes.find("Mode= 2\r\n"), std::string::npos);
    EXPECT_NE(read.bytes.find("Software=Ormala\r\n"), std::string::npos);
}

/// What the ending of the program has left in the message queue.
bool quitIsPosted() {
    MSG message{};
    return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}

TEST_F(frmSettingsTest, AProgramThatOutlivesItsSessionSavesAgainAtItsEnd) {
    SendMessageW(settings_.handle(), WM_ENDSESSION, TRUE, 0);
    program_.modes().SetMode(Mode::pause, false);
    SendMessageW(settings_.handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(quitIsPosted());
    const ReadResult read = WindowsFileStore().read(narrow(folder_.optionsFile().wstring()));
    EXPECT_NE(read.bytes.find("Mode= 2\r\n"), std::string::npos);
}

TEST_F(frmSettingsTest, TheEndOfTheSessionLeavesTheOpenDocument) {
    program_.tools().documents().New();
    ASSERT_FALSE(program_.tools().documents().NoFileYet());
    SendMessageW(settings_.handle(), WM_ENDSESSION, TRUE, 0);
    ModalPlayer player;
    std::string question;
    player.untilActive("#32770").then([&] {
        constexpr int textId = 65535;
        question = captionOf(GetDlgItem(GetActiveWindow(), textId));
        PostMessageW(GetActiveWindow(), WM_COMMAND, IDCANCEL, 0);
    });
    SendMessageW(settings_.handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(question, "Do you want to save the changes?");
    EXPECT_FALSE(quitIsPosted());
}

TEST_F(frmSettingsTest, TheEndOfTheSessionAsksNothingOverAnOpenDialog) {
    program_.tools().documents().New();
    EnableWindow(settings_.handle(), FALSE);
    EXPECT_EQ(SendMessageW(settings_.handle(), WM_QUERYENDSESSION, 0, 0), FALSE);
    EnableWindow(settings_.handle(), TRUE);
}

TEST_F(frmSettingsTest, ACriticalEndOfTheSessionAsksNothingAndFindsTheToolsSaved) {
    program_.tools().documents().New();
    EXPECT_EQ(SendMessageW(settings_.handle(), WM_QUERYENDSESSION, 0,
                           static_cast<LPARAM>(ENDSESSION_CRITICAL)),
              TRUE);
    EXPECT_TRUE(std::filesystem::exists(folder_.toolsFile()));
}

TEST_F(frmSettingsTest, AClosedProgramWaitsForItsMessageLoopsBeforeItsWindowsGo) {
    SendMessageW(settings_.handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(quitIsPosted());
    EXPECT_NE(IsWindow(program_.worksheet().handle()), FALSE);
    // Such as a menu that was open: what was chosen in it comes behind the close.
    SendMessageW(settings_.handle(), WM_SYSCOMMAND, 1012, 0);
    EXPECT_EQ(program_.modes().GetMode(), Mode::pause);
}

}  // namespace
}  // namespace ormala
