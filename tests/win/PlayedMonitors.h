#pragma once

#include <windows.h>

#include <map>

namespace ormala {

/// Plays that the right half of the screen is a monitor of another resolution: tells the program's
/// large windows of it as the system does, from within the call that brings them there. One at a
/// time.
class PlayedMonitors {
  public:
    enum class Told { atOnce, whenShown };

    /// `told`: when a hidden window hears of it.
    PlayedMonitors(int rightDpi, Told told);
    PlayedMonitors(const PlayedMonitors&) = delete;
    PlayedMonitors& operator=(const PlayedMonitors&) = delete;
    ~PlayedMonitors();

    /// How often a window was told.
    [[nodiscard]] int count() const { return count_; }
    /// The left edge of the right half.
    [[nodiscard]] static int middle() { return GetSystemMetrics(SM_CXSCREEN) / 2; }

  private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);
    void placed(HWND window);

    static PlayedMonitors* present_;
    int rightDpi_;
    Told told_;
    HHOOK hook_;
    std::map<HWND, int> dpis_;
    int count_ = 0;
};

/// Tells a window that it has come to another resolution, with the place that the system suggests.
void tellResolution(HWND window, int formerDpi, int dpi);

}  // namespace ormala
