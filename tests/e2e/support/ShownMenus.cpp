#include "e2e/support/ShownMenus.h"

#include "e2e/support/Keyboard.h"
#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"
#include "support/win/Wait.h"

namespace ormala::test {

namespace {

constexpr const char* menuClass = "#32768";

}  // namespace

DesktopWindow ShownMenus::wait() const {
    return waitForTopLevel(processId_, menuClass);
}

std::vector<Picture> ShownMenus::look() const {
    std::vector<Picture> pictures;
    for (const DesktopWindow& window : topLevelWindows(processId_, menuClass)) {
        if (window.isVisible()) {
            pictures.push_back(screen::capture(window.rect()));
        }
    }
    return pictures;
}

std::vector<Picture> ShownMenus::lookAtRest() const {
    constexpr milliseconds rest{40};
    std::vector<Picture> last;
    waitUntil([&] {
        last = look();
        pause(rest);
        return look() == last;
    });
    return last;
}

void ShownMenus::press(WORD key) const {
    constexpr int tries = 4;
    constexpr milliseconds patience{1500};
    for (int i = 0; i < tries; ++i) {
        const std::vector<Picture> before = lookAtRest();
        keyboard::press(key);
        if (waitUntil([&] { return look() != before; }, patience)) {
            return;
        }
    }
    throw StageFailure("The menu does not listen to its keys");
}

void ShownMenus::walkDown(int entries) const {
    for (int i = 0; i < entries; ++i) {
        press(VK_DOWN);
    }
}

}  // namespace ormala::test
