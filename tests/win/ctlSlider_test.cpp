#include "widgets/win/ctlSlider.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "platform/win/StandardControl.h"
#include "platform/win/controlName.h"
#include "win/ModalPlayer.h"
#include "win/TestAccessible.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"
#include "win/marks.h"

namespace ormala {
namespace {

constexpr COLORREF onColor = RGB(187, 168, 0);
constexpr COLORREF labelColor = RGB(255, 230, 0);

/// A slider from 0 to 100 whose handle can go 200 pixels.
class ctlSliderTest : public testing::Test {
  protected:
    ctlSliderTest() {
        slider_->setDpi(96);
        resize(215, 40);
        slider_->setCaption("Edit");
        counting_ = slider_->Change.subscribe([this] { ++changes_; });
    }

    void resize(int width, int height) const {
        SetWindowPos(slider_->handle(), nullptr, 10, 10, width, height, SWP_NOZORDER);
    }
    void mouse(UINT message, int x, int y) const {
        const WPARAM held = message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
        SendMessageW(slider_->handle(), message, held, MAKELPARAM(x, y));
    }
    [[nodiscard]] int trackY() const { return slider_->layout().imgBack.top + 7; }
    [[nodiscard]] PixelMap shown() const {
        UpdateWindow(slider_->handle());
        return readClient(slider_->handle());
    }
    [[nodiscard]] bool shows(COLORREF color) const {
        const PixelMap map = shown();
        return std::ranges::find(map.pixels, color) != map.pixels.end();
    }

    TestWindow holder_;
    std::unique_ptr<ctlSlider> slider_ =
        std::make_unique<ctlSlider>(holder_.handle(), 7, "sldEditTransparency");
    int changes_ = 0;
    Subscription counting_;
};

TEST_F(ctlSliderTest, IsFoundByClassNameAndIdAndSaysItsValue) {
    EXPECT_EQ(classNameOf(slider_->handle()), "ctlSlider");
    EXPECT_EQ(controlName(slider_->handle()), "sldEditTransparency");
    EXPECT_EQ(GetDlgItem(holder_.handle(), 7), slider_->handle());
    EXPECT_EQ(textOf(slider_->handle()), "Edit: 20");
    slider_->setValue(25);
    EXPECT_EQ(textOf(slider_->handle()), "Edit: 25");
    EXPECT_EQ(changes_, 0);
    EXPECT_EQ(GetWindow(slider_->handle(), GW_CHILD), nullptr);
}

TEST_F(ctlSliderTest, ScreenReaderHearsASliderWithItsValue) {
    EXPECT_EQ(accessibleRoleOf(slider_->handle()), 51);
    EXPECT_EQ(accessibleNameOf(slider_->handle()), "Edit");
    slider_->setValue(25);
    EXPECT_EQ(accessibleValueOf(slider_->handle()), "25");
}

TEST_F(ctlSliderTest, DragMovesTheHandleWithTheMouse) {
    const int grip = slider_->imgSlide().left + 2;
    mouse(WM_LBUTTONDOWN, grip, trackY());
    EXPECT_EQ(GetCapture(), slider_->handle());
    EXPECT_EQ(GetFocus(), slider_->handle());
    mouse(WM_MOUSEMOVE, grip + 40, trackY());
    EXPECT_EQ(slider_->Value(), 40);
    EXPECT_EQ(textOf(slider_->handle()), "Edit: 40");
    mouse(WM_MOUSEMOVE, 3000, 500);
    EXPECT_EQ(slider_->Value(), 100);
    mouse(WM_LBUTTONUP, 3000, 500);
    EXPECT_EQ(GetCapture(), nullptr);
    mouse(WM_MOUSEMOVE, grip, trackY());
    EXPECT_EQ(slider_->Value(), 100);
    EXPECT_EQ(changes_, 2);
}

TEST_F(ctlSliderTest, PressOnTheTrackBringsTheHandle) {
    mouse(WM_LBUTTONDOWN, slider_->layout().imgBack.left + 104, trackY());
    EXPECT_EQ(slider_->Value(), 50);
    mouse(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(changes_, 1);
}

TEST_F(ctlSliderTest, RightButtonDoesNothing) {
    mouse(WM_RBUTTONDOWN, slider_->layout().imgBack.left + 104, trackY());
    EXPECT_EQ(slider_->Value(), 20);
}

TEST_F(ctlSliderTest, LostCaptureEndsTheDrag) {
    mouse(WM_LBUTTONDOWN, slider_->imgSlide().left + 2, trackY());
    SetCapture(holder_.handle());
    mouse(WM_MOUSEMOVE, 150, trackY());
    EXPECT_EQ(slider_->Value(), 20);
    ReleaseCapture();
}

TEST_F(ctlSliderTest, ArrowKeysStep) {
    EXPECT_NE(SendMessageW(slider_->handle(), WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS, 0);
    SendMessageW(slider_->handle(), WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(slider_->Value(), 21);
    SendMessageW(slider_->handle(), WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_EQ(slider_->Value(), 20);
    EXPECT_EQ(changes_, 2);
}

TEST_F(ctlSliderTest, FocusFrameComesAndGoesWithTheFocus) {
    EXPECT_NE(shown().at(0, 0), onColor);
    SetFocus(slider_->handle());
    EXPECT_EQ(shown().at(0, 0), onColor);
    EXPECT_EQ(shown().at(214, 39), onColor);
    SetFocus(holder_.handle());
    EXPECT_EQ(shown().at(0, 0), 0x606060U);
}

TEST_F(ctlSliderTest, HandleIsMarkedUnderTheMouse) {
    EXPECT_FALSE(shows(hoverMark));
    SendMessageW(slider_->handle(), WM_MOUSEMOVE, 0,
                 MAKELPARAM(slider_->imgSlide().left + 4, trackY()));
    EXPECT_TRUE(shows(hoverMark));
    SendMessageW(slider_->handle(), WM_MOUSELEAVE, 0, 0);
    EXPECT_FALSE(shows(hoverMark));
}

TEST_F(ctlSliderTest, DisabledSliderIsDimAndTakesNothing) {
    EXPECT_TRUE(shows(labelColor));
    EXPECT_TRUE(shows(onColor));
    mouse(WM_LBUTTONDOWN, slider_->imgSlide().left + 2, trackY());
    slider_->setEnabled(false);
    EXPECT_EQ(GetCapture(), nullptr);
    mouse(WM_MOUSEMOVE, 150, trackY());
    EXPECT_EQ(slider_->Value(), 20);
    SetFocus(holder_.handle());
    EXPECT_FALSE(shows(labelColor));
    EXPECT_FALSE(shows(onColor));
    slider_->setEnabled(true);
    EXPECT_TRUE(shows(labelColor));
}

TEST_F(ctlSliderTest, AllMeasuresGrowWithTheResolution) {
    slider_->setDpi(192);
    resize(430, 80);
    EXPECT_EQ(slider_->layout().handle, (PixelSize{18, 30}));
    SetFocus(slider_->handle());
    EXPECT_EQ(shown().at(1, 1), onColor);
    EXPECT_EQ(shown().at(2, 2), 0x606060U);
}

TEST_F(ctlSliderTest, LowSliderHasItsCaptionInFrontOfTheTrack) {
    resize(140, 24);
    EXPECT_TRUE(slider_->layout().lblMin.empty());
    EXPECT_GT(slider_->layout().imgBack.left, slider_->layout().lblCaption.right);
    EXPECT_GT(slider_->layout().imgBack.width(), 40);
    const int before = slider_->layout().imgBack.left;
    slider_->setCaption("Template");
    EXPECT_GT(slider_->layout().imgBack.left, before);
}

TEST_F(ctlSliderTest, HandlerMayDestroyTheSlider) {
    const Subscription ending = slider_->Change.subscribe([this] { slider_.reset(); });
    const HWND window = slider_->handle();
    SendMessageW(window, WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ(slider_, nullptr);
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ctlSliderTest, GoesWithItsParent) {
    DestroyWindow(holder_.handle());
    EXPECT_EQ(slider_->handle(), nullptr);
    slider_->setValue(30);
    EXPECT_EQ(slider_->Value(), 30);
}

}  // namespace
}  // namespace ormala
