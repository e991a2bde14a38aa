#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "base/Event.h"
#include "toolkit/win/PanelControls.h"

namespace ormala {

/// Where the controls of panels come from and go to: those that one panel gives back wait here,
/// out of sight, for the next one of its design.
class PanelControlStore : public Window {
  public:
    /// An invisible child of `parent`. `fontSizeChange`, which must outlive it, tells the size of
    /// type of all controls.
    PanelControlStore(HWND parent, Event<int>& fontSizeChange);
    ~PanelControlStore() override;

    /// Hidden controls in the window of a panel. The design must outlive the store.
    [[nodiscard]] std::unique_ptr<PanelControls> take(const PanelDesign& design, HWND panel);
    void giveBack(std::unique_ptr<PanelControls> controls);

    /// Whether more controls wait than the next panel that comes into view may need.
    [[nodiscard]] bool hasTooMany() const;
    /// Destroys some of them.
    void thinOut();

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::vector<std::unique_ptr<PanelControls>> waiting_;
    std::optional<int> fontSize_;
    Subscription fontSizeChange_;
    Subscription languageChange_;
};

}  // namespace ormala
