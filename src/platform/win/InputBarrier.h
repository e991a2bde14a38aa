#pragma once

#include <windows.h>

#include <vector>

namespace ormala {

/// Keeps the input from all windows of the thread that are shown, but for one, and gives it back to
/// those that had it.
class InputBarrier {
  public:
    explicit InputBarrier(HWND open);
    InputBarrier(const InputBarrier&) = delete;
    InputBarrier& operator=(const InputBarrier&) = delete;
    ~InputBarrier();

  private:
    std::vector<HWND> windows_;
};

}  // namespace ormala
