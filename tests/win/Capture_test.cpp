#include <gtest/gtest.h>

#include <memory>

#include "dialogs/win/ColorPic.h"
#include "dialogs/win/LinkLabel.h"
#include "dialogs/win/ctlLineSelect.h"
#include "widgets/win/Scroll.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/ctlSlider.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

// What every window does that holds the mouse while a button is down.

namespace ormala {
namespace {

void mouse(HWND window, UINT message, WPARAM held) {
    SendMessageW(window, message, held, MAKELPARAM(9, 9));
}

/// Whether a press takes the mouse, moves with the button keep it, and one without gives it back.
void expectCaptureForAButtonOnly(HWND window, const char* name) {
    mouse(window, WM_LBUTTONDOWN, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), window) << name;
    mouse(window, WM_MOUSEMOVE, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), window) << name;
    mouse(window, WM_MOUSEMOVE, MK_XBUTTON1);
    EXPECT_EQ(GetCapture(), window) << name;
    mouse(window, WM_MOUSEMOVE, 0);
    EXPECT_EQ(GetCapture(), nullptr) << name;
}

template <typename Control>
void expectOfControl(const char* name) {
    TestWindow holder;
    Control control(holder.handle(), 7, name);
    control.setDpi(96);
    control.place({20, 20, 220, 60});
    expectCaptureForAButtonOnly(control.handle(), name);
}

TEST(Capture, OfEveryControlEndsWithAMoveWithoutAButton) {
    expectOfControl<ZelvikButtonXP>("cmdUndo");
    expectOfControl<ctlSlider>("sldTransEditMode");
    expectOfControl<ctlLineSelect>("LineSelect");
    expectOfControl<LinkLabel>("lblWeb");
}

TEST(Capture, OfTheScrollBarEndsSoToo) {
    TestWindow holder;
    Clock clock([](bool) {});
    Scroll bar(holder.handle(), 7, "scrInner", clock);
    bar.setDpi(96);
    bar.place({20, 20, 220, 60});
    expectCaptureForAButtonOnly(bar.handle(), "scrInner");
}

TEST(Capture, OfTheColourControlEndsSoToo) {
    TestWindow holder;
    ColorPic picker(holder.handle(), 7, "colorWorksheet");
    picker.setPictureIndex(palette::pure);
    expectCaptureForAButtonOnly(picker.handle(), "colorWorksheet");
}

TEST(Capture, OfTheWorksheetEndsSoTooAndItsDragAsOneStep) {
    TestSheet sheet({640, 480});
    expectCaptureForAButtonOnly(sheet.window().handle(), "worksheet");
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 200, 175);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 210, 180);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 220, 185);
    sheet.mouse(WM_MOUSEMOVE, 0, 400, 300);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(stencil.RectBound().left, 120);
    EXPECT_EQ(stencil.RectBound().top, 110);
}

TEST(Capture, PressThatHasLostItsButtonIsNoClick) {
    TestWindow holder;
    ZelvikButtonXP button(holder.handle(), 7, "cmdUndo");
    button.place({20, 20, 220, 60});
    int clicks = 0;
    const Subscription counting = button.Click.subscribe([&] { ++clicks; });
    mouse(button.handle(), WM_LBUTTONDOWN, MK_LBUTTON);
    mouse(button.handle(), WM_MOUSEMOVE, 0);
    mouse(button.handle(), WM_LBUTTONUP, 0);
    EXPECT_EQ(clicks, 0);
    mouse(button.handle(), WM_LBUTTONDOWN, MK_LBUTTON);
    mouse(button.handle(), WM_LBUTTONUP, 0);
    EXPECT_EQ(clicks, 1);
}

TEST(Capture, OfTheWorksheetEndsWhenItTakesTheMouseNoMore) {
    TestSheet sheet({640, 480});
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0, rgb(255, 0, 0));
    sheet.mouse(WM_LBUTTONDOWN, MK_LBUTTON, 200, 175);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 210, 180);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 230, 185);
    ASSERT_EQ(GetCapture(), sheet.window().handle());
    sheet.window().setClickable(false);
    EXPECT_EQ(GetCapture(), nullptr);
    sheet.mouse(WM_MOUSEMOVE, MK_LBUTTON, 330, 285);
    EXPECT_EQ(stencil.RectBound().left, 130);
    EXPECT_EQ(stencil.RectBound().top, 110);
}

}  // namespace
}  // namespace ormala
