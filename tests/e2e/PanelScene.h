#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "e2e/support/Desktop.h"

namespace ormala::test {

/// A set of tools for a file, numbered in the order of adding.
class ToolSet {
  public:
    /// The rectangle's first and last pixels on the worksheet.
    ToolSet& stencil(const ScreenRect& rect);
    struct Line {
        ScreenPoint first;
        ScreenPoint second;
    };
    ToolSet& measure(const Line& a, const Line& b, bool connected, int number = 1);

    [[nodiscard]] const SettingsFile& file() const { return file_; }

  private:
    std::string nextSection();

    SettingsFile file_;
    int count_ = 0;
};

/// Whether it is the panel of a tool in use.
bool isPanel(const DesktopWindow& window);

/// With the user's decimal separator for each point between two digits.
std::string localised(std::string_view text);

/// The program over a backdrop with a set of tools of its last run, played by its panels.
class PanelScene {
  public:
    explicit PanelScene(const SettingsFile& tools, const SettingsFile& options = {},
                        const BackdropLook& look = {BackdropPattern::Solid, 0xFFFFFF});

    [[nodiscard]] const AppDataFolder& data() const { return data_; }
    [[nodiscard]] const Backdrop& backdrop() const { return backdrop_; }
    [[nodiscard]] ShownMenus menus() const { return ShownMenus(program_->process().id()); }
    [[nodiscard]] Program& program() { return *program_; }
    [[nodiscard]] DesktopWindow worksheet() const { return program_->worksheet(); }
    [[nodiscard]] DesktopWindow settings() const { return program_->settings(); }
    /// Ends the program and starts it again on the same profile.
    void restart();
    /// Starts it on the same profile after its end.
    void startAgain();

    Mouse mouse;

    /// A worksheet pixel on the screen.
    [[nodiscard]] ScreenPoint onScreen(ScreenPoint sheet) const;

    /// The panels in use from top to bottom.
    [[nodiscard]] std::vector<DesktopWindow> panels() const;
    /// One of them; fails the stage if it is not there.
    [[nodiscard]] DesktopWindow panel(std::size_t index) const;
    /// A control of the control window or of a panel in it, which is scrolled into view if it has
    /// no controls where it is; fails the stage if it is not there.
    [[nodiscard]] DesktopWindow control(std::string_view name) const;
    static DesktopWindow control(const DesktopWindow& panel, std::string_view name);
    /// Turns the wheel over the list until the panel shows: only near that it has its controls.
    static void scrollIntoView(const DesktopWindow& panel);
    /// The same until a control of a panel shows; nothing for any other control.
    static void bringIntoSight(const DesktopWindow& control);
    [[nodiscard]] bool waitForPanels(std::size_t count) const;
    /// Whether a panel's control says that in the end. A point between digits stands for the user's
    /// decimal separator.
    static bool says(const DesktopWindow& panel, std::string_view name, std::string_view text);

    /// Clicks a control with the mouse.
    void press(const DesktopWindow& control);
    void press(std::string_view name) { press(control(name)); }
    /// Takes a control's command without the mouse, for runs of many.
    static void choose(const DesktopWindow& control) { control.post(BM_CLICK); }

    /// Answers the program's file dialog with a path.
    void answerFileDialog(std::string_view title, const std::filesystem::path& path);
    /// Puts a path into the name field of the shown dialog and presses its button.
    static void typeFileName(const DesktopWindow& dialog, const std::filesystem::path& path);
    /// Leaves it without one.
    void cancelFileDialog(std::string_view title);

  private:
    void start();
    /// In the course of the start the worksheet may have come to lie in front of it.
    void bringControlWindowForward() const;

    Backdrop backdrop_;
    AppDataFolder data_;
    std::unique_ptr<Program> program_;
};

}  // namespace ormala::test
