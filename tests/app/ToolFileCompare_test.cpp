#include "app/ToolFileFixture.h"
#include "support/exampleToolFile.h"

// What a file has to hold to count as equal to the tools.

namespace ormala {
namespace {

using ToolFileCompare = ToolFileFixture;

TEST_F(ToolFileCompare, EveryKeyOfAStencilCounts) {
    const std::string keys[] = {
        "Type",          "RectBoundTop", "RectBoundRight",      "RectBoundBottom", "RectBoundLeft",
        "RotationAngle", "Color",        "LineWidth",           "PatternID1",      "PatternID5",
        "Hide",          "PatternID2",   "PatternPreRotation1", "PatternID3"};
    loadText(exampleToolFile);
    for (const std::string& key : keys) {
        bytes() = exampleToolFile;
        ini_.file.setCurrentSection("Tool 1");
        ini_.file.setDoubleValue(key, 77.5);
        EXPECT_FALSE(toolFile_.compare()) << key;
    }
}

/// The section of a stencil with a pattern in each slot.
std::string stencilOfFivePatterns() {
    std::string text = exampleToolFile;
    for (int slot = 2; slot <= 5; ++slot) {
        const std::string none = "PatternID" + std::to_string(slot) + "=-1";
        text.replace(text.find(none), none.size(),
                     "PatternID" + std::to_string(slot) + "= " + std::to_string(slot));
    }
    return text;
}

TEST_F(ToolFileCompare, EachKeyOfEachSlotCountsWhetherTheSlotHasAPatternOrNot) {
    for (const std::string& file : {std::string(exampleToolFile), stencilOfFivePatterns()}) {
        loadText(file);
        EXPECT_TRUE(toolFile_.compare());
        for (int slot = 1; slot <= 5; ++slot) {
            for (const auto& [key, value] :
                 {std::pair("PatternID", 12.0), std::pair("PatternPreRotation", .5)}) {
                bytes() = file;
                ini_.file.setCurrentSection("Tool 1");
                ini_.file.setDoubleValue(key + std::to_string(slot), value);
                EXPECT_FALSE(toolFile_.compare()) << key << slot;
            }
        }
    }
}

TEST_F(ToolFileCompare, EveryKeyOfAMeasurementCounts) {
    const std::string keys[] = {"Type",
                                "Connected",
                                "AX1",
                                "AY1",
                                "AX2",
                                "AY2",
                                "BX1",
                                "BY1",
                                "BX2",
                                "BY2",
                                "LineWidth",
                                "ColorA",
                                "ColorB",
                                "AngleMode",
                                "LengthMode",
                                "LengthFactor",
                                "LengthUnit",
                                "LabelsLengthVisible",
                                "LabelsAngleVisible",
                                "Number",
                                "Hide"};
    loadText(exampleToolFile);
    for (const std::string& key : keys) {
        bytes() = exampleToolFile;
        ini_.file.setCurrentSection("Tool 2");
        ini_.file.setDoubleValue(key, 77.5);
        EXPECT_FALSE(toolFile_.compare()) << key;
    }
}

TEST_F(ToolFileCompare, TheCaseOfAUnitCounts) {
    bytes() = replaced(exampleToolFile, "LengthUnit=m", "LengthUnit=M");
    toolFile_.load();
    EXPECT_TRUE(toolFile_.compare());
    stage_.measure(1).RefControl().setLengthUnit("m");
    EXPECT_FALSE(toolFile_.compare());
}

TEST_F(ToolFileCompare, AMissingUnitDiffersAndLeavesItsMessage) {
    loadText(exampleToolFile);
    bytes() = replaced(exampleToolFile, "LengthUnit=m\r\n", "");
    EXPECT_FALSE(toolFile_.compare());
    EXPECT_EQ(ini_.presenter.errors,
              std::vector<std::string>{"Failed to load file '" + ini_.file.Path() + "'."});
}

TEST_F(ToolFileCompare, OnlyTheToolsThatThereAreAreCompared) {
    loadText(exampleToolFile);
    stage_.list.RemovePanel(stage_.measure(1));
    EXPECT_TRUE(toolFile_.compare());
    stage_.list.RemovePanel(stage_.stencil(0));
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileCompare, AToolMoreThanTheFileHasDiffers) {
    loadText(exampleToolFile);
    stage_.addStencil();
    EXPECT_FALSE(toolFile_.compare());
}

TEST_F(ToolFileCompare, TheSectionOfTheProgramIsNotCompared) {
    loadText(exampleToolFile);
    bytes() = replaced(exampleToolFile, "Version=3.1.5", "Version=9");
    EXPECT_TRUE(toolFile_.compare());
}

TEST_F(ToolFileCompare, AMissingFileIsDifferent) {
    EXPECT_FALSE(toolFile_.compare());
}

}  // namespace
}  // namespace ormala
