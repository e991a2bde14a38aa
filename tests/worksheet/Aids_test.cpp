#include "worksheet/Aids.h"

#include "support/RasterCanvas.h"
#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

constexpr PixelRect sheet{100, 50, 900, 650};

TEST(CrossHair, LinesCrossAtTheCursorFromEdgeToEdge) {
    EXPECT_EQ(horizontalLine({300, 200}, sheet), (CrossHairLine{{100, 200, 900, 201}, true}));
    EXPECT_EQ(verticalLine({300, 200}, sheet), (CrossHairLine{{300, 50, 301, 650}, true}));
}

TEST(CrossHair, AboveTheSheetButWithinItsWidthTheVerticalLineStays) {
    EXPECT_FALSE(horizontalLine({300, 49}, sheet).shown);
    EXPECT_TRUE(verticalLine({300, 49}, sheet).shown);
}

TEST(CrossHair, BesideTheSheetTheHorizontalLineStays) {
    EXPECT_TRUE(horizontalLine({99, 200}, sheet).shown);
    EXPECT_FALSE(verticalLine({99, 200}, sheet).shown);
    EXPECT_FALSE(verticalLine({901, 200}, sheet).shown);
}

TEST(CrossHair, EdgesOfTheSheetCountAsInside) {
    for (const int y : {50, 650}) {
        EXPECT_TRUE(horizontalLine({300, y}, sheet).shown) << y;
    }
    for (const int x : {100, 900}) {
        EXPECT_TRUE(verticalLine({x, 200}, sheet).shown) << x;
    }
    EXPECT_FALSE(horizontalLine({300, 651}, sheet).shown);
}

TEST(CrossHair, BothLinesAreGoneBeyondACorner) {
    EXPECT_FALSE(horizontalLine({950, 700}, sheet).shown);
    EXPECT_FALSE(verticalLine({950, 700}, sheet).shown);
}

TEST(CrossHair, WorksOnAScreenToTheLeftOfTheFirst) {
    constexpr PixelRect left{-1280, -200, -280, 600};
    EXPECT_EQ(horizontalLine({-700, -100}, left), (CrossHairLine{{-1280, -100, -280, -99}, true}));
    EXPECT_EQ(verticalLine({-1281, -100}, left), (CrossHairLine{{-1281, -200, -1280, 600}, false}));
}

/// Aids on a worksheet that takes the mouse, with cross hair and compass turned on.
class AidsTest : public SheetMouseFixture {
  protected:
    AidsTest() {
        options_.crossHair = true;
        sheet_.setEditMode(true);
    }

    [[nodiscard]] bool crossHairShown() const {
        const auto& [along, down] = window_.crossHairs.back();
        EXPECT_EQ(along.shown, down.shown);
        return along.shown;
    }
    void openCompass() {
        aids_.press({mouseButton::left, 0, 300, 300});
        aids_.move({mouseButton::left, 0, 340, 300});
    }
    [[nodiscard]] bool compassShown() const {
        RasterCanvas canvas({700, 700});
        aids_.draw(canvas);
        return canvas.painted() != 0;
    }
};

TEST_F(AidsTest, TheCrossHairIsShownWhereTheMouseIs) {
    aids_.SyncCrossHair();
    const auto& [along, down] = window_.crossHairs.back();
    EXPECT_EQ(along, horizontalLine(window_.mouse.at, window_.mouse.worksheet));
    EXPECT_EQ(down, verticalLine(window_.mouse.at, window_.mouse.worksheet));
    EXPECT_TRUE(crossHairShown());
}

TEST_F(AidsTest, TheOptionsAreReadAtEachUse) {
    options_.crossHair = false;
    aids_.SyncCrossHair();
    EXPECT_FALSE(crossHairShown());
    options_.crossHair = true;
    aids_.SyncCrossHair();
    EXPECT_TRUE(crossHairShown());
    options_.circleCompass = false;
    openCompass();
    EXPECT_FALSE(compassShown());
    options_.circleCompass = true;
    aids_.move({mouseButton::left, 0, 341, 300});
    EXPECT_TRUE(compassShown());
    options_.grid.steps.stepX = 7;
    EXPECT_EQ(aids_.grid().steps.stepX, 7);
}

TEST_F(AidsTest, AWorksheetThatPassesTheMouseOnHasNeitherCrossHairNorCompass) {
    openCompass();
    sheet_.setEditMode(false);
    aids_.editModeChanged();
    EXPECT_FALSE(crossHairShown());
    EXPECT_FALSE(compassShown());
    const std::size_t told = window_.crossHairs.size();
    window_.time += 1;
    aids_.UpdateCrossHair();
    EXPECT_EQ(window_.crossHairs.size(), told);
    sheet_.setEditMode(true);
    aids_.editModeChanged();
    EXPECT_TRUE(crossHairShown());
    EXPECT_FALSE(compassShown());
}

TEST_F(AidsTest, SetAsideTheCrossHairIsHiddenAndTheOptionStays) {
    aids_.setAside(true);
    EXPECT_FALSE(crossHairShown());
    EXPECT_TRUE(options_.crossHair);
    const std::size_t told = window_.crossHairs.size();
    window_.time += 1;
    aids_.UpdateCrossHair();
    EXPECT_EQ(window_.crossHairs.size(), told);
    aids_.setAside(false);
    EXPECT_TRUE(crossHairShown());
    options_.crossHair = false;
    aids_.setAside(true);
    aids_.setAside(false);
    EXPECT_FALSE(crossHairShown());
}

TEST_F(AidsTest, AMoveThatCameTooEarlyIsMadeUpForByTheClock) {
    aids_.UpdateCrossHair();
    ASSERT_EQ(window_.crossHairs.size(), 1U);
    window_.time += 0.01F;
    window_.mouse.at = {310, 210};
    EXPECT_FALSE(aids_.wantsTick());
    aids_.UpdateCrossHair();
    EXPECT_EQ(window_.crossHairs.size(), 1U);
    EXPECT_TRUE(aids_.wantsTick());
    window_.time += 0.02F;
    aids_.tick();
    EXPECT_FALSE(aids_.wantsTick());
    ASSERT_EQ(window_.crossHairs.size(), 2U);
    EXPECT_EQ(window_.crossHairs.back().first.place.top, 210);
    window_.time += 1;
    aids_.tick();
    EXPECT_EQ(window_.crossHairs.size(), 2U) << "the mouse is at rest";
}

TEST_F(AidsTest, TheCompassTakesItsColoursFromTheBackground) {
    for (const auto& [background, circle] :
         {std::pair{Color{0x4F4F4F}, rgb(0, 255, 0)}, std::pair{Color{0xFFFFFF}, rgb(0, 127, 0)}}) {
        aids_.setBackground(background);
        openCompass();
        RasterCanvas canvas({700, 700});
        aids_.draw(canvas);
        EXPECT_EQ(canvas.at(340, 300), circle);
        aids_.release({mouseButton::left, 0, 340, 300});
    }
}

TEST_F(AidsTest, OnlyWhatChangesOfTheCompassIsRepainted) {
    aids_.press({mouseButton::left, 0, 300, 300});
    EXPECT_TRUE(window_.repainted.empty());
    aids_.move({mouseButton::left, 0, 340, 300});
    EXPECT_TRUE(window_.repainted.meets({340, 300, 341, 301}));
    window_.repainted.clear();
    aids_.move({mouseButton::left, 0, 300, 340});
    EXPECT_FALSE(window_.repainted.meets({340, 300, 341, 301})) << "the same circles";
    window_.repainted.clear();
    aids_.move({mouseButton::left, 0, 300, 340});
    EXPECT_TRUE(window_.repainted.empty()) << "and the same read-out";
    aids_.release({mouseButton::left, 0, 300, 340});
    EXPECT_TRUE(window_.repainted.meets({300, 340, 301, 341}));
}

}  // namespace
}  // namespace ormala
