#pragma once

#include <windows.h>

namespace ormala {

/// The messages of the thread, as GetMessage gets them, but fair: timers and paintings, which the
/// system brings only when nothing else waits, come in between also while a fast mouse never lets
/// the queue run empty.
class FairMessages {
  public:
    /// Waits for the next one; false for the end of the program, whose code is `message.wParam`.
    bool next(MSG& message);

  private:
    bool takeLate(MSG& message);

    ULONGLONG lastTurn_ = 0;
    int served_ = 0;
};

}  // namespace ormala
