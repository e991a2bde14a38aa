#include "widgets/TabOrder.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr bool stop = true;
constexpr bool holder = false;

TabOrder orderOf(std::initializer_list<bool> stops) {
    TabOrder order;
    for (const bool each : stops) {
        order.add(each);
    }
    return order;
}

TEST(TabOrder, GoesFromStopToStopInARing) {
    const TabOrder order = orderOf({stop, stop, stop});
    EXPECT_EQ(order.next(0, false), 1U);
    EXPECT_EQ(order.next(2, false), 0U);
    EXPECT_EQ(order.next(0, true), 2U);
    EXPECT_EQ(order.next(2, true), 1U);
}

TEST(TabOrder, GoesFromTheGroundOfAPanelIntoIt) {
    const TabOrder order = orderOf({stop, holder, stop, stop, holder, stop});
    EXPECT_EQ(order.next(1, false), 2U);
    EXPECT_EQ(order.next(4, false), 5U);
    EXPECT_EQ(order.next(4, true), 3U);
}

TEST(TabOrder, PassesWhatIsNoStop) {
    const TabOrder order = orderOf({stop, holder, holder, stop, holder});
    EXPECT_EQ(order.next(0, false), 3U);
    EXPECT_EQ(order.next(3, false), 0U);
    EXPECT_EQ(order.next(0, true), 3U);
}

TEST(TabOrder, BeginsAtAnEndWithoutAFocus) {
    const TabOrder order = orderOf({holder, stop, stop, holder});
    EXPECT_EQ(order.next(std::nullopt, false), 1U);
    EXPECT_EQ(order.next(std::nullopt, true), 2U);
}

TEST(TabOrder, HasNoNextWithoutStops) {
    EXPECT_EQ(orderOf({}).next(std::nullopt, false), std::nullopt);
    EXPECT_EQ(orderOf({holder, holder}).next(0, true), std::nullopt);
    EXPECT_EQ(orderOf({stop}).next(0, false), 0U);
}

}  // namespace
}  // namespace ormala
