#include "app/menuDesign.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "language/MlStringModule.h"
#include "support/ManualLanguage.h"

namespace ormala {
namespace {

std::vector<std::string> captions(std::span<const MenuLineDesign> lines) {
    std::vector<std::string> found;
    for (const MenuLineDesign& line : lines) {
        found.emplace_back(line.line == MenuLine::separator ? "-" : line.caption);
    }
    return found;
}

TEST(MenuDesign, TheMenuOfTheWorksheetReadsFromWindowsToHelp) {
    const std::vector<std::string> expected{"Maximized window without title bar",
                                            "Normal, resizable window",
                                            "-",
                                            "Pause",
                                            "Template Mode",
                                            "-",
                                            "Add new stencil tool",
                                            "Add new measurement tool",
                                            "-",
                                            "Magnifier",
                                            "Grid visible",
                                            "Cross hair visible",
                                            "Reference lines enabled",
                                            "Circle compass enabled",
                                            "-",
                                            "Options...",
                                            "Help..."};
    EXPECT_EQ(captions(popupMenuDesign()), expected);
}

TEST(MenuDesign, TheMenuOfTheMagnifierReadsFromVisibleToItsOptions) {
    const std::vector<std::string> expected{"Visible",
                                            "-",
                                            "Magnification",
                                            "-",
                                            "Attach to mouse",
                                            "-",
                                            "Mouse pointer visible",
                                            "\"Hot spot\" mark visible",
                                            "Grid visible",
                                            "Top and left scales visible",
                                            "Bottom and right scales visible",
                                            "-",
                                            "Options..."};
    EXPECT_EQ(captions(lensMenuDesign()), expected);
}

TEST(MenuDesign, EveryCaptionIsTheEnglishTextOfItsRow) {
    const ManualLanguage language(languageEnglish);
    for (const auto lines : {popupMenuDesign(), lensMenuDesign()}) {
        for (const MenuLineDesign& line : lines) {
            if (line.line != MenuLine::separator) {
                EXPECT_EQ(MlString(line.row, "none"), line.caption);
            }
        }
    }
}

TEST(MenuDesign, EachEntryStandsInOnePlace) {
    std::set<Command> entries;
    std::size_t count = 0;
    for (const auto lines : {popupMenuDesign(), lensMenuDesign()}) {
        for (const MenuLineDesign& line : lines) {
            if (line.line == MenuLine::entry) {
                entries.insert(line.entry);
                ++count;
            }
        }
    }
    EXPECT_EQ(entries.size(), count);
}

TEST(MenuDesign, TheTenMagnificationsKnowTheirFactor) {
    for (int factor = 1; factor <= 10; ++factor) {
        EXPECT_EQ(lensFactorOf(commandOfLensFactor(factor)), factor);
        EXPECT_EQ(captionOfLensFactor(factor), std::to_string(factor) + " X");
    }
    EXPECT_EQ(lensFactorOf(Command::help), 0);
    EXPECT_EQ(lensFactorOf(commandOfLensFactor(0)), 0);
    EXPECT_EQ(lensFactorOf(commandOfLensFactor(11)), 0);
}

}  // namespace
}  // namespace ormala
