#include "stencil/PatternTable.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "modAPI/constants.h"
#include "reference/ReferenceTable.h"

namespace ormala {
namespace {

const PatternTable& table() {
    return PatternTable::instance();
}

constexpr int spiralLeft = 7;
constexpr int spiralRight = 11;
constexpr int pentagram = 15;

TEST(PatternTable, HoldsNineteenPatternsInTheirOrder) {
    ASSERT_EQ(PatternTable::count(), 19);
    ASSERT_EQ(table().records().size(), 19U);
    EXPECT_EQ(table()[0].Name, "Boundary");
    EXPECT_EQ(table()[6].Name, "Section multiple");
    EXPECT_EQ(table()[18].Name, "Diagonals");
    EXPECT_EQ(table()[0].NameTextId, 280);
    EXPECT_EQ(table()[18].NameTextId, 298);
}

TEST(PatternTable, IdsAreNoIndexes) {
    EXPECT_EQ(PatternIndexFromId(6), 5);
    EXPECT_EQ(PatternIdFromIndex(7), 14);
    EXPECT_EQ(table()[7].Name, "Spiral left");
}

TEST(PatternTable, EveryIdLeadsBackToItsIndex) {
    for (int index = 0; index < PatternTable::count(); ++index) {
        const auto id = PatternIdFromIndex(index);
        EXPECT_GE(id, 1);
        EXPECT_LE(id, 19);
        EXPECT_EQ(PatternIndexFromId(id), index);
    }
}

TEST(PatternTable, UnknownIdsAndIndexesAreMinusOne) {
    EXPECT_EQ(PatternIndexFromId(0), -1);
    EXPECT_EQ(PatternIndexFromId(20), -1);
    EXPECT_EQ(PatternIndexFromId(-1), -1);
    EXPECT_EQ(PatternIdFromIndex(-1), -1);
    EXPECT_EQ(PatternIdFromIndex(19), -1);
}

TEST(PatternTable, IdsAreUnique) {
    EXPECT_EQ(duplicateIdMessage(table().records()), "");
}

TEST(PatternTable, DuplicateIdsAreNamed) {
    std::vector<PatternRecord> records(3);
    records[0].Id = 4;
    records[1].Id = 9;
    records[2].Id = 4;
    EXPECT_EQ(duplicateIdMessage(records), "Duplicate pattern ID 4 at indices 0 and 2");
}

TEST(PatternTable, OnlySpiralsAreRunningCurves) {
    for (int index = 0; index < PatternTable::count(); ++index) {
        EXPECT_EQ(table()[index].Polyline, index == spiralLeft || index == spiralRight) << index;
    }
}

TEST(PatternTable, GroupsAndDefaultRatiosAreThoseOfTheCatalogue) {
    const std::string groups = "1111000000000000222";
    const std::string golden = "1000111011100000111";
    for (int index = 0; index < PatternTable::count(); ++index) {
        const auto at = static_cast<std::size_t>(index);
        EXPECT_EQ(static_cast<int>(table()[index].Group), groups[at] - '0') << index;
        EXPECT_EQ(table()[index].DefaultRatio, golden[at] == '1' ? G : 1) << index;
    }
}

TEST(PatternTable, SpiralWindsInwardIn177Segments) {
    const auto& lines = table()[spiralLeft].Lines;
    ASSERT_EQ(lines.size(), 177U);
    EXPECT_NEAR(lines.front().x1, 0, 1e-12);
    EXPECT_NEAR(lines.front().y1, 0.5, 1e-12);
    EXPECT_NEAR(lines.front().x2, 0.005033, 1e-6);
    EXPECT_NEAR(lines.front().y2, 0.484445, 1e-6);
    EXPECT_NEAR(lines.back().x2, 0.498876, 1e-6);
    EXPECT_NEAR(lines.back().y2, 0.499319, 1e-6);
}

TEST(PatternTable, SpiralSegmentsJoinExactly) {
    const auto& lines = table()[spiralLeft].Lines;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].x1, lines[i - 1].x2);
        EXPECT_EQ(lines[i].y1, lines[i - 1].y2);
    }
}

TEST(PatternTable, PentagramBeginsWithItsRightSideAndPointsUp) {
    const auto& lines = table()[pentagram].Lines;
    ASSERT_EQ(lines.size(), 10U);
    EXPECT_NEAR(lines[0].x1, 0.975528, 1e-6);
    EXPECT_NEAR(lines[0].y1, 0.345492, 1e-6);
    EXPECT_NEAR(lines[0].x2, 0.793893, 1e-6);
    EXPECT_NEAR(lines[0].y2, 0.904508, 1e-6);
    EXPECT_NEAR(lines[8].x1, 0.5, 1e-12);
    EXPECT_NEAR(lines[8].y1, 0, 1e-12);
}

TEST(PatternTable, ComparesWithTheReference) {
    std::vector<ReferenceTable::Row> expected = ReferenceTable("patterns.csv").rows();
    ASSERT_EQ(expected.size(), 492U);
    std::size_t next = 0;
    const auto check = [&](int index, const char* kind, double a, double b, double c, double d) {
        ASSERT_LT(next, expected.size());
        const auto& row = expected[next++];
        EXPECT_EQ(row[0], std::to_string(index));
        EXPECT_EQ(row[1], kind);
        const auto v = ReferenceTable::numbers(row);
        EXPECT_NEAR(a, v[2], 1e-9) << "line " << next;
        EXPECT_NEAR(b, v[3], 1e-9) << "line " << next;
        EXPECT_NEAR(c, v[4], 1e-9) << "line " << next;
        EXPECT_NEAR(d, v[5], 1e-9) << "line " << next;
    };
    for (int index = 0; index < PatternTable::count(); ++index) {
        for (const Line& line : table()[index].Lines) {
            check(index, "line", line.x1, line.y1, line.x2, line.y2);
        }
    }
    for (int index = 0; index < PatternTable::count(); ++index) {
        for (const PatternEllipse& ellipse : table()[index].Ellipses) {
            check(index, "ellipse", ellipse.cx, ellipse.cy, ellipse.rx, ellipse.ry);
        }
    }
    EXPECT_EQ(next, expected.size());
}

TEST(PreRotations, AreMillionthsOfATurn) {
    const std::array<int, 13> millionths = {0,      125000, 250000, 333333, 375000, 500000, 625000,
                                            666666, 750000, 875000, 50000,  100000, 150000};
    const auto angles = preRotations();
    for (std::size_t i = 0; i < angles.size(); ++i) {
        EXPECT_DOUBLE_EQ(angles[i], millionths[i] / 1e6 * 2 * pi) << i;
    }
}

}  // namespace
}  // namespace ormala
