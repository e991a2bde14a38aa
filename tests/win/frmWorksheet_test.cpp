#include "worksheet/win/frmWorksheet.h"

#include <gtest/gtest.h>
#include <imm.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include "scene/Input.h"
#include "support/stencilGripIndex.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

struct Layering {
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
};

Layering layeringOf(HWND window) {
    Layering found;
    GetLayeredWindowAttributes(window, &found.key, &found.alpha, &found.flags);
    return found;
}

DWORD extendedStyle(HWND window) {
    return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE));
}

TEST(frmWorksheet, TakesTheMouseAsAVeilOfOneOpacity) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    const Layering layering = layeringOf(window);
    EXPECT_EQ(layering.alpha, 191);
    EXPECT_EQ(layering.flags, static_cast<DWORD>(LWA_ALPHA));
    EXPECT_EQ(extendedStyle(window) & WS_EX_TRANSPARENT, 0U);
    EXPECT_NE(extendedStyle(window) & WS_EX_LAYERED, 0U);
    EXPECT_NE(extendedStyle(window) & WS_EX_TOPMOST, 0U);
}

/// The message that the system sends when the window has come to another monitor.
void tellDpi(const TestSheet& sheet, int dpi) {
    RECT suggested{10, 10, 1300, 900};
    SendMessageW(sheet.window().handle(), WM_DPICHANGED,
                 MAKEWPARAM(static_cast<WORD>(dpi), static_cast<WORD>(dpi)),
                 reinterpret_cast<LPARAM>(&suggested));
}

TEST(frmWorksheet, GripsTakeTheResolutionOfItsMonitorAndAnewWithEachChange) {
    TestSheet sheet(sheetSize);
    const ctlRatioGrid& tool = sheet.addStencil({100, 100, 300, 300}, 0, rgb(255, 0, 0));
    const auto moveGrip = [&tool] { return tool.grips()[0].pixels(); };
    const RECT place = sheet.window().rectangle();
    tellDpi(sheet, 192);
    EXPECT_EQ(moveGrip(), (PixelRect{187, 187, 214, 214}));
    tellDpi(sheet, 144);
    EXPECT_EQ(moveGrip(), (PixelRect{191, 191, 210, 210}));
    tellDpi(sheet, 96);
    EXPECT_EQ(moveGrip(), (PixelRect{194, 194, 207, 207}));
    const RECT after = sheet.window().rectangle();
    EXPECT_TRUE(EqualRect(&place, &after)) << "its frame tells it its place";
}

TEST(frmWorksheet, ToolsThatComeLaterHaveItsResolutionToo) {
    TestSheet sheet(sheetSize);
    tellDpi(sheet, 192);
    const ctlRatioGrid& tool = sheet.addStencil({100, 100, 300, 300}, 0, rgb(255, 0, 0));
    EXPECT_EQ(tool.grips()[0].pixels().width(), 27);
}

TEST(frmWorksheet, ChangeOfTheResolutionLeavesNothingOfTheFormerGripsOnIt) {
    TestSheet changed(sheetSize);
    changed.addStencil({100, 100, 300, 300}, 0, rgb(255, 0, 0));
    changed.addStencil({350, 150, 500, 400}, 0.4, rgb(0, 0, 255));
    tellDpi(changed, 192);
    tellDpi(changed, 96);
    const PixelMap after = readClient(changed.window().handle());
    tellDpi(changed, 192);
    EXPECT_NE(readClient(changed.window().handle()), after);
    InvalidateRect(changed.window().handle(), nullptr, FALSE);
    tellDpi(changed, 96);
    EXPECT_EQ(readClient(changed.window().handle()), after);
}

TEST(frmWorksheet, StepsOfADragLeaveNothingBehind) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 300}, 0, rgb(255, 0, 0));
    sheet.drag(200, 200, 240, 230, 50);
    sheet.drag(240, 230, 200, 200, 50);
    const long held = HandleCount::held();
    const long taken = HandleCount::taken();
    sheet.drag(200, 200, 240, 230, 500);
    sheet.drag(240, 230, 200, 200, 500);
    EXPECT_GE(HandleCount::taken(), taken + 1000);
    EXPECT_EQ(HandleCount::held(), held);
}

TEST(frmWorksheet, BackgroundVanishesAtFullOpacityToo) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    sheet.window().setAlpha(255);
    sheet.window().setClickable(false);
    const Layering layering = layeringOf(window);
    EXPECT_EQ(layering.alpha, 255);
    EXPECT_EQ(layering.key, RGB(79, 79, 79));
    EXPECT_EQ(layering.flags, static_cast<DWORD>(LWA_ALPHA | LWA_COLORKEY));
    EXPECT_NE(extendedStyle(window) & WS_EX_TRANSPARENT, 0U);
}

TEST(frmWorksheet, TakesTheFocusOnlyWhileItTakesTheMouse) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    EXPECT_EQ(extendedStyle(window) & WS_EX_NOACTIVATE, 0U);
    sheet.window().setClickable(false);
    EXPECT_NE(extendedStyle(window) & WS_EX_NOACTIVATE, 0U);
    sheet.window().setClickable(true);
    EXPECT_EQ(extendedStyle(window) & WS_EX_NOACTIVATE, 0U);
}

TEST(frmWorksheet, ToolOfTheBackgroundColorIsKeyedOutWithIt) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(79, 79, 79));
    sheet.window().setClickable(false);
    const PixelMap map = readClient(sheet.window().handle());
    EXPECT_EQ(map.at(130, 100), layeringOf(sheet.window().handle()).key);
}

TEST(frmWorksheet, AddNewControlOfKind2MakesNothing) {
    TestSheet sheet(sheetSize);
    EXPECT_EQ(sheet.window().sheet().AddNewControl(2), nullptr);
    EXPECT_TRUE(sheet.window().sheet().zOrder().empty());
}

TEST(frmWorksheet, ToolsCoverTheClientAreaAfterASizing) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    SetWindowPos(sheet.window().handle(), nullptr, 0, 0, 500, 300,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    stencil.CenterToScreen(false, 0, true, false);
    EXPECT_EQ(stencil.RectBound(), (Rect{0, 0, 499, 299}));
}

TEST(frmWorksheet, FillsTheWorkAreaOfItsScreen) {
    TestSheet sheet(sheetSize);
    sheet.window().setMaxSized(true);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_TRUE(test::waitUntil([&] {
        const RECT place = sheet.window().rectangle();
        return EqualRect(&place, &work) != FALSE;
    }));
}

TEST(frmWorksheet, TakesNoInputMethod) {
    const TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    EXPECT_EQ(ImmGetContext(window), nullptr);
}

TEST(frmWorksheet, ModeKeysAskForTheirModes) {
    TestSheet sheet(sheetSize);
    const HWND window = sheet.window().handle();
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_F2, VK_F3, VK_F4, VK_F1}) {
        SendMessageW(window, WM_KEYDOWN, key, 0);
    }
    const std::vector<Command> asked{Command::editMode, Command::pauseMode, Command::templateMode,
                                     Command::help};
    EXPECT_EQ(sheet.commands.executed, asked);
}

TEST(frmWorksheet, KeysDoNothingInTemplateMode) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.window().sheet().giveFocus(stencil);
    sheet.window().setClickable(false);
    SendMessageW(sheet.window().handle(), WM_KEYDOWN, VK_F2, 0);
    SendMessageW(sheet.window().handle(), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_TRUE(sheet.commands.executed.empty());
    EXPECT_EQ(stencil.RectBound(), (Rect{100, 100, 300, 250}));
}

TEST(frmWorksheet, KeysMoveTheToolWithTheFocus) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.window().sheet().giveFocus(stencil);
    SendMessageW(sheet.window().handle(), WM_KEYDOWN, VK_LEFT, 0);
    SendMessageW(sheet.window().handle(), WM_KEYDOWN, VK_UP, 0);
    EXPECT_EQ(stencil.RectBound(), (Rect{99, 99, 299, 249}));
}

TEST(frmWorksheet, PressOnAGripSelectsItsTool) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& first = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    ctlRatioGrid& second = sheet.addStencil({350, 100, 500, 250}, 0, rgb(255, 0, 0));
    sheet.drag(200, 175, 210, 180, 2);
    EXPECT_TRUE(first.Selected());
    EXPECT_FALSE(second.Selected());
    EXPECT_EQ(sheet.window().sheet().front(), &first);
    EXPECT_EQ(first.RectBound(), (Rect{110, 105, 310, 255}));
}

TEST(frmWorksheet, PressBesideTheGripsReachesNoTool) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.drag(150, 130, 200, 200, 3);
    EXPECT_FALSE(stencil.Selected());
    EXPECT_EQ(stencil.RectBound(), (Rect{100, 100, 300, 250}));
    EXPECT_EQ(sheet.commands.raisedAt.size(), 1U) << "the click may belong to a covered window";
}

TEST(frmWorksheet, LossOfTheMouseEndsTheDragAsOneStep) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.mouse(WM_MOUSEMOVE, 0, 200, 175);
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 200, 175);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 205, 175);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 230, 175);
    ReleaseCapture();
    EXPECT_FALSE(stencil.grips().active().has_value());
    EXPECT_TRUE(stencil.History().UndoPossible());
    sheet.mouse(WM_MOUSEMOVE, 0, 300, 300);
    EXPECT_EQ(stencil.RectBound(), (Rect{130, 100, 330, 250}));
}

TEST(frmWorksheet, FurtherButtonDoesNotEndTheDrag) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.mouse(WM_MOUSEMOVE, 0, 200, 175);
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 200, 175);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 205, 175);
    sheet.mouse(WM_MBUTTONDOWN, MK_LBUTTON | MK_MBUTTON, 205, 175);
    EXPECT_TRUE(stencil.grips().active().has_value());
    EXPECT_EQ(GetCapture(), sheet.window().handle());
}

TEST(frmWorksheet, ModifierKeysReachTheDragWhenTheyGoDownAndWhenTheyAreLetGo) {
    TestSheet sheet(sheetSize);
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    const HWND window = sheet.window().handle();
    const auto key = [&](UINT message, int virtualKey) {
        BYTE keys[256]{};
        GetKeyboardState(keys);
        const bool down = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
        keys[virtualKey] = down ? 0x80 : 0;
        SetKeyboardState(keys);
        SendMessageW(window, message, static_cast<WPARAM>(virtualKey), 0);
    };
    sheet.mouse(WM_MOUSEMOVE, 0, 300, 175);
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 300, 175);
    key(WM_KEYDOWN, VK_SHIFT);
    EXPECT_TRUE(stencil.grips().active().has_value());
    key(WM_KEYUP, VK_SHIFT);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 340, 175);
    EXPECT_EQ(stencil.RectBound(), (Rect{100, 100, 340.5, 250}));
    key(WM_KEYDOWN, VK_CONTROL);
    EXPECT_EQ(stencil.RectBound(), (Rect{79.75, 100, 320.25, 250}));
    key(WM_KEYDOWN, VK_CONTROL);
    key(WM_SYSKEYDOWN, VK_MENU);
    EXPECT_EQ(stencil.RectBound(), (Rect{79.75, 100, 320.25, 250}));
    key(WM_KEYUP, VK_CONTROL);
    EXPECT_EQ(stencil.RectBound(), (Rect{100, 100, 340.5, 250}));
    key(WM_SYSKEYUP, VK_MENU);
    sheet.mouse(WM_LBUTTONUP, 0, 340, 175);
    EXPECT_EQ(stencil.RectBound(), (Rect{100, 100, 340.5, 250}));
}

TEST(frmWorksheet, AltDoesNotOpenAMenu) {
    TestSheet sheet(sheetSize);
    EXPECT_EQ(SendMessageW(sheet.window().handle(), WM_SYSCOMMAND, SC_KEYMENU, 0), 0);
    EXPECT_EQ(SendMessageW(sheet.window().handle(), WM_SYSKEYDOWN, VK_PRIOR, 1 << 29), 0);
}

TEST(frmWorksheet, ToolsFollowAMouseOutsideTenTimesASecond) {
    TestSheet sheet(sheetSize);
    // Its right grip reaches beyond the sheet.
    const ctlRatioGrid& stencil =
        sheet.addStencil({400, 100, sheetSize.width - 2.0, 250}, 0, rgb(255, 0, 0));
    const Grip& grip = stencil.grips()[indexOfStencilGrip(StencilGripKind::size, 1)];
    const RECT place = sheet.window().rectangle();
    std::vector<std::chrono::steady_clock::time_point> changes;
    for (int i = 0; i < 12; ++i) {
        const bool beside = i % 2 == 0;
        SetCursorPos(static_cast<int>(place.right) + (beside ? 1 : 200),
                     static_cast<int>(place.top) + 175);
        ASSERT_TRUE(test::waitUntil([&] { return grip.grown() == beside; })) << i;
        changes.push_back(std::chrono::steady_clock::now());
    }
    std::vector<double> gaps;
    for (std::size_t i = 1; i < changes.size(); ++i) {
        gaps.push_back(std::chrono::duration<double>(changes[i] - changes[i - 1]).count());
    }
    std::ranges::sort(gaps);
    // Between two looks at the grip lie 10 ms, and a busy machine only adds to a gap.
    EXPECT_LT(gaps.front(), 0.2);
    EXPECT_GT(gaps[gaps.size() / 2], 0.08);
}

TEST(frmWorksheet, CloseRequestIsTheProgramsMatter) {
    TestSheet sheet(sheetSize);
    SendMessageW(sheet.window().handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(sheet.commands.closes, 1);
    EXPECT_TRUE(IsWindow(sheet.window().handle()));
}

TEST(frmWorksheet, MouseActionPlaysAndEnds) {
    TestSheet sheet(sheetSize);
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0.5, rgb(255, 0, 0));
    stencil.ShowMouseAction();
    EXPECT_TRUE(test::waitUntil([&] { return stencil.mouseAction().buttonDown(); }));
    EXPECT_TRUE(test::waitUntil([&] { return !stencil.mouseAction().running(); }));
    EXPECT_FALSE(stencil.mouseAction().linesVisible());
}

TEST(frmWorksheet, RemovedToolTakesItsTimerWithIt) {
    TestSheet sheet(sheetSize);
    sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    ctlRatioGrid& second = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    second.ShowMouseAction();
    sheet.window().sheet().RemoveControl(second);
    test::pause(test::milliseconds{200});
    EXPECT_EQ(sheet.window().sheet().zOrder().size(), 1U);
}

}  // namespace
}  // namespace ormala
