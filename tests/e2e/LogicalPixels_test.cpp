#include <gtest/gtest.h>

#include <cmath>

#include "e2e/Dialog.h"
#include "e2e/ToolPanel.h"

// Read-outs in logical pixels, which the user chooses and leaves again in the options.

namespace ormala::test {
namespace {

/// Of the one monitor.
double logical(double pixels) {
    return pixels * USER_DEFAULT_SCREEN_DPI / GetDpiForSystem();
}

void choose(PanelScene& scene) {
    scene.settings().activate();
    keyboard::press(VK_F12);
    const Dialog dialog(scene, "frmOptions");
    dialog.press("chkLogicalPixels");
    dialog.leave("cmdOK");
}

std::string shown(PanelScene& scene, std::size_t panel, const char* label) {
    return ToolPanel(scene, panel).control(label).text();
}

TEST(LogicalPixels, AreShownAtOnceAndLeaveTheFilesAlone) {
    for (const char* const language : {" 9", " 1031"}) {
        SettingsFile options;
        options.set("Options", "Language", language);
        PanelScene scene(ToolSet()
                             .stencil({100, 100, 300, 301})
                             .measure({{400, 400}, {400, 600}}, {{500, 600}, {400, 600}}, true)
                             .file(),
                         options);
        EXPECT_TRUE(shown(scene, 0, "lblSizeWidth").ends_with("= 201 "));
        choose(scene);
        EXPECT_TRUE(ToolPanel(scene, 0).shows("lblSizeWidth", std::round(logical(201) * 10) / 10));
        EXPECT_TRUE(ToolPanel(scene, 0).shows("lblPositionLeft", logical(100)));
        EXPECT_TRUE(shown(scene, 0, "lblPositionLeft").find_first_of(".,") != std::string::npos);
        EXPECT_TRUE(ToolPanel(scene, 1).shows("lblLengthA", std::round(logical(201) * 10) / 10));
        choose(scene);
        EXPECT_TRUE(waitUntil([&] { return shown(scene, 0, "lblSizeWidth").ends_with("= 201 "); }));
        EXPECT_TRUE(ToolPanel(scene, 1).shows("lblLengthA", 201));
        choose(scene);
        scene.restart();
        EXPECT_TRUE(ToolPanel(scene, 0).shows("lblPositionLeft", logical(100)));
        EXPECT_EQ(scene.program().close(), 0U);
        const SettingsFile tools = SettingsFile::read(scene.data().toolsFile());
        EXPECT_EQ(tools.number("Tool 1", "RectBoundRight"), 300);
        EXPECT_EQ(SettingsFile::read(scene.data().optionsFile()).value("Options", "LogicalPixels"),
                  "-1");
    }
}

}  // namespace
}  // namespace ormala::test
