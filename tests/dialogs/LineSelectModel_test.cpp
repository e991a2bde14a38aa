#include "dialogs/LineSelectModel.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "scene/Input.h"

namespace ormala {
namespace {

class LineSelectModelTest : public testing::Test {
  protected:
    LineSelectModelTest() {
        list_->resize({120, 103});
        changing_ = list_->Change.subscribe([this] { events_ += 'c'; });
        clicking_ = list_->DoubleClick.subscribe([this] { events_ += 'd'; });
    }

    std::optional<LineSelectModel> list_{std::in_place};
    std::string events_;
    Subscription changing_;
    Subscription clicking_;
};

TEST_F(LineSelectModelTest, ASolidLineOfOnePixelIsChosenAtFirst) {
    EXPECT_EQ(list_->LineIndex(), 2);
}

TEST_F(LineSelectModelTest, NineBecomesFourAndMinusOneBecomesZero) {
    list_->setLineIndex(9);
    EXPECT_EQ(list_->LineIndex(), 4);
    list_->setLineIndex(-1);
    EXPECT_EQ(list_->LineIndex(), 0);
    EXPECT_EQ(events_, "");
}

TEST_F(LineSelectModelTest, TheChosenRowIsToldByItsPlaceAmongAll) {
    EXPECT_EQ(list_->valueText(), "3/5");
    list_->setLineIndex(0);
    EXPECT_EQ(list_->valueText(), "1/5");
}

TEST_F(LineSelectModelTest, TheRowsAreOfEqualHeight) {
    for (int index = 0; index < LineSelectModel::rowCount; ++index) {
        EXPECT_EQ(list_->row(index), (PixelRect{0, 20 * index, 120, 20 * index + 20}));
    }
    EXPECT_EQ(list_->shpFocus(), (PixelRect{0, 40, 120, 60}));
    EXPECT_EQ(list_->rowAt({119, 99}), 4);
    EXPECT_EQ(list_->rowAt({119, 100}), std::nullopt);
    EXPECT_EQ(list_->rowAt({120, 50}), std::nullopt);
}

TEST_F(LineSelectModelTest, APressChoosesItsRow) {
    list_->press({60, 70});
    EXPECT_EQ(list_->LineIndex(), 3);
    list_->press({60, 71});
    list_->press({60, 101});
    EXPECT_EQ(list_->LineIndex(), 3);
    list_->release({});
    EXPECT_EQ(events_, "c");
}

TEST_F(LineSelectModelTest, ADoubleClickIsToldByItsRelease) {
    list_->press({60, 70});
    list_->release({});
    list_->doubleClick();
    EXPECT_EQ(events_, "c");
    list_->release({});
    EXPECT_EQ(events_, "cd");
    list_->release({});
    EXPECT_EQ(events_, "cd");
}

TEST_F(LineSelectModelTest, ALostButtonEndsTheDoubleClick) {
    list_->doubleClick();
    list_->cancel();
    list_->release({});
    EXPECT_EQ(events_, "");
}

TEST_F(LineSelectModelTest, ArrowKeysChooseTheRowBeforeOrAfterAndStopAtTheEnds) {
    EXPECT_TRUE(list_->keyDown(key::down));
    EXPECT_TRUE(list_->keyDown(key::right));
    EXPECT_TRUE(list_->keyDown(key::down));
    EXPECT_EQ(list_->LineIndex(), 4);
    EXPECT_EQ(events_, "cc");
    for (int step = 0; step < 3; ++step) {
        EXPECT_TRUE(list_->keyDown(key::up));
        EXPECT_TRUE(list_->keyDown(key::left));
    }
    EXPECT_EQ(list_->LineIndex(), 0);
    EXPECT_FALSE(list_->keyDown(key::tab));
    EXPECT_EQ(events_, "cccccc");
}

TEST_F(LineSelectModelTest, EnterIsADoubleClick) {
    EXPECT_TRUE(list_->keyDown(key::enter));
    EXPECT_EQ(events_, "d");
}

TEST_F(LineSelectModelTest, AHandlerOfTheDoubleClickMayDestroyTheList) {
    const Subscription ending = list_->DoubleClick.subscribe([this] { list_.reset(); });
    list_->keyDown(key::enter);
    EXPECT_FALSE(list_.has_value());
}

}  // namespace
}  // namespace ormala
