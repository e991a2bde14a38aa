#pragma once

#include <atomic>

namespace ormala {

/// Counts the handles of the system that the wrappers hold, so that a leak shows where the system
/// does not tell. It costs next to nothing beside the call that makes a handle.
class HandleCount {
  public:
    /// What the process holds now, and all that it ever took.
    [[nodiscard]] static long held() { return taken_ - closed_; }
    [[nodiscard]] static long taken() { return taken_; }

    static void take() { taken_.fetch_add(1, std::memory_order_relaxed); }
    static void close() { closed_.fetch_add(1, std::memory_order_relaxed); }

  private:
    static inline std::atomic<long> taken_ = 0;
    static inline std::atomic<long> closed_ = 0;
};

}  // namespace ormala
