#pragma once

#include <vector>

#include "worksheet/Sheet.h"

namespace ormala {

/// A window for the sheet, with a switch for what was in front before.
class FakeSheetPort : public SheetPort {
  public:
    /// What `wasInFront` answers; remembering the foreground makes it true.
    bool inFront = true;
    int remembered = 0;
    /// In the order of the requests.
    std::vector<const OverlayItem*> repainted;

    bool wasInFront() const override { return inFront; }
    void rememberForeground() override {
        ++remembered;
        inFront = true;
    }
    void repaintTool(const OverlayItem& item) override { repainted.push_back(&item); }
};

}  // namespace ormala
