#include "widgets/buttonRows.h"

#include <gtest/gtest.h>

#include <vector>

#include "scene/Input.h"

namespace ormala {
namespace {

/// Two rows of three buttons, and below the middle of them one that is alone; 0 1 2, 3 4 5, 6.
std::vector<PixelRect> rows() {
    std::vector<PixelRect> boxes;
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            const int left = 10 + column * 30;
            const int top = 10 + row * 20;
            boxes.push_back({left, top, left + 26, top + 16});
        }
    }
    boxes.push_back({44, 60, 60, 80});
    return boxes;
}

std::optional<std::size_t> from(std::size_t place, int key) {
    return buttonBeside(rows(), place, key);
}

TEST(ButtonBeside, LeftAndRightStayInTheRow) {
    EXPECT_EQ(from(0, key::right), 1U);
    EXPECT_EQ(from(1, key::right), 2U);
    EXPECT_EQ(from(2, key::right), std::nullopt);
    EXPECT_EQ(from(5, key::left), 4U);
    EXPECT_EQ(from(3, key::left), std::nullopt);
    EXPECT_EQ(from(6, key::left), std::nullopt);
}

TEST(ButtonBeside, UpAndDownKeepTheColumnAsFarAsTheyCan) {
    EXPECT_EQ(from(0, key::down), 3U);
    EXPECT_EQ(from(2, key::down), 5U);
    EXPECT_EQ(from(4, key::up), 1U);
    EXPECT_EQ(from(3, key::down), 6U);
    EXPECT_EQ(from(6, key::up), 4U);
    EXPECT_EQ(from(0, key::up), std::nullopt);
    EXPECT_EQ(from(6, key::down), std::nullopt);
}

TEST(ButtonBeside, OtherKeysLeadNowhere) {
    for (const int other : {key::space, key::tab, key::home, key::pageDown}) {
        EXPECT_EQ(from(1, other), std::nullopt) << other;
    }
}

TEST(ButtonBeside, OneThatHasGrownUnderTheMouseStaysInItsRow) {
    std::vector<PixelRect> boxes = rows();
    boxes[1] = boxes[1].grown(5);
    EXPECT_EQ(buttonBeside(boxes, 0, key::right), 1U);
    EXPECT_EQ(buttonBeside(boxes, 1, key::right), 2U);
    EXPECT_EQ(buttonBeside(boxes, 1, key::down), 4U);
    EXPECT_EQ(buttonBeside(boxes, 4, key::up), 1U);
}

}  // namespace
}  // namespace ormala
