#include "widgets/win/GradShape.h"

#include <gtest/gtest.h>

#include "platform/win/controlName.h"
#include "win/ControlPanel.h"

namespace ormala {
namespace {

class GradShapeTest : public testing::Test {
  protected:
    GradShapeTest() {
        shape_.setColorTopLeft(rgb(120, 120, 120));
        shape_.setColorBottomRight(rgb(60, 60, 60));
        shape_.place({20, 10, 120, 31});
    }

    ControlPanel panel_;
    GradShape shape_{panel_.handle(), 4, "grdTitle"};
};

TEST_F(GradShapeTest, IsFoundByClassNameAndId) {
    EXPECT_EQ(windowClass(shape_.handle()), "GradShape");
    EXPECT_EQ(controlName(shape_.handle()), "grdTitle");
    EXPECT_EQ(GetDlgItem(panel_.handle(), 4), shape_.handle());
}

TEST_F(GradShapeTest, ShowsItsGradient) {
    const PixelMap map = panel_.shown();
    EXPECT_EQ(map.at(20, 9), ControlPanel::ground);
    EXPECT_EQ(map.at(20, 10), RGB(120, 120, 120));
    EXPECT_EQ(map.at(119, 20), RGB(90, 90, 90));
    EXPECT_EQ(map.at(60, 30), RGB(60, 60, 60));
    shape_.setOrientation(0);
    const PixelMap lying = panel_.shown();
    EXPECT_EQ(lying.at(20, 25), RGB(120, 120, 120));
    EXPECT_EQ(lying.at(119, 15), RGB(60, 60, 60));
}

TEST_F(GradShapeTest, PanelOnePixelHighShowsColorTopLeftAlone) {
    shape_.place({20, 10, 120, 11});
    const PixelMap map = panel_.shown();
    EXPECT_EQ(map.at(20, 10), RGB(120, 120, 120));
    EXPECT_EQ(map.at(119, 10), RGB(120, 120, 120));
    EXPECT_EQ(map.at(60, 11), ControlPanel::ground);
}

TEST_F(GradShapeTest, GrowingPaintsAllOfItAnew) {
    panel_.shown();
    shape_.place({20, 10, 120, 51});
    EXPECT_EQ(panel_.shown().at(60, 30), RGB(90, 90, 90));
}

TEST_F(GradShapeTest, MouseGoesToTheParentInItsCoordinates) {
    panel_.mouse.clear();
    SendMessageW(shape_.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 4));
    EXPECT_EQ(panel_.mouse, (std::vector{ControlPanel::MouseNote{WM_LBUTTONDOWN, 23, 14}}));
}

}  // namespace
}  // namespace ormala
