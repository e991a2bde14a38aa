#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Event.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// Buttons of which one is on: a click or an arrow key chooses, and Tab goes to the one that is on.
class OptionGroup {
  public:
    /// Makes a button for each text, named "name(0)" and so on, with successive control IDs.
    void create(HWND parent, int firstId, std::string_view name,
                const std::vector<std::string>& captions);

    [[nodiscard]] ZelvikButtonXP& operator[](int index) {
        return *buttons_[static_cast<std::size_t>(index)];
    }
    /// The index of the button that is on; one beyond the buttons stays as it was set.
    [[nodiscard]] int selected() const { return selected_; }
    /// Raises no `Change`.
    void select(int index);
    /// Where the focus is to go.
    [[nodiscard]] HWND focusTarget() const;

    /// The user has chosen another button.
    Event<> Change;

  private:
    void choose(int index);

    std::vector<std::unique_ptr<ZelvikButtonXP>> buttons_;
    int selected_ = -1;
    std::vector<Subscription> choosing_;
};

/// Gives a button the colours of the dialogs; `on` those of one that is chosen.
void dressButton(ZelvikButtonXP& button, bool on = false);

}  // namespace ormala
