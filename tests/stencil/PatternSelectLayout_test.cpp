#include "stencil/PatternSelectLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

std::vector<PixelRect> allControls(const PatternSelectLayout& layout) {
    std::vector<PixelRect> controls(layout.groups.begin(), layout.groups.end());
    for (const auto& pattern : layout.patterns) {
        controls.push_back(pattern.button);
        controls.push_back(pattern.label);
    }
    controls.insert(controls.end(), {layout.noPattern.button, layout.noPattern.label,
                                     layout.rotationLabel, layout.rotation});
    return controls;
}

TEST(PatternSelectLayout, NoTwoControlsOverlap) {
    const auto controls = allControls(patternSelectLayout());
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_FALSE(controls[i].empty());
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            EXPECT_FALSE(controls[i].meets(controls[j])) << i << " and " << j;
        }
    }
}

TEST(PatternSelectLayout, AllControlsLieInside) {
    const PatternSelectLayout layout = patternSelectLayout();
    const PixelRect inside{0, 0, layout.size.width, layout.size.height};
    for (const PixelRect& control : allControls(layout)) {
        EXPECT_EQ(control.intersected(inside), control);
    }
}

TEST(PatternSelectLayout, ButtonsAndLabelsHaveAGapOfFourBetweenThem) {
    const PatternSelectLayout layout = patternSelectLayout();
    for (std::size_t i = 0; i < layout.patterns.size(); ++i) {
        const auto& pattern = layout.patterns.at(i);
        EXPECT_EQ(pattern.label.top - pattern.button.bottom, 4);
        for (std::size_t j = i + 1; j < layout.patterns.size(); ++j) {
            EXPECT_FALSE(pattern.label.grown(3).meets(layout.patterns.at(j).button));
            EXPECT_FALSE(pattern.label.grown(3).meets(layout.patterns.at(j).label));
        }
    }
}

TEST(PatternSelectLayout, EveryPatternStandsUnderItsHeadingInTheOrderOfTheTable) {
    const PatternSelectLayout layout = patternSelectLayout();
    std::array<PixelRect, 3> last{};
    for (int i = 0; i < PatternTable::count(); ++i) {
        const auto group = static_cast<std::size_t>(PatternTable::instance()[i].Group);
        const PixelRect& heading = layout.groups.at(group);
        const PixelRect& button = layout.patterns.at(static_cast<std::size_t>(i)).button;
        EXPECT_GT(button.top, heading.bottom) << i;
        EXPECT_GE(button.left, heading.left) << i;
        EXPECT_LE(button.right, heading.right) << i;
        const PixelRect& before = last.at(group);
        EXPECT_TRUE(before.empty() || button.top > before.top || button.left > before.left) << i;
        last.at(group) = button;
    }
}

TEST(PatternSelectLayout, ThePicturesAreLargeEnoughToTellThePatternsApart) {
    for (const auto& pattern : patternSelectLayout().patterns) {
        EXPECT_GE(pattern.button.width(), 48);
        EXPECT_EQ(pattern.button.width(), pattern.button.height());
    }
}

TEST(PatternSelectLayout, PatternsAsSeenGoRowByRowFromLeftToRight) {
    const PatternSelectLayout layout = patternSelectLayout();
    const std::vector<int> seen = patternsAsSeen();
    ASSERT_EQ(seen.size(), layout.patterns.size());
    for (std::size_t i = 1; i < seen.size(); ++i) {
        const PixelRect former = layout.patterns.at(static_cast<std::size_t>(seen[i - 1])).button;
        const PixelRect next = layout.patterns.at(static_cast<std::size_t>(seen[i])).button;
        EXPECT_TRUE(next.top > former.top || (next.top == former.top && next.left > former.left))
            << seen[i];
    }
}

}  // namespace
}  // namespace ormala
