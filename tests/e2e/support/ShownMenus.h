#pragma once

#include <windows.h>

#include <vector>

#include "e2e/support/DesktopWindow.h"
#include "support/win/Picture.h"

namespace ormala::test {

/// The popup menus that a process shows, with their submenus. A key that comes before a menu
/// listens is lost, so that each one is seen to do something, and pressed again if it does nothing.
class ShownMenus {
  public:
    explicit ShownMenus(DWORD processId) : processId_(processId) {}

    /// Waits until there is a menu.
    [[nodiscard]] DesktopWindow wait() const;
    /// One of the arrow keys. Fails the stage if the menus go on looking as they did.
    void press(WORD key) const;
    /// So many entries down. Separators do not count.
    void walkDown(int entries) const;

  private:
    [[nodiscard]] std::vector<Picture> look() const;
    [[nodiscard]] std::vector<Picture> lookAtRest() const;

    DWORD processId_;
};

}  // namespace ormala::test
