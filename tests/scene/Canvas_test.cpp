#include "scene/Canvas.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(Pen, CodesZeroAndOneAreOnePixelWide) {
    EXPECT_EQ((Pen{0, 0}).width(), 1);
    EXPECT_EQ((Pen{0, 1}).width(), 1);
}

TEST(Pen, SolidCodesAreOneWiderThanThePen) {
    EXPECT_EQ((Pen{0, 2}).width(), 1);
    EXPECT_EQ((Pen{0, 6}).width(), 5);
}

TEST(Pen, AnyCodeHasAWidthThatCanBeReckonedWith) {
    EXPECT_EQ((Pen{0, 2147483647}).width(), Pen::widest);
    EXPECT_EQ((Pen{0, -2147483647 - 1}).width(), 1);
}

}  // namespace
}  // namespace ormala
