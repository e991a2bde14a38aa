#pragma once

#include <optional>

#include "base/Event.h"
#include "stencil/PatternSetting.h"

namespace ormala {

/// What `ctlPatternSelect` shows of its setting.
struct PatternPageLook {
    /// The button that is on, -1 for `optNoPattern`.
    int pattern = -1;
    /// The selected row of `cboRotation`.
    std::optional<int> rotationRow;
    bool rotationEnabled = false;
    bool noPatternVisible = false;

    bool operator==(const PatternPageLook&) const = default;
};

/// The rules of `ctlPatternSelect`: what the user does there changes the one setting that it shows.
class PatternPage {
  public:
    /// The setting must outlive its being edited.
    explicit PatternPage(PatternSetting& setting) : setting_(&setting) {}

    [[nodiscard]] const PatternSetting& Setting() const { return *setting_; }
    void setSetting(PatternSetting& setting) { setting_ = &setting; }
    [[nodiscard]] bool AllowNoSelection() const { return allowNoSelection_; }
    void setAllowNoSelection(bool allow) { allowNoSelection_ = allow; }

    [[nodiscard]] PatternPageLook look() const;

    /// A click on `optPattern(index)`.
    void choosePattern(int index);
    void chooseNoPattern();
    void chooseRotation(int row);

    /// After each change by the user.
    Event<> change;

  private:
    PatternSetting* setting_;
    bool allowNoSelection_ = true;
};

}  // namespace ormala
