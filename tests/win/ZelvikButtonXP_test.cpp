#include "widgets/win/ZelvikButtonXP.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "scene/Input.h"
#include "scene/pixelImages.h"
#include "support/win/Wait.h"
#include "win/AccessibleReader.h"
#include "win/ControlPanel.h"
#include "win/marks.h"

namespace ormala {
namespace {

constexpr COLORREF outline = RGB(64, 64, 64);
constexpr COLORREF accent = RGB(255, 230, 0);

class ZelvikButtonXPTest : public testing::Test {
  protected:
    ZelvikButtonXPTest() {
        button_->setDpi(96);
        button_->setBackColor(rgb(112, 112, 112));
        button_->setForeColor(rgb(255, 230, 0));
        button_->place({20, 10, 60, 32});
    }

    [[nodiscard]] HWND window() const { return button_->handle(); }
    void mouse(UINT message, int x, int y, WPARAM held = 0) const {
        SendMessageW(window(), message, held, MAKELPARAM(x, y));
    }
    PixelMap shown() const { return panel_.shown(); }
    /// How often an event was raised.
    template <typename... Args>
    void count(Event<Args...>& event, int& counter) {
        counting_.push_back(event.subscribe([&counter](Args...) { ++counter; }));
    }

    AccessibleThread thread_;
    ControlPanel panel_;
    std::unique_ptr<ZelvikButtonXP> button_ =
        std::make_unique<ZelvikButtonXP>(panel_.handle(), 7, "cmdMove(3)");
    std::vector<Subscription> counting_;
};

TEST_F(ZelvikButtonXPTest, IsFoundByClassNameAndId) {
    EXPECT_EQ(windowClass(window()), "ZelvikButtonXP");
    EXPECT_EQ(controlName(window()), "cmdMove(3)");
    EXPECT_EQ(GetDlgItem(panel_.handle(), 7), window());
}

TEST_F(ZelvikButtonXPTest, WindowTextIsTheCaptionOrElseTheTip) {
    button_->SetTooltip("Move to the left");
    EXPECT_EQ(windowText(window()), "Move to the left");
    button_->setCaption("&Left");
    EXPECT_EQ(windowText(window()), "&Left");
    button_->SetTooltip("Move to the right");
    EXPECT_EQ(windowText(window()), "&Left");
    button_->setCaption("");
    EXPECT_EQ(windowText(window()), "Move to the right");
}

TEST_F(ZelvikButtonXPTest, ButtonBelow10PixelsBecomes10Pixels) {
    button_->place({20, 10, 23, 50});
    EXPECT_EQ(fromRect(button_->clientRectangle()), (PixelRect{0, 0, 10, 40}));
    SetWindowPos(window(), nullptr, 0, 0, 50, 4, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(fromRect(button_->clientRectangle()), (PixelRect{0, 0, 50, 10}));
    button_->setDpi(192);
    button_->place({0, 0, 5, 5});
    EXPECT_EQ(fromRect(button_->clientRectangle()), (PixelRect{0, 0, 20, 20}));
}

TEST_F(ZelvikButtonXPTest, PanelShowsThroughTheRoundCorners) {
    const PixelMap map = shown();
    for (const int x : {20, 59}) {
        for (const int y : {10, 31}) {
            EXPECT_EQ(map.at(x, y), ControlPanel::ground) << x << ' ' << y;
        }
    }
    EXPECT_EQ(map.at(21, 10), outline);
    EXPECT_EQ(map.at(20, 11), outline);
    button_->setCornerStyle(3);
    const PixelMap square = shown();
    EXPECT_EQ(square.at(20, 10), outline);
    EXPECT_EQ(square.at(59, 31), outline);
}

TEST_F(ZelvikButtonXPTest, FaceIsAGradientAroundTheBackColour) {
    const PixelMap map = shown();
    EXPECT_EQ(map.at(40, 11), RGB(160, 160, 160));
    EXPECT_EQ(map.at(40, 30), RGB(88, 88, 88));
}

TEST_F(ZelvikButtonXPTest, MouseClickRaisesItsEventsInOrder) {
    std::string order;
    counting_.push_back(button_->MouseDown.subscribe([&](const MouseArguments&) { order += 'd'; }));
    counting_.push_back(button_->Click.subscribe([&] { order += 'c'; }));
    counting_.push_back(button_->MouseUp.subscribe([&](const MouseArguments&) { order += 'u'; }));
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_EQ(GetCapture(), window());
    EXPECT_EQ(GetFocus(), window());
    mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(order, "dcu");
    EXPECT_NE(GetCapture(), window());
}

TEST_F(ZelvikButtonXPTest, ReleaseOutsideRaisesNoClick) {
    int clicks = 0;
    int releases = 0;
    count(button_->Click, clicks);
    count(button_->MouseUp, releases);
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    mouse(WM_LBUTTONUP, -5, 5);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(releases, 1);
}

TEST_F(ZelvikButtonXPTest, LostCaptureEndsThePressWithoutAClick) {
    int clicks = 0;
    int releases = 0;
    count(button_->Click, clicks);
    count(button_->MouseUp, releases);
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_NE(SendMessageW(window(), BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    SetCapture(panel_.handle());
    EXPECT_EQ(SendMessageW(window(), BM_GETSTATE, 0, 0) & BST_PUSHED, 0);
    mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(releases, 1);
    ReleaseCapture();
}

TEST_F(ZelvikButtonXPTest, DoubleClickIsOneDblClickBetweenTwoClicks) {
    int clicks = 0;
    int doubles = 0;
    count(button_->Click, clicks);
    count(button_->DblClick, doubles);
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    mouse(WM_LBUTTONUP, 5, 5);
    mouse(WM_LBUTTONDBLCLK, 5, 5, MK_LBUTTON);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(doubles, 1);
    mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(clicks, 2);
    EXPECT_NE(GetClassLongPtrW(window(), GCL_STYLE) & CS_DBLCLKS, 0U);
}

TEST_F(ZelvikButtonXPTest, HoverMarkComesWithTheMouseAndTheTimerEndsIt) {
    SetCursorPos(900, 700);
    int exits = 0;
    count(button_->MouseExit, exits);
    mouse(WM_MOUSEMOVE, 5, 5);
    UpdateWindow(window());
    EXPECT_EQ(readClient(window()).at(20, 1), hoverMark);
    EXPECT_TRUE(test::waitUntil([&] { return exits == 1; }));
    EXPECT_EQ(shown().at(40, 11), RGB(160, 160, 160));
}

TEST_F(ZelvikButtonXPTest, ChangingTheCaptionKeepsTheHoverState) {
    mouse(WM_MOUSEMOVE, 5, 5);
    button_->setCaption("Other");
    UpdateWindow(window());
    EXPECT_EQ(readClient(window()).at(20, 1), hoverMark);
}

TEST_F(ZelvikButtonXPTest, FocusIsMarkedOnTheFace) {
    SetFocus(window());
    EXPECT_EQ(shown().at(40, 11), focusMark);
    SetFocus(panel_.handle());
    EXPECT_EQ(shown().at(40, 11), RGB(160, 160, 160));
}

TEST_F(ZelvikButtonXPTest, SpaceBarClicksOnRelease) {
    int clicks = 0;
    count(button_->Click, clicks);
    SendMessageW(window(), WM_KEYDOWN, VK_SPACE, 0);
    SendMessageW(window(), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(clicks, 0);
    SendMessageW(window(), WM_KEYUP, VK_SPACE, 0);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ZelvikButtonXPTest, AccessKeyClicksInEitherCaseIfEnabled) {
    int clicks = 0;
    count(button_->Click, clicks);
    EXPECT_FALSE(button_->pressAccessKey(L's'));
    button_->setCaption("Save &as");
    EXPECT_TRUE(button_->pressAccessKey(L'a'));
    EXPECT_TRUE(button_->pressAccessKey(L'A'));
    EXPECT_FALSE(button_->pressAccessKey(L's'));
    button_->setEnabled(false);
    EXPECT_FALSE(button_->pressAccessKey(L'a'));
    EXPECT_EQ(clicks, 2);
}

TEST_F(ZelvikButtonXPTest, ProgramsPressItAndReadItsCheck) {
    int clicks = 0;
    count(button_->Click, clicks);
    SendMessageW(window(), BM_CLICK, 0, 0);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(SendMessageW(window(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    button_->setValue(true);
    EXPECT_EQ(SendMessageW(window(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    button_->setControlType(1);
    EXPECT_EQ(SendMessageW(window(), BM_GETCHECK, 0, 0), BST_CHECKED);
    button_->setEnabled(false);
    SendMessageW(window(), BM_CLICK, 0, 0);
    EXPECT_EQ(clicks, 1);
    EXPECT_NE(SendMessageW(window(), WM_GETDLGCODE, 0, 0) & DLGC_BUTTON, 0);
}

TEST_F(ZelvikButtonXPTest, DisablingGivesTheFocusToTheParent) {
    SetFocus(window());
    button_->setEnabled(false);
    EXPECT_FALSE(button_->Enabled());
    EXPECT_EQ(GetFocus(), panel_.handle());
    EXPECT_EQ(shown().at(40, 11), RGB(170, 170, 170));
}

TEST_F(ZelvikButtonXPTest, PictureIsMadeOnceForEachSizeAndOnlyWhenItIsShown) {
    std::vector<PixelSize> asked;
    button_->setPictureSize(8, 6);
    button_->setPicture([&](PixelSize size) {
        asked.push_back(size);
        return filledImage(size, 0xFFFFE600U);
    });
    EXPECT_TRUE(asked.empty());
    // The inner rectangle is 4, 4, 37, 19.
    EXPECT_EQ(shown().at(36, 18), accent);
    button_->setBackColor(rgb(90, 90, 90));
    shown();
    EXPECT_EQ(asked, std::vector{(PixelSize{8, 6})});
    button_->setDpi(192);
    shown();
    EXPECT_EQ(asked, (std::vector{PixelSize{8, 6}, PixelSize{16, 12}}));
}

TEST_F(ZelvikButtonXPTest, HoverPictureIsShownUnderTheMouse) {
    button_->setPictureSize(8, 6);
    button_->setPicture([](PixelSize size) { return filledImage(size, 0xFFFFE600U); });
    button_->setPictureHover([](PixelSize size) { return filledImage(size, 0xFF0000FFU); });
    mouse(WM_MOUSEMOVE, 5, 5);
    UpdateWindow(window());
    EXPECT_EQ(readClient(window()).at(20, 11), RGB(0, 0, 255));
}

TEST_F(ZelvikButtonXPTest, ButtonAtRestOwnsNoTipWindow) {
    const int before = tipWindowCount();
    button_->SetTooltip("Move");
    EXPECT_EQ(tipWindowCount(), before);
    mouse(WM_MOUSEMOVE, 5, 5);
    EXPECT_EQ(tipWindowCount(), before + 1);
}

TEST_F(ZelvikButtonXPTest, HandlerMayDestroyTheButton) {
    const HWND former = window();
    const Subscription ending = button_->Click.subscribe([this] { button_.reset(); });
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    mouse(WM_LBUTTONUP, 5, 5);
    EXPECT_EQ(button_, nullptr);
    EXPECT_FALSE(IsWindow(former));
}

TEST_F(ZelvikButtonXPTest, HandlerOfTheFocusMayDestroyTheButton) {
    const HWND former = window();
    const Subscription ending = button_->gotFocus.subscribe([this] { button_.reset(); });
    SendMessageW(former, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(button_, nullptr);
}

TEST_F(ZelvikButtonXPTest, ScreenReaderLearnsNameRoleAndState) {
    button_->SetTooltip("Move to the left");
    const AccessibleReader reader(window());
    ASSERT_TRUE(reader.found());
    EXPECT_EQ(reader.name(), "Move to the left");
    EXPECT_EQ(reader.role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_NE(reader.state() & STATE_SYSTEM_FOCUSABLE, 0);
    EXPECT_EQ(reader.state() & STATE_SYSTEM_PRESSED, 0);
    mouse(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
    EXPECT_NE(reader.state() & STATE_SYSTEM_PRESSED, 0);
    EXPECT_NE(reader.state() & STATE_SYSTEM_FOCUSED, 0);
    mouse(WM_LBUTTONUP, 5, 5);
    button_->setCaption("&Left");
    EXPECT_EQ(reader.name(), "Left");
    EXPECT_EQ(reader.shortcut(), "Alt+L");
    button_->setEnabled(false);
    EXPECT_NE(reader.state() & STATE_SYSTEM_UNAVAILABLE, 0);
    EXPECT_EQ(reader.state() & STATE_SYSTEM_FOCUSABLE, 0);
}

TEST_F(ZelvikButtonXPTest, ScreenReaderLearnsWhetherAToggleIsOn) {
    const AccessibleReader reader(window());
    ASSERT_TRUE(reader.found());
    button_->setControlType(1);
    EXPECT_EQ(reader.role(), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(reader.state() & STATE_SYSTEM_CHECKED, 0);
    button_->setValue(true);
    EXPECT_NE(reader.state() & STATE_SYSTEM_CHECKED, 0);
    button_->setControlType(2);
    EXPECT_EQ(reader.role(), ROLE_SYSTEM_RADIOBUTTON);
}

TEST_F(ZelvikButtonXPTest, ScreenReaderPressesTheButton) {
    int clicks = 0;
    count(button_->Click, clicks);
    const AccessibleReader reader(window());
    ASSERT_TRUE(reader.found());
    EXPECT_EQ(reader.act(), S_OK);
    EXPECT_TRUE(test::waitUntil([&] { return clicks == 1; }));
}

TEST_F(ZelvikButtonXPTest, ScreenReaderMayOutliveTheButton) {
    const AccessibleReader reader(window());
    ASSERT_TRUE(reader.found());
    button_.reset();
    EXPECT_EQ(reader.name(), "");
    EXPECT_NE(reader.act(), S_OK);
}

}  // namespace
}  // namespace ormala
