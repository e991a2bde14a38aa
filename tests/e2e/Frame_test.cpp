#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/SheetFrame.h"

namespace ormala::test {
namespace {

ScreenRect workArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return screenRect(area);
}

TEST(Frame, HasTheGoldenSectionOfTheScreenAtAFirstStart) {
    SheetScene scene;
    const ScreenRect monitor = screen::primaryMonitor();
    const ScreenRect frame = frameOf(scene).rect();
    constexpr int tolerance = 3;
    EXPECT_NEAR(frame.width(), 0.618 * monitor.width(), tolerance);
    EXPECT_NEAR(frame.height(), 0.618 * monitor.height(), tolerance);
    EXPECT_NEAR(frame.center().x, monitor.center().x, tolerance);
    EXPECT_NEAR(frame.center().y, monitor.center().y, tolerance);
    EXPECT_TRUE(worksheetFits(scene));
}

TEST(Frame, HoleShowsTheBackdropWhenTheToolsAreGone) {
    SheetScene scene([](SettingsFile& file) {
        file.set("Options", "TemplateWithBorder", "-1");
        file.set("Options", "TransparencyTemplateMode", " 100");
        file.set("Options", "Mode", " 1");
    });
    ASSERT_TRUE(frameOf(scene).isVisible());
    // The control window may lie over a corner of it.
    SetWindowPos(scene.settings().handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    const Picture picture = scene.picture();
    EXPECT_EQ(picture.count(SheetScene::backdropColor),
              static_cast<std::size_t>(picture.rect().width()) *
                  static_cast<std::size_t>(picture.rect().height()));
}

TEST(Frame, WorksheetFollowsEveryStepOfAMove) {
    SheetScene scene;
    for (int step = 1; step <= 5; ++step) {
        place(frameOf(scene),
              {300 - 30 * step, 200 - 20 * step, 1100 - 30 * step, 700 - 20 * step});
        EXPECT_TRUE(worksheetFits(scene)) << step;
    }
}

TEST(Frame, CannotBeMadeSmallerThanItsLeastSize) {
    SheetScene scene;
    place(frameOf(scene), {100, 100, 140, 140});
    const int dpi = static_cast<int>(GetDpiForWindow(frameOf(scene).handle()));
    const ScreenRect now = frameOf(scene).rect();
    EXPECT_EQ(now.width(), MulDiv(200, dpi, 96));
    EXPECT_EQ(now.height(), MulDiv(124, dpi, 96));
    EXPECT_TRUE(worksheetFits(scene));
}

TEST(Frame, DoubleClickOnTheTitleBarMeansFullScreen) {
    SheetScene scene;
    scene.mouse.doubleClick(titleBarOf(scene));
    frameOf(scene).waitUntilHidden();
    EXPECT_TRUE(waitUntil([&] { return scene.worksheet().rect() == workArea(); }));
    EXPECT_TRUE(scene.worksheet().isVisible());
}

TEST(Frame, LeftMaximisedItMeansFullScreenAtTheNextStart) {
    SheetScene scene([](SettingsFile& file) { file.set("FormResizer", "WindowState", " 3"); });
    EXPECT_FALSE(frameOf(scene).isVisible());
    EXPECT_EQ(scene.worksheet().clientRect(), workArea());
    scene.expectPattern();
}

TEST(Frame, CloseBoxMeansPause) {
    SheetScene scene;
    frameOf(scene).post(WM_SYSCOMMAND, SC_CLOSE);
    scene.worksheet().waitUntilHidden();
    EXPECT_FALSE(frameOf(scene).isVisible());
    constexpr WPARAM menuEdit = 1010;
    scene.settings().post(WM_SYSCOMMAND, menuEdit);
    frameOf(scene).waitUntilVisible();
    EXPECT_TRUE(worksheetFits(scene));
}

TEST(Frame, PlaceIsKeptFromRunToRun) {
    SheetScene scene;
    place(frameOf(scene), {120, 90, 900, 700});
    ASSERT_TRUE(worksheetFits(scene));
    scene.restart();
    EXPECT_EQ(frameOf(scene).rect(), (ScreenRect{120, 90, 900, 700}));
    EXPECT_TRUE(worksheetFits(scene));
}

}  // namespace
}  // namespace ormala::test
