#include "toolkit/panelsAtHand.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ormala {
namespace {

using Numbers = std::vector<std::size_t>;

/// Ten panels of 100 pixels each below each other, of which 250 can be seen.
class PanelsAtHand : public testing::Test {
  protected:
    PanelsAtHand() {
        for (int number = 0; number < 10; ++number) {
            panels_.push_back({.top = number * 100, .bottom = number * 100 + 100});
        }
    }
    [[nodiscard]] PanelChanges seenFrom(int top) const {
        return panelsAtHand(panels_, top, top + 250);
    }
    /// As the list does all of it, one after the other.
    void scrollTo(int top) {
        PanelChanges changes;
        do {
            changes = seenFrom(top);
            for (const std::size_t number : changes.strip) {
                panels_[number].equipped = false;
            }
            for (const std::size_t number : changes.equip) {
                panels_[number].equipped = true;
            }
            if (changes.prepare) {
                panels_[*changes.prepare].equipped = true;
            }
        } while (changes.prepare);
    }
    [[nodiscard]] Numbers equipped() const {
        Numbers found;
        for (std::size_t number = 0; number < panels_.size(); ++number) {
            if (panels_[number].equipped) {
                found.push_back(number);
            }
        }
        return found;
    }

    std::vector<PanelInList> panels_;
};

TEST_F(PanelsAtHand, ThoseInViewGetControlsAtOnceAndTheirNeighboursInTime) {
    EXPECT_EQ(seenFrom(0), (PanelChanges{{}, {0, 1, 2}, 3}));
    EXPECT_EQ(seenFrom(300), (PanelChanges{{}, {3, 4, 5}, 6}));
    scrollTo(300);
    EXPECT_EQ(equipped(), (Numbers{2, 3, 4, 5, 6}));
    EXPECT_EQ(seenFrom(300), PanelChanges{});
}

TEST_F(PanelsAtHand, OnePixelInViewIsEnoughAndTheEdgeIsNot) {
    EXPECT_EQ(seenFrom(51).equip, (Numbers{0, 1, 2, 3}));
    EXPECT_EQ(seenFrom(50).equip, (Numbers{0, 1, 2}));
    EXPECT_EQ(seenFrom(99).equip, (Numbers{0, 1, 2, 3}));
    EXPECT_EQ(seenFrom(100).equip, (Numbers{1, 2, 3}));
}

TEST_F(PanelsAtHand, AStepToTheNextPanelFindsItReadyAndFreesTheFarthest) {
    scrollTo(300);
    const PanelChanges changes = seenFrom(400);
    EXPECT_EQ(changes.equip, Numbers{});
    EXPECT_EQ(changes.strip, Numbers{2});
    EXPECT_EQ(changes.prepare, 7U);
}

TEST_F(PanelsAtHand, AJumpFreesAsManyAsItNeeds) {
    scrollTo(0);
    const PanelChanges changes = seenFrom(700);
    EXPECT_EQ(changes.strip, (Numbers{0, 1, 2, 3}));
    EXPECT_EQ(changes.equip, (Numbers{7, 8, 9}));
    EXPECT_EQ(changes.prepare, 6U);
}

TEST_F(PanelsAtHand, WhatTheUserWorksOnKeepsItsControls) {
    scrollTo(0);
    panels_[1].held = true;
    scrollTo(700);
    EXPECT_EQ(equipped(), (Numbers{1, 6, 7, 8, 9}));
    panels_[1].held = false;
    EXPECT_EQ(seenFrom(700).strip, Numbers{1});
}

TEST_F(PanelsAtHand, APanelOutOfUseHasNoneAndIsNobodysNeighbour) {
    scrollTo(300);
    panels_[4].used = false;
    panels_[6].used = false;
    EXPECT_EQ(seenFrom(300), (PanelChanges{{4, 6}, {}, 7}));
}

TEST_F(PanelsAtHand, TheOrderOfMakingIsNotThatOfTheList) {
    std::reverse(panels_.begin(), panels_.end());
    EXPECT_EQ(seenFrom(0), (PanelChanges{{}, {9, 8, 7}, 6}));
}

TEST_F(PanelsAtHand, TabEntersTheListAtTheEndThatItComesFrom) {
    EXPECT_EQ(panelsWithinTab(panels_, {}, false), Numbers{0});
    EXPECT_EQ(panelsWithinTab(panels_, {}, true), Numbers{9});
    panels_[0].used = false;
    EXPECT_EQ(panelsWithinTab(panels_, {}, false), Numbers{1});
    EXPECT_EQ(panelsWithinTab({}, {}, false), Numbers{});
}

TEST_F(PanelsAtHand, TabGoesOnInItsPanelOrInTheNext) {
    EXPECT_EQ(panelsWithinTab(panels_, 4, false), (Numbers{4, 5}));
    EXPECT_EQ(panelsWithinTab(panels_, 4, true), (Numbers{4, 3}));
    EXPECT_EQ(panelsWithinTab(panels_, 9, false), Numbers{9});
    EXPECT_EQ(panelsWithinTab(panels_, 0, true), Numbers{0});
    panels_[5].used = false;
    EXPECT_EQ(panelsWithinTab(panels_, 4, false), (Numbers{4, 6}));
}

}  // namespace
}  // namespace ormala
