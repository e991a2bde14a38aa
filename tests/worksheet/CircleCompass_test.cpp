#include "worksheet/CircleCompass.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <random>
#include <vector>

#include "support/RasterCanvas.h"
#include "support/mouseInput.h"

namespace ormala {
namespace {

constexpr Color dark = 0x4F4F4F;
constexpr Color white = 0xFFFFFF;
constexpr Color brightGreen = rgb(0, 255, 0);
constexpr Color darkGreen = rgb(0, 127, 0);
constexpr PixelSize sheetSize{700, 700};

RasterCanvas drawing(const CircleCompass& compass) {
    RasterCanvas canvas(sheetSize);
    compass.draw(canvas);
    return canvas;
}

struct Radii {
    int outer = 0;
    int inner = 0;

    bool operator==(const Radii&) const = default;
};

/// Of the circles around (300, 300), read off their rightmost pixels; none if nothing is drawn.
std::optional<Radii> radiiOf(const CircleCompass& compass) {
    const RasterCanvas canvas = drawing(compass);
    std::vector<int> found;
    for (int x = sheetSize.width - 1; x > 300 && found.size() < 2; --x) {
        if (canvas.at(x, 300) != RasterCanvas::empty) {
            found.push_back(x - 300);
        }
    }
    return found.size() == 2 ? std::optional(Radii{found[0], found[1]}) : std::nullopt;
}

/// A compass that was pressed at (300, 300).
class CircleCompassTest : public testing::Test {
  protected:
    CircleCompassTest() { compass_.press(at(mouseButton::left, 300, 300), dark); }

    void dragBy(float dx, float dy = 0) {
        compass_.move(at(mouseButton::left, 300 + dx, 300 + dy), true);
    }
    [[nodiscard]] RasterCanvas drawn() const { return drawing(compass_); }
    [[nodiscard]] std::optional<Radii> shown() const { return radiiOf(compass_); }

    CircleCompass compass_;
};

TEST_F(CircleCompassTest, ThePressAloneShowsNothing) {
    EXPECT_FALSE(shown());
    EXPECT_TRUE(compass_.takeChanges().empty());
    EXPECT_EQ(drawn().painted(), 0);
}

TEST_F(CircleCompassTest, ADragOf12PixelsShowsNothingAndOneOf13BothCirclesWithTheCentre) {
    dragBy(12);
    EXPECT_FALSE(shown());
    dragBy(13);
    EXPECT_EQ(shown(), (Radii{13, 8}));
    const RasterCanvas canvas = drawn();
    EXPECT_EQ(canvas.at(313, 300), brightGreen);
    EXPECT_EQ(canvas.at(292, 300), brightGreen);
    EXPECT_EQ(canvas.at(299, 299), brightGreen);
    EXPECT_EQ(canvas.at(300, 300), darkGreen);
}

TEST_F(CircleCompassTest, TheDistanceIsRoundedBeforeItIsHeldAgainstTheJitter) {
    dragBy(12.49F);
    EXPECT_FALSE(shown());
    dragBy(12.5F);
    EXPECT_EQ(shown(), (Radii{13, 8}));
}

TEST_F(CircleCompassTest, TheInnerCircleHasTheGoldenSectionOfTheDistance) {
    dragBy(30, 40);
    EXPECT_EQ(shown(), (Radii{50, 31}));
    // Of the distance and not of the rounded radius: 0.618 * 100.45 = 62.08.
    dragBy(100.45F);
    EXPECT_EQ(shown(), (Radii{100, 62}));
    dragBy(199.4F);
    EXPECT_EQ(shown(), (Radii{199, 123}));
}

TEST_F(CircleCompassTest, OnceShownItShrinksDownToTheLeastRadii) {
    dragBy(50);
    dragBy(8);
    EXPECT_EQ(shown(), (Radii{8, 5}));
    dragBy(0);
    EXPECT_EQ(shown(), (Radii{4, 2}));
}

TEST_F(CircleCompassTest, AWidthIsTwiceTheRadiusAndOne) {
    dragBy(40);
    const RasterCanvas canvas = drawn();
    for (const int edge : {260, 340}) {
        EXPECT_EQ(canvas.at(edge, 300), brightGreen) << edge;
        EXPECT_EQ(canvas.at(300, edge), brightGreen) << edge;
    }
    EXPECT_EQ(canvas.at(259, 300), RasterCanvas::empty);
    EXPECT_EQ(canvas.at(341, 300), RasterCanvas::empty);
}

TEST_F(CircleCompassTest, ThePressPointIsRoundedToAPixel) {
    compass_.press(at(mouseButton::left, 99.6F, 100.5F), dark);
    compass_.move(at(mouseButton::left, 140, 101), true);
    EXPECT_EQ(drawn().at(100, 101), darkGreen);
}

TEST_F(CircleCompassTest, IsBrightGreenOnTheDarkBackgroundAndDarkGreenOnWhite) {
    dragBy(40);
    EXPECT_EQ(drawn().at(340, 300), brightGreen);
    EXPECT_EQ(drawn().at(300, 300), darkGreen);
    compass_.press(at(mouseButton::left, 300, 300), white);
    dragBy(40);
    EXPECT_EQ(drawn().at(340, 300), darkGreen);
    EXPECT_EQ(drawn().at(301, 301), darkGreen);
    EXPECT_EQ(drawn().at(300, 300), brightGreen);
}

TEST_F(CircleCompassTest, IsHiddenByTheRelease) {
    dragBy(40);
    compass_.release(at(mouseButton::left, 340, 300));
    EXPECT_FALSE(shown());
    compass_.move(at(mouseButton::none, 350, 300), true);
    EXPECT_FALSE(shown());
}

TEST_F(CircleCompassTest, IsHiddenByAPressOfAnotherButton) {
    dragBy(40);
    compass_.press(at(mouseButton::right, 340, 300), dark);
    EXPECT_FALSE(shown());
    compass_.move(at(mouseButton::left | mouseButton::right, 350, 300), true);
    EXPECT_FALSE(shown());
}

TEST_F(CircleCompassTest, ComesBackWithTheNextMoveOnceTheOtherButtonIsUp) {
    dragBy(40);
    compass_.press(at(mouseButton::right, 340, 300), dark);
    compass_.release(at(mouseButton::right, 340, 300));
    dragBy(41);
    EXPECT_EQ(shown(), (Radii{41, 25}));
}

TEST_F(CircleCompassTest, IsHiddenByAMoveWithAnotherButtonState) {
    for (const int button : {mouseButton::left | mouseButton::middle, mouseButton::none}) {
        compass_.press(at(mouseButton::left, 300, 300), dark);
        dragBy(40);
        ASSERT_TRUE(shown());
        compass_.move(at(button, 345, 300), true);
        EXPECT_FALSE(shown()) << button;
    }
}

TEST_F(CircleCompassTest, IsHiddenByTheLossOfTheMouse) {
    dragBy(40);
    compass_.lost();
    EXPECT_FALSE(shown());
    dragBy(50);
    EXPECT_FALSE(shown());
}

TEST_F(CircleCompassTest, OpensOnlyIfItIsEnabled) {
    compass_.move(at(mouseButton::left, 350, 300), false);
    EXPECT_FALSE(shown());
    dragBy(51);
    EXPECT_TRUE(shown());
    compass_.move(at(mouseButton::left, 352, 300), false);
    EXPECT_FALSE(shown());
}

TEST_F(CircleCompassTest, DoesNotOpenWithoutAPress) {
    CircleCompass compass;
    compass.move(at(mouseButton::left, 350, 300), true);
    EXPECT_FALSE(radiiOf(compass));
    compass.press(at(mouseButton::right, 300, 300), dark);
    compass.move(at(mouseButton::left, 350, 300), true);
    EXPECT_FALSE(radiiOf(compass));
}

TEST_F(CircleCompassTest, AMoveThatKeepsBothRadiiChangesNothing) {
    dragBy(40);
    EXPECT_FALSE(compass_.takeChanges().empty());
    dragBy(0, 40);
    EXPECT_TRUE(compass_.takeChanges().empty());
}

TEST_F(CircleCompassTest, ACircleThatKeepsItsRadiusIsNotRepainted) {
    dragBy(300);
    (void)compass_.takeChanges();
    dragBy(300.6F);
    const DirtyRegion changed = compass_.takeChanges();
    EXPECT_EQ(shown(), (Radii{301, 186}));
    dragBy(301.4F);
    EXPECT_EQ(shown(), (Radii{301, 186}));
    EXPECT_TRUE(compass_.takeChanges().empty());
    EXPECT_TRUE(changed.meets({600, 300, 601, 301}));
    EXPECT_FALSE(changed.meets({299, 299, 302, 302})) << "the centre stays";
}

TEST_F(CircleCompassTest, ALargeCircleChangesLittleMoreThanItsOutline) {
    dragBy(250);
    double area = 0;
    const DirtyRegion changed = compass_.takeChanges();
    for (const PixelRect& rect : changed.rects()) {
        area += static_cast<double>(rect.width()) * rect.height();
    }
    EXPECT_LT(area, 0.5 * 501 * 501);
}

TEST_F(CircleCompassTest, EveryPixelThatDiffersIsReportedAsChanged) {
    std::mt19937 random(7);
    RasterCanvas before = drawn();
    for (int step = 0; step < 60; ++step) {
        const auto pick = [&] { return static_cast<float>(random() % 600) - 300; };
        if (step % 9 == 8) {
            compass_.release(at(mouseButton::left, 0, 0));
            compass_.press(at(mouseButton::left, 350, 330), dark);
        } else {
            dragBy(pick(), pick());
        }
        const DirtyRegion changed = compass_.takeChanges();
        const RasterCanvas after = drawn();
        int missed = 0;
        for (int y = 0; y < sheetSize.height; ++y) {
            for (int x = 0; x < sheetSize.width; ++x) {
                missed += before.at(x, y) != after.at(x, y) && !changed.meets({x, y, x + 1, y + 1})
                              ? 1
                              : 0;
            }
        }
        EXPECT_EQ(missed, 0) << step;
        before = after;
    }
}

}  // namespace
}  // namespace ormala
