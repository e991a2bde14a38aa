#include "app/PanelLayout.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

constexpr PanelLayout::Window window{4, 40, 30, 2000, false};
constexpr int around = 4 + 40 + 30;

TEST(PanelLayout, PanelsThatComeOrGoLeaveTheWindowAsItStands) {
    PanelLayout layout;
    layout.UpdatePanelLayout(300, true, window);
    EXPECT_EQ(layout.UpdatePanelLayout(400, false, window), std::nullopt);
    EXPECT_EQ(layout.contentHeight(), 400);
    EXPECT_EQ(layout.UpdatePanelLayout(390, false, window), std::nullopt);
}

TEST(PanelLayout, TheWindowFollowsAPanelThatFoldsALine) {
    PanelLayout layout;
    layout.UpdatePanelLayout(300, true, window);
    EXPECT_EQ(layout.UpdatePanelLayout(309, false, window), 309 + around);
    EXPECT_EQ(layout.UpdatePanelLayout(300, false, window), 300 + around);
}

TEST(PanelLayout, ForceMakesTheWindowFollowAnyChange) {
    PanelLayout layout;
    EXPECT_EQ(layout.UpdatePanelLayout(900, true, window), 900 + around);
}

TEST(PanelLayout, TheWindowEndsWhereTheScreenEnds) {
    PanelLayout layout;
    EXPECT_EQ(layout.UpdatePanelLayout(5000, true, window), 2000);
}

TEST(PanelLayout, AShortWindowStaysShort) {
    PanelLayout layout;
    layout.UpdatePanelLayout(300, true, window);
    PanelLayout::Window shortWindow = window;
    shortWindow.standsShort = true;
    EXPECT_EQ(layout.UpdatePanelLayout(900, true, shortWindow), std::nullopt);
    EXPECT_EQ(layout.contentHeight(), 300);
}

TEST(ListViewport, TheScrollBarStandsAtTheRightEdgeAndThePanelsBesideIt) {
    const ListViewport viewport(292, 400, 17);
    EXPECT_EQ(viewport.scrollLeft, 275);
    EXPECT_EQ(viewport.scrollHeight, 400);
    EXPECT_EQ(viewport.contentWidth, 275);
}

TEST(ListViewport, TheListHidesInTheShortWindow) {
    EXPECT_FALSE(ListViewport::shows(1));
    EXPECT_FALSE(ListViewport::shows(-12));
    EXPECT_TRUE(ListViewport::shows(2));
}

}  // namespace
}  // namespace ormala
