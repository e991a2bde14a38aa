#include "magnifier/enlargement.h"

#include <gtest/gtest.h>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

TEST(Enlarge, MakesASquareOfEachPixel) {
    PixelSheet source = PixelSheet::random({7, 5}, 1);
    for (const int factor : {1, 2, 4, 10}) {
        PixelSheet image({7 * factor, 5 * factor});
        enlarge(image.view(), source.view(), factor);
        for (int y = 0; y < image.size().height; ++y) {
            for (int x = 0; x < image.size().width; ++x) {
                ASSERT_EQ(image.at(x, y), source.at(x / factor, y / factor))
                    << x << "," << y << " at " << factor;
            }
        }
    }
}

TEST(Enlarge, CutsTheLastPixelsWhereTheImageEnds) {
    PixelSheet source({2, 2}, 5);
    source.view().row(1)[1] = 7;
    PixelSheet image({7, 6});
    enlarge(image.view(), source.view(), 4);
    EXPECT_EQ(image.at(3, 3), 5U);
    EXPECT_EQ(image.at(4, 4), 7U);
    EXPECT_EQ(image.at(6, 5), 7U);
    PixelSheet part({3, 1});
    enlarge(part.view(), source.view(), 4);
    EXPECT_EQ(part.at(2, 0), 5U);
}

TEST(Enlarge, LeavesWhatLiesBeyondAlone) {
    PixelSheet source({2, 1}, 5);
    PixelSheet image({8, 4}, 1);
    enlarge(image.view(), source.view(), 3);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 8; ++x) {
            EXPECT_EQ(image.at(x, y), x < 6 && y < 3 ? 5U : 1U) << x << "," << y;
        }
    }
}

TEST(Enlarge, DrawsNothingWithoutAPicture) {
    PixelSheet image({4, 4}, 1);
    enlarge(image.view(), PixelView{}, 3);
    EXPECT_EQ(image, PixelSheet({4, 4}, 1));
    PixelSheet source({4, 4}, 5);
    enlarge(PixelView{}, source.view(), 3);
}

}  // namespace
}  // namespace ormala
