#pragma once

#include <windows.h>

#include <array>

namespace ormala {

/// Lets the program find the system in high contrast, with a black scheme, and tells it so as the
/// system does. At its end all is as it was.
class PlayedContrast {
  public:
    PlayedContrast();
    PlayedContrast(const PlayedContrast&) = delete;
    PlayedContrast& operator=(const PlayedContrast&) = delete;
    ~PlayedContrast();

    /// Tells all top-level windows of the thread.
    static void turn(bool on);

    static constexpr COLORREF ground = RGB(0, 0, 0);
    static constexpr COLORREF text = RGB(255, 255, 255);
    static constexpr COLORREF chosen = RGB(26, 235, 255);
    static constexpr COLORREF grey = RGB(63, 242, 63);
    static constexpr COLORREF link = RGB(255, 255, 0);
    static constexpr std::array all{ground, text, chosen, grey, link};
};

}  // namespace ormala
