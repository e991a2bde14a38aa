#pragma once

#include "app/commands.h"

namespace ormala {

/// The control window, as what it shows besides the tools sees it.
class ViewHost {
  public:
    virtual ~ViewHost() = default;

    [[nodiscard]] virtual int GetMode() const = 0;
    virtual void SetMode(int mode, bool minimise) = 0;
    /// A command of the control window's buttons.
    virtual void execute(Command command) = 0;
    virtual void maximiseWorksheet() = 0;
    /// Composes the texts of the control window and its parts anew.
    virtual void RefreshRuntimeStrings() = 0;
};

}  // namespace ormala
