#pragma once

#include <string>
#include <string_view>

#include "e2e/support/DesktopWindow.h"

namespace ormala::test {

/// A message box of a program. Its buttons are IDOK, IDCANCEL, IDYES, IDNO.
class MessageBoxWindow {
  public:
    /// Waits until the process shows a box with this title.
    static MessageBoxWindow waitFor(DWORD processId, std::string_view title,
                                    milliseconds deadline = usualDeadline);
    /// Whether the process shows a box with this title now.
    static bool isShown(DWORD processId, std::string_view title);

    const DesktopWindow& window() const { return window_; }
    /// What the box says.
    std::string text() const;
    bool hasButton(int id) const { return window_.item(id).exists(); }
    /// Answers with the button and waits until the box is gone. Fails the stage without the button.
    void answer(int id) const;

  private:
    explicit MessageBoxWindow(DesktopWindow window) : window_(window) {}

    DesktopWindow window_;
};

}  // namespace ormala::test
