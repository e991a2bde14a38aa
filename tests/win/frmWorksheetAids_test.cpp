#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win/handles.h"
#include "support/win/PaintCount.h"
#include "support/win/Wait.h"
#include "win/HeldKeys.h"
#include "win/TestSheet.h"

// Grid and compass of the worksheet, and what the mouse does on its background.

namespace ormala {
namespace {

constexpr COLORREF aidsGround = RGB(79, 79, 79);
constexpr COLORREF gridColor = RGB(0, 128, 255);
constexpr COLORREF brightGreen = RGB(0, 255, 0);
constexpr COLORREF darkGreen = RGB(0, 127, 0);

BackgroundGrid gridOf(int style, int lineWidth, const Grid& steps = {50, 40, 7, 9}) {
    return {true, style, lineWidth, static_cast<Color>(gridColor), steps};
}

void showGrid(TestSheet& sheet, const BackgroundGrid& grid) {
    sheet.aids.grid = grid;
    sheet.window().aidsChanged();
}

PixelMap shownAids(TestSheet& sheet) {
    return readClient(sheet.window().handle());
}

int count(const PixelMap& map, COLORREF color) {
    return static_cast<int>(std::ranges::count(map.pixels, color));
}

/// The grid as the system's pen draws it, line by line, on the background.
PixelMap drawnWithPen(const BackgroundGrid& grid, PixelSize size) {
    BackBuffer picture;
    picture.resize(size);
    const HDC context = picture.context();
    SetDCBrushColor(context, aidsGround);
    const RECT all{0, 0, size.width, size.height};
    FillRect(context, &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    SetBkMode(context, TRANSPARENT);
    const int styles[] = {PS_DOT, PS_DASH};
    const PenHandle pen(CreatePen(grid.lineWidth < 2 ? styles[grid.lineWidth] : PS_SOLID,
                                  grid.lineWidth < 2 ? 1 : grid.lineWidth - 1, gridColor));
    const Selected selected(context, pen.get());
    for (int x = grid.steps.originX; x <= size.width; x += grid.steps.stepX) {
        MoveToEx(context, x, 0, nullptr);
        LineTo(context, x, size.height);
    }
    for (int y = grid.steps.originY; y <= size.height; y += grid.steps.stepY) {
        MoveToEx(context, 0, y, nullptr);
        LineTo(context, size.width, y);
    }
    return readPixels(context, size);
}

TEST(WorksheetGrid, LinesLookAsThePenOfTheSystemDrawsThem) {
    TestSheet sheet(sheetSize);
    for (const int lineWidth : {0, 1, 2, 3, 4, 5, 8}) {
        for (const Grid& steps : {Grid{50, 40, 7, 9}, Grid{64, 60, 0, 0}, Grid{90, 70, -1, 2}}) {
            showGrid(sheet, gridOf(2, lineWidth, steps));
            EXPECT_EQ(shownAids(sheet), drawnWithPen(gridOf(2, lineWidth, steps), sheetSize))
                << lineWidth << ", " << steps.stepX;
        }
    }
}

TEST(WorksheetGrid, PointsStandOnTheCrossings) {
    TestSheet sheet(sheetSize);
    showGrid(sheet, gridOf(1, 0));
    const PixelMap map = shownAids(sheet);
    EXPECT_EQ(map.at(7, 9), gridColor);
    EXPECT_EQ(map.at(607, 449), gridColor);
    EXPECT_EQ(map.at(8, 9), aidsGround);
    EXPECT_EQ(count(map, gridColor), 13 * 12);
}

TEST(WorksheetGrid, SettingItPaintsNothingUntilTheWorksheetIsTold) {
    TestSheet sheet(sheetSize);
    sheet.aids.grid = gridOf(2, 2);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    EXPECT_EQ(count(shownAids(sheet), gridColor), 0);
    sheet.window().aidsChanged();
    EXPECT_GT(count(shownAids(sheet), gridColor), 0);
}

TEST(WorksheetGrid, StaysBehindTheTools) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({107, 89, 307, 249}, 0, rgb(255, 0, 0));
    showGrid(sheet, gridOf(2, 2));
    const PixelMap map = shownAids(sheet);
    EXPECT_EQ(map.at(107, 130), RGB(255, 0, 0)) << "the stencil's side lies on a line of the grid";
    EXPECT_EQ(map.at(57, 130), gridColor);
}

TEST(WorksheetGrid, IsDrawnAnewWhereAToolWas) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({400, 300, 500, 400}, 0, rgb(0, 0, 255));
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0.3, rgb(255, 0, 0));
    showGrid(sheet, gridOf(2, 1, {5, 5, 0, 0}));
    sheet.drag(200, 175, 330, 260, 5);
    sheet.window().sheet().SelectControl(*sheet.window().sheet().zOrder().front());
    stencil.setRectBound({30, 30, 200, 200});
    UpdateWindow(sheet.window().handle());
    const PixelMap step = shownAids(sheet);
    sheet.paintAnew();
    EXPECT_EQ(step, shownAids(sheet));
}

TEST(WorksheetGrid, FollowsTheSizeOfTheWorksheet) {
    TestSheet sheet(sheetSize);
    showGrid(sheet, gridOf(2, 2));
    for (const PixelSize size : {PixelSize{300, 220}, PixelSize{700, 500}}) {
        SetWindowPos(sheet.window().handle(), nullptr, 0, 0, size.width, size.height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        UpdateWindow(sheet.window().handle());
        EXPECT_EQ(shownAids(sheet), drawnWithPen(gridOf(2, 2), size));
    }
}

TEST(WorksheetGrid, StaysVisibleInTemplateModeWhereTheBackgroundIsKeyedOut) {
    TestSheet sheet(sheetSize);
    showGrid(sheet, gridOf(2, 2, {200, 200, 50, 50}));
    sheet.window().setClickable(false);
    COLORREF key = 0;
    GetLayeredWindowAttributes(sheet.window().handle(), &key, nullptr, nullptr);
    EXPECT_EQ(key, aidsGround);
    EXPECT_EQ(shownAids(sheet).at(50, 30), gridColor);
}

TEST(WorksheetGrid, TurnedOffItIsGone) {
    TestSheet sheet(sheetSize);
    showGrid(sheet, gridOf(2, 2));
    BackgroundGrid grid = sheet.aids.grid;
    grid.enabled = false;
    showGrid(sheet, grid);
    EXPECT_EQ(count(shownAids(sheet), aidsGround), sheetSize.width * sheetSize.height);
}

TEST(WorksheetGrid, EachChangeThatIsSeenIsPaintedAtOnceAndOnce) {
    TestSheet sheet(sheetSize);
    const test::PaintCount paints(sheet.window().handle());
    showGrid(sheet, gridOf(2, 2));
    EXPECT_EQ(paints.count(), 1);
    showGrid(sheet, gridOf(2, 2));
    EXPECT_EQ(paints.count(), 1) << "the same grid";
    showGrid(sheet, gridOf(0, 2));
    EXPECT_EQ(paints.count(), 2);
    BackgroundGrid off = gridOf(2, 5);
    off.enabled = false;
    showGrid(sheet, off);
    EXPECT_EQ(paints.count(), 2) << "neither is seen";
}

/// A worksheet with the compass on and a stencil at the lower right.
class WorksheetCompassTest : public testing::Test {
  protected:
    WorksheetCompassTest() {
        sheet_.addStencil({400, 300, 500, 400}, 0, rgb(255, 0, 0));
        sheet_.aids.circleCompass = true;
    }

    void press(int x, int y) {
        sheet_.mouse(WM_MOUSEMOVE, 0, x, y);
        sheet_.mouse(WM_LBUTTONDOWN, MK_LBUTTON, x, y);
    }
    void moveTo(int x, int y) { sheet_.mouse(WM_MOUSEMOVE, MK_LBUTTON, x, y); }
    [[nodiscard]] int greens() {
        const PixelMap map = shownAids(sheet_);
        return count(map, brightGreen) + count(map, darkGreen);
    }
    void expectAsPaintedAnew() {
        const PixelMap step = shownAids(sheet_);
        sheet_.paintAnew();
        EXPECT_EQ(step, shownAids(sheet_));
    }

    TestSheet sheet_{sheetSize};
};

TEST_F(WorksheetCompassTest, ShowsNothingUpTo12PixelsAndBothCirclesWithTheCentreAt13) {
    press(150, 120);
    moveTo(162, 120);
    EXPECT_EQ(greens(), 0);
    moveTo(163, 120);
    const PixelMap map = shownAids(sheet_);
    for (const int x : {137, 163, 142, 158, 149, 151}) {
        EXPECT_EQ(map.at(x, 120), brightGreen) << x;
    }
    EXPECT_EQ(map.at(150, 120), darkGreen);
}

TEST_F(WorksheetCompassTest, GrowsAndShrinksOverToolsAndGridWithoutATrace) {
    showGrid(sheet_, gridOf(2, 2));
    press(350, 260);
    for (const int distance : {60, 200, 130, 3, 280, 20}) {
        moveTo(350 + distance, 260);
        expectAsPaintedAnew();
        EXPECT_GT(greens(), 0);
    }
    sheet_.mouse(WM_LBUTTONUP, 0, 370, 260);
    EXPECT_EQ(greens(), 0);
    expectAsPaintedAnew();
}

TEST_F(WorksheetCompassTest, LiesOverTheToolInFront) {
    press(450, 250);
    moveTo(500, 250);
    EXPECT_EQ(shownAids(sheet_).at(450, 300), brightGreen) << "where it meets the stencil's top";
}

TEST_F(WorksheetCompassTest, IsDarkGreenOnWhite) {
    sheet_.window().setBackground(RGB(255, 255, 255));
    press(150, 120);
    moveTo(200, 120);
    const PixelMap map = shownAids(sheet_);
    EXPECT_EQ(map.at(200, 120), darkGreen);
    EXPECT_EQ(map.at(150, 120), brightGreen);
}

TEST_F(WorksheetCompassTest, NothingIsRepaintedButWhatChanges) {
    press(200, 200);
    moveTo(390, 200);
    ValidateRect(sheet_.window().handle(), nullptr);
    // Spoiled far from the circles, which only a repaint of that place would mend.
    const WindowContext context(sheet_.window().handle());
    SetPixel(context.get(), 200, 260, RGB(1, 2, 3));
    moveTo(391, 200);
    EXPECT_EQ(GetPixel(context.get(), 200, 260), RGB(1, 2, 3));
}

TEST_F(WorksheetCompassTest, APressOnAToolStartsNone) {
    press(450, 350);
    moveTo(480, 350);
    EXPECT_EQ(greens(), 0);
    moveTo(300, 200);
    EXPECT_EQ(greens(), 0);
}

TEST_F(WorksheetCompassTest, AToolRemovedInItsDragLeavesNoCompassBehind) {
    sheet_.drag(50, 50, 52, 50, 1);
    ctlRatioGrid& second = sheet_.addStencil({100, 100, 200, 200}, 0, rgb(0, 0, 255));
    press(150, 150);
    sheet_.window().sheet().RemoveControl(second);
    moveTo(250, 150);
    EXPECT_EQ(greens(), 0);
}

TEST_F(WorksheetCompassTest, IsHiddenByAnotherButtonAndByTheLossOfTheMouse) {
    press(150, 120);
    moveTo(250, 120);
    ASSERT_GT(greens(), 0);
    sheet_.mouse(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, 250, 120);
    EXPECT_EQ(greens(), 0);
    sheet_.mouse(WM_RBUTTONUP, MK_LBUTTON, 250, 120);
    moveTo(251, 120);
    ASSERT_GT(greens(), 0);
    ReleaseCapture();
    EXPECT_EQ(greens(), 0);
}

TEST_F(WorksheetCompassTest, DoesNotOpenWhenItIsOff) {
    sheet_.aids.circleCompass = false;
    press(150, 120);
    moveTo(250, 120);
    EXPECT_EQ(greens(), 0);
}

TEST_F(WorksheetCompassTest, TemplateModeEndsIt) {
    press(150, 120);
    moveTo(250, 120);
    ASSERT_GT(greens(), 0);
    sheet_.window().setClickable(false);
    EXPECT_EQ(greens(), 0);
}

/// Whether a window lies nearer to the user than another one.
bool liesAbove(HWND window, HWND other) {
    while (other != nullptr && other != window) {
        other = GetWindow(other, GW_HWNDPREV);
    }
    return other == window;
}

TEST(WorksheetBackground, OnlyAPressWithTheLeftButtonAsksForTheMagnifier) {
    TestSheet sheet(sheetSize);
    sheet.drag(50, 50, 52, 50, 1);
    EXPECT_EQ(sheet.commands.lensRaises, std::vector<bool>{false}) << "sticked or not";
    sheet.mouse(WM_RBUTTONDOWN, MK_RBUTTON, 50, 50);
    EXPECT_EQ(sheet.commands.lensRaises.size(), 1U);
}

TEST(WorksheetBackground, ShownMagnifierKeepsTheSheetFromBeingRaised) {
    TestSheet sheet(sheetSize);
    TestSheet other({100, 100});
    const HWND window = sheet.window().handle();
    const HWND cover = other.window().handle();
    SetFocus(window);
    sheet.commands.lensShown = true;
    // A window manager may raise the sheet late because of the focus; the press must never do it.
    bool stays = false;
    for (int i = 0; i < 10 && !stays; ++i) {
        SetWindowPos(cover, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 50, 50);
        stays = liesAbove(cover, window);
        sheet.mouse(WM_LBUTTONUP, 0, 50, 50);
    }
    EXPECT_TRUE(stays);
}

TEST(WorksheetBackground, ReleaseOfAToolRaisesAStickedMagnifier) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.drag(200, 175, 210, 180, 2);
    EXPECT_EQ(sheet.commands.lensRaises, std::vector<bool>{true});
}

TEST(WorksheetBackground, OnlyTheRightButtonShowsTheMenuAtItsRelease) {
    TestSheet sheet(sheetSize);
    sheet.drag(50, 50, 52, 50, 1);
    EXPECT_TRUE(sheet.commands.menusAt.empty());
    sheet.mouse(WM_RBUTTONDOWN, MK_RBUTTON, 50, 50);
    EXPECT_TRUE(sheet.commands.menusAt.empty());
    sheet.mouse(WM_RBUTTONUP, 0, 50, 50);
    ASSERT_EQ(sheet.commands.menusAt.size(), 1U);
    POINT cursor{};
    GetCursorPos(&cursor);
    EXPECT_EQ(sheet.commands.menusAt.front().x, cursor.x);
    EXPECT_EQ(sheet.commands.menusAt.front().y, cursor.y);
    EXPECT_EQ(sheet.commands.raisedAt.size(), 2U);
    EXPECT_NE(GetCapture(), sheet.window().handle());
}

TEST(WorksheetBackground, RightButtonOnAToolShowsNoMenu) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.mouse(WM_MOUSEMOVE, 0, 200, 175);
    sheet.mouse(WM_RBUTTONDOWN, MK_RBUTTON, 200, 175);
    sheet.mouse(WM_RBUTTONUP, 0, 200, 175);
    EXPECT_TRUE(sheet.commands.menusAt.empty());
}

TEST(WorksheetBackground, ShiftAndF10AreTheMenuKey) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    {
        const HeldKeys held{VK_SHIFT};
        EXPECT_EQ(SendMessageW(window, WM_SYSKEYDOWN, VK_F10, 0), 0);
    }
    EXPECT_EQ(sheet.commands.executed, std::vector{Command::worksheetMenu});
    SendMessageW(window, WM_SYSKEYDOWN, VK_F10, 0);
    EXPECT_EQ(sheet.commands.executed.size(), 1U) << "without Shift it is another key";
}

TEST(WorksheetBackground, MenuKeyAndF12AskForMenuAndTheSheetsOptions) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    EXPECT_EQ(SendMessageW(window, WM_KEYDOWN, VK_APPS, 0), 0);
    EXPECT_EQ(SendMessageW(window, WM_KEYDOWN, VK_F12, 0), 0);
    const std::vector<Command> asked{Command::worksheetMenu, Command::worksheetOptions};
    EXPECT_EQ(sheet.commands.executed, asked);
    EXPECT_TRUE(sheet.window().KeyDown(VK_APPS, 0)) << "the key goes no further";
    sheet.window().setClickable(false);
    SendMessageW(window, WM_KEYDOWN, VK_APPS, 0);
    SendMessageW(window, WM_KEYDOWN, VK_F12, 0);
    EXPECT_EQ(sheet.commands.executed.size(), 3U);
}

}  // namespace
}  // namespace ormala
