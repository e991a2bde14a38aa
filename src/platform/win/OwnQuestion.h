#pragma once

#include <windows.h>

namespace ormala {

/// A question that one part of the program sends to a window of its own, as a message with a
/// pointer: while it lives, and only then, the pointer is one that can be followed. Any other
/// program can send the same message with any number in it.
class OwnQuestion {
  public:
    explicit OwnQuestion(const void* asked);
    ~OwnQuestion();
    OwnQuestion(const OwnQuestion&) = delete;
    OwnQuestion& operator=(const OwnQuestion&) = delete;

    [[nodiscard]] LPARAM parameter() const { return reinterpret_cast<LPARAM>(asked_); }

    /// Whether a message is such a question, but none of the program's.
    static bool isForged(UINT message, LPARAM lParam);

  private:
    const void* asked_;
};

/// What is sent with such a pointer.
inline constexpr UINT accessibleFactsMessage = WM_USER + 0x300;
inline constexpr UINT accessiblePartsMessage = WM_USER + 0x301;

}  // namespace ormala
