#pragma once

#include <string_view>

#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// A button in the colours of the dialogs that a click turns on and off.
class CheckButton : public ZelvikButtonXP {
  public:
    CheckButton(HWND parent, int id, std::string_view name);

    [[nodiscard]] bool checked() const { return Value(); }
    /// Raises no `Change`.
    void setChecked(bool checked);

    /// The user has turned it on or off. A handler may destroy it.
    Event<> Change;

  private:
    Subscription toggling_;
};

}  // namespace ormala
