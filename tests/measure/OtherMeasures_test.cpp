#include "measure/OtherMeasures.h"

#include <gtest/gtest.h>

#include "measure/ManualMeasures.h"
#include "support/FakeOverlayItem.h"

namespace ormala {
namespace {

Point snapped(Point point, const std::vector<Point>& ends) {
    ToolLog log;
    const FakeOverlayItem self("measure 0", log);
    ManualMeasures others;
    others.ends = ends;
    SnapToOtherTools(point, others, self);
    EXPECT_EQ(others.asked, &self);
    return point;
}

TEST(SnapToOtherTools, JoinsAnEndNearerThanEightPixels) {
    EXPECT_EQ(snapped({100, 100}, {{107.9, 100}}), (Point{107.9, 100}));
    EXPECT_EQ(snapped({100, 100}, {{108, 100}}), (Point{100, 100}));
    EXPECT_EQ(snapped({100, 100}, {{106, 106}}), (Point{100, 100}));
}

TEST(SnapToOtherTools, TakesTheNearestAndTheFirstOfEquals) {
    EXPECT_EQ(snapped({100, 100}, {{105, 100}, {100, 97}, {96, 100}}), (Point{100, 97}));
    EXPECT_EQ(snapped({100, 100}, {{103, 100}, {100, 97}}), (Point{103, 100}));
}

TEST(SnapToOtherTools, WithoutOthersNothingMoves) {
    EXPECT_EQ(snapped({100, 100}, {}), (Point{100, 100}));
    EXPECT_EQ(snapped({1e300, 100}, {{0, 0}}), (Point{1e300, 100}));
}

}  // namespace
}  // namespace ormala
