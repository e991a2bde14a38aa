#include "scene/AccessibleParts.h"

#include <gtest/gtest.h>

#include <map>

namespace ormala {
namespace {

/// Tools by their ids, with so many grips.
class CountedParts : public AccessibleParts {
  public:
    explicit CountedParts(std::map<int, int> grips) : grips_(std::move(grips)) {}

    std::vector<int> tools() const override {
        std::vector<int> ids;
        for (const auto& [id, grips] : grips_) {
            ids.push_back(id);
        }
        return ids;
    }
    std::optional<AccessiblePart> part(PartId id) const override {
        if (!grips_.contains(id.tool) || id.grip > grips_.at(id.tool)) {
            return std::nullopt;
        }
        AccessiblePart part;
        part.parts = id.grip == 0 ? grips_.at(id.tool) : 0;
        return part;
    }
    PartId partAt(PixelPoint) const override { return {}; }
    int focusedTool() const override { return 0; }
    int selectedTool() const override { return 0; }
    bool choose(int, bool) override { return false; }

  private:
    std::map<int, int> grips_;
};

using enum PartStep;
using Found = std::optional<PartId>;

constexpr PartId whole{};

TEST(ChildOf, CountsTheToolsAndTheirGripsFromOne) {
    const CountedParts parts({{5, 2}, {9, 0}});
    EXPECT_EQ(childOf(parts, whole, 0), Found(whole));
    EXPECT_EQ(childOf(parts, whole, 1), Found({5, 0}));
    EXPECT_EQ(childOf(parts, whole, 2), Found({9, 0}));
    EXPECT_EQ(childOf(parts, whole, 3), std::nullopt);
    EXPECT_EQ(childOf(parts, {5, 0}, 0), Found({5, 0}));
    EXPECT_EQ(childOf(parts, {5, 0}, 2), Found({5, 2}));
    EXPECT_EQ(childOf(parts, {5, 0}, 3), std::nullopt);
    EXPECT_EQ(childOf(parts, {9, 0}, 1), std::nullopt);
    EXPECT_EQ(childOf(parts, {5, 1}, 1), std::nullopt);
}

TEST(ChildOf, FindsAToolByItsIdAsLongAsItIsShown) {
    const CountedParts parts({{5, 2}, {9, 0}});
    EXPECT_EQ(childOf(parts, whole, -9), Found({9, 0}));
    EXPECT_EQ(childOf(parts, whole, -1), std::nullopt);
    EXPECT_EQ(childOf(parts, {5, 0}, -9), std::nullopt);
}

TEST(NeighbourOf, GoesFromToolToToolAndStopsAtTheEnds) {
    const CountedParts parts({{5, 2}, {7, 0}, {9, 1}});
    EXPECT_EQ(neighbourOf(parts, whole, firstChild), Found({5, 0}));
    EXPECT_EQ(neighbourOf(parts, whole, lastChild), Found({9, 0}));
    EXPECT_EQ(neighbourOf(parts, {5, 0}, next), Found({7, 0}));
    EXPECT_EQ(neighbourOf(parts, {7, 0}, previous), Found({5, 0}));
    EXPECT_EQ(neighbourOf(parts, {5, 0}, previous), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, {9, 0}, next), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, {4, 0}, next), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, whole, next), std::nullopt);
}

TEST(NeighbourOf, GoesThroughTheGripsOfATool) {
    const CountedParts parts({{5, 2}, {7, 0}});
    EXPECT_EQ(neighbourOf(parts, {5, 0}, firstChild), Found({5, 1}));
    EXPECT_EQ(neighbourOf(parts, {5, 0}, lastChild), Found({5, 2}));
    EXPECT_EQ(neighbourOf(parts, {5, 1}, next), Found({5, 2}));
    EXPECT_EQ(neighbourOf(parts, {5, 2}, next), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, {5, 1}, previous), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, {5, 1}, firstChild), std::nullopt);
    EXPECT_EQ(neighbourOf(parts, {7, 0}, firstChild), std::nullopt);
    EXPECT_EQ(neighbourOf(CountedParts({}), whole, lastChild), std::nullopt);
}

}  // namespace
}  // namespace ormala
