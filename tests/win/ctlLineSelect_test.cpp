#include "dialogs/win/ctlLineSelect.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <algorithm>
#include <memory>
#include <string>

#include "win/ControlPanel.h"
#include "win/TestAccessible.h"

namespace ormala {
namespace {

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF on = RGB(187, 168, 0);

class ctlLineSelectTest : public testing::Test {
  protected:
    ctlLineSelectTest() {
        list_.setDpi(96);
        list_.place({10, 10, 210, 170});
        list_.SetTooltip("Select line width and style");
        changing_ = list_.Change.subscribe([this] { events_ += 'c'; });
        ending_ = list_.DoubleClick.subscribe([this] { events_ += 'd'; });
        SetFocus(panel_.handle());
    }

    [[nodiscard]] HWND window() const { return list_.handle(); }
    void mouse(UINT message, int y) const {
        SendMessageW(window(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                     MAKELPARAM(100, y));
    }
    [[nodiscard]] PixelMap shown() const {
        UpdateWindow(window());
        return readClient(window());
    }
    /// The black pixels of a row's sample in the column `x` or, from there on, in the line `y`.
    [[nodiscard]] int blackInColumn(int index, int x) const {
        const PixelMap map = shown();
        const PixelRect box = list_.picLine(index);
        int count = 0;
        for (int y = box.top; y < box.bottom; ++y) {
            count += map.at(x, y) == black ? 1 : 0;
        }
        return count;
    }
    [[nodiscard]] int blackRuns(int index) const {
        const PixelMap map = shown();
        const PixelRect box = list_.picLine(index);
        const int y = (box.top + box.bottom - 1) / 2;
        int runs = 0;
        for (int x = box.left + 1; x < box.right; ++x) {
            runs += map.at(x, y) == black && map.at(x - 1, y) == white ? 1 : 0;
        }
        return runs;
    }

    ControlPanel panel_;
    ctlLineSelect list_{panel_.handle(), 11, "LineSelect"};
    std::string events_;
    Subscription changing_;
    Subscription ending_;
};

TEST_F(ctlLineSelectTest, LineIndex9Becomes4AndMinus1Becomes0) {
    list_.setLineIndex(9);
    EXPECT_EQ(list_.LineIndex(), 4);
    list_.setLineIndex(-1);
    EXPECT_EQ(list_.LineIndex(), 0);
}

TEST_F(ctlLineSelectTest, EachRowShowsItsLineOnWhite) {
    for (int index = 0; index < 5; ++index) {
        const PixelRect box = list_.picLine(index);
        EXPECT_EQ(box.height(), 24);
        EXPECT_EQ(shown().at(box.left, box.top), white);
        EXPECT_EQ(shown().at(box.right - 1, box.bottom - 1), white);
    }
    EXPECT_GT(blackRuns(0), blackRuns(1));
    EXPECT_GT(blackRuns(1), 5);
    for (int index = 2; index < 5; ++index) {
        EXPECT_EQ(blackRuns(index), 1);
        EXPECT_EQ(blackInColumn(index, 100), index - 1);
    }
}

TEST_F(ctlLineSelectTest, AFrameStandsRoundTheChosenRow) {
    list_.setLineIndex(3);
    for (int index = 0; index < 5; ++index) {
        EXPECT_EQ(shown().at(1, 32 * index + 1) == on, index == 3);
    }
}

TEST_F(ctlLineSelectTest, APressTakesTheFocusAndChoosesItsRow) {
    mouse(WM_LBUTTONDOWN, 110);
    mouse(WM_LBUTTONUP, 110);
    EXPECT_EQ(GetFocus(), window());
    EXPECT_EQ(list_.LineIndex(), 3);
    EXPECT_EQ(events_, "c");
}

TEST_F(ctlLineSelectTest, ADoubleClickIsRaisedByTheRelease) {
    mouse(WM_LBUTTONDOWN, 110);
    mouse(WM_LBUTTONUP, 110);
    mouse(WM_LBUTTONDBLCLK, 110);
    EXPECT_EQ(events_, "c");
    mouse(WM_LBUTTONUP, 110);
    EXPECT_EQ(events_, "cd");
    mouse(WM_LBUTTONUP, 110);
    EXPECT_EQ(events_, "cd");
}

TEST_F(ctlLineSelectTest, ALostCaptureEndsTheDoubleClick) {
    mouse(WM_LBUTTONDBLCLK, 110);
    ReleaseCapture();
    mouse(WM_LBUTTONUP, 110);
    EXPECT_EQ(events_, "");
}

TEST_F(ctlLineSelectTest, ArrowsChooseTheRowBeforeOrAfter) {
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_DOWN, VK_RIGHT, VK_DOWN}) {
        SendMessageW(window(), WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(list_.LineIndex(), 4);
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_UP, VK_LEFT}) {
        SendMessageW(window(), WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ(list_.LineIndex(), 2);
    EXPECT_EQ(events_, "cccc");
}

TEST_F(ctlLineSelectTest, WantsArrowsAndEnterAndLeavesEscapeToTheDialog) {
    MSG pressed{window(), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    const auto wanted = [&] {
        return SendMessageW(window(), WM_GETDLGCODE, pressed.wParam,
                            reinterpret_cast<LPARAM>(&pressed));
    };
    EXPECT_EQ(wanted(), DLGC_WANTARROWS | DLGC_WANTMESSAGE);
    pressed.wParam = VK_ESCAPE;
    EXPECT_EQ(wanted(), DLGC_WANTARROWS);
    EXPECT_EQ(SendMessageW(window(), WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS);
}

TEST_F(ctlLineSelectTest, AHandlerOfTheDoubleClickMayDestroyTheList) {
    auto other = std::make_unique<ctlLineSelect>(panel_.handle(), 12, "other");
    const HWND window = other->handle();
    const Subscription ending = other->DoubleClick.subscribe([&] { other.reset(); });
    SendMessageW(window, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ctlLineSelectTest, TellsScreenReadersItsNameAndRow) {
    EXPECT_EQ(accessibleNameOf(window()), "Select line width and style");
    EXPECT_EQ(accessibleValueOf(window()), "3/5");
    EXPECT_EQ(accessibleRoleOf(window()), ROLE_SYSTEM_LIST);
}

}  // namespace
}  // namespace ormala
