#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Event.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// Buttons of which one is on, or none: a click or an arrow key chooses, and Tab goes to the one
/// that is on. As long as none is on, keys go through them without choosing, until Space does.
class OptionGroup {
  public:
    /// Makes a button for each text, with successive control IDs. They are named "name(0)" and so
    /// on, or from another number on.
    void create(HWND parent, int firstId, std::string_view name,
                const std::vector<std::string>& captions, int firstNumber = 0);

    [[nodiscard]] ZelvikButtonXP& operator[](int index) {
        return *buttons_[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] int size() const { return static_cast<int>(buttons_.size()); }
    /// The index of the button that is on, from 0; one beyond the buttons stays as it was set.
    [[nodiscard]] int selected() const { return selected_; }
    /// Raises no `Change`.
    void select(int index);
    /// At first each has a lamp.
    void setSign(ButtonSign sign);
    /// Where the focus is to go.
    [[nodiscard]] HWND focusTarget() const;

    /// The user has chosen another button.
    Event<> Change;

  private:
    void choose(int index);
    [[nodiscard]] bool hasChoice() const { return selected_ >= 0 && selected_ < size(); }

    std::vector<std::unique_ptr<ZelvikButtonXP>> buttons_;
    int selected_ = -1;
    std::vector<Subscription> choosing_;
};

/// Arrow keys do not go from the controls made before to this one.
void startGroup(HWND child);

/// Gives a button the colours of the dialogs; `on` those of one that is chosen.
void dressButton(ZelvikButtonXP& button, bool on = false);

}  // namespace ormala
