#pragma once

#include <string>

namespace ormala {

/// The control window while many tools come or go.
class BusyView {
  public:
    virtual ~BusyView() = default;

    /// Hides the list, shows `info` in its place and repaints the window at once; with the
    /// hourglass as mouse pointer if wanted.
    virtual void beginBusy(const std::string& info, bool hourglass) = 0;
    /// Lays the list out and shows it again, without info and with the default pointer.
    virtual void endBusy() = 0;
    virtual void refreshWorksheet() = 0;
    virtual void refreshControlWindow() = 0;
};

/// The busy state of its lifetime.
class BusyScope {
  public:
    BusyScope(BusyView& view, const std::string& info, bool hourglass) : view_(view) {
        view_.beginBusy(info, hourglass);
    }
    ~BusyScope() { view_.endBusy(); }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

  private:
    BusyView& view_;
};

}  // namespace ormala
