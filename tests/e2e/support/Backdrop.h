#pragma once

#include <functional>
#include <memory>
#include <string>

#include "e2e/backdrop/BackdropLook.h"
#include "e2e/backdrop/BackdropReport.h"
#include "e2e/support/DesktopWindow.h"
#include "support/win/ChildProcess.h"
#include "support/win/Picture.h"

namespace ormala::test {

/// What the backdrop does besides lying there, if the text (without quotes) is not empty.
struct BackdropOptions {
    /// A tip that comes when the mouse rests on the backdrop.
    std::string tip;
    /// A yes-or-no question, asked in a message box with the title "Backdrop".
    std::string question;
};

/// A running backdrop program: a window over the main monitor but its last row, in known colours,
/// behind all topmost windows. At the object's end a plain one without options stays for the next
/// object, which takes a third of a second less than a start; any other is closed.
class Backdrop {
  public:
    /// Returns when the backdrop is on the screen.
    explicit Backdrop(const BackdropLook& look, const BackdropOptions& options = {});
    ~Backdrop();
    Backdrop(const Backdrop&) = delete;
    Backdrop& operator=(const Backdrop&) = delete;

    const ChildProcess& process() const { return *process_; }
    const DesktopWindow& window() const { return window_; }
    ScreenRect rect() const { return window_.rect(); }

    /// The colour that the backdrop has at a place of the screen.
    Color colorAt(ScreenPoint point) const;
    /// The backdrop's own picture of a part of the screen, with nothing over it.
    Picture picture(const ScreenRect& rect) const;

    /// What has reached it so far.
    BackdropReport report() const;
    /// Sets all counts to 0.
    void reset() const;
    /// Waits until the report is as wanted and returns it; fails the stage at the deadline.
    BackdropReport waitFor(const std::string& what,
                           const std::function<bool(const BackdropReport&)>& wanted,
                           milliseconds deadline = usualDeadline) const;

    /// Ends it; true if it has ended with exit code 0.
    bool close();

  private:
    /// Whether the one that was left behind serves here.
    bool takeOver();
    void startAnew(const BackdropOptions& options);

    BackdropLook look_;
    bool plain_;
    std::unique_ptr<ChildProcess> process_;
    DesktopWindow window_;
    /// At its start.
    ScreenRect place_;
};

}  // namespace ormala::test
