#include "dialogs/win/ColorPic.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <memory>
#include <set>
#include <string>

#include "support/win/Wait.h"
#include "win/ControlPanel.h"
#include "win/TestAccessible.h"

namespace ormala {
namespace {

class ColorPicTest : public testing::Test {
  protected:
    ColorPicTest() {
        picker_.setPictureIndex(palette::pure);
        picker_.SetTooltip("Select color");
        SetFocus(panel_.handle());
    }

    [[nodiscard]] HWND window() const { return picker_.handle(); }
    void mouse(UINT message, int x, int y) const {
        SendMessageW(window(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, y));
    }
    [[nodiscard]] COLORREF shownAt(PixelPoint point) const {
        UpdateWindow(window());
        return readClient(window()).at(point.x, point.y);
    }
    [[nodiscard]] PixelSize clientSize() const {
        const RECT client = picker_.clientRectangle();
        return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
    }

    ControlPanel panel_;
    ColorPic picker_{panel_.handle(), 11, "ColorPicker"};
};

TEST_F(ColorPicTest, ShowsEachFieldOfItsPaletteInTheSizeOfTheFactors) {
    picker_.setSizeFactorX(8);
    picker_.setSizeFactorY(20);
    EXPECT_EQ(clientSize(), (PixelSize{96, 80}));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 12; ++x) {
            const auto color = static_cast<COLORREF>(picker_.palette().at({x, y}));
            EXPECT_EQ(shownAt({8 * x + 4, 20 * y + 10}), color) << x << ", " << y;
        }
    }
}

TEST_F(ColorPicTest, AFactorOf0IsStoredAs1And500As100) {
    picker_.setSizeFactorX(0);
    picker_.setSizeFactorY(500);
    EXPECT_EQ(picker_.SizeFactorX(), 1);
    EXPECT_EQ(picker_.SizeFactorY(), 100);
    EXPECT_EQ(clientSize(), (PixelSize{12, 400}));
}

TEST_F(ColorPicTest, TheMarkStandsOnTheFieldOfTheColor) {
    picker_.setRGBColor(rgb(0, 255, 0));
    EXPECT_EQ(picker_.shpSelected(), (PixelRect{40, 10, 50, 20}));
    EXPECT_EQ(shownAt({40, 10}), RGB(0, 0, 0));
    EXPECT_EQ(shownAt({45, 15}), RGB(0, 255, 0));
}

TEST_F(ColorPicTest, AClickTakesTheFocusAndPicksTheField) {
    int changes = 0;
    const Subscription changing = picker_.RGBChanged.subscribe([&] { ++changes; });
    mouse(WM_LBUTTONDOWN, 45, 15);
    mouse(WM_LBUTTONUP, 45, 15);
    EXPECT_EQ(GetFocus(), window());
    EXPECT_EQ(picker_.RGBColor(), rgb(0, 255, 0));
    EXPECT_EQ(changes, 2);
}

TEST_F(ColorPicTest, OneThatLeavesTheFocusToOthersPicksWithoutIt) {
    picker_.leaveFocusToOthers();
    SetFocus(panel_.handle());
    mouse(WM_LBUTTONDOWN, 45, 15);
    mouse(WM_LBUTTONUP, 45, 15);
    EXPECT_EQ(GetFocus(), panel_.handle());
    EXPECT_EQ(picker_.RGBColor(), rgb(0, 255, 0));
}

TEST_F(ColorPicTest, ThePaletteFillsAPlaceToItsLastPixel) {
    picker_.place(PixelRect{10, 10, 271, 147});
    EXPECT_EQ(clientSize(), (PixelSize{261, 137}));
    const auto last = static_cast<COLORREF>(picker_.palette().at({11, 3}));
    EXPECT_EQ(shownAt({260, 136}), last);
}

TEST_F(ColorPicTest, ADragOutOfThePaletteKeepsTheMarkAtTheNearestCell) {
    mouse(WM_LBUTTONDOWN, 45, 15);
    EXPECT_EQ(GetCapture(), window());
    mouse(WM_MOUSEMOVE, -300, 15);
    EXPECT_EQ(picker_.shpSelected(), (PixelRect{0, 10, 10, 20}));
    mouse(WM_MOUSEMOVE, 500, -40);
    EXPECT_EQ(picker_.shpSelected(), (PixelRect{110, 0, 120, 10}));
    mouse(WM_LBUTTONUP, 45, 900);
    EXPECT_EQ(picker_.shpSelected(), (PixelRect{40, 30, 50, 40}));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ColorPicTest, ADoubleClickIsRaisedByTheReleaseOnceTheColorIsFinal) {
    std::string seen;
    const Subscription ending = picker_.DoubleClick.subscribe(
        [&] { seen += picker_.RGBColor() == rgb(0, 255, 0) ? "final" : "early"; });
    mouse(WM_LBUTTONDOWN, 35, 15);
    mouse(WM_LBUTTONUP, 35, 15);
    mouse(WM_LBUTTONDBLCLK, 45, 15);
    EXPECT_EQ(seen, "");
    mouse(WM_LBUTTONUP, 45, 15);
    EXPECT_EQ(seen, "final");
}

TEST_F(ColorPicTest, TheReleaseOfAButtonThatWentDownElsewherePicksNothing) {
    mouse(WM_LBUTTONUP, 45, 15);
    EXPECT_EQ(picker_.RGBColor(), 0);
}

TEST_F(ColorPicTest, ALostCaptureEndsTheDrag) {
    mouse(WM_LBUTTONDOWN, 5, 5);
    ReleaseCapture();
    mouse(WM_MOUSEMOVE, 45, 15);
    EXPECT_EQ(picker_.RGBColor(), 0);
}

TEST_F(ColorPicTest, AHandlerOfTheDoubleClickMayDestroyThePicker) {
    auto other = std::make_unique<ColorPic>(panel_.handle(), 12, "other");
    const HWND window = other->handle();
    const Subscription ending = other->DoubleClick.subscribe([&] { other.reset(); });
    SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ColorPicTest, TheMarkBlinksWhileTheFocusIsHere) {
    EXPECT_EQ(shownAt({0, 0}), RGB(255, 255, 255));
    std::set<COLORREF> seen;
    SetFocus(window());
    EXPECT_TRUE(test::waitUntil([&] {
        seen.insert(shownAt({0, 0}));
        return seen.size() > 4;
    }));
    EXPECT_EQ(shownAt({5, 5}), RGB(0, 0, 0));
    SetFocus(panel_.handle());
    EXPECT_EQ(shownAt({0, 0}), RGB(255, 255, 255));
    EXPECT_FALSE(KillTimer(window(), 1));
}

TEST_F(ColorPicTest, ArrowsPickTheNextFieldAndOtherKeysAreLeftToTheDialog) {
    EXPECT_EQ(SendMessageW(window(), WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS);
    SendMessageW(window(), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(picker_.RGBColor(), rgb(255, 0, 0));
}

TEST_F(ColorPicTest, TakesTheColorUnderTheMarkWhereThePaletteHasNoneOfItsOwn) {
    picker_.setRGBColor(rgb(1, 254, 3));
    EXPECT_EQ(picker_.RGBColor(), rgb(1, 254, 3));
    picker_.SetRGBColorToCurrentPixelColor();
    EXPECT_EQ(picker_.RGBColor(), rgb(0, 255, 0));
}

TEST_F(ColorPicTest, TellsScreenReadersItsNameAndColor) {
    picker_.setRGBColor(rgb(255, 128, 0));
    EXPECT_EQ(accessibleNameOf(window()), "Select color");
    EXPECT_EQ(accessibleValueOf(window()), "#FF8000");
    EXPECT_EQ(accessibleRoleOf(window()), ROLE_SYSTEM_LIST);
}

}  // namespace
}  // namespace ormala
