#pragma once

#include <optional>

#include "scene/Mode.h"

namespace ormala {

enum class WindowState { normal, minimised, maximised };

/// The height of the control window: its own in edit mode, short in the other modes. Heights are
/// pixels of its monitor.
class SettingsHeight {
  public:
    /// The height of edit mode while the window stands short, 0 if none was kept.
    [[nodiscard]] int editModeHeight() const { return editModeHeight_; }
    void setEditModeHeight(int height) { editModeHeight_ = height; }

    struct Present {
        WindowState state = WindowState::normal;
        /// Of a minimised window: what it had before and will have again.
        int height = 0;
        int shortHeight = 0;
    };

    /// `AdjustFormHeight`: the height that the window is to take on a change from `formerMode` to
    /// `mode`, nothing if it keeps its own.
    std::optional<int> adjust(Mode mode, Mode formerMode, const Present& present);

    /// The window was sized: true if a change that came while it was minimised is due now.
    bool resized(WindowState state);

    /// The window has come to another resolution: the height that it takes instead of the
    /// `suggested` one, nothing while it is minimised. `former` is how it stood before,
    /// `shortHeight` that of the new resolution.
    std::optional<int> movedToDpi(int formerDpi, int dpi, const Present& former, int suggested,
                                  int shortHeight);

    [[nodiscard]] bool RestoreHeightPending() const { return pending_; }

  private:
    int editModeHeight_ = 0;
    bool pending_ = false;
    /// The mode before the first change that waits.
    std::optional<Mode> pendingFrom_;
    WindowState last_ = WindowState::normal;
};

/// A twip is 1/1440 inch.
int twipsOfPixels(int pixels, int dpi);
int pixelsOfTwips(int twips, int dpi);

}  // namespace ormala
