#include "worksheet/SheetNews.h"

#include "worksheet/SheetFixture.h"
#include "worksheet/SheetParts.h"

namespace ormala {
namespace {

using enum PartEvent;
using News = std::vector<PartNews>;

class SheetNewsTest : public SheetFixture {
  protected:
    SheetNewsTest() { sheet_.setEditMode(true); }

    [[nodiscard]] int lastId() const { return sheet_.shown().back().id; }

    SheetParts parts_{sheet_};
    SheetNews news_{parts_};
};

TEST_F(SheetNewsTest, TellOfNothingWhereNothingHappens) {
    EXPECT_EQ(news_.take(), News{});
    add(stencil);
    news_.take();
    EXPECT_EQ(news_.take(), News{});
}

TEST_F(SheetNewsTest, TellOfToolsThatComeAndGo) {
    const FakeOverlayItem& item = add(stencil);
    const int id = lastId();
    EXPECT_EQ(news_.take(), (News{{created, id}}));
    sheet_.setVisible(item, false);
    EXPECT_EQ(news_.take(), (News{{destroyed, id}}));
    sheet_.setVisible(item, true);
    EXPECT_EQ(news_.take(), (News{{created, id}}));
}

TEST_F(SheetNewsTest, TellWhatIsOtherThanBefore) {
    FakeOverlayItem& item = add(stencil);
    const int id = lastId();
    news_.take();
    item.cover({1, 2, 3, 4});
    item.words.value = "X = 2";
    EXPECT_EQ(news_.take(), (News{{moved, id}, {valueChanged, id}}));
    item.words.description = "2 x 2";
    EXPECT_EQ(news_.take(), (News{{descriptionChanged, id}}));
}

TEST_F(SheetNewsTest, TellOfANumberThatMovesUp) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    const int removed = lastId();
    add(stencil);
    news_.take();
    sheet_.RemoveControl(second);
    EXPECT_EQ(news_.take(), (News{{destroyed, removed}, {renamed, lastId()}}));
}

TEST_F(SheetNewsTest, TellOfTheSelectionAndLastOfTheFocus) {
    FakeOverlayItem& item = add(stencil);
    const int id = lastId();
    sheet_.giveFocus(item);
    EXPECT_EQ(news_.take(), (News{{created, id}, {selected, id}, {focused, id}}));
    sheet_.windowLostFocus();
    EXPECT_EQ(news_.take(), News{});
    sheet_.windowGotFocus();
    EXPECT_EQ(news_.take(), (News{{focused, id}}));
}

TEST_F(SheetNewsTest, TellOfTheFocusedToolAgainWhereTheWindowHasGotTheKeyboard) {
    FakeOverlayItem& item = add(stencil);
    sheet_.giveFocus(item);
    news_.take();
    news_.windowGotFocus();
    EXPECT_EQ(news_.take(), (News{{focused, lastId()}}));
}

}  // namespace
}  // namespace ormala
