#include "storage/Patience.h"

#include <algorithm>

namespace ormala {

bool tryPatiently(WaitingClock& clock, std::chrono::milliseconds limit,
                  const std::function<bool()>& attempt) {
    constexpr std::chrono::milliseconds firstPause{5};
    constexpr std::chrono::milliseconds longestPause{100};
    const auto end = clock.now() + limit;
    auto pause = firstPause;
    while (!attempt()) {
        const auto rest = end - clock.now();
        if (rest.count() <= 0) {
            return false;
        }
        clock.pause(std::min(pause, rest));
        pause = std::min(2 * pause, longestPause);
    }
    return true;
}

}  // namespace ormala
