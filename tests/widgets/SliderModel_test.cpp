#include "widgets/SliderModel.h"

#include <gtest/gtest.h>

#include <limits>

#include "scene/Input.h"

namespace ormala {
namespace {

/// A slider from 0 to 100 whose handle can go 100 pixels, from 3 to 103.
class SliderModelTest : public testing::Test {
  protected:
    SliderModelTest() {
        slider_.arrange({{115, 40}, 96, 13, 60});
        slider_.setValue(20);
        counting_ = slider_.Change.subscribe([this] { ++changes_; });
    }

    [[nodiscard]] int trackY() const { return slider_.layout().imgBack.top + 7; }
    [[nodiscard]] PixelPoint onTrack(int x) const { return {x, trackY()}; }
    /// In the middle of the handle.
    [[nodiscard]] PixelPoint onHandle() const { return {slider_.imgSlide().left + 4, trackY()}; }

    SliderModel slider_;
    int changes_ = 0;
    Subscription counting_;
};

TEST_F(SliderModelTest, HandleStandsWhereTheValueLies) {
    EXPECT_EQ(slider_.imgSlide().left, 23);
    slider_.setValue(0);
    EXPECT_EQ(slider_.imgSlide().left, slider_.layout().imgBack.left);
    slider_.setValue(100);
    EXPECT_EQ(slider_.imgSlide().right, slider_.layout().imgBack.right);
}

TEST_F(SliderModelTest, ValueFromOutsideIsKeptInTheRangeAndRaisesNoChange) {
    slider_.setValue(250);
    EXPECT_EQ(slider_.Value(), 100);
    slider_.setValue(-3);
    EXPECT_EQ(slider_.Value(), 0);
    slider_.setValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(slider_.Value(), 0);
    EXPECT_EQ(changes_, 0);
}

TEST_F(SliderModelTest, HandleStaysUnderThePointOfTheGrip) {
    slider_.press({slider_.imgSlide().left + 1, trackY()});
    EXPECT_EQ(slider_.Value(), 20);
    slider_.move(onTrack(34));
    EXPECT_EQ(slider_.imgSlide().left, 33);
    EXPECT_EQ(slider_.Value(), 30);
    slider_.move(onTrack(29));
    EXPECT_EQ(slider_.Value(), 25);
    EXPECT_EQ(changes_, 2);
}

TEST_F(SliderModelTest, PressOnTheHandleAloneChangesNothing) {
    slider_.setValue(20.3F);
    slider_.press(onHandle());
    slider_.move(onHandle());
    EXPECT_EQ(slider_.Value(), 20.3F);
    EXPECT_EQ(changes_, 0);
}

TEST_F(SliderModelTest, PressOnTheTrackCentresTheHandleOnTheMouse) {
    slider_.press(onTrack(57));
    EXPECT_EQ(slider_.imgSlide().left, 53);
    EXPECT_EQ(slider_.Value(), 50);
    EXPECT_EQ(changes_, 1);
    slider_.move(onTrack(67));
    EXPECT_EQ(slider_.Value(), 60);
}

TEST_F(SliderModelTest, DraggingPastTheEndGivesExactlyTheEnd) {
    slider_.setMin(-7);
    slider_.setMax(33);
    slider_.setValue(3);
    slider_.press(onHandle());
    slider_.move(onTrack(5000));
    EXPECT_EQ(slider_.Value(), 33);
    slider_.move(onTrack(-5000));
    EXPECT_EQ(slider_.Value(), -7);
    slider_.move(onTrack(-6000));
    EXPECT_EQ(changes_, 2);
}

TEST_F(SliderModelTest, MovesOnlyWhileItIsHeld) {
    slider_.move(onTrack(90));
    EXPECT_EQ(slider_.Value(), 20);
    slider_.press(onHandle());
    EXPECT_TRUE(slider_.isHeld());
    slider_.release();
    slider_.move(onTrack(90));
    EXPECT_EQ(slider_.Value(), 20);
}

TEST_F(SliderModelTest, PressOnALabelDoesNothing) {
    slider_.press({50, 5});
    EXPECT_FALSE(slider_.isHeld());
    EXPECT_EQ(slider_.Value(), 20);
}

TEST_F(SliderModelTest, ArrowKeysStep) {
    slider_.setStep(2.5F);
    EXPECT_TRUE(slider_.keyDown(key::right));
    EXPECT_EQ(slider_.Value(), 22.5F);
    EXPECT_TRUE(slider_.keyDown(key::left));
    EXPECT_EQ(slider_.Value(), 20);
    EXPECT_FALSE(slider_.keyDown(key::up));
    EXPECT_EQ(changes_, 2);
}

TEST_F(SliderModelTest, HomeAndEndGoToTheEnds) {
    slider_.setMin(-3);
    slider_.setMax(7);
    EXPECT_TRUE(slider_.keyDown(key::end));
    EXPECT_EQ(slider_.Value(), 7);
    EXPECT_TRUE(slider_.keyDown(key::home));
    EXPECT_EQ(slider_.Value(), -3);
    EXPECT_EQ(changes_, 2);
}

TEST_F(SliderModelTest, PageUpAndPageDownGoByATenthOfTheRangeInWholeSteps) {
    EXPECT_TRUE(slider_.keyDown(key::pageUp));
    EXPECT_EQ(slider_.Value(), 30);
    EXPECT_TRUE(slider_.keyDown(key::pageDown));
    EXPECT_TRUE(slider_.keyDown(key::pageDown));
    EXPECT_EQ(slider_.Value(), 10);
    EXPECT_EQ(changes_, 3);
    slider_.setMax(10);
    slider_.keyDown(key::pageDown);
    EXPECT_EQ(slider_.Value(), 9);
    slider_.setMax(3);
    slider_.keyDown(key::pageDown);
    EXPECT_EQ(slider_.Value(), 2);
    slider_.keyDown(key::pageUp);
    slider_.keyDown(key::pageUp);
    EXPECT_EQ(slider_.Value(), 3);
}

TEST_F(SliderModelTest, KeyAtTheEndRaisesChangeThoughNothingChanges) {
    slider_.setValue(100);
    slider_.keyDown(key::right);
    EXPECT_EQ(slider_.Value(), 100);
    EXPECT_EQ(changes_, 1);
    slider_.setValue(0.4F);
    slider_.keyDown(key::left);
    EXPECT_EQ(slider_.Value(), 0);
}

TEST_F(SliderModelTest, StepOfATenthShowsOneDecimalAndAWholeStepNone) {
    slider_.setCaption("Size");
    slider_.setValue(2.25F);
    EXPECT_EQ(slider_.captionText(), "Size: 2");
    slider_.setStep(0.1F);
    EXPECT_EQ(slider_.captionText(), "Size: 2.3");
    slider_.setValue(3);
    EXPECT_EQ(slider_.captionText(), "Size: 3.0");
    slider_.setStep(1.25F);
    EXPECT_EQ(slider_.captionText(), "Size: 3.00");
    slider_.setStep(10);
    EXPECT_EQ(slider_.captionText(), "Size: 3");
}

TEST_F(SliderModelTest, CaptionRoundsHalvesAwayFromZeroAndHasTheSeparatorOfTheUser) {
    slider_.setMin(-100);
    slider_.setValue(-2.5F);
    EXPECT_EQ(slider_.valueText(slider_.Value()), "-3");
    slider_.setStep(0.5F);
    slider_.setDecimalSeparator(",");
    EXPECT_EQ(slider_.captionText(), "Caption: -2,5");
}

TEST_F(SliderModelTest, CaptionFollowsTheDrag) {
    slider_.press(onTrack(57));
    EXPECT_EQ(slider_.captionText(), "Caption: 50");
}

TEST_F(SliderModelTest, NewEndsKeepTheValueBetweenThem) {
    slider_.setMax(10);
    EXPECT_EQ(slider_.Value(), 10);
    EXPECT_EQ(slider_.imgSlide().right, slider_.layout().imgBack.right);
    EXPECT_EQ(changes_, 0);
}

TEST_F(SliderModelTest, RangeOfNothingStandsAtItsBeginning) {
    slider_.setMin(5);
    slider_.setMax(5);
    EXPECT_EQ(slider_.Value(), 5);
    EXPECT_EQ(slider_.imgSlide().left, slider_.layout().imgBack.left);
    slider_.press(onTrack(57));
    EXPECT_EQ(slider_.Value(), 5);
}

TEST_F(SliderModelTest, SliderWithoutRoomDoesNotFail) {
    slider_.arrange({{0, 0}, 96, 13, 60});
    slider_.press({0, 0});
    slider_.move({10, 0});
    EXPECT_EQ(slider_.Value(), 20);
}

TEST_F(SliderModelTest, HandlerMaySetTheValue) {
    const Subscription rounding = slider_.Change.subscribe([this] { slider_.setValue(42); });
    slider_.press(onTrack(57));
    EXPECT_EQ(slider_.Value(), 42);
    EXPECT_EQ(slider_.imgSlide().left, 45);
}

TEST(SliderLayout, LabelsStandAboveTheTrackWhereThereIsRoom) {
    const SliderLayout layout = layoutSlider({{120, 40}, 96, 13, 60});
    EXPECT_LE(layout.lblCaption.bottom, layout.imgBack.top);
    EXPECT_EQ(layout.lblMin.left, layout.imgBack.left);
    EXPECT_EQ(layout.lblMax.right, layout.imgBack.right);
    EXPECT_EQ(layout.handle, (PixelSize{9, 15}));
}

TEST(SliderLayout, CaptionStandsInFrontOfTheTrackInALowSlider) {
    const SliderLayout layout = layoutSlider({{140, 24}, 96, 13, 60});
    EXPECT_TRUE(layout.lblMin.empty());
    EXPECT_TRUE(layout.lblMax.empty());
    EXPECT_EQ(layout.lblCaption.width(), 60);
    EXPECT_GT(layout.imgBack.left, layout.lblCaption.right);
    EXPECT_EQ(layout.imgBack.right, 137);
}

TEST(SliderLayout, GrowsWithTheResolution) {
    const SliderLayout layout = layoutSlider({{240, 80}, 192, 26, 120});
    EXPECT_EQ(layout.handle, (PixelSize{18, 30}));
    EXPECT_EQ(layout.imgBack, (PixelRect{6, 44, 234, 74}));
    EXPECT_EQ(layout.shpLine.height(), 6);
}

}  // namespace
}  // namespace ormala
