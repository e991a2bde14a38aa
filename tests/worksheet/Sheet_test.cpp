#include "worksheet/Sheet.h"

#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

class SheetTest : public SheetFixture {};

using Items = std::vector<const OverlayItem*>;

using Ordinals = std::vector<int>;

/// Of the visible tools, kind by kind.
Ordinals ordinals(const Sheet& sheet) {
    Ordinals numbers;
    for (const Sheet::Shown& tool : sheet.shown()) {
        numbers.push_back(tool.ordinal);
    }
    return numbers;
}

TEST_F(SheetTest, ElementZeroExistsHiddenFromTheStart) {
    sheet_.makeFirstControl(ToolKind::stencil);
    const OverlayItem* first = sheet_.GetFirstControl(stencil);
    ASSERT_NE(first, nullptr);
    EXPECT_FALSE(sheet_.isVisible(*first));
    EXPECT_EQ(sheet_.zOrder().size(), 1U);
    EXPECT_EQ(sheet_.GetFirstControl(measurement), nullptr);
}

TEST_F(SheetTest, ElementZeroIsMadeOnce) {
    sheet_.makeFirstControl(ToolKind::measurement);
    const OverlayItem* first = sheet_.GetFirstControl(measurement);
    sheet_.makeFirstControl(ToolKind::measurement);
    EXPECT_EQ(sheet_.GetFirstControl(measurement), first);
    EXPECT_EQ(sheet_.zOrder().size(), 1U);
}

TEST_F(SheetTest, FirstControlOfAnotherKindIsNothing) {
    addFirst(ToolKind::stencil, true);
    EXPECT_EQ(sheet_.GetFirstControl(measurement), nullptr);
    EXPECT_EQ(sheet_.GetFirstControl(-1), nullptr);
    EXPECT_EQ(sheet_.GetFirstControl(2), nullptr);
}

TEST_F(SheetTest, ANewToolFollowsTheLastOfItsKind) {
    const FakeOverlayItem& first = addFirst(ToolKind::stencil, false);
    const FakeOverlayItem& second = add(stencil);
    EXPECT_EQ(second.name, "stencil 1");
    EXPECT_TRUE(sheet_.isVisible(second));
    EXPECT_FALSE(sheet_.isVisible(first));
    EXPECT_EQ(sheet_.GetFirstControl(stencil), &first);
    EXPECT_EQ(sheet_.zOrder().size(), 2U);
}

TEST_F(SheetTest, ANewToolCoversTheWholeSheetInItsMode) {
    sheet_.resize({800, 600});
    sheet_.setEditMode(true);
    const FakeOverlayItem& inEditMode = add(stencil);
    EXPECT_EQ(inEditMode.size, (PixelSize{800, 600}));
    EXPECT_TRUE(inEditMode.EditMode());
    sheet_.setEditMode(false);
    EXPECT_FALSE(add(measurement).EditMode());
}

TEST_F(SheetTest, ANewToolIsUnderChangesUntilItsMakerEndsThem) {
    std::optional<ToolChanges> changes;
    const auto& item = dynamic_cast<FakeOverlayItem&>(*sheet_.AddNewControl(stencil, changes));
    EXPECT_EQ(item.openChanges, 1);
    changes.reset();
    EXPECT_EQ(item.openChanges, 0);
    EXPECT_EQ(add(measurement).openChanges, 0);
    EXPECT_EQ(addFirst(ToolKind::measurement, true).openChanges, 0);
}

TEST_F(SheetTest, AddingAnUnknownKindMakesNothing) {
    EXPECT_EQ(sheet_.AddNewControl(2), nullptr);
    EXPECT_EQ(sheet_.AddNewControl(-1), nullptr);
    EXPECT_TRUE(sheet_.zOrder().empty());
    EXPECT_TRUE(log_.empty());
    EXPECT_TRUE(port_.repainted.empty());
}

TEST_F(SheetTest, AKindThatTheFactoryCannotMakeStaysEmpty) {
    factory_.onlyStencils = true;
    EXPECT_EQ(sheet_.AddNewControl(measurement), nullptr);
    sheet_.makeFirstControl(ToolKind::measurement);
    EXPECT_TRUE(sheet_.zOrder().empty());
    EXPECT_EQ(sheet_.GetFirstControl(measurement), nullptr);
}

TEST_F(SheetTest, AToolThatIsPutAsideIsHiddenAndKept) {
    FakeOverlayItem& first = addFirst(ToolKind::stencil, true);
    sheet_.putAside(first);
    EXPECT_EQ(sheet_.zOrder().size(), 1U);
    EXPECT_EQ(sheet_.GetFirstControl(stencil), &first);
    EXPECT_FALSE(sheet_.isVisible(first));
    EXPECT_EQ(noted(first, "destroyed"), 0);
}

TEST_F(SheetTest, AToolThatIsTakenBackStandsWhereItStood) {
    FakeOverlayItem& first = addFirst(ToolKind::stencil, true);
    FakeOverlayItem& second = add(stencil);
    add(stencil);
    sheet_.putAside(first);
    sheet_.putAside(second);
    EXPECT_EQ(ordinals(sheet_), Ordinals{1});
    sheet_.takeBack(second, true);
    EXPECT_EQ(ordinals(sheet_), (Ordinals{1, 2}));
    EXPECT_EQ(sheet_.visibleInArrayOrder().front(), &second);
    EXPECT_EQ(sheet_.zOrder().front(), &first);
    EXPECT_EQ(sheet_.zOrder()[1], &second);
    // A paused one comes back hidden, and counts.
    sheet_.takeBack(first, false);
    EXPECT_FALSE(sheet_.isVisible(first));
    EXPECT_EQ(ordinals(sheet_), (Ordinals{2, 3}));
}

TEST_F(SheetTest, RemovingDestroysElementZeroToo) {
    const FakeOverlayItem& first = addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    sheet_.RemoveControl(first);
    EXPECT_EQ(log_, ToolLog{"stencil 0 destroyed"});
    EXPECT_EQ(sheet_.GetFirstControl(stencil), &second);
}

TEST_F(SheetTest, RemovingAnotherElementDestroysIt) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    const FakeOverlayItem& third = add(stencil);
    sheet_.RemoveControl(second);
    EXPECT_EQ(log_, ToolLog{"stencil 1 destroyed"});
    EXPECT_EQ(sheet_.zOrder().size(), 2U);
    EXPECT_TRUE(sheet_.isVisible(third));
}

TEST_F(SheetTest, RemovingAToolOfAnotherSheetChangesNothing) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem foreign("foreign", log_);
    sheet_.RemoveControl(foreign);
    sheet_.SelectControl(foreign);
    EXPECT_EQ(sheet_.zOrder().size(), 1U);
    EXPECT_EQ(sheet_.selected(), nullptr);
    EXPECT_FALSE(sheet_.isVisible(foreign));
}

TEST_F(SheetTest, NothingIsSelectedInPlaceOfARemovedTool) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    sheet_.SelectControl(second);
    sheet_.RemoveControl(second);
    EXPECT_EQ(sheet_.selected(), nullptr);
}

TEST_F(SheetTest, TellsBeforeAToolIsDestroyedThatItIsWithdrawn) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    const auto subscription = sheet_.withdrawn.subscribe([this](const OverlayItem& item) {
        log_.push_back(dynamic_cast<const FakeOverlayItem&>(item).name + " withdrawn");
    });
    sheet_.RemoveControl(second);
    EXPECT_EQ(log_, (ToolLog{"stencil 1 withdrawn", "stencil 1 destroyed"}));
}

TEST_F(SheetTest, TellsOnceThatAHiddenToolIsWithdrawn) {
    FakeOverlayItem& first = addFirst(ToolKind::stencil, true);
    int withdrawn = 0;
    const auto subscription =
        sheet_.withdrawn.subscribe([&withdrawn](const OverlayItem&) { ++withdrawn; });
    sheet_.setVisible(first, false);
    sheet_.putAside(first);
    EXPECT_EQ(withdrawn, 1);
}

TEST_F(SheetTest, TakesAwayTheTipOfAToolThatIsWithdrawn) {
    struct TipHost : QuietToolHost {
        void showTip(const OverlayItem& item, TipId tip) override { told.emplace_back(&item, tip); }
        std::vector<std::pair<const OverlayItem*, TipId>> told;
    } host;
    Sheet sheet(port_, host, factory_);
    const OverlayItem& tool = *sheet.AddNewControl(stencil);
    sheet.setVisible(tool, false);
    ASSERT_EQ(host.told.size(), 1U);
    EXPECT_EQ(host.told.front(), std::pair(&tool, TipId{0}));
}

TEST_F(SheetTest, SelectingBringsToTheFrontAndUnselectsAllOthers) {
    const FakeOverlayItem& a = add(stencil);
    const FakeOverlayItem& b = add(measurement);
    const FakeOverlayItem& c = add(stencil);
    sheet_.SelectControl(b);
    sheet_.SelectControl(a);
    EXPECT_TRUE(a.Selected());
    EXPECT_FALSE(b.Selected());
    EXPECT_FALSE(c.Selected());
    EXPECT_EQ(sheet_.selected(), &a);
    EXPECT_EQ(sheet_.front(), &a);
    const Items order(sheet_.zOrder().begin(), sheet_.zOrder().end());
    EXPECT_EQ(order, (Items{&c, &b, &a}));
}

TEST_F(SheetTest, SelectingTheSelectedToolChangesNothing) {
    add(stencil);
    const FakeOverlayItem& b = add(stencil);
    sheet_.SelectControl(b);
    log_.clear();
    port_.repainted.clear();
    sheet_.SelectControl(b);
    EXPECT_TRUE(log_.empty());
    EXPECT_TRUE(port_.repainted.empty());
}

TEST_F(SheetTest, AChangeOfTheForemostToolRepaintsBothOnes) {
    const FakeOverlayItem& a = add(stencil);
    const FakeOverlayItem& b = add(stencil);
    port_.repainted.clear();
    sheet_.SelectControl(a);
    EXPECT_EQ(port_.repainted, (Items{&b, &a}));
}

TEST_F(SheetTest, ANewToolIsTheForemostOne) {
    const FakeOverlayItem& a = add(stencil);
    port_.repainted.clear();
    const FakeOverlayItem& b = add(measurement);
    EXPECT_EQ(sheet_.front(), &b);
    EXPECT_EQ(port_.repainted, (Items{&a, &b}));
}

TEST_F(SheetTest, HidingTheForemostToolRepaintsItAndTheNextOne) {
    const FakeOverlayItem& a = add(stencil);
    const FakeOverlayItem& b = add(stencil);
    port_.repainted.clear();
    sheet_.setVisible(b, false);
    EXPECT_EQ(sheet_.front(), &a);
    EXPECT_EQ(port_.repainted, (Items{&b, &b, &a}));
}

TEST_F(SheetTest, HidingAToolBehindRepaintsOnlyIt) {
    const FakeOverlayItem& a = add(stencil);
    add(stencil);
    port_.repainted.clear();
    sheet_.setVisible(a, false);
    EXPECT_EQ(port_.repainted, Items{&a});
    sheet_.setVisible(a, false);
    EXPECT_EQ(port_.repainted, Items{&a});
}

TEST_F(SheetTest, WithoutAVisibleToolNothingIsInFront) {
    EXPECT_EQ(sheet_.front(), nullptr);
    addFirst(ToolKind::stencil, false);
    EXPECT_EQ(sheet_.front(), nullptr);
}

TEST_F(SheetTest, TheModeReachesEveryToolAlsoHiddenOnes) {
    const FakeOverlayItem& hidden = addFirst(ToolKind::stencil, false);
    const FakeOverlayItem& shown = add(measurement);
    sheet_.setEditMode(true);
    EXPECT_TRUE(hidden.EditMode());
    EXPECT_TRUE(shown.EditMode());
    sheet_.setEditMode(false);
    EXPECT_FALSE(hidden.EditMode());
    EXPECT_FALSE(shown.EditMode());
}

TEST_F(SheetTest, TheSizeReachesEveryToolAlsoHiddenOnes) {
    const FakeOverlayItem& hidden = addFirst(ToolKind::stencil, false);
    const FakeOverlayItem& shown = add(measurement);
    sheet_.resize({640, 480});
    EXPECT_EQ(hidden.size, (PixelSize{640, 480}));
    EXPECT_EQ(shown.size, (PixelSize{640, 480}));
}

TEST_F(SheetTest, ToolsInUseAreCountedKindByKind) {
    addFirst(ToolKind::stencil, true);
    const FakeOverlayItem& second = add(stencil);
    add(stencil);
    add(measurement);
    EXPECT_EQ(ordinals(sheet_), (Ordinals{1, 2, 3, 1}));
    // A hidden tool keeps its number, a removed one doesn't.
    sheet_.setVisible(second, false);
    EXPECT_EQ(ordinals(sheet_), (Ordinals{1, 3, 1}));
    sheet_.RemoveControl(second);
    EXPECT_EQ(ordinals(sheet_), (Ordinals{1, 2, 1}));
}

TEST_F(SheetTest, ElementZeroCountsWhileItIsInUse) {
    const FakeOverlayItem& first = addFirst(ToolKind::stencil, false);
    add(stencil);
    EXPECT_EQ(ordinals(sheet_), Ordinals{1});
    sheet_.setVisible(first, true);
    EXPECT_EQ(ordinals(sheet_), (Ordinals{1, 2}));
    sheet_.setVisible(first, false);
    EXPECT_EQ(ordinals(sheet_), Ordinals{2});
    sheet_.setVisible(first, true);
    sheet_.putAside(first);
    EXPECT_EQ(ordinals(sheet_), Ordinals{1});
}

TEST_F(SheetTest, NoToolEverHasTheIdOfAnother) {
    const FakeOverlayItem& former = add(stencil);
    add(stencil);
    const int id = sheet_.shown().back().id;
    EXPECT_NE(sheet_.shown().front().id, id);
    sheet_.RemoveControl(*sheet_.shown().back().item);
    add(stencil);
    EXPECT_NE(sheet_.shown().back().id, id);
    EXPECT_EQ(sheet_.shown().front().item, &former);
}

}  // namespace
}  // namespace ormala
