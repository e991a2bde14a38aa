#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "e2e/SheetFrame.h"
#include "e2e/support/Device.h"

// The frame and the control window, moved and sized by their title bars and edges.

namespace ormala::test {
namespace {

void keepBorder(SettingsFile& file) {
    file.set("Options", "TemplateWithBorder", "-1");
    file.set("Options", "Mode", " 1");
}

ScreenRect shifted(const ScreenRect& rect, int dx, int dy) {
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

/// Waits until the window lies there, to the pixel.
bool comesTo(const DesktopWindow& window, const ScreenRect& rect) {
    return waitUntil([&] { return window.rect() == rect; });
}

/// Drags an edge until the window has the size. A busy window manager may not have the edge there
/// yet, and the press goes past it.
bool dragsEdge(Device& device, ScreenPoint from, ScreenPoint to, const std::function<bool()>& has) {
    constexpr int tries = 3;
    constexpr milliseconds patience{4000};
    for (int i = 0; i < tries; ++i) {
        device.drag(from, to);
        if (waitUntil(has, patience)) {
            return true;
        }
    }
    return false;
}

/// What a drag of the title bar does in a mode that shows the frame.
class FrameDrag {
  public:
    explicit FrameDrag(const std::function<void(SettingsFile&)>& options = {}) : scene(options) {
        // Nothing may lie over the title bar.
        moveTo(scene.settings(), {1300, 60});
    }

    [[nodiscard]] ScreenRect frame() const { return frameOf(scene).rect(); }
    /// Not where the last drag began: two presses at one place would be a double click.
    void dragBy(int dx, int dy) {
        constexpr int aside = 60;
        const ScreenPoint from = titleBarOf(scene) - ScreenPoint{aside, 0};
        device.drag(from, from + ScreenPoint{dx, dy});
    }
    void dragByAndTakeBack(int dx, int dy) {
        const ScreenPoint from = titleBarOf(scene);
        device.beginDrag(from, from + ScreenPoint{dx, dy});
        device.pressEscape();
        device.release();
    }

    SheetScene scene;
    Device device;
};

TEST(Drags, WorksheetFollowsItsFrame) {
    FrameDrag play;
    const ScreenRect before = play.frame();
    play.dragBy(-120, 70);
    EXPECT_TRUE(comesTo(frameOf(play.scene), shifted(before, -120, 70))) << play.frame();
    EXPECT_TRUE(worksheetFits(play.scene)) << play.scene.worksheet().rect();
    play.scene.expectPattern();
}

TEST(Drags, EscapeTakesFrameAndWorksheetBack) {
    FrameDrag play;
    const ScreenRect before = play.frame();
    const ScreenRect sheet = play.scene.worksheet().rect();
    play.dragByAndTakeBack(-90, 110);
    EXPECT_TRUE(comesTo(frameOf(play.scene), before)) << play.frame();
    EXPECT_TRUE(comesTo(play.scene.worksheet(), sheet)) << play.scene.worksheet().rect();
    play.scene.expectPattern();
    // The next drag starts from there.
    play.dragBy(40, 30);
    EXPECT_TRUE(comesTo(frameOf(play.scene), shifted(before, 40, 30))) << play.frame();
    EXPECT_TRUE(worksheetFits(play.scene)) << play.scene.worksheet().rect();
}

TEST(Drags, WorksheetFollowsItsFrameInTemplateMode) {
    FrameDrag play(keepBorder);
    const ScreenRect before = play.frame();
    play.dragBy(-80, 60);
    EXPECT_TRUE(comesTo(frameOf(play.scene), shifted(before, -80, 60))) << play.frame();
    EXPECT_TRUE(worksheetFits(play.scene)) << play.scene.worksheet().rect();
    const ScreenRect after = play.frame();
    play.dragByAndTakeBack(70, -50);
    EXPECT_TRUE(comesTo(frameOf(play.scene), after)) << play.frame();
    EXPECT_TRUE(worksheetFits(play.scene)) << play.scene.worksheet().rect();
    EXPECT_TRUE(play.scene.worksheet().hasExtendedStyle(WS_EX_TRANSPARENT));
}

TEST(Drags, FrameThatIsPushedIntoACornerKeepsTheWorksheet) {
    FrameDrag play;
    for (const ScreenPoint way : {ScreenPoint{-1200, -900}, ScreenPoint{2500, 1600}}) {
        const ScreenPoint from = titleBarOf(play.scene);
        const ScreenRect screen = screen::primaryMonitor();
        const ScreenPoint to{std::clamp(from.x + way.x, 1, screen.right - 2),
                             std::clamp(from.y + way.y, 1, screen.bottom - 60)};
        const ScreenRect before = play.frame();
        play.device.drag(from, to, 12);
        EXPECT_TRUE(waitUntil([&] { return play.frame() != before; }));
        screen::waitUntilStill(screen);
        EXPECT_TRUE(worksheetFits(play.scene))
            << play.scene.worksheet().rect() << " in " << holeOf(play.scene);
    }
}

TEST(Drags, WorksheetFollowsTheEdgeOfItsFrame) {
    FrameDrag play;
    const ScreenRect before = play.frame();
    const ScreenPoint edge{before.left, before.center().y};
    EXPECT_TRUE(dragsEdge(play.device, edge, edge + ScreenPoint{150, 0}, [&] {
        return play.frame().width() == before.width() - 150;
    })) << play.frame();
    EXPECT_TRUE(worksheetFits(play.scene)) << play.scene.worksheet().rect();
}

/// Takes the frame and the control window apart, so that none lies over an edge of the other: which
/// one is above depends on the one that the window manager came to last.
void takeApart(const SheetScene& scene) {
    place(frameOf(scene), {20, 20, 1220, 720});
    EXPECT_TRUE(worksheetFits(scene));
    moveTo(scene.settings(), {1300, 60});
}

TEST(Drags, SideEdgesOfTheControlWindowChangeNothing) {
    SheetScene scene;
    takeApart(scene);
    const ScreenRect before = scene.settings().rect();
    Device device;
    for (const int x : {before.left, before.right - 1}) {
        for (const int way : {-60, 60}) {
            const ScreenPoint edge{x, before.center().y};
            device.drag(edge, edge + ScreenPoint{way, 0});
            screen::waitUntilStill(scene.settings().rect());
            EXPECT_EQ(scene.settings().rect().width(), before.width()) << x << ", " << way;
            EXPECT_EQ(scene.settings().rect().height(), before.height()) << x << ", " << way;
        }
    }
}

TEST(Drags, BottomEdgeOfTheControlWindowStopsAtTheLeastHeight) {
    SheetScene scene;
    takeApart(scene);
    const ScreenRect before = scene.settings().rect();
    Device device;
    const ScreenPoint edge{before.center().x, before.bottom - 1};
    EXPECT_TRUE(dragsEdge(device, edge, edge + ScreenPoint{0, -80}, [&] {
        return scene.settings().rect().height() == before.height() - 80;
    })) << scene.settings().rect();
    const ScreenPoint next{edge.x, scene.settings().rect().bottom - 1};
    EXPECT_TRUE(dragsEdge(device, next, {next.x, before.top + 3},
                          [&] { return scene.settings().rect().height() < before.height() - 80; }));
    // The height of the other modes is the least one.
    scene.settings().post(WM_SYSCOMMAND, 1012);
    scene.settings().waitForText("Ormala - Pause");
    const int least = scene.settings().rect().height();
    scene.settings().post(WM_SYSCOMMAND, 1010);
    scene.settings().waitForText("Ormala - Edit");
    EXPECT_EQ(scene.settings().rect().height(), least);
    EXPECT_EQ(scene.settings().rect().width(), before.width());
}

}  // namespace
}  // namespace ormala::test
