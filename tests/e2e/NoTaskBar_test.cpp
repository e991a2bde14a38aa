#include <gtest/gtest.h>

#include "e2e/SheetFrame.h"
#include "e2e/support/Device.h"

// A worksheet that fills a screen of which no task bar takes a part.

namespace ormala::test {
namespace {

/// The control window as it looks with nothing over it.
class FullScreen {
  public:
    FullScreen() {
        moveTo(scene.settings(), {1300, 60});
        // Beside the worksheet, so that nothing is over it.
        place(frameOf(scene), {40, 100, 1200, 800});
        scene.stepAside();
        control_ = screen::waitUntilStill(probe(scene.settings()));
        scene.mouse.doubleClick(titleBarOf(scene));
        frameOf(scene).waitUntilHidden();
    }

    /// A part of a window without anything that changes: the upper left corner of its client area.
    static ScreenRect probe(const DesktopWindow& window) {
        const ScreenRect client = window.clientRect();
        return {client.left, client.top, client.left + 4, client.top + 4};
    }
    [[nodiscard]] ScreenPoint aside() const { return scene.onScreen({60, 700}); }

    [[nodiscard]] bool controlWindowIsInFront() const {
        return waitUntil(
            [&] { return difference(screen::capture(probe(scene.settings())), control_).empty(); });
    }
    /// An entry of the system menu: a mode.
    void choose(WPARAM mode) {
        scene.settings().post(WM_SYSCOMMAND, mode);
        const bool edits = mode == editMode;
        EXPECT_TRUE(waitUntil([&] { return scene.settings().text().ends_with("Edit") == edits; }));
        EXPECT_TRUE(
            waitUntil([&] { return scene.worksheet().isVisible() == (mode != pauseMode); }));
    }
    void clickOnSheet() {
        scene.mouse.click(aside());
        screen::waitUntilStill(scene.settings().rect());
    }

    static constexpr WPARAM editMode = 1010;
    static constexpr WPARAM pauseMode = 1012;
    SheetScene scene;

  private:
    Picture control_;
};

TEST(NoTaskBar, WorksheetFillsTheScreenButForARow) {
    FullScreen full;
    ScreenRect wanted = screen::primaryMonitor();
    wanted.bottom -= 1;
    EXPECT_TRUE(waitUntil([&] { return full.scene.worksheet().rect() == wanted; }))
        << full.scene.worksheet().rect();
}

TEST(NoTaskBar, ControlWindowStaysInFrontOfTheWorksheet) {
    FullScreen full;
    EXPECT_TRUE(full.controlWindowIsInFront());
    full.clickOnSheet();
    EXPECT_TRUE(full.controlWindowIsInFront());
    full.scene.settings().activate();
    full.clickOnSheet();
    EXPECT_TRUE(full.controlWindowIsInFront());
    for (const WPARAM mode : std::initializer_list<WPARAM>{1011, 1010, 1012, 1010}) {
        full.choose(mode);
        EXPECT_TRUE(full.controlWindowIsInFront()) << mode;
    }
    full.clickOnSheet();
    EXPECT_TRUE(full.controlWindowIsInFront());
}

TEST(NoTaskBar, ControlWindowStaysInFrontOfAWorksheetThatComesBackOverAnotherProgram) {
    FullScreen full;
    full.clickOnSheet();
    full.choose(FullScreen::pauseMode);
    full.scene.mouse.click(full.aside());
    EXPECT_TRUE(waitUntil([&] { return full.scene.backdrop().window().isForeground(); }));
    full.choose(FullScreen::editMode);
    screen::waitUntilStill(full.scene.settings().rect());
    EXPECT_TRUE(full.controlWindowIsInFront());
}

TEST(NoTaskBar, DialogStaysInFrontOfTheWorksheetThatIsClicked) {
    FullScreen full;
    full.clickOnSheet();
    keyboard::press(VK_F12);
    const DesktopWindow dialog = full.scene.program().waitForWindow("frmOptions");
    full.scene.mouse.moveTo(full.aside());
    const Picture before = screen::waitUntilStill(dialog.clientRect());
    full.clickOnSheet();
    EXPECT_TRUE(difference(screen::waitUntilStill(dialog.clientRect()), before).empty());
    full.scene.mouse.click(dialog.item(IDCANCEL).center());
    dialog.waitUntilHidden();
}

TEST(NoTaskBar, AButtonThatClosesTheMenuLetsGoOfTheMouse) {
    SheetScene scene;
    moveTo(scene.settings(), {1300, 60});
    const DesktopWindow toggle = scene.settings().named("chkGrid");
    Device device;
    const auto openMenu = [&] {
        device.click(scene.onScreen({40, 40}), MouseButton::Right);
        return waitForTopLevel(scene.program().process().id(), "#32768");
    };
    // In the middle of the first line, "Maximized window".
    device.click(openMenu().rect().origin() + ScreenPoint{40, 12});
    frameOf(scene).waitUntilHidden();
    const DesktopWindow popup = openMenu();
    device.click(toggle.center());
    popup.waitUntilHidden();
    device.click(scene.onScreen({60, 700}));
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().isForeground(); }));
    const auto formerState = toggle.send(BM_GETCHECK);
    device.click(toggle.center());
    EXPECT_TRUE(waitUntil([&] { return toggle.send(BM_GETCHECK) != formerState; }));
}

}  // namespace
}  // namespace ormala::test
