#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Documents.h"
#include "app/ViewState.h"
#include "app/settingsLayout.h"
#include "base/Event.h"
#include "toolkit/win/ButtonGrowth.h"
#include "widgets/win/GradShape.h"
#include "widgets/win/Label.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// The buttons above the list in the control window on their ground, the path line and the info
/// line.
class CommandBar {
  public:
    /// Children of `parent`, without places until `layOut`.
    explicit CommandBar(const Window& parent);

    void layOut(const SettingsLayout& layout, int dpi);
    void ApplyLanguage();
    /// Which buttons show, can be pressed and are lit in this mode.
    void showMode(Mode mode, bool worksheetMaxSized);
    void showToggles(const ViewState& state);
    /// Small buttons grow under the mouse; to be called about every 44 ms.
    void growButtons(int dpi) { growth_.tick(dpi); }

    void showPathLine(const PathLine& line);
    /// The width that a path has to fit, in pixels.
    [[nodiscard]] int pathWidth() const;
    /// The width of a text on the path line is measured with this.
    [[nodiscard]] const Label& lblPath() const { return lblPath_; }

    /// Over the panels. Empty for none.
    void showInfo(const std::string& text);
    /// In the place of the path, so that it is seen at every height and hides no panel. Empty for
    /// the path again.
    void showNote(const std::string& text);

    Event<Command> chosen;

  private:
    [[nodiscard]] ZelvikButtonXP& button(Command command) {
        return *buttons_[static_cast<std::size_t>(command)];
    }
    void makeButton(HWND parent, const CommandDesign& design);

    /// Behind all others.
    GradShape gradToolbar_;
    std::vector<std::unique_ptr<ZelvikButtonXP>> buttons_;
    std::vector<Subscription> clicks_;
    ButtonGrowth growth_;
    Label lblPath_;
    Label lblInfo_;
    PixelRect infoPlace_;
    PixelRect pathPlace_;
};

}  // namespace ormala
