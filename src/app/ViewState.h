#pragma once

#include <optional>
#include <utility>

#include "app/Options.h"
#include "base/Event.h"
#include "dialogs/OptionValues.h"
#include "scene/Command.h"
#include "scene/ToolSettings.h"
#include "scene/dpi.h"

namespace ormala {

/// What the user has set of the program: the one place of every option. Who shows an option reads
/// it here and subscribes to `changed`.
class ViewState {
  public:
    explicit ViewState(Options options = {}) : options_(std::move(options)) { countPixels(); }
    ViewState(const ViewState&) = delete;
    ViewState& operator=(const ViewState&) = delete;

    [[nodiscard]] const Options& options() const { return options_; }
    /// What of it all tools read.
    [[nodiscard]] ToolSettings& toolSettings() { return toolSettings_; }

    /// `change` gets the options and changes some of them.
    template <typename Change>
    void set(Change&& change) {
        change(options_);
        countPixels();
        changed.raise();
    }
    /// Of the switch of modes alone, which tells who has to know.
    void setMode(Mode mode) { options_.mode = mode; }

    /// Does what a command wants of the options: turns one on or off, or chooses a magnification.
    /// False for any other command.
    bool execute(Command command);
    /// Whether the command's option is on; nothing for a command that is no toggle.
    [[nodiscard]] std::optional<bool> isOn(Command command) const;

    /// What the options dialog shows of it, and back.
    [[nodiscard]] OptionValues values() const;
    void apply(const OptionValues& values);

    /// The resolution of the worksheet's monitor, 96 at first.
    void setWorksheetDpi(int dpi);

    /// The read-outs of the tools count pixels in another way from now on.
    Event<> countChanged;
    /// After each setting, also to what was there already.
    Event<> changed;

  private:
    void countPixels();

    Options options_;
    int worksheetDpi_ = designDpi;
    ToolSettings toolSettings_{options_.aids.grid.steps, options_.showReferenceLines, {}};
};

}  // namespace ormala
