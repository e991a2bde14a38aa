#include "base/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace ormala {
namespace {

TEST(Event, CallsHandlersInOrderOfSubscription) {
    Event<int> event;
    std::vector<int> seen;
    const auto first = event.subscribe([&](int value) { seen.push_back(value); });
    const auto second = event.subscribe([&](int value) { seen.push_back(value * 10); });
    event.raise(3);
    EXPECT_EQ(seen, (std::vector<int>{3, 30}));
}

TEST(Event, SubscriptionEndsWithItsOwner) {
    Event<> event;
    int calls = 0;
    {
        const auto subscription = event.subscribe([&] { ++calls; });
        event.raise();
    }
    event.raise();
    EXPECT_EQ(calls, 1);
}

TEST(Event, HandlerMayDestroyTheRaiser) {
    auto event = std::make_unique<Event<>>();
    int calls = 0;
    const auto first = event->subscribe([&] {
        ++calls;
        event.reset();
    });
    const auto second = event->subscribe([&] { ++calls; });
    event->raise();
    EXPECT_EQ(calls, 2);
}

TEST(Event, HandlerEndedWhileRaisingIsNotCalled) {
    Event<> event;
    int calls = 0;
    Subscription second;
    const auto first = event.subscribe([&] { second.reset(); });
    second = event.subscribe([&] { ++calls; });
    event.raise();
    EXPECT_EQ(calls, 0);
}

TEST(Event, HandlerAddedWhileRaisingWaitsForTheNextTime) {
    Event<> event;
    int calls = 0;
    Subscription late;
    const auto first = event.subscribe([&] { late = event.subscribe([&] { ++calls; }); });
    event.raise();
    EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace ormala
