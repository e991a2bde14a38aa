#pragma once

#include <windows.h>

#include "app/PanelLayout.h"
#include "app/SettingsHeight.h"
#include "app/settingsLayout.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "platform/win/Window.h"

namespace ormala {

/// The size of the control window: its fixed width, its least height, and the height that a mode
/// gives it. Pixels of its monitor.
class SettingsSize {
  public:
    /// Of a window that must outlive it and has no handle yet.
    explicit SettingsSize(const Window& window) : window_(window) {}

    /// What the controls are laid out for: the resolution of the monitor, times the size of text.
    [[nodiscard]] int dpi() const { return dpi_; }
    [[nodiscard]] SettingsLayout layout() const { return SettingsLayout(dpi_); }

    /// The size and the place of a first start.
    void placeFirst();
    /// The height of edit mode that the last run has kept, in twips, as far as the screen has room
    /// for it below the window's top.
    void restoreEditModeHeight(int twips);
    [[nodiscard]] int editModeFormHeight() const;

    void AdjustFormHeight(Mode mode, Mode former);
    /// The window was sized, as WM_SIZE tells: true if a change of mode that came while it was
    /// minimised is due now.
    bool resized(WPARAM kind);
    void limit(MINMAXINFO& limits) const;
    /// The window has come to another resolution, for which the system suggests a place: the one
    /// that it takes there, nothing while it is minimised.
    std::optional<PixelRect> changeDpi(int frameDpi, const RECT& suggested);
    /// The same for another size of text.
    std::optional<PixelRect> changeTextSize();
    [[nodiscard]] PlaceAcrossDpi& acrossDpi() { return acrossDpi_; }

    /// For the list of panels, which may want another height of the window.
    [[nodiscard]] PanelLayout::Window forPanels(Mode mode) const;
    void takeHeight(int height) const;

  private:
    [[nodiscard]] std::optional<PixelRect> fitted(PixelRect place, int formerDpi,
                                                  const SettingsHeight::Present& former);
    [[nodiscard]] SIZE frame() const;
    [[nodiscard]] SettingsHeight::Present present() const;
    /// Of a minimised window the one that it comes back to.
    [[nodiscard]] PixelRect placeWhenRestored() const;

    const Window& window_;
    PlaceAcrossDpi acrossDpi_;
    /// Of the monitor.
    int frameDpi_ = USER_DEFAULT_SCREEN_DPI;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    SettingsHeight height_;
};

}  // namespace ormala
