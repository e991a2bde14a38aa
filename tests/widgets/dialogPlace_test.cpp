#include "widgets/dialogPlace.h"

#include <gtest/gtest.h>

#include "widgets/dpi.h"

namespace ormala {
namespace {

constexpr PixelRect workArea{0, 0, 1920, 1040};

TEST(DialogPlace, StandsInTheMiddleOfItsOwner) {
    EXPECT_EQ(placeOfDialog({200, 100}, {400, 300, 800, 700}, workArea),
              (PixelRect{500, 450, 700, 550}));
}

TEST(DialogPlace, MayBeLargerThanItsOwner) {
    EXPECT_EQ(placeOfDialog({400, 300}, {800, 400, 1000, 500}, workArea),
              (PixelRect{700, 300, 1100, 600}));
}

TEST(DialogPlace, StaysInTheWorkAreaBesideEachEdge) {
    EXPECT_EQ(placeOfDialog({400, 300}, {-50, -20, 150, 80}, workArea),
              (PixelRect{0, 0, 400, 300}));
    EXPECT_EQ(placeOfDialog({400, 300}, {1850, 1000, 1950, 1080}, workArea),
              (PixelRect{1520, 740, 1920, 1040}));
}

TEST(DialogPlace, FollowsTheWorkAreaOfAnotherMonitor) {
    EXPECT_EQ(placeOfDialog({400, 300}, {-1300, 0, -1200, 100}, {-1280, 0, 0, 1024}),
              (PixelRect{-1280, 0, -880, 300}));
}

TEST(DialogPlace, ShowsTheUpperLeftCornerWhereThereIsNoRoom) {
    EXPECT_EQ(placeOfDialog({3000, 2000}, {800, 400, 1000, 500}, workArea),
              (PixelRect{0, 0, 3000, 2000}));
}

TEST(ScaledToDpi, RoundsToTheNearestPixel) {
    EXPECT_EQ(scaledLength(10, 96), 10);
    EXPECT_EQ(scaledLength(10, 192), 20);
    EXPECT_EQ(scaledLength(5, 144), 8);
    EXPECT_EQ(scaledLength(3, 120), 4);
}

TEST(ScaledToDpi, KeepsNeighboursTogether) {
    EXPECT_EQ(scaledToDpi(PixelRect{3, 5, 7, 9}, 144).right,
              scaledToDpi(PixelRect{7, 5, 11, 9}, 144).left);
}

}  // namespace
}  // namespace ormala
