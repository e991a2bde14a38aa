#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "e2e/Dialog.h"
#include "e2e/ToolPanel.h"
#include "e2e/withKeys.h"

// Everything is reached and pressed by keys alone.

namespace ormala::test {
namespace {

testing::AssertionResult hasFocus(const DesktopWindow& control) {
    if (waitUntil([&] { return focusedWindow() == control; })) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "The focus is on '" << focusedWindow().name() << "'";
}

/// Presses a key that moves the focus; false if it stays where it is.
bool moves(WORD key, Modifiers modifiers = Modifiers::None) {
    const DesktopWindow former = focusedWindow();
    keyboard::press(key, modifiers);
    return waitUntil([&] { return focusedWindow() != former; }, milliseconds(300));
}

/// A control that is there to be used: all that the program paints but texts and grounds, and the
/// system's own.
bool isUsed(const DesktopWindow& control) {
    constexpr std::array classes{"ZelvikButtonXP", "ctlSlider",      "ColorPic", "LinkLabel",
                                 "ctlLineSelect",  "TextBoxNumeric", "Edit",     "ComboField",
                                 "ComboBox",       "ListBox",        "Button"};
    const std::string name = control.className();
    const bool isFrame = name == "Button" && control.hasStyle(BS_GROUPBOX);
    return control.isVisible() && control.isEnabled() && !isFrame &&
           std::ranges::find(classes, name) != classes.end();
}

/// What a walk by keys comes to in a window: by Tab from control to control, and back to where it
/// began. Each button on the way is pressed down by the space bar, and let go elsewhere, so that
/// nothing is done.
class Walk {
  public:
    /// In a dialog Tab goes to one of several buttons that exclude each other, and the arrow keys
    /// to the others.
    Walk(DesktopWindow window, bool isDialog) : window_(window) {
        const DesktopWindow first = focusedWindow();
        do {
            note();
            if (isDialog) {
                roundTheGroup();
            }
        } while (pressAndLeave() && focusedWindow() != first && ++steps_ < 150);
    }
    /// Goes on from each button to those beside it, until no new one comes.
    void alongArrows() {
        for (const DesktopWindow& each : window_.descendants()) {
            if (isUsed(each) && !reached_.contains(each.handle())) {
                for (const WORD key : {WORD{VK_UP}, WORD{VK_LEFT}, WORD{VK_RIGHT}, WORD{VK_DOWN}}) {
                    toNeighbourOf(each, key);
                }
            }
        }
    }
    [[nodiscard]] std::string missing() const {
        std::string names;
        for (const DesktopWindow& each : window_.descendants()) {
            if (isUsed(each) && !reached_.contains(each.handle())) {
                names += each.className() + " " + each.name() + "; ";
            }
        }
        return names;
    }
    [[nodiscard]] std::size_t count() const { return reached_.size(); }
    /// The names of buttons that the space bar does not press.
    [[nodiscard]] const std::string& dead() const { return dead_; }

  private:
    bool pressAndLeave() {
        const DesktopWindow button = focusedWindow();
        if (button.className() != "ZelvikButtonXP") {
            return moves(VK_TAB);
        }
        keyboard::down(VK_SPACE);
        if (!waitUntil([&] { return (button.send(BM_GETSTATE).value_or(0) & BST_PUSHED) != 0; })) {
            dead_ += button.name() + "; ";
        }
        const bool left = moves(VK_TAB);
        keyboard::up(VK_SPACE);
        return left;
    }
    void note() {
        const DesktopWindow now = focusedWindow();
        reached_.insert(now.handle());
    }
    void roundTheGroup() {
        const DesktopWindow first = focusedWindow();
        if (first.className() != "ZelvikButtonXP" || !first.name().ends_with(")")) {
            return;
        }
        while (moves(VK_DOWN) && focusedWindow() != first) {
            note();
        }
    }
    void toNeighbourOf(const DesktopWindow& wanted, WORD key) {
        // From the button of the panel that lies on the other side of it.
        for (const HWND from : std::set<HWND>(reached_)) {
            const DesktopWindow button(from);
            if (GetParent(from) != GetParent(wanted.handle()) ||
                button.className() != "ZelvikButtonXP" || !liesBeside(button, wanted, key)) {
                continue;
            }
            focusByTab(button);
            if (moves(key)) {
                note();
            }
            return;
        }
    }
    static bool liesBeside(const DesktopWindow& from, const DesktopWindow& to, WORD key) {
        const ScreenRect a = from.rect();
        const ScreenRect b = to.rect();
        const bool sameRow = a.top < b.bottom && b.top < a.bottom;
        return (key == VK_LEFT && sameRow && b.right <= a.left) ||
               (key == VK_UP && !sameRow && b.bottom <= a.top && b.left < a.right &&
                a.left < b.right);
    }

    DesktopWindow window_;
    std::set<HWND> reached_;
    std::string dead_;
    int steps_ = 0;
};

/// That a button of a panel lies in; null for any other control.
HWND listOf(const DesktopWindow& button) {
    const HWND panel = GetParent(GetParent(button.handle()));
    return GetParent(panel);
}

SettingsFile bothTools() {
    return ToolSet()
        .stencil({100, 100, 300, 233})
        .measure({{400, 300}, {499, 300}}, {{400, 360}, {449, 360}}, false, 1)
        .file();
}

TEST(KeyboardOnly, EveryControlOfTheControlWindowAndOfItsPanelsIsReached) {
    PanelScene scene(bothTools());
    scene.settings().activate();
    ASSERT_TRUE(moves(VK_TAB));
    Walk walk(scene.settings(), false);
    EXPECT_EQ(walk.dead(), "");
    walk.alongArrows();
    EXPECT_EQ(walk.missing(), "");
    EXPECT_GT(walk.count(), 60U);
}

TEST(KeyboardOnly, EveryButtonOfThePanelsIsPressedAndShowsItsFocus) {
    PanelScene scene(bothTools(), withKeys({{"Language", " 1031"}}));
    scene.settings().activate();
    focusByTab(PanelScene::control(scene.panel(0), "cmdPause"));
    const DesktopWindow first = focusedWindow();
    int pressed = 0;
    do {
        const DesktopWindow button = focusedWindow();
        const ScreenRect place = button.rect();
        const Picture with = screen::waitUntilStill(place, milliseconds(20));
        keyboard::down(VK_SPACE);
        const bool down =
            waitUntil([&] { return (button.send(BM_GETSTATE).value_or(0) & BST_PUSHED) != 0; });
        EXPECT_TRUE(down) << button.name();
        pressed += down ? 1 : 0;
        // Let go elsewhere, so that nothing is done but the steps of those that step.
        ASSERT_TRUE(moves(VK_TAB));
        keyboard::up(VK_SPACE);
        if (button.rect() == place) {
            EXPECT_FALSE(difference(screen::waitUntilStill(place, milliseconds(20)), with).empty())
                << button.name() << " looks with the focus as without it";
        }
    } while (listOf(focusedWindow()) == listOf(first) && pressed < 100);
    EXPECT_GT(pressed, 40);
}

TEST(KeyboardOnly, F6GoesRoundThePartsAndBack) {
    PanelScene scene(bothTools(), withKeys({{"LensVisible", "-1"}}));
    const DesktopWindow lens = scene.program().window("frmLens");
    scene.settings().activate();
    focusByTab(scene.control("cmdOptions"));
    keyboard::press(VK_F6);
    // The tool that was loaded last is the selected one.
    EXPECT_TRUE(hasFocus(PanelScene::control(scene.panel(1), "cmdPause")));
    keyboard::press(VK_PRIOR, Modifiers::Ctrl);
    EXPECT_TRUE(hasFocus(PanelScene::control(scene.panel(0), "cmdPause")));
    keyboard::press(VK_F6);
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().isForeground(); }));
    keyboard::press(VK_RIGHT);
    EXPECT_TRUE(PanelScene::says(scene.panel(0), "lblPositionLeft", "left = 101 "));
    keyboard::press(VK_F6);
    EXPECT_TRUE(waitUntil([&] { return lens.isForeground(); }));
    keyboard::press(VK_F6);
    EXPECT_TRUE(hasFocus(scene.control("btnMode(0)")));
    for (const DesktopWindow& back : {lens, scene.worksheet(), scene.settings()}) {
        keyboard::press(VK_F6, Modifiers::Shift);
        EXPECT_TRUE(waitUntil([&] { return back.isForeground(); }));
    }
    EXPECT_TRUE(hasFocus(PanelScene::control(scene.panel(0), "cmdPause")));
    keyboard::press(VK_F4);
    scene.settings().waitForText("Ormala - Template");
    // Neither panels nor a worksheet that takes keys.
    focusByTab(scene.control("cmdOptions"));
    keyboard::press(VK_F6);
    EXPECT_TRUE(waitUntil([&] { return lens.isForeground(); }));
    keyboard::press(VK_APPS);
    EXPECT_TRUE(scene.menus().wait().isVisible());
    keyboard::press(VK_ESCAPE);
}

TEST(KeyboardOnly, PageKeysGoFromPanelToPanelAndArrowsFromButtonToButton) {
    ToolSet set;
    for (int i = 0; i < 6; ++i) {
        set.stencil({100, 100, 300 + 10 * i, 233});
    }
    PanelScene scene(set.file());
    scene.settings().activate();
    keyboard::press(VK_F6, Modifiers::Shift);
    EXPECT_TRUE(hasFocus(scene.control("btnMode(0)")));
    keyboard::press(VK_NEXT, Modifiers::Ctrl);
    // That of the selected tool.
    const auto heads = [&](std::size_t panel) {
        return PanelScene::control(scene.panel(panel), "cmdPause");
    };
    std::size_t at = 0;
    EXPECT_TRUE(waitUntil([&] {
        for (at = 0; at < 6 && focusedWindow() != heads(at);) {
            ++at;
        }
        return at < 6;
    }));
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(hasFocus(heads(at))) << at;
        // Scrolled into sight.
        const ScreenRect list = scene.control("picOuter").rect();
        EXPECT_TRUE(waitUntil([&] { return list.contains(heads(at).center()); })) << at;
        keyboard::press(VK_NEXT, Modifiers::Ctrl);
        at = (at + 1) % 6;
    }
    keyboard::press(VK_PRIOR, Modifiers::Ctrl);
    const DesktopWindow last = scene.panel((at + 5) % 6);
    EXPECT_TRUE(hasFocus(PanelScene::control(last, "cmdPause")));
    const auto arrow = [&](WORD key, const char* name) {
        keyboard::press(key);
        EXPECT_TRUE(hasFocus(PanelScene::control(last, name))) << name;
    };
    // Undo is dimmed, and so is redo.
    arrow(VK_RIGHT, "cmdDelete");
    arrow(VK_DOWN, "cmdMove(3)");
    arrow(VK_LEFT, "cmdMove(2)");
    arrow(VK_LEFT, "cmdMove(1)");
    arrow(VK_DOWN, "cmdMove(13)");
    const std::string before = PanelScene::control(last, "lblSizeWidth").text();
    keyboard::press(VK_SPACE);
    EXPECT_TRUE(
        waitUntil([&] { return PanelScene::control(last, "lblSizeWidth").text() != before; }));
    // A slider has its own use of them.
    keyboard::press(VK_F6, Modifiers::Shift);
    EXPECT_TRUE(hasFocus(scene.control("btnMode(0)")));
    focusByTab(scene.control("sldTransEditMode"));
    keyboard::press(VK_RIGHT);
    EXPECT_TRUE(waitUntil([&] { return scene.control("sldTransEditMode").text() == "Edit: 26"; }));
    EXPECT_TRUE(hasFocus(scene.control("sldTransEditMode")));
}

/// A dialog and the button of a panel that opens it.
struct Opener {
    std::size_t panel;
    const char* button;
    const char* dialog;
};

constexpr Opener openers[] = {
    {0, "cmdSelectPattern", "frmPatternSelect"},
    {0, "cmdColor", "frmColor"},
    {0, "cmdLineStyle", "frmLineStyle"},
    {0, "cmdEditRatio", "frmRatio"},
    {1, "cmdUnits", "frmUnit"},
};

/// Some dialogs give the focus to their first control only when they have settled.
void waitForFirstFocus() {
    waitUntil([] {
        const DesktopWindow before = focusedWindow();
        pause(milliseconds(400));
        return focusedWindow() == before;
    });
}

void expectAllReached(const DesktopWindow& dialog) {
    waitForFirstFocus();
    const Walk walk(dialog, true);
    EXPECT_EQ(walk.missing(), "") << dialog.className();
    EXPECT_EQ(walk.dead(), "") << dialog.className();
}

TEST(KeyboardOnly, EveryControlOfEveryDialogIsReachedAndItsButtonsArePressed) {
    PanelScene scene(bothTools());
    scene.settings().activate();
    for (const Opener& opener : openers) {
        focusByTab(PanelScene::control(scene.panel(opener.panel), opener.button));
        keyboard::press(VK_SPACE);
        const Dialog dialog(scene, opener.dialog);
        expectAllReached(dialog.window());
        dialog.escape();
    }
    keyboard::press(VK_F12);
    const Dialog options(scene, "frmOptions");
    focusByTab(options.control("btnTab(0)"));
    for (int page = 0; page < 3; ++page) {
        EXPECT_TRUE(hasFocus(options.control(indexed("btnTab", page))));
        expectAllReached(options.window());
        keyboard::press(VK_RIGHT);
    }
    focusByTab(options.control("cmdAbout"));
    keyboard::press(VK_SPACE);
    const Dialog about(scene, "frmAbout");
    expectAllReached(about.window());
    about.escape();
    options.escape();
}

}  // namespace
}  // namespace ormala::test
