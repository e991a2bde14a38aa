#include "stencil/PatternTable.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <utility>

#include "modAPI/constants.h"

namespace ormala {

namespace {

using Lines = std::vector<Line>;
using Ellipses = std::vector<PatternEllipse>;

constexpr Point centre = {0.5, 0.5};

Line vertical(double x) {
    return {x, 0, x, 1};
}

Line horizontal(double y) {
    return {0, y, 1, y};
}

/// A closed square about the centre, clockwise from its top left.
void addSquare(Lines& lines, double halfSide) {
    const double low = centre.x - halfSide;
    const double high = centre.x + halfSide;
    lines.insert(lines.end(), {{low, low, high, low},
                               {high, low, high, high},
                               {high, high, low, high},
                               {low, high, low, low}});
}

/// The frame, then a vertical and a horizontal line at each of the places.
Lines dividedAt(std::initializer_list<double> places) {
    Lines lines = {{0, 0, 1, 0}, {1, 0, 1, 1}, {1, 1, 0, 1}, {0, 1, 0, 0}};
    for (const double place : places) {
        lines.push_back(vertical(place));
        lines.push_back(horizontal(place));
    }
    return lines;
}

/// Lines at the powers of the golden section; those at its power 0 are the right and bottom sides.
Lines sectionMultiple() {
    Lines lines;
    for (int power = 0; power <= 8; ++power) {
        const double place = std::pow(G, power);
        lines.push_back({place, 1, place, 0});
        lines.push_back(horizontal(place));
    }
    lines.push_back({0, 0, 0, 1});
    lines.push_back({1, 0, 0, 0});
    return lines;
}

Lines squares(std::initializer_list<double> halfSides) {
    Lines lines;
    for (const double halfSide : halfSides) {
        addSquare(lines, halfSide);
    }
    return lines;
}

Lines squareMultiple() {
    Lines lines;
    for (int power = 0; power <= 5; ++power) {
        addSquare(lines, std::pow(G, power) / 2);
    }
    return lines;
}

PatternEllipse circle(double radius) {
    return {centre.x, centre.y, radius, radius};
}

Ellipses circleMultiple() {
    Ellipses ellipses;
    for (int power = 0; power <= 5; ++power) {
        ellipses.push_back(circle(std::pow(G, power) / 2));
    }
    return ellipses;
}

/// The golden spiral shrinks by 1 + G at each quarter turn.
Point spiralPoint(double angle) {
    const double radius = 0.5 / std::exp(angle / halfPi * std::log(1 + G));
    return {std::cos(angle + pi) * radius + centre.x, std::sin(angle + pi) * radius + centre.y};
}

/// Three turns inward from the middle of the left side. The steps grow toward the centre, so that
/// the segments stay of a like length on the screen.
Lines spiralLeft() {
    Lines lines;
    for (double angle = 0; 3 * pi * 2 > angle;) {
        const double growth = angle / (pi / 3) * (1 - G);
        const Point from = spiralPoint(angle);
        angle += pi / (2 * 50 * std::pow(G, growth));
        const Point to = spiralPoint(angle);
        lines.push_back({from.x, from.y, to.x, to.y});
    }
    return lines;
}

Lines spiralRight() {
    Lines lines = spiralLeft();
    for (Line& line : lines) {
        line.x1 = 1 - line.x1;
        line.x2 = 1 - line.x2;
    }
    return lines;
}

/// Five sides of the pentagon, each followed by a line of the star from the same corner.
Lines pentagram() {
    const auto corner = [](double angle) {
        return Point{std::cos(angle) / 2 + centre.x, std::sin(angle) / 2 + centre.y};
    };
    Lines lines;
    for (int side = 0; side < 5; ++side) {
        const double angle = side * twoPi / 5;
        const Point from = corner(angle - pi / 10);
        for (const Point to : {corner(angle + 3 * pi / 10), corner(angle + 7 * pi / 10)}) {
            lines.push_back({from.x, from.y, to.x, to.y});
        }
    }
    return lines;
}

PatternRecord ofLines(std::string_view name, int nameTextId, std::int32_t id, PatternGroup group,
                      double defaultRatio, Lines lines) {
    PatternRecord record;
    record.Lines = std::move(lines);
    record.Name = name;
    record.NameTextId = nameTextId;
    record.Id = id;
    record.Group = group;
    record.DefaultRatio = defaultRatio;
    return record;
}

PatternRecord ofCurve(std::string_view name, int nameTextId, std::int32_t id, Lines lines) {
    PatternRecord record =
        ofLines(name, nameTextId, id, PatternGroup::goldenSection, 1, std::move(lines));
    record.Polyline = true;
    return record;
}

PatternRecord ofEllipses(std::string_view name, int nameTextId, std::int32_t id,
                         Ellipses ellipses) {
    PatternRecord record = ofLines(name, nameTextId, id, PatternGroup::goldenSection, 1, {});
    record.Ellipses = std::move(ellipses);
    return record;
}

std::vector<PatternRecord> catalogue() {
    using enum PatternGroup;
    const Lines diagonals = {{0, 0, 1, 1}, {1, 0, 0, 1}};
    const Ellipses smallCircle = {circle(0.5), circle((1 - G) / 2)};
    const Ellipses largeCircle = {circle(0.5), circle(G / 2)};
    return {
        ofLines("Boundary", 280, 1, wholeNumbers, G, dividedAt({})),
        ofLines("Halves", 281, 2, wholeNumbers, 1, dividedAt({0.5})),
        ofLines("Thirds", 282, 3, wholeNumbers, 1, dividedAt({1.0 / 3, 2.0 / 3})),
        ofLines("Quarters", 283, 4, wholeNumbers, 1, dividedAt({0.25, 0.5, 0.75})),
        ofLines("Section simple", 284, 5, goldenSection, G, dividedAt({1 - G})),
        ofLines("Section double", 285, 6, goldenSection, G, dividedAt({1 - G, G})),
        ofLines("Section multiple", 286, 7, goldenSection, G, sectionMultiple()),
        ofCurve("Spiral left", 287, 14, spiralLeft()),
        ofLines("Rectangle small", 288, 8, goldenSection, G, squares({0.5, (1 - G) / 2})),
        ofLines("Rectangle large", 289, 9, goldenSection, G, squares({0.5, G / 2})),
        ofLines("Rectangle multiple", 290, 10, goldenSection, G, squareMultiple()),
        ofCurve("Spiral right", 291, 15, spiralRight()),
        ofEllipses("Ellipse small", 292, 11, smallCircle),
        ofEllipses("Ellipse large", 293, 12, largeCircle),
        ofEllipses("Ellipse multiple", 294, 13, circleMultiple()),
        ofLines("Pentagram", 295, 16, goldenSection, 1, pentagram()),
        ofLines("Root(2) simple", 296, 17, other, G, dividedAt({1 - R})),
        ofLines("Root(2) double", 297, 18, other, G, dividedAt({1 - R, R})),
        ofLines("Diagonals", 298, 19, other, G, diagonals),
    };
}

}  // namespace

PatternTable::PatternTable() : records_(catalogue()) {
#ifndef NDEBUG
    const std::string message = duplicateIdMessage(records_);
    if (!message.empty()) {
        std::fputs((message + '\n').c_str(), stderr);
        std::abort();
    }
#endif
}

const PatternTable& PatternTable::instance() {
    static const PatternTable table;
    return table;
}

const PatternRecord& PatternTable::operator[](int index) const {
    return records_.at(static_cast<std::size_t>(index));
}

int PatternIndexFromId(std::int32_t id) {
    const auto records = PatternTable::instance().records();
    const auto found = std::ranges::find(records, id, &PatternRecord::Id);
    return found == records.end() ? -1 : static_cast<int>(found - records.begin());
}

std::int32_t PatternIdFromIndex(int index) {
    const bool exists = index >= 0 && index < PatternTable::count();
    return exists ? PatternTable::instance()[index].Id : -1;
}

std::string duplicateIdMessage(std::span<const PatternRecord> records) {
    for (std::size_t i = 0; i < records.size(); ++i) {
        for (std::size_t j = i + 1; j < records.size(); ++j) {
            if (records[i].Id == records[j].Id) {
                return "Duplicate pattern ID " + std::to_string(records[i].Id) + " at indices " +
                       std::to_string(i) + " and " + std::to_string(j);
            }
        }
    }
    return {};
}

std::array<double, 13> preRotations() {
    constexpr std::array<double, 13> fractions = {0,        1.0 / 8,  1.0 / 4, 1.0 / 3, 3.0 / 8,
                                                  1.0 / 2,  5.0 / 8,  2.0 / 3, 3.0 / 4, 7.0 / 8,
                                                  1.0 / 20, 2.0 / 20, 3.0 / 20};
    std::array<double, 13> angles{};
    std::ranges::transform(fractions, angles.begin(), [](double fraction) {
        return std::floor(fraction * 1000000) / 1000000 * 2 * pi;
    });
    return angles;
}

}  // namespace ormala
