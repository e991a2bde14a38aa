#pragma once

#include <windows.h>

namespace ormala {

/// A timer of a window, which gets WM_TIMER with its number at each tick. It stops at its object's
/// end, and goes with its window.
class Timer {
  public:
    /// Stopped. `number` is another one for each timer of a window.
    explicit Timer(UINT_PTR number) : number_(number) {}
    ~Timer() { stop(); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    /// Anew, if it runs already. `interval` is in milliseconds, 0 for none.
    void start(HWND window, UINT interval);
    void stop() { start(window_, 0); }
    /// The same, but one that has this interval already is let be.
    void keep(HWND window, UINT interval);

    [[nodiscard]] UINT_PTR number() const { return number_; }
    [[nodiscard]] bool isRunning() const { return interval_ != 0; }

    /// No timer of the process ticks until they are told to go on; those that run by then, also by
    /// having been started meanwhile, begin anew.
    static void restAll(bool rest);
    /// How often all running timers of the process wake it up, a second.
    [[nodiscard]] static double wakeUps();

  private:
    struct Clockwork;
    static Clockwork& clockwork();

    HWND window_ = nullptr;
    UINT_PTR number_;
    UINT interval_ = 0;
};

}  // namespace ormala
