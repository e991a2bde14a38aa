#pragma once

#include "platform/win/StandardControl.h"

namespace ormala {

/// A frame with a caption around controls that belong together. It is made after them, so that it
/// lies beneath.
class GroupBox : public StandardControl {
  public:
    ~GroupBox() override { destroy(); }

    /// The caption begins and ends with a blank.
    void create(HWND parent, int id, std::string_view name, std::string_view caption);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT onPaint();
};

}  // namespace ormala
