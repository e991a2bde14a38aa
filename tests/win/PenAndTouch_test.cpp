#include <gtest/gtest.h>

#include <tpcshrd.h>

#include "app/win/shell/Program.h"
#include "dialogs/win/ColorPic.h"
#include "dialogs/win/ctlLineSelect.h"
#include "e2e/support/AppDataFolder.h"
#include "support/win/Wait.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/TestWindow.h"

// What the windows answer where the system asks how a pen or a finger shall be taken.

namespace ormala {
namespace {

/// Whether the window takes a touch as a press at once.
bool takesTouchAtOnce(HWND window) {
    EXPECT_NE(window, nullptr);
    const LRESULT answer = SendMessageW(window, WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0);
    return (answer & TABLET_DISABLE_PRESSANDHOLD) != 0;
}

class PenAndTouch : public testing::Test {
  protected:
    [[nodiscard]] HWND control(const char* name) const {
        return namedChild(program_.settings().handle(), name);
    }

    test::AppDataFolder folder_;
    EnglishTexts english_;
    mutable Program program_{false};
};

TEST_F(PenAndTouch, NothingWaitsOnTheWorksheetAndOnWhatIsWorkedByAPress) {
    EXPECT_TRUE(takesTouchAtOnce(program_.worksheet().handle()));
    for (const char* name : {"btnMode(0)", "cmdAddGrid", "sldTransEditMode", "cmdMove",
                             "cmdSendMouseInput", "cmdFullSize"}) {
        EXPECT_TRUE(takesTouchAtOnce(control(name))) << name;
    }
}

TEST_F(PenAndTouch, NothingWaitsOnThePalettes) {
    const TestWindow holder;
    const ColorPic colors(holder.handle(), 1, "ColorPicker");
    EXPECT_TRUE(takesTouchAtOnce(colors.handle()));
    const ctlLineSelect lines(holder.handle(), 2, "LineSelect");
    EXPECT_TRUE(takesTouchAtOnce(lines.handle()));
}

TEST_F(PenAndTouch, AFingerThatStaysOnAPanelOpensItsMenu) {
    const HWND panel = FindWindowExW(control("picInner"), nullptr, L"ctlSetRatioGrid", nullptr);
    EXPECT_FALSE(takesTouchAtOnce(panel));
    EXPECT_FALSE(takesTouchAtOnce(control("lblCenterX")));
}

TEST_F(PenAndTouch, ATapOnTheControlWindowCountsWhereItIs) {
    SetCursorPos(40, 50);
    test::pause(test::milliseconds{100});
    POINT told{};
    const Subscription listening =
        program_.settings().pressed.subscribe([&told](POINT place) { told = place; });
    // The pointer jumps to the finger, and the window is asked before it has fetched a message.
    SetCursorPos(610, 420);
    POINT tap{};
    GetCursorPos(&tap);
    ASSERT_NE(GetMessagePos(), static_cast<DWORD>(MAKELONG(tap.x, tap.y)));
    SendMessageW(program_.settings().handle(), WM_MOUSEACTIVATE,
                 reinterpret_cast<WPARAM>(program_.settings().handle()),
                 MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(told.x, tap.x);
    EXPECT_EQ(told.y, tap.y);
}

}  // namespace
}  // namespace ormala
