#pragma once

#include <chrono>
#include <functional>

namespace ormala {

/// Time that passes.
class WaitingClock {
  public:
    virtual ~WaitingClock() = default;

    virtual std::chrono::milliseconds now() = 0;
    virtual void pause(std::chrono::milliseconds length) = 0;
};

/// How long a file that another program holds is asked for. Virus scanners, indexers and programs
/// that synchronise folders hold one for a moment.
inline constexpr std::chrono::milliseconds longestWaitForFile{2000};

/// Tries once, and then again after pauses that grow, until `attempt` gives true or `limit` is
/// over; the last try is the one at its end. Returns what the last one gave.
bool tryPatiently(WaitingClock& clock, std::chrono::milliseconds limit,
                  const std::function<bool()>& attempt);

}  // namespace ormala
