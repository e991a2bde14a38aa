#include "dialogs/ColorPicModel.h"

#include <optional>
#include <set>

#include <gtest/gtest.h>

#include "scene/Input.h"

namespace ormala {
namespace {

class ColorPicModelTest : public testing::Test {
  protected:
    ColorPicModelTest() {
        picker_->setPictureIndex(palette::pure);
        changing_ = picker_->RGBChanged.subscribe([this] { events_ += 'c'; });
        clicking_ = picker_->DoubleClick.subscribe([this] { events_ += 'd'; });
    }

    Color colorAt(int x, int y) const { return picker_->palette().at({x, y}); }

    std::optional<ColorPicModel> picker_{std::in_place};
    std::string events_;
    Subscription changing_;
    Subscription clicking_;
};

TEST_F(ColorPicModelTest, APressPicksTheFieldUnderTheMouse) {
    picker_->press({35, 12});
    EXPECT_EQ(picker_->field(), (PixelPoint{3, 1}));
    EXPECT_EQ(picker_->RGBColor(), colorAt(3, 1));
    EXPECT_EQ(picker_->shpSelected(), (PixelRect{30, 10, 40, 20}));
    EXPECT_EQ(events_, "c");
}

TEST_F(ColorPicModelTest, ADragPicksOnAndAMoveWithoutTheButtonDoesNot) {
    picker_->move({35, 12});
    EXPECT_EQ(events_, "");
    picker_->press({5, 5});
    picker_->move({15, 5});
    picker_->release({25, 5});
    EXPECT_EQ(picker_->field(), (PixelPoint{2, 0}));
    picker_->move({35, 12});
    EXPECT_EQ(picker_->field(), (PixelPoint{2, 0}));
    EXPECT_EQ(events_, "ccc");
}

TEST_F(ColorPicModelTest, ADragOutOfThePaletteKeepsTheMarkAtTheNearestCell) {
    picker_->press({5, 5});
    picker_->move({-1, 15});
    EXPECT_EQ(picker_->field(), (PixelPoint{0, 1}));
    picker_->move({100000, 25});
    EXPECT_EQ(picker_->field(), (PixelPoint{11, 2}));
    picker_->release({55, 100000});
    EXPECT_EQ(picker_->field(), (PixelPoint{5, 3}));
    EXPECT_EQ(picker_->RGBColor(), colorAt(5, 3));
}

TEST_F(ColorPicModelTest, ADoubleClickIsToldByItsReleaseAfterTheColor) {
    picker_->press({5, 5});
    picker_->release({5, 5});
    picker_->doubleClick();
    EXPECT_EQ(events_, "cc");
    picker_->release({15, 5});
    EXPECT_EQ(events_, "cccd");
    EXPECT_EQ(picker_->RGBColor(), colorAt(1, 0));
    picker_->press({5, 5});
    picker_->release({5, 5});
    EXPECT_EQ(events_, "cccdcc");
}

TEST_F(ColorPicModelTest, AHandlerOfTheDoubleClickMayDestroyThePicker) {
    const Subscription ending = picker_->DoubleClick.subscribe([this] { picker_.reset(); });
    picker_->doubleClick();
    picker_->release({5, 5});
    EXPECT_FALSE(picker_.has_value());
}

TEST_F(ColorPicModelTest, ALostButtonEndsDragAndDoubleClick) {
    picker_->press({5, 5});
    picker_->doubleClick();
    picker_->cancel();
    picker_->move({15, 5});
    EXPECT_EQ(picker_->field(), (PixelPoint{0, 0}));
    picker_->release({5, 5});
    EXPECT_EQ(events_, "cc");
}

TEST_F(ColorPicModelTest, AColorIsKeptWithinBlackAndWhite) {
    picker_->setRGBColor(-5);
    EXPECT_EQ(picker_->RGBColor(), 0);
    picker_->setRGBColor(0x1000000);
    EXPECT_EQ(picker_->RGBColor(), 0xFFFFFF);
    EXPECT_EQ(picker_->field(), (PixelPoint{11, 0}));
    EXPECT_EQ(events_, "");
}

TEST_F(ColorPicModelTest, AColorIsToldByItsRedGreenAndBlue) {
    picker_->setRGBColor(rgb(0xFF, 0xE6, 0x0A));
    EXPECT_EQ(picker_->valueText(), "#FFE60A");
    picker_->setRGBColor(0);
    EXPECT_EQ(picker_->valueText(), "#000000");
}

TEST_F(ColorPicModelTest, AForeignColorPutsTheMarkOnTheNearestFieldUntilTheUserPicks) {
    picker_->setRGBColor(rgb(2, 250, 3));
    EXPECT_EQ(picker_->field(), (PixelPoint{4, 1}));
    EXPECT_EQ(picker_->RGBColor(), rgb(2, 250, 3));
    picker_->setRGBColor(rgb(1, 2, 3));
    EXPECT_EQ(picker_->field(), (PixelPoint{0, 0}));
    EXPECT_EQ(events_, "");
    picker_->keyDown(key::right);
    EXPECT_EQ(picker_->RGBColor(), colorAt(1, 0));
}

TEST_F(ColorPicModelTest, TheColorUnderTheMarkCanBecomeTheChosenOne) {
    picker_->setRGBColor(rgb(2, 250, 3));
    picker_->SetRGBColorToCurrentPixelColor();
    EXPECT_EQ(picker_->RGBColor(), rgb(0, 255, 0));
}

TEST_F(ColorPicModelTest, ThePaletteFillsItsRoomWhicheverItIs) {
    constexpr PixelSize room{412, 181};
    picker_->setRoom(room);
    for (int index = 0; index < paletteCount; ++index) {
        picker_->setPictureIndex(index);
        const PixelSize fields = picker_->palette().size;
        EXPECT_EQ(picker_->size(), room);
        EXPECT_EQ(picker_->fieldBox({fields.width - 1, fields.height - 1}).right, room.width);
        EXPECT_EQ(picker_->fieldBox({fields.width - 1, fields.height - 1}).bottom, room.height);
        for (int x = 0; x < room.width; ++x) {
            picker_->press({x, x % room.height});
            EXPECT_TRUE(picker_->shpSelected().contains({x, x % room.height})) << index << " " << x;
        }
    }
}

TEST_F(ColorPicModelTest, AFactorStaysWithin1And100) {
    picker_->setSizeFactorX(0);
    picker_->setSizeFactorY(500);
    EXPECT_EQ(picker_->SizeFactorX(), 1);
    EXPECT_EQ(picker_->SizeFactorY(), 100);
    EXPECT_EQ(picker_->size(), (PixelSize{12, 400}));
    EXPECT_EQ(picker_->fieldBox({2, 1}), (PixelRect{2, 100, 3, 200}));
}

TEST_F(ColorPicModelTest, AnotherPaletteTakesTheMarkToTheColorOrTheNearestOne) {
    picker_->setPictureIndex(palette::hues);
    picker_->setRGBColor(0xFFFFFF);
    EXPECT_EQ(picker_->field(), (PixelPoint{24, 0}));
    picker_->setPictureIndex(palette::pure);
    EXPECT_EQ(picker_->field(), (PixelPoint{11, 0}));
    picker_->setPictureIndex(palette::hues);
    picker_->setRGBColor(rgb(254, 253, 252));
    picker_->setPictureIndex(palette::pure);
    EXPECT_EQ(picker_->field(), (PixelPoint{11, 0}));
    picker_->setPictureIndex(17);
    EXPECT_EQ(picker_->PictureIndex(), palette::muted);
}

TEST_F(ColorPicModelTest, ArrowKeysPickTheNextFieldAndStopAtTheEnds) {
    EXPECT_TRUE(picker_->keyDown(key::right));
    EXPECT_TRUE(picker_->keyDown(key::down));
    EXPECT_EQ(picker_->field(), (PixelPoint{1, 1}));
    EXPECT_EQ(picker_->RGBColor(), colorAt(1, 1));
    picker_->keyDown(key::left);
    picker_->keyDown(key::left);
    picker_->keyDown(key::up);
    picker_->keyDown(key::up);
    EXPECT_EQ(picker_->field(), (PixelPoint{0, 0}));
    EXPECT_FALSE(picker_->keyDown(key::enter));
    EXPECT_EQ(events_, "cccccc");
}

TEST_F(ColorPicModelTest, TheMarkStandsOutFromItsFieldAtRest) {
    picker_->setRGBColor(0xFFFFFF);
    EXPECT_EQ(picker_->markColor(), 0);
    picker_->setRGBColor(0);
    EXPECT_EQ(picker_->markColor(), 0xFFFFFF);
}

TEST_F(ColorPicModelTest, TheMarkBlinksThroughItsTableAndOverAgainWhileTheFocusIsHere) {
    picker_->setFocus(true);
    const Color first = picker_->markColor();
    std::set<Color> seen;
    int ticks = 0;
    do {
        seen.insert(picker_->markColor());
        picker_->tick();
        ++ticks;
    } while (picker_->markColor() != first && ticks < 1000);
    EXPECT_EQ(ticks, 32);
    EXPECT_TRUE(seen.contains(0));
    EXPECT_TRUE(seen.contains(0xFFFFFF));
    picker_->setFocus(false);
    EXPECT_EQ(picker_->markColor(), 0xFFFFFF);
}

}  // namespace
}  // namespace ormala
