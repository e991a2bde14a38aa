#include "app/mouseActionPath.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

const std::vector<PixelRect> oneMonitor{{0, 0, 1920, 1080}};
/// A lower one left of the main one, whose top lies further down.
const std::vector<PixelRect> twoMonitors{{0, 0, 1920, 1080}, {-1280, 200, 0, 1224}};

TEST(MouseActionPath, GoesFromTheFirstPixelToTheLastOne) {
    EXPECT_EQ(mouseActionPath({10.4, 20.5, 100.6, 200}, {300, 150}, oneMonitor),
              (MouseActionPath{{310, 171}, {401, 350}}));
}

TEST(MouseActionPath, EndsAtTheEdgeOfTheScreenForAStencilThatReachesBeyond) {
    EXPECT_EQ(mouseActionPath({-900, -700, 5000, 4000}, {300, 150}, oneMonitor),
              (MouseActionPath{{0, 0}, {1919, 1079}}));
    EXPECT_EQ(mouseActionPath({-1e300, 10, 1e300, 20}, {0, 0}, oneMonitor),
              (MouseActionPath{{0, 10}, {1919, 20}}));
}

TEST(MouseActionPath, LeavesAStencilAloneThatLiesOnTheMonitorAtTheLeft) {
    EXPECT_EQ(mouseActionPath({0, 0, 500, 400}, {-900, 300}, twoMonitors),
              (MouseActionPath{{-900, 300}, {-400, 700}}));
}

TEST(MouseActionPath, IsCutToTheNearestMonitorWhereThereIsAGap) {
    // Above the left monitor there is none.
    EXPECT_EQ(mouseActionPath({0, 0, 500, 400}, {-900, 100}, twoMonitors),
              (MouseActionPath{{-900, 200}, {-400, 500}}));
    // Nearer to the main one.
    EXPECT_EQ(mouseActionPath({0, 0, 500, 400}, {-5, 50}, twoMonitors).from, (PixelPoint{0, 50}));
}

}  // namespace
}  // namespace ormala
