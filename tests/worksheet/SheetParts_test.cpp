#include "worksheet/SheetParts.h"

#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

class SheetPartsTest : public SheetFixture {
  protected:
    SheetPartsTest() { sheet_.setEditMode(true); }

    /// A tool over `place` that takes the mouse on a grip there.
    FakeOverlayItem& addOn(int kind, const PixelRect& place, const PixelRect& grip) {
        FakeOverlayItem& item = add(kind, grip);
        item.cover(place);
        item.spokenOfGrips = {{"grip", "X = 1", grip, false}};
        return item;
    }
    [[nodiscard]] int idOf(const OverlayItem& item) const {
        const auto shown = sheet_.shown();
        return std::ranges::find(shown, &item, &Sheet::Shown::item)->id;
    }

    SheetParts parts_{sheet_};
};

TEST_F(SheetPartsTest, HaveTheVisibleToolsInTheOrderOfTheTabKey) {
    addFirst(ToolKind::stencil, false);
    const FakeOverlayItem& measure = add(measurement);
    const FakeOverlayItem& second = add(stencil);
    EXPECT_EQ(parts_.tools(), (std::vector<int>{idOf(second), idOf(measure)}));
    const int hidden = idOf(measure);
    sheet_.setVisible(measure, false);
    EXPECT_EQ(parts_.tools(), std::vector<int>{idOf(second)});
    EXPECT_EQ(parts_.part({hidden, 0}), std::nullopt);
    EXPECT_EQ(parts_.part({}), std::nullopt);
}

TEST_F(SheetPartsTest, TellAToolWithItsPlaceAndState) {
    FakeOverlayItem& item = addOn(stencil, {10, 20, 90, 60}, {10, 20, 19, 29});
    item.words.value = "X = 50";
    item.words.description = "80 x 40";
    auto part = parts_.part({idOf(item), 0});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->name, "stencil 1");
    EXPECT_EQ(part->value, "X = 50");
    EXPECT_EQ(part->description, "80 x 40");
    EXPECT_EQ(part->place, (PixelRect{10, 20, 90, 60}));
    EXPECT_EQ(part->parts, 1);
    EXPECT_TRUE(part->focusable);
    EXPECT_FALSE(part->focused);
    EXPECT_FALSE(part->selected);
    sheet_.giveFocus(item);
    part = parts_.part({idOf(item), 0});
    EXPECT_TRUE(part->focused);
    EXPECT_TRUE(part->selected);
    EXPECT_EQ(parts_.focusedTool(), idOf(item));
    EXPECT_EQ(parts_.selectedTool(), idOf(item));
    sheet_.windowLostFocus();
    EXPECT_FALSE(parts_.part({idOf(item), 0})->focused);
    EXPECT_EQ(parts_.focusedTool(), 0);
}

TEST_F(SheetPartsTest, TellAGripAndNoneBeyondTheLast) {
    FakeOverlayItem& item = addOn(stencil, {10, 20, 90, 60}, {10, 20, 19, 29});
    item.spokenOfGrips[0].held = true;
    const auto grip = parts_.part({idOf(item), 1});
    ASSERT_TRUE(grip);
    EXPECT_EQ(grip->name, "grip");
    EXPECT_EQ(grip->value, "X = 1");
    EXPECT_EQ(grip->place, (PixelRect{10, 20, 19, 29}));
    EXPECT_TRUE(grip->pressed);
    EXPECT_FALSE(grip->focusable);
    EXPECT_EQ(parts_.part({idOf(item), 2}), std::nullopt);
    EXPECT_EQ(parts_.part({idOf(item), -1}), std::nullopt);
}

TEST_F(SheetPartsTest, AtAPointAreTheGripsFirstAndThenTheForemostTool) {
    const FakeOverlayItem& low = addOn(stencil, {0, 0, 100, 100}, {40, 40, 49, 49});
    const FakeOverlayItem& high = addOn(stencil, {30, 30, 200, 200}, {30, 30, 39, 39});
    EXPECT_EQ(parts_.partAt({44, 44}), (PartId{idOf(low), 1}));
    EXPECT_EQ(parts_.partAt({30, 30}), (PartId{idOf(high), 1}));
    EXPECT_EQ(parts_.partAt({60, 60}), (PartId{idOf(high), 0}));
    EXPECT_EQ(parts_.partAt({10, 10}), (PartId{idOf(low), 0}));
    EXPECT_EQ(parts_.partAt({300, 10}), PartId{});
    sheet_.setVisible(high, false);
    EXPECT_EQ(parts_.partAt({60, 60}), (PartId{idOf(low), 0}));
}

TEST_F(SheetPartsTest, AreChosenInEditModeOnly) {
    FakeOverlayItem& first = add(stencil);
    FakeOverlayItem& second = add(stencil);
    EXPECT_TRUE(parts_.choose(idOf(first), true));
    EXPECT_TRUE(first.focused);
    EXPECT_TRUE(first.Selected());
    EXPECT_TRUE(parts_.choose(idOf(second), false));
    EXPECT_TRUE(first.focused);
    EXPECT_TRUE(second.Selected());
    sheet_.setEditMode(false);
    EXPECT_FALSE(parts_.choose(idOf(first), true));
    EXPECT_FALSE(parts_.part({idOf(first), 0})->focusable);
    EXPECT_FALSE(parts_.choose(-1, true));
}

}  // namespace
}  // namespace ormala
