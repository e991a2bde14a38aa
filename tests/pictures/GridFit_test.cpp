#include "pictures/GridFit.h"

#include <cmath>

#include <gtest/gtest.h>

namespace ormala {
namespace {

bool whole(double value) {
    return value == std::floor(value);
}

TEST(GridFit, EveryLineCoversWholePixels) {
    for (int side = 16; side <= 64; ++side) {
        for (int width = 1; width <= 6; ++width) {
            const GridFit fit(side, width);
            for (double at = 0; at <= GridFit::field; at += 0.5) {
                EXPECT_TRUE(whole(fit.fitted(at) - width / 2.0)) << side << ' ' << width;
            }
        }
    }
}

TEST(GridFit, MovesNothingByMoreThanHalfAPixel) {
    for (int side = 16; side <= 64; ++side) {
        const GridFit fit(side, 1);
        for (double at = 0; at <= GridFit::field; at += 0.5) {
            EXPECT_LE(std::abs(fit.fitted(at) - fit.plain(at)), 0.5 + 1e-9);
        }
    }
}

TEST(GridFit, WhatIsSymmetricStaysSymmetric) {
    for (int side = 16; side <= 64; ++side) {
        const GridFit fit(side, 2);
        for (double at = 0; at < GridFit::field / 2; at += 0.5) {
            EXPECT_DOUBLE_EQ(fit.fitted(at) + fit.fitted(GridFit::field - at), side);
        }
    }
}

TEST(GridFit, TheOutermostPointsOfACircleCoverWholePixels) {
    for (int side = 16; side <= 64; side += 2) {
        const GridFit fit(side, 2);
        const Point middle = fit.fittedMiddle({10, 10}, 7);
        EXPECT_TRUE(whole(middle.x - fit.fittedRadius(7)));
        EXPECT_TRUE(whole(middle.x + fit.fittedRadius(7)));
        EXPECT_EQ(middle.x, middle.y);
    }
}

TEST(GridFit, ACircleInTheMiddleStaysThere) {
    EXPECT_EQ(GridFit(17, 1).fittedMiddle({12, 12}, 10), (Point{8.5, 8.5}));
}

}  // namespace
}  // namespace ormala
