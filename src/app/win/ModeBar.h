#pragma once

#include <windows.h>

#include <optional>

#include "app/settingsLayout.h"
#include "platform/win/handles.h"

namespace ormala {

/// The three modes as a bar, the current one lit, and beneath it what the current mode is for.
/// Painted by the control window that owns it.
class ModeBar {
  public:
    explicit ModeBar(int dpi) { setDpi(dpi); }

    void setDpi(int dpi);
    [[nodiscard]] const SettingsLayout& layout() const { return layout_; }
    void paint(HDC context, const RECT& client, int mode) const;
    /// The mode whose button lies there.
    [[nodiscard]] std::optional<int> modeAt(POINT point) const;

  private:
    void paintButton(HDC context, int index, int mode) const;

    SettingsLayout layout_{96};
    FontHandle font_;
    FontHandle boldFont_;
};

}  // namespace ormala
