#pragma once

#include <string>

#include "scene/ToolControl.h"

namespace ormala {

/// The tip of the grip under the mouse, of whichever tool it is.
class SheetTip {
  public:
    /// Takes 0 from the tool that showed its tip last. Whether there is another text to show now.
    bool show(const OverlayItem& item, TipId tip);
    /// In the language in force; empty without a tip.
    [[nodiscard]] std::string text() const;

  private:
    const OverlayItem* owner_ = nullptr;
    TipId tip_ = 0;
};

}  // namespace ormala
