#pragma once

#include <string>

namespace ormala {

/// Shows messages to the user.
class MessagePresenter {
  public:
    virtual ~MessagePresenter() = default;

    /// Sets the mouse pointer back to the arrow and shows a modal box with the critical-stop icon,
    /// an OK button and the program's title; returns when it is closed.
    virtual void showError(const std::string& text) = 0;
};

}  // namespace ormala
