#pragma once

#include <vector>

#include "toolkit/GrowButtonNearMouse.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// Lets the small buttons of a panel grow under the mouse, for a better aim. The panel keeps the
/// time: while it can be seen it calls `tick` about every 45 ms.
class ButtonGrowth {
  public:
    /// The panel must outlive it.
    explicit ButtonGrowth(const Window& panel) : panel_(panel) {}

    /// The button must outlive it.
    void add(ZelvikButtonXP& button) { entries_.push_back({&button}); }
    /// Nothing is grown while the window takes no input.
    void tick(int dpi);
    [[nodiscard]] bool someGrown() const;
    /// All buttons return to their size at rest.
    void reset(int dpi);

  private:
    struct Entry {
        ZelvikButtonXP* button;
        bool grown = false;
        WindowId grownOver = nullptr;
        /// The control in front of it at rest, which it goes back behind: the Tab key follows that
        /// order.
        HWND before = nullptr;
    };

    [[nodiscard]] bool hasWork(PixelPoint mouse, int dpi) const;
    [[nodiscard]] std::vector<GrowingButton> buttons() const;
    void apply(const GrowthSteps& steps, int dpi);
    static void resize(Entry& entry, bool grown, int dpi);

    const Window& panel_;
    std::vector<Entry> entries_;
};

}  // namespace ormala
