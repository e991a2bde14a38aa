#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "e2e/PanelScene.h"

namespace ormala::test {

/// Options for a program that speaks the user's language, on a grid of 40 by 30 pixels.
SettingsFile userOptions();

/// A panel of a scene, read and played in whatever language it speaks.
class ToolPanel {
  public:
    explicit ToolPanel(PanelScene& scene, std::size_t index = 0);

    [[nodiscard]] const DesktopWindow& window() const { return panel_; }
    /// Fails the stage if it is not there.
    [[nodiscard]] DesktopWindow control(std::string_view name) const;
    [[nodiscard]] bool isEnabled(std::string_view name) const { return control(name).isEnabled(); }
    /// Whether a button that stays pressed is pressed now.
    [[nodiscard]] bool isDown(std::string_view name) const;

    /// Clicks a button with the mouse.
    void press(std::string_view name, Modifiers modifiers = Modifiers::None) const;
    /// Goes to a button by the Tab key and presses it by the space bar.
    void pressByKeys(std::string_view name, Modifiers modifiers = Modifiers::None) const;

    /// The first number in a label's text.
    [[nodiscard]] double number(std::string_view label) const;
    /// Waits until it is that.
    [[nodiscard]] testing::AssertionResult shows(std::string_view label, double expected) const;

  private:
    PanelScene& scene_;
    DesktopWindow panel_;
};

/// The window that has the keyboard. It may not exist.
DesktopWindow focusedWindow();

/// Goes to a control of the window in front by the Tab key; fails the stage if it doesn't lead
/// there.
void focusByTab(const DesktopWindow& control);

}  // namespace ormala::test
