#pragma once

#include <windows.h>

#include "worksheet/SheetNews.h"

namespace ormala {

/// Tells screen readers what has happened to the tools, once for all that happens in a row.
class SheetTeller {
  public:
    /// The parts must outlive it.
    explicit SheetTeller(const AccessibleParts& parts) : news_(parts) {}

    /// Sent to the window when it is time to tell.
    static constexpr UINT timeToTell = WM_APP + 1;

    /// Something may have changed. Costs next to nothing as long as nobody listens.
    void later(HWND window);
    void tell(HWND window);
    void windowGotFocus() { news_.windowGotFocus(); }

  private:
    SheetNews news_;
    bool due_ = false;
};

}  // namespace ormala
