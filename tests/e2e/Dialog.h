#pragma once

#include <string>
#include <string_view>

#include "e2e/PanelScene.h"

namespace ormala::test {

/// The name of a control that is one of several: "name(index)".
std::string indexed(std::string_view name, int index);

/// A dialog of a scene's program, played by mouse and keys. Names are those of its controls.
class Dialog {
  public:
    /// Waits until a dialog of that class is shown, and lies in front of what is under it.
    Dialog(PanelScene& scene, std::string_view className);

    [[nodiscard]] const DesktopWindow& window() const { return window_; }
    /// Fails the stage if it is not there.
    [[nodiscard]] DesktopWindow control(std::string_view name) const {
        return PanelScene::control(window_, name);
    }
    /// Whether a button that stays pressed is pressed now.
    [[nodiscard]] bool isOn(std::string_view name) const;
    /// The middle of a list's row.
    [[nodiscard]] ScreenPoint row(std::string_view list, int index) const;

    /// Clicks a control with the mouse.
    void press(std::string_view name) const { scene_.press(control(name)); }
    /// Leaves it by a button.
    void leave(std::string_view name) const;
    /// Leaves it by a key.
    void leaveByKey(WORD key) const;
    void escape() const { leaveByKey(VK_ESCAPE); }
    /// As a user does: goes to the field, and writes over what stands there.
    void enter(std::string_view name, std::string_view text) const;

  private:
    PanelScene& scene_;
    DesktopWindow window_;
};

}  // namespace ormala::test
