#pragma once

#include <windows.h>

#include <array>
#include <initializer_list>

namespace ormala {

/// Keys that the thread takes for held, for the time of one message.
class HeldKeys {
  public:
    explicit HeldKeys(std::initializer_list<int> keys) {
        GetKeyboardState(former_.data());
        auto state = former_;
        for (const int key : keys) {
            state[static_cast<std::size_t>(key)] = 0x80;
        }
        SetKeyboardState(state.data());
    }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;
    ~HeldKeys() { SetKeyboardState(former_.data()); }

  private:
    std::array<BYTE, 256> former_{};
};

}  // namespace ormala
