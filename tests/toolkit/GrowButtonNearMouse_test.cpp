#include "toolkit/GrowButtonNearMouse.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

/// A panel with round buttons of 22 by 22 pixels: at their corners the panel shows.
class GrowButtonTest : public testing::Test {
  protected:
    static WindowId id(const int& of) { return &of; }

    static GrowingButton button(const PixelRect& place, const int& window) {
        return {id(window), place, true, false, nullptr};
    }
    [[nodiscard]] std::optional<std::size_t> chosen(int dpi = 96) {
        return buttonNearMouse(
            buttons_, mouse_,
            [this](PixelPoint at) {
                lookups_.push_back(at);
                return id(atCorners_ == 0 ? panel_ : foreign_);
            },
            dpi);
    }
    void moveTo(int x, int y) { mouse_.at = {x, y}; }

    int panel_ = 0;
    int foreign_ = 0;
    int windows_[3] = {};
    int atCorners_ = 0;
    std::vector<PixelPoint> lookups_;
    std::vector<GrowingButton> buttons_{button({100, 100, 122, 122}, windows_[0]),
                                        button({126, 100, 148, 122}, windows_[1])};
    MouseOnScreen mouse_{{111, 111}, &panel_, nullptr};
};

TEST_F(GrowButtonTest, TheNearestButtonIsChosen) {
    moveTo(112, 130);
    EXPECT_EQ(chosen(), 0U);
    moveTo(136, 130);
    EXPECT_EQ(chosen(), 1U);
}

TEST_F(GrowButtonTest, OnEqualDistanceTheFirstIsChosen) {
    moveTo(124, 111);
    EXPECT_EQ(chosen(), 0U);
}

TEST_F(GrowButtonTest, NothingIsChosenBeyondTwentyFivePixels) {
    moveTo(111, 111 + 25);
    EXPECT_EQ(chosen(), 0U);
    moveTo(111, 111 + 26);
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(GrowButtonTest, TheDistanceFollowsTheResolution) {
    buttons_ = {button({100, 100, 144, 144}, windows_[0])};
    moveTo(122, 122 + 50);
    EXPECT_EQ(chosen(96), std::nullopt);
    EXPECT_EQ(chosen(192), 0U);
}

TEST_F(GrowButtonTest, AButtonUnderAnotherWindowIsNotChosen) {
    atCorners_ = 1;
    EXPECT_EQ(chosen(), std::nullopt);
    mouse_.windowUnder = &windows_[0];
    EXPECT_EQ(chosen(), 0U);
}

TEST_F(GrowButtonTest, AGrownButtonStaysChosenWhileTheMouseRests) {
    mouse_.windowUnder = &panel_;
    EXPECT_EQ(chosen(), 0U);
    buttons_[0].grown = true;
    buttons_[0].grownOver = &panel_;
    buttons_[0].place = grownPlace(buttons_[0].place, 96);
    // Grown, its corners lie beyond the panel.
    atCorners_ = 1;
    EXPECT_EQ(chosen(), 0U);
    mouse_.windowUnder = &windows_[2];
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(GrowButtonTest, AllFourCornersAreAskedForTheWindowUnderTheMouse) {
    buttons_.pop_back();
    atCorners_ = 1;
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_EQ(lookups_, (std::vector<PixelPoint>{{100, 100}, {121, 100}, {100, 121}, {121, 121}}));
}

TEST_F(GrowButtonTest, AButtonThatIsHiddenOrDisabledIsNotChosen) {
    buttons_[0].usable = false;
    moveTo(105, 111);
    EXPECT_EQ(chosen(), std::nullopt);
    moveTo(125, 111);
    EXPECT_EQ(chosen(), 1U);
}

TEST_F(GrowButtonTest, AButtonThirtyPixelsWideIsLargeEnough) {
    buttons_ = {button({100, 100, 130, 122}, windows_[0])};
    EXPECT_EQ(chosen(), std::nullopt);
    buttons_ = {button({100, 100, 129, 122}, windows_[0])};
    EXPECT_EQ(chosen(), 0U);
}

TEST_F(GrowButtonTest, AGrownButtonStaysTheChosenOne) {
    buttons_[0].place = grownPlace(buttons_[0].place, 96);
    buttons_[0].grown = true;
    EXPECT_EQ(buttons_[0].place, (PixelRect{96, 96, 126, 126}));
    EXPECT_EQ(chosen(), 0U);
    EXPECT_EQ(GrowButtonNearMouse(buttons_, chosen()), GrowthSteps{});
}

TEST_F(GrowButtonTest, TheHolderOfTheMouseIsChosenWhereverTheMouseIs) {
    mouse_.captureHolder = &windows_[1];
    moveTo(900, 900);
    EXPECT_EQ(chosen(), 1U);
    EXPECT_TRUE(lookups_.empty());
}

TEST_F(GrowButtonTest, AnotherHolderOfTheMouseChangesNothing) {
    mouse_.captureHolder = &foreign_;
    EXPECT_EQ(chosen(), 0U);
}

TEST_F(GrowButtonTest, FarButtonsCostNoLookUp) {
    moveTo(500, 500);
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_TRUE(lookups_.empty());
}

TEST_F(GrowButtonTest, TheChosenOneGrowsAndTheOthersGoBack) {
    buttons_[1].grown = true;
    EXPECT_EQ(GrowButtonNearMouse(buttons_, 0U), (GrowthSteps{0U, {1}}));
}

TEST_F(GrowButtonTest, AResetBringsAllBackToNormal) {
    buttons_[0].grown = true;
    buttons_[1].grown = true;
    EXPECT_EQ(GrowButtonNearMouse(buttons_, std::nullopt), (GrowthSteps{std::nullopt, {0, 1}}));
}

TEST_F(GrowButtonTest, GrowingAndGoingBackMeet) {
    for (const int dpi : {96, 120, 144, 192}) {
        const PixelRect place{10, 20, 32, 42};
        EXPECT_EQ(placeAtRest(grownPlace(place, dpi), dpi), place);
    }
    EXPECT_EQ(grownPlace({10, 20, 54, 64}, 192), (PixelRect{2, 12, 62, 72}));
}

TEST(GrowthHasWork, APanelThatCannotBeSeenHasNone) {
    const PixelRect window{0, 0, 300, 600};
    const PixelPoint over{50, 620};
    EXPECT_FALSE(growthHasWork({false, {0, 0, 284, 190}, window, true}, {50, 50}, 96));
    EXPECT_FALSE(growthHasWork({true, {0, 600, 284, 790}, window, true}, over, 96));
    EXPECT_TRUE(growthHasWork({true, {0, 599, 284, 790}, window, false}, over, 96));
}

TEST(GrowthHasWork, AMouseFarAwayMattersOnlyToAGrownButton) {
    const PixelRect window{0, 0, 300, 600};
    const PixelRect panel{0, 0, 284, 190};
    EXPECT_TRUE(growthHasWork({true, panel, window, false}, {284 + 24, 50}, 96));
    EXPECT_FALSE(growthHasWork({true, panel, window, false}, {284 + 25, 50}, 96));
    EXPECT_TRUE(growthHasWork({true, panel, window, true}, {900, 900}, 96));
}

}  // namespace
}  // namespace ormala
