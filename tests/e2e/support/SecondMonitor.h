#pragma once

#include "e2e/support/StageService.h"
#include "support/win/ScreenGeometry.h"

namespace ormala::test {

/// The monitor left of the main one, which a stage of two monitors has and can lose. It is there at
/// the object's begin and at its end.
class SecondMonitor {
  public:
    /// Fails the stage if that has one monitor only.
    SecondMonitor();
    ~SecondMonitor();
    SecondMonitor(const SecondMonitor&) = delete;
    SecondMonitor& operator=(const SecondMonitor&) = delete;

    /// Where it lies when it is there: all of it at a negative x.
    [[nodiscard]] const ScreenRect& rect() const { return rect_; }
    [[nodiscard]] static bool isThere();
    /// As if its cable were pulled. Returns when Windows programs are told of one monitor.
    void takeAway();
    void giveBack();

  private:
    void change(bool there);

    StageService stage_;
    /// Never shown. Without a window of its own this process is not told where the pointer's places
    /// begin now.
    HWND listener_;
    ScreenRect rect_;
};

}  // namespace ormala::test
