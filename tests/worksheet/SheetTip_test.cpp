#include "worksheet/SheetTip.h"

#include <gtest/gtest.h>

#include "support/FakeOverlayItem.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

constexpr TipId move = 320;
constexpr TipId rotate = 321;

class SheetTipTest : public testing::Test {
  protected:
    ToolLog log_;
    FakeOverlayItem one_{"one", log_};
    FakeOverlayItem other_{"other", log_};
    ManualLanguage english_{languageEnglish};
    SheetTip tip_;
};

TEST_F(SheetTipTest, ShowsTheTextOfTheLastGrip) {
    EXPECT_EQ(tip_.text(), "");
    EXPECT_TRUE(tip_.show(one_, move));
    EXPECT_EQ(tip_.text(), "Move (Shift key: fixed directions; Ctrl key: align to grid)");
    EXPECT_TRUE(tip_.show(one_, rotate));
    EXPECT_EQ(tip_.text(), "Rotate (Shift, Ctrl or Alt key: fixed angles)");
    EXPECT_TRUE(tip_.show(one_, 0));
    EXPECT_EQ(tip_.text(), "");
}

TEST_F(SheetTipTest, OnlyTheToolThatShowsATipTakesItAway) {
    tip_.show(one_, move);
    EXPECT_FALSE(tip_.show(other_, 0));
    EXPECT_NE(tip_.text(), "");
    EXPECT_TRUE(tip_.show(other_, rotate));
    EXPECT_FALSE(tip_.show(one_, 0));
    EXPECT_TRUE(tip_.show(other_, 0));
}

TEST_F(SheetTipTest, TheSameTipOfAnotherToolIsNoOtherText) {
    tip_.show(one_, move);
    EXPECT_FALSE(tip_.show(other_, move));
    EXPECT_FALSE(tip_.show(one_, 0));
    EXPECT_TRUE(tip_.show(other_, 0));
}

TEST_F(SheetTipTest, SpeaksTheLanguageInForce) {
    tip_.show(one_, rotate);
    const ManualLanguage german(languageGerman);
    EXPECT_EQ(tip_.text(), "Drehen (Umschalt- , Strg- oder Alt-Taste: festgelegte Winkel)");
}

}  // namespace
}  // namespace ormala
