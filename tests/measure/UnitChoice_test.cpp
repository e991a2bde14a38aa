#include "measure/UnitChoice.h"

#include <gtest/gtest.h>

#include "modAPI/textForms.h"
#include "support/MemoryCodePage.h"

namespace ormala {
namespace {

UnitChoice choice(int lengthMode, double factor, std::string unit = "m") {
    UnitChoice made;
    made.units = {0, lengthMode, factor, std::move(unit)};
    return made;
}

std::string lengthText(const MeasureUnits& units, double length, double lengthA) {
    return FormatLength(length, units.LengthMode, units.LengthFactor, units.LengthUnit, lengthA,
                        {});
}

TEST(UnitChoice, PixelsAcceptAFactorOfZeroAndStoreIt) {
    EXPECT_TRUE(choice(0, 0).isValid());
    EXPECT_EQ(choice(0, 0).stored().LengthFactor, 0);
    EXPECT_TRUE(choice(0, -5).isValid());
}

TEST(UnitChoice, RealUnitsNeedAFactorAboveZero) {
    for (const int mode : {1, 2}) {
        EXPECT_FALSE(choice(mode, 0).isValid());
        EXPECT_FALSE(choice(mode, -1).isValid());
        EXPECT_TRUE(choice(mode, 0.001).isValid());
    }
}

TEST(UnitChoice, OnlyPixelsHaveNoRealUnit) {
    EXPECT_FALSE(choice(0, 1).hasRealUnit());
    EXPECT_TRUE(choice(1, 1).hasRealUnit());
    EXPECT_TRUE(choice(2, 1).hasRealUnit());
}

TEST(UnitChoice, LineAAsYardstickAlwaysReadsTheFactor) {
    const MeasureUnits units = choice(2, 7.5, "km").stored();
    for (const double length : {1.0, 123.4, 5000.0}) {
        EXPECT_EQ(lengthText(units, length, length), "7.5 km");
    }
}

TEST(UnitChoice, NothingIsConvertedBetweenTheNamesOfTheList) {
    EXPECT_EQ(lengthText(choice(1, 1, "mi").stored(), 10, 0), "10.0 mi");
    UnitChoice changed = choice(1, 3, "m");
    changed.units.LengthUnit = "km";
    EXPECT_EQ(changed.stored().LengthFactor, 3);
}

TEST(UnitChoice, SixteenthCharacterIsNotTyped) {
    EXPECT_TRUE(unitTakesKey("12345678901234"));
    EXPECT_FALSE(unitTakesKey("123456789012345"));
    EXPECT_FALSE(unitTakesKey("1234567890123456"));
}

TEST(UnitChoice, PastedNameIsCutToFifteenCharacters) {
    const MemoryCodePage codePage;
    EXPECT_EQ(unitCorrected("", "12345678901234567890", codePage), "123456789012345");
    EXPECT_EQ(unitCorrected("", "123456789012345", codePage), "123456789012345");
    EXPECT_EQ(unitCorrected("", "µµµµµµµµµµµµµµµµ", codePage), "µµµµµµµµµµµµµµµ");
}

TEST(UnitChoice, CutLeavesNoHalfOfACharacter) {
    EXPECT_EQ(unitCorrected("", "12345678901234😀", MemoryCodePage()), "12345678901234");
}

TEST(UnitChoice, PastedNameLosesTheBlanksInFront) {
    EXPECT_EQ(unitCorrected("", "   sea mile", MemoryCodePage()), "sea mile");
    EXPECT_EQ(unitCorrected("km", "   ", MemoryCodePage()), "");
}

TEST(UnitChoice, PastedNameThatCannotBeStoredLeavesTheFormerOne) {
    EXPECT_EQ(unitCorrected("km", "kΩ", MemoryCodePage()), "km");
    EXPECT_EQ(unitCorrected("km", "k\tm", MemoryCodePage()), "km");
    EXPECT_EQ(unitCorrected("km", "k\x7Fm", MemoryCodePage()), "km");
}

TEST(UnitChoice, OnlyWhatAFileGivesBackCanBeStored) {
    const MemoryCodePage codePage;
    for (const std::string_view name : {"", "m", "µm", "sea mile", "\"", "'", "km ", "a=b", ";"}) {
        EXPECT_TRUE(unitIsStorable(name, codePage)) << name;
    }
    for (const std::string_view name : {" m", " ", "Ω", "漢", "m\t", "\tm"}) {
        EXPECT_FALSE(unitIsStorable(name, codePage)) << name;
    }
}

TEST(UnitChoice, NameLosesTheBlanksAtItsEnds) {
    const MeasureUnits units = choice(1, 1, "  sea mile  ").stored();
    EXPECT_EQ(units.LengthUnit, "sea mile");
    EXPECT_EQ(choice(1, 1, "   ").stored().LengthUnit, "");
}

TEST(UnitChoice, EmptyNameIsAllowed) {
    EXPECT_TRUE(choice(1, 2, "").isValid());
    EXPECT_EQ(lengthText(choice(1, 2, "").stored(), 10, 0), "20.0");
}

TEST(UnitChoice, ListHasItsNamesInTheirOrder) {
    EXPECT_EQ(unitProposals.front(), "nm");
    EXPECT_EQ(unitProposals[1], "µm");
    EXPECT_EQ(unitProposals[11], "NM");
    EXPECT_EQ(unitProposals.back(), "ly");
}

}  // namespace
}  // namespace ormala
