#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "language/MlStringModule.h"
#include "modAPI/constants.h"
#include "modAPI/textForms.h"
#include "stencil/PatternTable.h"
#include "stencil/SpecialRatios.h"
#include "support/HelpStatements.h"
#include "support/ManualLanguage.h"

// What the help says of patterns and of special ratios.

namespace ormala {
namespace {

std::string inThousandths(double value) {
    return formatNumber(value, "0.000", {".", {}});
}

const PatternRecord& pattern(std::string_view name) {
    return *std::ranges::find(PatternTable::instance().records(), name, &PatternRecord::Name);
}

/// The widths of the squares of a pattern, the outer one first.
std::vector<double> widths(std::string_view name) {
    std::vector<double> found;
    const auto& lines = pattern(name).Lines;
    for (std::size_t square = 0; square < lines.size(); square += 4) {
        found.push_back(std::abs(lines[square].x2 - lines[square].x1));
    }
    return found;
}

/// How far the spiral is from its centre after so many quarter turns.
double spiralRadius(int quarters) {
    double turned = 0;
    double before = pi;
    for (const Line& line : pattern("Spiral left").Lines) {
        const double angle = std::atan2(line.y1 - 0.5, line.x1 - 0.5);
        turned += std::abs(std::remainder(angle - before, 2 * pi));
        before = angle;
        if (turned >= quarters * pi / 2 - 0.02) {
            return std::hypot(line.x1 - 0.5, line.y1 - 0.5);
        }
    }
    return 0;
}

/// Where the lines stand that go across, but for the outline.
std::string placesOf(std::string_view name) {
    std::string all;
    for (const Line& line : pattern(name).Lines) {
        if (line.x1 == line.x2 && line.x1 > 0 && line.x1 < 1) {
            all += inThousandths(line.x1) + " ";
        }
    }
    return all;
}

TEST(HelpStatements, OfPatterns) {
    expectHeld({
        {"one each way, from both sides, or divided again and again.",
         "the upright lines of the three sections",
         [] {
             return placesOf("Section simple") + "| " + placesOf("Section double") + "| " +
                    placesOf("Section multiple");
         },
         "0.382 | 0.382 0.618 | 0.618 0.382 0.236 0.146 0.090 0.056 0.034 0.021 "},
        {"The golden spiral, which shrinks by the golden section with each quarter turn.",
         "the radius after five quarter turns by that after four",
         [] {
             return formatNumber(spiralRadius(5) / spiralRadius(4), "0.0", {".", {}});
         },
         "0.6"},
        {"the small one has 0.382 of the outer one's sides, the large one 0.618.",
         "the widths of the squares",
         [] {
             return inThousandths(widths("Rectangle small")[1]) + " " +
                    inThousandths(widths("Rectangle large")[1]);
         },
         "0.382 0.618"},
        {"Das kleine hat 0,382 der Seiten des äußeren, das große 0,618.", "the same",
         [] {
             return inThousandths(widths("Rectangle small")[1]) + " " +
                    inThousandths(widths("Rectangle large")[1]);
         },
         "0.382 0.618"},
        {"Of the multiple ones each has 0.618 of the one before.", "the widths of its squares",
         [] {
             std::string all;
             for (const double width : widths("Rectangle multiple")) {
                 all += inThousandths(width) + " ";
             }
             return all;
         },
         "1.000 0.618 0.382 0.236 0.146 0.090 "},
        {"The same with ellipses; in a square they are circles.", "the small and the large one",
         [] {
             std::string all;
             for (const auto* name : {"Ellipse small", "Ellipse large"}) {
                 const PatternEllipse& inner = pattern(name).Ellipses[1];
                 all += inThousandths(2 * inner.rx) + " x " + inThousandths(2 * inner.ry) + " ";
             }
             return all;
         },
         "0.382 x 0.382 0.618 x 0.618 "},
        {"Lines at 1 to the root of 2, the ratio of ISO paper.", "the upright lines",
         [] { return placesOf("Root(2) double"); }, "0.293 0.707 "},
    });
}

/// As the help writes a caption: with the sign of the root.
std::string withRoots(std::string caption) {
    for (const auto& [text, sign] : {std::pair{"root(2)", "√2"}, {"root(5)", "√5"}, {"-1", "−1"}}) {
        const std::size_t at = caption.find(text);
        if (at != std::string::npos) {
            caption.replace(at, std::string_view(text).size(), sign);
        }
    }
    return caption;
}

TEST(HelpStatements, EachSpecialRatioHasItsRow) {
    const ManualLanguage english{languageEnglish};
    const SpecialRatios ratios([](int id, std::string_view text) { return MlString(id, text); },
                               {".", {}});
    for (int row = 0; row < specialRatioCount; ++row) {
        const std::string usage = ratios.SpecialRatioCaption(row, false, "", false)
                                      .substr(ratios.caption(row, false).size());
        const std::string begin = " " + withRoots(ratios.caption(row, false)) + " " +
                                  withRoots(ratios.caption(row, true)) + " ";
        const std::size_t at = helpText().find(begin);
        ASSERT_NE(at, std::string::npos) << begin;
        const std::string rest = helpText().substr(at + begin.size(), 60);
        EXPECT_NEAR(std::stod(rest), ratios[row], 0.00005) << begin;
        EXPECT_EQ(rest.find(usage), usage.empty() ? 0 : rest.find(' ') + 1) << begin << usage;
    }
}

}  // namespace
}  // namespace ormala
