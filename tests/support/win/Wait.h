#pragma once

#include <chrono>
#include <functional>

namespace ormala::test {

using std::chrono::milliseconds;

/// How long a test waits for something that is on its way, on a busy machine too.
inline constexpr milliseconds usualDeadline{10000};

/// Lets the time pass while the messages of the calling thread's own windows are handled.
void pause(milliseconds time);

/// Asks `predicate` every 10 ms until it is true or the deadline has passed, handling the messages
/// of the thread's own windows in between. Returns the last answer.
bool waitUntil(const std::function<bool()>& predicate, milliseconds deadline = usualDeadline);

}  // namespace ormala::test
