#pragma once

#include "e2e/PanelScene.h"

// Two tools, of which one is selected.

namespace ormala::test {

/// A stencil at the left and one at the right; their centre grips are at (200, 200) and (500, 200).
inline SettingsFile twoStencils() {
    return ToolSet().stencil({100, 100, 300, 300}).stencil({400, 100, 600, 300}).file();
}

/// The ground of a panel tells the selected one.
inline bool looksSelected(const DesktopWindow& panel) {
    constexpr Color selectedGround = 0x4A4A4A;
    return waitUntil([&] {
        // Anew each time: a panel that was just added moves when the list makes room for it.
        const ScreenRect rect = panel.rect();
        return screen::pixel({rect.left + 2, rect.center().y}) == selectedGround;
    });
}

/// A place of a panel that no button grows over.
inline void clickTitle(PanelScene& scene, std::size_t panel) {
    scene.press(PanelScene::control(scene.panel(panel), "lblTitle"));
}

}  // namespace ormala::test
