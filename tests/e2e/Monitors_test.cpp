#include <gtest/gtest.h>
#include <windows.h>

#include "e2e/LensScales.h"
#include "e2e/OwnWindow.h"
#include "e2e/SheetFrame.h"

namespace ormala::test {
namespace {

constexpr WPARAM menuEdit = 1010;
constexpr WPARAM menuTemplate = 1011;
constexpr WPARAM menuPause = 1012;

ScreenRect workAreaAt(ScreenPoint point) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(MonitorFromPoint({point.x, point.y}, MONITOR_DEFAULTTONULL), &info);
    return screenRect(info.rcWork);
}

bool liesIn(const ScreenRect& area, const ScreenRect& rect) {
    return rect.left >= area.left && rect.top >= area.top && rect.right <= area.right &&
           rect.bottom <= area.bottom && rect.width() > 0 && rect.height() > 0;
}

/// Where the control window stands on the second monitor: right of all that is dragged.
constexpr int controlLeft = 940;

/// The program with its worksheet and its control window on the second monitor.
class Monitors : public testing::Test {
  protected:
    Monitors() {
        moveTo(frameOf(scene_), second_.rect().origin() + ScreenPoint{30, 180});
        moveTo(scene_.settings(), second_.rect().origin() + ScreenPoint{controlLeft, 40});
        EXPECT_TRUE(liesIn(second_.rect(), frameOf(scene_).rect())) << frameOf(scene_).rect();
        EXPECT_TRUE(liesIn(second_.rect(), scene_.settings().rect())) << scene_.settings().rect();
        EXPECT_TRUE(worksheetFits(scene_));
    }

    [[nodiscard]] static ScreenRect mainWorkArea() { return workAreaAt({0, 0}); }

    void makeFullScreen() {
        scene_.mouse.doubleClick(titleBarOf(scene_));
        frameOf(scene_).waitUntilHidden();
    }

    void storeAsMaximised() const {
        SettingsFile options = SettingsFile::read(scene_.data().optionsFile());
        options.set("FormResizer", "WindowState", " 3");
        options.write(scene_.data().optionsFile());
    }

    /// A worksheet that fills the second monitor, which has no task bar, leaves it a row.
    [[nodiscard]] ScreenRect secondFilled() const {
        ScreenRect area = second_.rect();
        area.bottom -= 1;
        return area;
    }

    bool fills(const ScreenRect& area) {
        return waitUntil([&] { return scene_.worksheet().rect() == area; });
    }

    /// Starts anew with a bare magnifier on the second monitor, whose scales count from the main
    /// monitor and from all of them.
    LensWindow openLens() {
        scene_.restart([this] {
            SettingsFile options = SettingsFile::read(scene_.data().optionsFile());
            for (const char* const key : {"LensCursorOn", "LensHotSpotOn", "LensGridOn"}) {
                options.set("Options", key, " 0");
            }
            options.set("Options", "LensVisible", "-1");
            options.set("Options", "LensRulTOrigin", " 2");
            options.set("Options", "LensRulBOrigin", " 3");
            options.write(scene_.data().optionsFile());
        });
        const LensWindow lens(scene_.window("frmLens"));
        lens.moveTo(second_.rect().origin() + ScreenPoint{20, 560});
        return lens;
    }

    void setMode(WPARAM command, const char* caption) {
        scene_.settings().post(WM_SYSCOMMAND, command);
        scene_.settings().waitForText(caption);
    }

    void dragStencil(int dx, int dy) {
        scene_.drag({0, 0}, dx, dy);
        scene_.model.dragCenter(dx, dy);
        scene_.expectPattern();
    }

    /// All of the control window and the frame, and the worksheet in it, on the main monitor.
    void expectFramedOnMainMonitor() {
        EXPECT_TRUE(waitUntil([&] { return liesIn(mainWorkArea(), frameOf(scene_).rect()); }))
            << frameOf(scene_).rect();
        EXPECT_TRUE(waitUntil([&] { return liesIn(mainWorkArea(), scene_.settings().rect()); }))
            << scene_.settings().rect();
        EXPECT_TRUE(worksheetFits(scene_)) << scene_.worksheet().rect();
        EXPECT_TRUE(frameOf(scene_).isVisible());
        EXPECT_TRUE(scene_.worksheet().isVisible());
    }

    SecondMonitor second_;
    SheetScene scene_;
};

TEST_F(Monitors, AreTwoUntilOneGoes) {
    EXPECT_EQ(screen::virtualScreen().left, second_.rect().left);
    second_.takeAway();
    EXPECT_EQ(screen::virtualScreen(), screen::primaryMonitor());
    second_.giveBack();
    EXPECT_EQ(screen::virtualScreen().left, second_.rect().left);
}

TEST_F(Monitors, WorksheetLiesInTheFrameAtNegativeCoordinates) {
    for (int step = 1; step <= 4; ++step) {
        const ScreenPoint corner = second_.rect().origin() + ScreenPoint{12 * step, 20 * step};
        moveTo(frameOf(scene_), corner);
        EXPECT_EQ(frameOf(scene_).rect().origin(), corner);
        EXPECT_TRUE(worksheetFits(scene_)) << step;
    }
    constexpr ScreenRect smaller{-1100, 200, -201, 703};
    place(frameOf(scene_), smaller);
    EXPECT_TRUE(waitUntil([&] { return frameOf(scene_).rect() == smaller; }));
    EXPECT_TRUE(worksheetFits(scene_));
}

TEST_F(Monitors, WorksheetLiesInAFrameOnBothMonitors) {
    moveTo(scene_.settings(), second_.rect().origin() + ScreenPoint{200, 40});
    moveTo(frameOf(scene_), {-400, 100});
    EXPECT_EQ(frameOf(scene_).rect().left, -400);
    EXPECT_TRUE(worksheetFits(scene_));
    scene_.expectPattern();
    dragStencil(100, 30);
    dragStencil(-150, -20);
}

TEST_F(Monitors, StencilIsDraggedByThePixelsOfTheMouse) {
    scene_.expectPattern();
    dragStencil(100, 0);
    dragStencil(-163, 41);
}

TEST_F(Monitors, FullScreenMeansTheMonitorOfTheFrame) {
    const ScreenRect framed = frameOf(scene_).rect();
    makeFullScreen();
    EXPECT_TRUE(fills(secondFilled())) << scene_.worksheet().rect();
    dragStencil(100, 60);
    setMode(menuTemplate, "Ormala - Template");
    EXPECT_EQ(scene_.worksheet().rect(), secondFilled());
    setMode(menuPause, "Ormala - Pause");
    setMode(menuEdit, "Ormala - Edit");
    EXPECT_TRUE(fills(secondFilled())) << scene_.worksheet().rect();
    EXPECT_EQ(scene_.settings().rect().left, second_.rect().left + controlLeft);
    EXPECT_EQ(frameOf(scene_).rect(), framed);
}

TEST_F(Monitors, TheMouseActionDragsThereToo) {
    const ScreenPoint first = scene_.onScreen(scene_.model.gripPixel(-1, -1));
    const ScreenPoint last = scene_.onScreen(scene_.model.gripPixel(1, 1));
    const DesktopWindow button = scene_.settings().named("cmdSendMouseInput");
    OwnWindow below(second_.rect(), 0, 0x336699);
    below.show();
    SetWindowPos(below.handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    // A busy display may take the pointer back to where it was just before the press or the
    // release.
    constexpr int tries = 5;
    const auto dragged = [&] { return below.lastPress() == first && below.lastRelease() == last; };
    for (int done = 1; done <= tries && !dragged(); ++done) {
        scene_.mouse.click(button.center());
        ASSERT_TRUE(waitUntil([&] { return below.releases() == done; }));
    }
    EXPECT_EQ(below.lastPress(), first);
    EXPECT_EQ(below.lastRelease(), last);
}

TEST_F(Monitors, WindowsComeBackThereAtTheNextStart) {
    const ScreenRect frame = frameOf(scene_).rect();
    const ScreenRect control = scene_.settings().rect();
    dragStencil(100, 20);
    scene_.restart();
    EXPECT_EQ(frameOf(scene_).rect(), frame);
    EXPECT_EQ(scene_.settings().rect(), control);
    EXPECT_TRUE(worksheetFits(scene_));
}

TEST_F(Monitors, FrameLeftMaximisedThereMeansFullScreenThere) {
    scene_.restart([this] { storeAsMaximised(); });
    EXPECT_FALSE(frameOf(scene_).isVisible());
    EXPECT_TRUE(fills(secondFilled())) << scene_.worksheet().rect();
}

TEST_F(Monitors, WindowsComeOntoTheMainOneAtAStartWithoutTheirs) {
    scene_.restart([this] { second_.takeAway(); });
    expectFramedOnMainMonitor();
    dragStencil(50, 0);
}

TEST_F(Monitors, FullScreenComesOntoTheMainOneAtAStartWithoutItsMonitor) {
    scene_.restart([this] {
        storeAsMaximised();
        second_.takeAway();
    });
    EXPECT_FALSE(frameOf(scene_).isVisible());
    EXPECT_TRUE(fills(mainWorkArea())) << scene_.worksheet().rect();
    EXPECT_TRUE(liesIn(mainWorkArea(), scene_.settings().rect()));
}

TEST_F(Monitors, WindowsComeOntoTheMainOneWhenTheirsGoes) {
    dragStencil(100, 20);
    second_.takeAway();
    expectFramedOnMainMonitor();
    scene_.expectPattern();
    dragStencil(-40, 10);
    second_.giveBack();
    expectFramedOnMainMonitor();
    scene_.expectPattern();
    EXPECT_EQ(scene_.program().close(), 0U);
}

TEST_F(Monitors, FullScreenComesOntoTheMainOneWhenItsMonitorGoes) {
    makeFullScreen();
    ASSERT_TRUE(fills(secondFilled()));
    second_.takeAway();
    EXPECT_TRUE(fills(mainWorkArea())) << scene_.worksheet().rect();
    EXPECT_TRUE(waitUntil([&] { return liesIn(mainWorkArea(), scene_.settings().rect()); }));
    scene_.expectPattern();
    second_.giveBack();
    EXPECT_TRUE(fills(mainWorkArea())) << scene_.worksheet().rect();
    EXPECT_EQ(scene_.program().close(), 0U);
}

TEST_F(Monitors, PausedWindowsComeOntoTheMainOneWhenTheirsGoes) {
    setMode(menuPause, "Ormala - Pause");
    second_.takeAway();
    setMode(menuEdit, "Ormala - Edit");
    expectFramedOnMainMonitor();
    scene_.expectPattern();
}

TEST_F(Monitors, DragSurvivesTheLossOfTheMonitor) {
    const ScreenPoint from = scene_.onScreen(scene_.model.gripPixel(0, 0));
    scene_.mouse.moveTo(from);
    scene_.mouse.press();
    scene_.mouse.moveTo(from + ScreenPoint{30, 0});
    second_.takeAway();
    scene_.mouse.release();
    expectFramedOnMainMonitor();
    EXPECT_EQ(scene_.program().close(), 0U);
}

TEST_F(Monitors, MagnifierShowsThePixelsAtNegativeCoordinates) {
    const LensWindow lens = openLens();
    EXPECT_TRUE(liesIn(second_.rect(), lens.window().rect())) << lens.window().rect();
    const LensScales scales(lens, 4, false);
    const ScreenRect there = second_.rect();
    for (const ScreenPoint cursor : {scene_.onScreen(scene_.model.gripPixel(0, 0)),
                                     there.origin() + ScreenPoint{3, 2}, ScreenPoint{-1, 300}}) {
        scene_.mouse.moveTo(cursor);
        EXPECT_TRUE(lens.showsScreen(cursor, 4));
        const ScreenRect source = lens.view(cursor, 4).source;
        EXPECT_TRUE(scales.columnsAre("picRulTop", source.left));
        EXPECT_TRUE(scales.rowsAre("picRulLeft", source.top));
        EXPECT_TRUE(scales.columnsAre("picRulBottom", source.left - there.left));
    }
}

TEST_F(Monitors, MagnifierComesOntoTheMainOneWhenItsMonitorGoes) {
    const LensWindow lens = openLens();
    second_.takeAway();
    EXPECT_TRUE(waitUntil([&] { return liesIn(mainWorkArea(), lens.window().rect()); }))
        << lens.window().rect();
    EXPECT_TRUE(lens.window().isVisible());
    // At the edge that was none before.
    lens.moveTo({600, 400});
    scene_.mouse.moveTo({0, 300});
    EXPECT_TRUE(lens.showsScreen({0, 300}, 4));
    EXPECT_EQ(scene_.program().close(), 0U);
}

TEST_F(Monitors, MagnifierBesideTheMouseStaysOnBothMonitors) {
    scene_.restart([this] {
        SettingsFile options = SettingsFile::read(scene_.data().optionsFile());
        options.set("Options", "LensVisible", "-1");
        options.set("Options", "LensSticked", "-1");
        options.write(scene_.data().optionsFile());
    });
    const DesktopWindow window = scene_.window("frmLens");
    const ScreenRect all = screen::virtualScreen();
    const ScreenPoint cursor = second_.rect().origin() + ScreenPoint{300, 40};
    scene_.mouse.moveTo(cursor);
    EXPECT_TRUE(waitUntil([&] {
        return window.rect().origin() == cursor + ScreenPoint{24, 32};
    })) << window.rect();
    const ScreenPoint corner{all.right - 5, all.bottom - 5};
    scene_.mouse.moveTo(corner);
    EXPECT_TRUE(waitUntil([&] {
        return window.rect().right == all.right && window.rect().bottom == corner.y - 24;
    })) << window.rect();
}

}  // namespace
}  // namespace ormala::test
