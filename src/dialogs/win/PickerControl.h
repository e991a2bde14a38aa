#pragma once

#include "dialogs/MousePicking.h"
#include "widgets/win/PaintedControl.h"

namespace ormala {

/// The base of the controls on which the user picks something with the left button. The window
/// holds the mouse, and has the focus unless told otherwise, from the press on; a release of a
/// button that went down elsewhere tells nothing.
class PickerControl : public PaintedControl {
  public:
    /// Also what screen readers call the control.
    void SetTooltip(const std::string& text) { setTip(text); }

  protected:
    /// `picking` must live as long.
    explicit PickerControl(MousePicking& picking) : picking_(picking) {}

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    /// At first it takes it.
    void setTakesFocus(bool takes) { takesFocus_ = takes; }

  private:
    void tellFacts(AccessibleFacts& facts) const override;
    void hold();
    void press(PixelPoint point);
    void release(PixelPoint point);
    void lose();

    MousePicking& picking_;
    bool holds_ = false;
    bool takesFocus_ = true;
};

}  // namespace ormala
