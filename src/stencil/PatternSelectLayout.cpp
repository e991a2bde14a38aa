#include "stencil/PatternSelectLayout.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace ormala {

namespace {

constexpr int columns = 7;
constexpr int gap = 4;
constexpr int buttonSide = 56;
/// Wide enough for the longest word of a name, high enough for two lines.
constexpr int labelWidth = 72;
constexpr int labelHeight = 27;
constexpr int headingHeight = 16;
constexpr int groupGap = 8;
constexpr int columnWidth = labelWidth + gap;
constexpr int rowHeight = buttonSide + gap + labelHeight + gap;

constexpr int smallButton = 24;
constexpr int lineHeight = 14;
constexpr int noPatternWidth = 150;
constexpr int rotationLabelWidth = 70;
constexpr int rotationWidth = 130;
/// Closed.
constexpr int rotationHeight = 24;

constexpr int groupCount = 3;

using GroupSizes = std::array<int, groupCount>;

GroupSizes sizesOfGroups() {
    GroupSizes sizes{};
    for (const PatternRecord& record : PatternTable::instance().records()) {
        ++sizes.at(static_cast<std::size_t>(record.Group));
    }
    return sizes;
}

/// The cell under whose heading a group begins.
struct GroupPlace {
    int column = 0;
    int top = 0;
};

int rowsOf(int patterns) {
    return (patterns + columns - 1) / columns;
}

int heightOf(int patterns) {
    return headingHeight + gap + rowsOf(patterns) * rowHeight;
}

std::array<GroupPlace, groupCount> placesOfGroups(const GroupSizes& sizes) {
    std::array<GroupPlace, groupCount> places{};
    for (std::size_t group = 1; group < groupCount; ++group) {
        const GroupPlace& former = places.at(group - 1);
        const int formerSize = sizes.at(group - 1);
        const int nextColumn = former.column + formerSize;
        if (nextColumn + sizes.at(group) <= columns) {
            places.at(group) = {nextColumn, former.top};
        } else {
            places.at(group) = {0, former.top + heightOf(formerSize) + groupGap};
        }
    }
    return places;
}

PixelRect boxAt(int left, int top, int width, int height) {
    return {left, top, left + width, top + height};
}

PatternSelectLayout::Choice choiceAt(int column, int top) {
    const int left = column * columnWidth;
    return {boxAt(left + (labelWidth - buttonSide) / 2, top, buttonSide, buttonSide),
            boxAt(left, top + buttonSide + gap, labelWidth, labelHeight)};
}

void placeGroups(PatternSelectLayout& layout) {
    const GroupSizes sizes = sizesOfGroups();
    const auto places = placesOfGroups(sizes);
    for (std::size_t group = 0; group < groupCount; ++group) {
        const int width = std::min(sizes.at(group), columns) * columnWidth - gap;
        layout.groups.at(group) = boxAt(places.at(group).column * columnWidth, places.at(group).top,
                                        width, headingHeight);
    }
    GroupSizes placed{};
    for (const PatternRecord& record : PatternTable::instance().records()) {
        const auto group = static_cast<std::size_t>(record.Group);
        const int number = placed.at(group)++;
        const int row = number / columns;
        layout.patterns.push_back(
            choiceAt(places.at(group).column + number % columns,
                     places.at(group).top + headingHeight + gap + row * rowHeight));
    }
}

/// The line below the patterns.
void placeLastLine(PatternSelectLayout& layout, int top) {
    const int textTop = top + (smallButton - lineHeight) / 2;
    const int right = columns * columnWidth - gap;
    const int rotationLeft = right - rotationWidth;
    layout.noPattern = {boxAt((labelWidth - buttonSide) / 2, top, smallButton, smallButton),
                        boxAt((labelWidth - buttonSide) / 2 + smallButton + 2 * gap, textTop,
                              noPatternWidth, lineHeight)};
    layout.rotationLabel =
        boxAt(rotationLeft - 2 * gap - rotationLabelWidth, textTop, rotationLabelWidth, lineHeight);
    layout.rotation = boxAt(rotationLeft, top, rotationWidth, rotationHeight);
    layout.size = {right, top + smallButton};
}

}  // namespace

PatternSelectLayout patternSelectLayout() {
    PatternSelectLayout layout;
    placeGroups(layout);
    int bottom = 0;
    for (const auto& pattern : layout.patterns) {
        bottom = std::max(bottom, pattern.label.bottom);
    }
    placeLastLine(layout, bottom + groupGap);
    return layout;
}

std::vector<int> patternsAsSeen() {
    const PatternSelectLayout layout = patternSelectLayout();
    std::vector<int> seen(layout.patterns.size());
    std::iota(seen.begin(), seen.end(), 0);
    std::ranges::sort(seen, {}, [&](int index) {
        const PixelRect& button = layout.patterns.at(static_cast<std::size_t>(index)).button;
        return std::pair(button.top, button.left);
    });
    return seen;
}

}  // namespace ormala
