#pragma once

#include <vector>

#include "app/AutoSave.h"
#include "app/ModeSwitch.h"
#include "app/win/shell/OptionsKeeper.h"
#include "app/win/shell/frmSettings.h"
#include "app/win/tools/ToolsPane.h"
#include "app/win/view/ViewPane.h"
#include "platform/win/LaterTimer.h"
#include "worksheet/win/frmResizer.h"

namespace ormala {

/// The windows and files, as the saving while the program runs sees them.
class AutoSaveStage : private AutoSavePort {
  public:
    struct Parts {
        frmSettings& settings;
        frmResizer& resizer;
        ViewPane& view;
        ToolsPane& tools;
        ViewState& state;
        ModeSwitch& modes;
        OptionsKeeper& options;
    };

    /// All must outlive it.
    explicit AutoSaveStage(const Parts& parts);

    /// The start is over.
    void begin();
    /// All that the options file keeps, as it is now.
    [[nodiscard]] KeptOptions keptOptions() const;

  private:
    [[nodiscard]] bool differs() override;
    bool saveChanges() override;
    [[nodiscard]] bool isHalfDone() const override { return parts_.tools.isBusy(); }
    [[nodiscard]] bool isMouseHeld() const override;
    void runTimer(unsigned milliseconds) override { timer_.start(milliseconds); }
    void later(std::function<void()> call) override { parts_.settings.later(std::move(call)); }
    void tellFailure() override;

    Parts parts_;
    AutoSave autoSave_{*this};
    LaterTimer timer_;
    std::vector<Subscription> subscriptions_;
};

}  // namespace ormala
