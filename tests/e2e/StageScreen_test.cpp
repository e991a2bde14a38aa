#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/OwnWindow.h"
#include "e2e/stagePlaces.h"
#include "e2e/support/Desktop.h"

namespace ormala::test {
namespace {

constexpr BackdropLook points{BackdropPattern::Points, 0};
constexpr ScreenRect leftHalf{300, 200, 400, 300};
constexpr ScreenRect rightHalf{400, 200, 500, 300};
constexpr Color keyColor = 0x00010203;
constexpr Color frontColor = 0x0020E0A0;
constexpr int half = 128;

/// How far the most different pixel of the screen's part is from `color`.
int largestDifference(const ScreenRect& rect, Color color) {
    const auto count = static_cast<std::size_t>(rect.width() * rect.height());
    const Picture expected(rect, std::vector<Color>(count, color));
    return difference(expected, screen::capture(rect)).largest;
}

TEST(Stage, BackdropShowsItsExactColoursOnTheScreen) {
    for (const BackdropLook& look : {plain, BackdropLook{BackdropPattern::Columns, 0},
                                     BackdropLook{BackdropPattern::Rows, 0}, points}) {
        const Backdrop backdrop(look);
        const Picture shown = screen::capture(backdrop.rect());
        const Difference wrong = difference(backdrop.picture(backdrop.rect()), shown);
        EXPECT_TRUE(wrong.empty()) << textOf(look) << ": " << wrong;
    }
}

TEST(Stage, BackdropLooksAreReadBackFromTheirText) {
    for (const BackdropLook& look : {plain, BackdropLook{BackdropPattern::Columns, 0},
                                     BackdropLook{BackdropPattern::Rows, 0}, points}) {
        EXPECT_EQ(lookFromText(textOf(look)), look);
    }
    EXPECT_EQ(lookFromText("solid:xyz"), std::nullopt);
    EXPECT_EQ(lookFromText("stripes"), std::nullopt);
}

TEST(Stage, PointsPatternGivesNeighbouringPixelsDifferentColours) {
    EXPECT_NE(backdropColor(points, 255, 0), backdropColor(points, 256, 0));
    EXPECT_NE(backdropColor(points, 0, 0), backdropColor(points, 256, 0));
    EXPECT_NE(backdropColor(points, 0, 0), backdropColor(points, 0, 256));
    EXPECT_EQ(backdropColor(points, 0x123, 0x245), 0x00124523U);
}

TEST(Stage, HalfSeeThroughWindowIsBlendedWithTheBackdrop) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace, WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_TOOLWINDOW, frontColor);
    SetLayeredWindowAttributes(front.handle(), 0, half, LWA_ALPHA);
    front.show();
    EXPECT_EQ(front.window().rect(), windowPlace);
    EXPECT_LE(largestDifference(windowPlace, blended(frontColor, plain.color, half)), 2);
}

TEST(Stage, KeyedColourShowsTheBackdropExactly) {
    const Backdrop backdrop(points);
    OwnWindow front(windowPlace,
                    WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW,
                    frontColor, keyColor);
    SetLayeredWindowAttributes(front.handle(), keyColor, 255, LWA_COLORKEY | LWA_ALPHA);
    front.show();
    EXPECT_TRUE(difference(backdrop.picture(leftHalf), screen::capture(leftHalf)).empty());
    EXPECT_EQ(largestDifference(rightHalf, frontColor), 0);
}

TEST(Stage, KeyAndAlphaWorkTogether) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace,
                    WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW,
                    frontColor, keyColor);
    SetLayeredWindowAttributes(front.handle(), keyColor, half, LWA_COLORKEY | LWA_ALPHA);
    front.show();
    EXPECT_EQ(largestDifference(leftHalf, plain.color), 0);
    EXPECT_LE(largestDifference(rightHalf, blended(frontColor, plain.color, half)), 2);
}

TEST(Stage, TopmostWindowStaysOverTheActiveBackdrop) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, frontColor);
    // With a system menu it is the window manager that decides what lies in front.
    SetWindowLongPtrW(front.handle(), GWL_STYLE, WS_POPUP | WS_SYSMENU);
    front.show();
    front.window().activate();
    Mouse mouse;
    mouse.click({900, 700});
    backdrop.window().activate();
    screen::waitUntilStill(screen::primaryMonitor());
    EXPECT_EQ(largestDifference(windowPlace, frontColor), 0);
}

TEST(Stage, StillScreenIsTheLastPictureOfAMovingOne) {
    const Backdrop backdrop(plain);
    OwnWindow front(windowPlace, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, frontColor);
    int moves = 0;
    const auto move = [&moves, &front] {
        SetWindowPos(front.handle(), nullptr, windowPlace.left, windowPlace.top + ++moves, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    };
    while (moves < 20) {
        move();
        pause(milliseconds(5));
    }
    const Picture still = screen::waitUntilStill(screen::primaryMonitor());
    const ScreenRect last{windowPlace.left, windowPlace.top + 20, windowPlace.right,
                          windowPlace.bottom + 20};
    EXPECT_EQ(boundingBox(still.find(frontColor)), last);
}

TEST(Stage, PlacesOfAColourAreScreenPixels) {
    const Backdrop backdrop(points);
    const ScreenRect part{700, 400, 760, 440};
    const Picture shown = screen::capture(part);
    EXPECT_EQ(shown.find(backdrop.colorAt({731, 417})), (std::vector{ScreenPoint{731, 417}}));
    EXPECT_EQ(shown.at({731, 417}), screen::pixel({731, 417}));
    EXPECT_EQ(shown.part({730, 410, 740, 420}), screen::capture({730, 410, 740, 420}));
}

}  // namespace
}  // namespace ormala::test
