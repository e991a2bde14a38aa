#include "worksheet/win/frmCrossHair.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "support/win/PaintCount.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

HWND crossHairOf(HWND worksheet, const char* name) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, L"frmCrossHair", nullptr)) != nullptr) {
        if (GetWindow(window, GW_OWNER) == worksheet && controlName(window) == name) {
            return window;
        }
    }
    return nullptr;
}

PixelRect placeOfHair(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return fromRect(place);
}

/// A worksheet with its cross hair, and a cursor that the tests move.
class frmCrossHairTest : public testing::Test {
  protected:
    frmCrossHairTest() { moveCursor(sheet_.left + 200, sheet_.top + 100); }

    void enable(bool enabled) {
        test_.aids.crossHair = enabled;
        worksheet_.aidsChanged();
        x_ = crossHairOf(worksheet_.handle(), "CrossHairX");
        y_ = crossHairOf(worksheet_.handle(), "CrossHairY");
    }
    static void moveCursor(int x, int y) {
        EXPECT_TRUE(test::waitUntil([&] {
            SetCursorPos(x, y);
            test::pause(test::milliseconds{1});
            POINT now{};
            GetCursorPos(&now);
            return now.x == x && now.y == y;
        }));
    }
    [[nodiscard]] static bool visible(HWND window) { return IsWindowVisible(window) != FALSE; }
    [[nodiscard]] static bool waitForPlace(HWND window, const PixelRect& place) {
        return test::waitUntil([&] { return placeOfHair(window) == place; });
    }

    TestSheet test_{{640, 480}};
    frmWorksheet& worksheet_ = test_.window();
    const PixelRect sheet_ = placeOfHair(worksheet_.handle());
    /// Made when they are first enabled.
    HWND x_ = nullptr;
    HWND y_ = nullptr;
};

TEST_F(frmCrossHairTest, HasTwoLinesThatStayHiddenUntilTheyAreEnabled) {
    enable(false);
    EXPECT_FALSE(visible(x_));
    EXPECT_FALSE(visible(y_));
    enable(true);
    EXPECT_TRUE(visible(x_));
    EXPECT_TRUE(visible(y_));
}

TEST_F(frmCrossHairTest, NeverTakesAClickAndIsFaintAndTopmost) {
    enable(true);
    for (const HWND line : {x_, y_}) {
        const auto style = static_cast<DWORD>(GetWindowLongPtrW(line, GWL_EXSTYLE));
        constexpr DWORD layeredAndTransparent = 0x80020;
        EXPECT_EQ(style & layeredAndTransparent, layeredAndTransparent);
        EXPECT_NE(style & WS_EX_TOPMOST, 0U);
        EXPECT_EQ(SendMessageW(line, WM_NCHITTEST, 0, 0), HTTRANSPARENT);
        COLORREF key = 0;
        BYTE alpha = 0;
        DWORD flags = 0;
        GetLayeredWindowAttributes(line, &key, &alpha, &flags);
        EXPECT_EQ(alpha, 84);
        EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
        EXPECT_EQ(GetWindow(line, GW_OWNER), worksheet_.handle());
    }
}

TEST_F(frmCrossHairTest, IsBlackAllOver) {
    enable(true);
    for (const HWND line : {x_, y_}) {
        UpdateWindow(line);
        const PixelMap map = readClient(line);
        EXPECT_EQ(std::ranges::count(map.pixels, RGB(0, 0, 0)), std::ssize(map.pixels));
    }
}

TEST_F(frmCrossHairTest, LinesAreOnePixelWideAndCrossAtTheCursor) {
    enable(true);
    const int x = sheet_.left + 200;
    const int y = sheet_.top + 100;
    EXPECT_EQ(placeOfHair(x_), (PixelRect{sheet_.left, y, sheet_.right, y + 1}));
    EXPECT_EQ(placeOfHair(y_), (PixelRect{x, sheet_.top, x + 1, sheet_.bottom}));
    EXPECT_TRUE(visible(x_));
    EXPECT_TRUE(visible(y_));
}

TEST_F(frmCrossHairTest, FollowsTheMouseToItsLastPlaceHoweverFastItMoved) {
    enable(true);
    for (int step = 0; step <= 10; ++step) {
        const int x = sheet_.left + 210 + step;
        moveCursor(x, sheet_.top + 120);
        test_.mouse(WM_MOUSEMOVE, 0, 210 + step, 120);
    }
    EXPECT_TRUE(waitForPlace(x_, {sheet_.left, sheet_.top + 120, sheet_.right, sheet_.top + 121}));
    EXPECT_TRUE(
        waitForPlace(y_, {sheet_.left + 220, sheet_.top, sheet_.left + 221, sheet_.bottom}));
}

TEST_F(frmCrossHairTest, AboveTheSheetButWithinItsWidthTheVerticalLineStays) {
    enable(true);
    moveCursor(sheet_.left + 250, sheet_.top - 10);
    EXPECT_TRUE(test::waitUntil([&] { return !visible(x_); }));
    EXPECT_TRUE(
        waitForPlace(y_, {sheet_.left + 250, sheet_.top, sheet_.left + 251, sheet_.bottom}));
    EXPECT_TRUE(visible(y_));
    moveCursor(sheet_.right + 30, sheet_.top + 70);
    EXPECT_TRUE(test::waitUntil([&] { return visible(x_) && !visible(y_); }));
}

TEST_F(frmCrossHairTest, ExistsInEditModeOnly) {
    enable(true);
    worksheet_.setClickable(false);
    EXPECT_FALSE(visible(x_));
    EXPECT_FALSE(visible(y_));
    test_.mouse(WM_MOUSEMOVE, 0, 150, 150);
    test::pause(test::milliseconds{150});
    EXPECT_FALSE(visible(x_));
    worksheet_.setClickable(true);
    EXPECT_TRUE(visible(x_));
    EXPECT_TRUE(visible(y_));
    enable(false);
    EXPECT_FALSE(visible(x_));
    EXPECT_FALSE(visible(y_));
}

TEST_F(frmCrossHairTest, IsSetAsideForAScreenShot) {
    enable(true);
    worksheet_.setAidsAside(true);
    EXPECT_FALSE(visible(x_));
    EXPECT_FALSE(visible(y_));
    worksheet_.setAidsAside(false);
    EXPECT_TRUE(visible(x_));
    EXPECT_TRUE(visible(y_));
}

TEST_F(frmCrossHairTest, AMoveRepaintsNothingOfTheWorksheet) {
    enable(true);
    test::pause(test::milliseconds{50});
    const test::PaintCount paints(worksheet_.handle());
    for (int step = 0; step < 5; ++step) {
        moveCursor(sheet_.left + 300 + 10 * step, sheet_.top + 200);
        test_.mouse(WM_MOUSEMOVE, 0, 300 + 10 * step, 200);
        test::pause(test::milliseconds{30});
    }
    EXPECT_TRUE(
        waitForPlace(y_, {sheet_.left + 340, sheet_.top, sheet_.left + 341, sheet_.bottom}));
    EXPECT_EQ(paints.count(), 0);
}

TEST_F(frmCrossHairTest, LiesAboveTheWorksheetAfterAPressOnTheBackground) {
    enable(true);
    test_.drag(50, 60, 55, 60, 2);
    HWND above = GetWindow(worksheet_.handle(), GW_HWNDPREV);
    while (above != nullptr && above != x_) {
        above = GetWindow(above, GW_HWNDPREV);
    }
    EXPECT_EQ(above, x_);
}

}  // namespace
}  // namespace ormala
