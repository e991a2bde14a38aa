#pragma once

#include <windows.h>

#include <cstdint>

#include "storage/Patience.h"

namespace ormala {

/// The computer's time.
class SystemClock : public WaitingClock {
  public:
    std::chrono::milliseconds now() override {
        return std::chrono::milliseconds(static_cast<std::int64_t>(GetTickCount64()));
    }
    void pause(std::chrono::milliseconds length) override {
        Sleep(static_cast<DWORD>(length.count()));
    }
};

}  // namespace ormala
