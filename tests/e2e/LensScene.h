#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "e2e/PanelScene.h"

namespace ormala::test {

/// Entries of the magnifier's menu, from the top; separators do not count.
enum class LensEntry {
    visible = 1,
    magnification,
    stick,
    cursor,
    hotSpot,
    grid,
    topLeftScales,
    bottomRightScales,
    options,
};

/// What the magnifier is to show of the screen around a cursor.
struct LensView {
    int factor = 1;
    /// The part of the screen that is enlarged.
    ScreenRect source;
    /// The place of the image on the screen.
    ScreenRect image;
};

/// A magnifier over whatever the screen shows.
class LensWindow {
  public:
    explicit LensWindow(DesktopWindow window) : window_(window) {}

    [[nodiscard]] const DesktopWindow& window() const { return window_; }
    [[nodiscard]] DesktopWindow part(std::string_view name) const {
        return PanelScene::control(window_, name);
    }
    /// Puts it there, in its present size, from outside.
    void moveTo(ScreenPoint origin) const;
    /// What is around the cursor, with the image as it lies now.
    [[nodiscard]] LensView view(ScreenPoint cursor, int factor, bool grid = false) const;
    /// Waits until each pixel of the screen is one square of the image, with nothing over it.
    [[nodiscard]] testing::AssertionResult showsScreen(ScreenPoint cursor, int factor) const;

  private:
    DesktopWindow window_;
};

/// The pixels of a picture, each a square of `factor` pixels, with the upper left one at `origin`.
Picture enlarged(const Picture& picture, int factor, ScreenPoint origin);

/// Options of a magnifier of 400 by 380 pixels that shows the screen with nothing over it: no
/// pointer, mark or grid.
SettingsFile bareLens();

/// The program with its magnifier over a backdrop on which each pixel has a colour of its own.
class LensScene {
  public:
    explicit LensScene(const SettingsFile& options);

    /// On the backdrop, away from all windows of the program in pause mode.
    static constexpr ScreenPoint spot{213, 747};

    PanelScene scene;
    LensWindow lens;

    /// Moves the mouse there, and again if a busy display took the pointer back.
    testing::AssertionResult showsScreenAround(ScreenPoint cursor, int factor);
    void restart();
    /// Chooses from the popup menu that is open, or is just coming up.
    void chooseFromMenu(LensEntry entry) const;
    /// By the menu of the magnifier's window.
    void choose(LensEntry entry);
    void chooseFactor(int factor);

  private:
    DesktopWindow openMenu();
};

}  // namespace ormala::test
