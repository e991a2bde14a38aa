#include <gtest/gtest.h>

#include <string>

#include "e2e/PanelScene.h"
#include "e2e/clickToFront.h"
#include "e2e/support/Clipboard.h"

// The screen shot on the clipboard, pasted by another program.

namespace ormala::test {
namespace {

SettingsFile options(std::initializer_list<std::pair<const char*, const char*>> keys = {}) {
    SettingsFile file;
    for (const auto& [key, value] : keys) {
        file.set("Options", key, value);
    }
    return file;
}

void expectSame(const Picture& pasted, const Picture& seen) {
    const Difference found = difference(pasted, seen);
    EXPECT_TRUE(found.empty()) << found;
}

class Shot {
  public:
    explicit Shot(const SettingsFile& options)
        : scene(ToolSet().stencil({100, 100, 300, 300}).file(), options,
                {BackdropPattern::Points, 0}) {
        clipboard::clear();
    }

    /// Takes a shot and pastes it.
    Picture take() const {
        PanelScene::choose(scene.control("cmdScreenshot"));
        std::optional<Picture> pasted;
        EXPECT_TRUE(waitUntil([&] {
            pasted = clipboard::picture(scene.worksheet().rect().origin());
            return pasted.has_value();
        }));
        return pasted.value_or(Picture());
    }

    /// Where the control window covers a part of the worksheet, or where it covers none.
    void putControlWindow(bool overWorksheet) const {
        const ScreenRect sheet = scene.worksheet().rect();
        const int left = overWorksheet ? sheet.left + 40 : screen::primaryMonitor().right - 60;
        SetWindowPos(scene.settings().handle(), nullptr, left, sheet.top + 20, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        EXPECT_TRUE(waitUntil([&] { return scene.settings().rect().left == left; }));
    }

    /// What a user sees of the worksheet without the program's other windows.
    Picture seen() const {
        putControlWindow(false);
        return screen::waitUntilStill(scene.worksheet().rect());
    }

    /// What a user sees of the worksheet before a shot: the reference for it, and for the screen
    /// afterwards. The control window has the keyboard.
    Picture seenBefore() const {
        scene.settings().activate();
        return seen();
    }

    [[nodiscard]] bool says(std::string_view note) const {
        const DesktopWindow info = scene.control("lblInfo");
        return waitUntil([&] { return info.isVisible() && info.text() == note; });
    }

    PanelScene scene;
};

std::string sizeOf(const ScreenRect& rect) {
    return std::to_string(rect.width()) + " x " + std::to_string(rect.height());
}

TEST(ScreenShot, EqualsTheScreenInsideTheWorksheet) {
    Shot shot(options());
    const Picture before = shot.seenBefore();
    shot.putControlWindow(true);
    const ScreenRect place = shot.scene.settings().rect();
    const Picture pasted = shot.take();
    EXPECT_EQ(shot.scene.settings().rect(), place);
    expectSame(pasted, before);
}

TEST(ScreenShot, ChangesNothingOfWhatIsShownAndLeavesTheKeyboardWhereItWas) {
    Shot shot(options());
    const Picture before = shot.seenBefore();
    ASSERT_TRUE(shot.scene.settings().isForeground());
    shot.take();
    expectSame(screen::waitUntilStill(shot.scene.worksheet().rect()), before);
    EXPECT_TRUE(shot.scene.settings().isForeground());
}

TEST(ScreenShot, TakenWhileTheWorksheetHasTheKeyboardShowsItsToolWithTheFocus) {
    Shot shot(options());
    ASSERT_TRUE(
        clickToFront(shot.scene.mouse, shot.scene.worksheet(), shot.scene.onScreen({200, 200})));
    shot.scene.mouse.moveTo(shot.scene.onScreen({20, 20}));
    const Picture before = shot.seen();
    const Picture pasted = shot.take();
    expectSame(pasted, before);
    expectSame(screen::waitUntilStill(shot.scene.worksheet().rect()), before);
}

TEST(ScreenShot, TellsWhatItHasCopied) {
    Shot shot(options());
    const std::string size = sizeOf(shot.scene.worksheet().rect());
    shot.take();
    EXPECT_TRUE(shot.says(size + " pixels copied to the clipboard"));
    // The path comes back in its place.
    shot.scene.control("lblInfo").waitUntilHidden();
    EXPECT_TRUE(shot.scene.control("lblPath").isVisible());
}

TEST(ScreenShot, TellsWhatItHasCopiedInGermanAndInTheShortWindow) {
    Shot shot(options({{"Language", " 1031"}, {"Mode", " 1"}}));
    const std::string size = sizeOf(shot.scene.worksheet().rect());
    shot.take();
    EXPECT_TRUE(shot.says(size + " Pixel in die Zwischenablage kopiert"));
    const ScreenRect info = shot.scene.control("lblInfo").rect();
    EXPECT_LE(info.bottom, shot.scene.settings().clientRect().bottom);
}

TEST(ScreenShot, WaitsForAClipboardThatAnotherProgramHoldsForAMoment) {
    Shot shot(options());
    const std::string size = sizeOf(shot.scene.worksheet().rect());
    {
        const clipboard::Held held;
        PanelScene::choose(shot.scene.control("cmdScreenshot"));
        shot.scene.settings().settle();
    }
    EXPECT_TRUE(shot.says(size + " pixels copied to the clipboard"));
    EXPECT_TRUE(clipboard::picture({0, 0}).has_value());
}

TEST(ScreenShot, TellsThatAnotherProgramHoldsTheClipboard) {
    Shot shot(options());
    {
        const clipboard::Held held;
        PanelScene::choose(shot.scene.control("cmdScreenshot"));
        EXPECT_TRUE(shot.says("The clipboard is in use by another program."));
    }
    EXPECT_FALSE(clipboard::picture({0, 0}).has_value());
    shot.take();
}

TEST(ScreenShot, HoldsWhatShinesThroughInTemplateMode) {
    Shot shot(options({{"Mode", " 1"}}));
    const Picture before = shot.seenBefore();
    const Picture pasted = shot.take();
    const ScreenRect sheet = shot.scene.worksheet().rect();
    const ScreenPoint corner = sheet.origin() + ScreenPoint{5, 5};
    EXPECT_EQ(pasted.at(corner), shot.scene.backdrop().colorAt(corner));
    expectSame(pasted, before);
}

TEST(ScreenShot, LeavesTheCrossHairAndTheMagnifierOut) {
    Shot shot(options({{"CrossHairEnabled", "-1"}, {"LensVisible", "-1"}}));
    const DesktopWindow lens = shot.scene.program().waitForWindow("frmLens");
    const ScreenRect sheet = shot.scene.worksheet().rect();
    SetWindowPos(lens.handle(), nullptr, sheet.left + 200, sheet.top + 30, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    // Inside, where both lines of the cross hair stand.
    shot.scene.mouse.moveTo(sheet.origin() + ScreenPoint{60, 60});
    const Picture pasted = shot.take();
    EXPECT_TRUE(lens.isVisible());
    EXPECT_EQ(shot.scene.control("chkLens").send(BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(shot.scene.control("chkCrossHair").send(BM_GETCHECK), BST_CHECKED);
    EXPECT_TRUE(shot.scene.program().window("frmCrossHair").isVisible());
    PanelScene::choose(shot.scene.control("chkLens"));
    PanelScene::choose(shot.scene.control("chkCrossHair"));
    lens.waitUntilHidden();
    expectSame(pasted, shot.seen());
}

TEST(ScreenShot, OfAMinimisedControlWindowLeavesItsPlaceAlone) {
    Shot shot(options());
    const ScreenRect place = shot.scene.settings().rect();
    // The worksheet has the keyboard then.
    ShowWindow(shot.scene.settings().handle(), SW_MINIMIZE);
    ASSERT_TRUE(waitUntil([&] { return shot.scene.settings().isMinimised(); }));
    expectSame(shot.take(), screen::waitUntilStill(shot.scene.worksheet().rect()));
    EXPECT_TRUE(shot.scene.settings().isMinimised());
    screen::waitUntilStill(shot.scene.worksheet().rect());
    shot.scene.settings().post(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_TRUE(waitUntil([&] { return shot.scene.settings().rect() == place; }));
}

TEST(ScreenShot, OfAWorksheetPartlyOffTheScreenHasItsWholeSize) {
    Shot shot(options());
    const DesktopWindow frame = shot.scene.program().window("frmResizer");
    const ScreenRect screenRect = screen::primaryMonitor();
    SetWindowPos(frame.handle(), nullptr, screenRect.right - 300, 80, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_TRUE(waitUntil([&] { return shot.scene.worksheet().rect().right > screenRect.right; }));
    const ScreenRect sheet = shot.scene.worksheet().rect();
    const Picture pasted = shot.take();
    EXPECT_EQ(pasted.rect(), sheet);
    const ScreenRect onScreen{sheet.left, sheet.top, screenRect.right, sheet.bottom};
    SetWindowPos(shot.scene.settings().handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    expectSame(pasted.part(onScreen), screen::waitUntilStill(onScreen));
}

}  // namespace
}  // namespace ormala::test
