#include "toolkit/toolKeys.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/ManualLanguage.h"
#include "support/MemoryINIFile.h"

namespace ormala {
namespace {

class ToolKeysTest : public testing::Test {
  protected:
    void store(const std::string& value) { ini_.bytes() = "[S]\r\nKey=" + value + "\r\n"; }
    double read(const std::string& value) {
        store(value);
        return finiteValue(ini_.file, "Key", 5);
    }

    ManualLanguage language_{languageEnglish};
    MemoryINIFile ini_;
    ToolKeyWriter writer_{ini_.file};
    ToolKeyComparer comparer_{ini_.file};
};

TEST_F(ToolKeysTest, AMissingNumberIsItsDefault) {
    EXPECT_EQ(finiteValue(ini_.file, "Key", 5), 5);
}

TEST_F(ToolKeysTest, WhatIsNoFiniteNumberReadsAsZeroWithoutAMessage) {
    for (const char* const text : {"abc", "inf", "-inf", "nan", "1e999", "-1e999", "1E+309"}) {
        EXPECT_EQ(read(text), 0) << text;
    }
    EXPECT_EQ(ini_.file.LastError(), "");
    EXPECT_EQ(read("1E+308"), 1e308);
}

TEST_F(ToolKeysTest, AnyValueButZeroIsTrue) {
    for (const char* const text : {"-1", " 1", "77"}) {
        store(text);
        EXPECT_TRUE(flagValue(ini_.file, "Key", false)) << text;
    }
    store(" 0");
    EXPECT_FALSE(flagValue(ini_.file, "Key", true));
    EXPECT_TRUE(flagValue(ini_.file, "Missing", true));
    EXPECT_FALSE(flagValue(ini_.file, "Missing", false));
}

TEST_F(ToolKeysTest, ValuesAreWrittenInTheFormOfTheFile) {
    writer_.number("A", 12.5);
    writer_.factor("B", -0.25);
    writer_.integer("C", 2);
    writer_.flag("D", true);
    writer_.flag("E", false);
    writer_.text("F", "m");
    EXPECT_EQ(ini_.bytes(), "[S]\r\nA= 12.5\r\nB=-.25\r\nC= 2\r\nD=-1\r\nE= 0\r\nF=m\r\n");
}

TEST_F(ToolKeysTest, MissingKeysCompareAsZeroAndEmpty) {
    EXPECT_TRUE(comparer_.number("Key", 0));
    EXPECT_TRUE(comparer_.factor("Key", 0));
    EXPECT_TRUE(comparer_.integer("Key", 0));
    EXPECT_TRUE(comparer_.flag("Key", false));
    EXPECT_TRUE(comparer_.text("Key", ""));
    EXPECT_FALSE(comparer_.number("Key", 1));
    EXPECT_FALSE(comparer_.factor("Key", 1));
    EXPECT_FALSE(comparer_.flag("Key", true));
    EXPECT_FALSE(comparer_.text("Key", "m"));
}

TEST_F(ToolKeysTest, ANumberIsComparedByFifteenDigitsAndAFactorByAll) {
    store(" .333333333333333");
    EXPECT_TRUE(comparer_.number("Key", 1.0 / 3));
    EXPECT_FALSE(comparer_.factor("Key", 1.0 / 3));
    EXPECT_TRUE(comparer_.factor("Key", 0.333333333333333));
    EXPECT_FALSE(comparer_.number("Key", 0.333333333333334));
}

TEST_F(ToolKeysTest, AFlagWrittenAsOneDiffersFromTrue) {
    store(" 1");
    EXPECT_FALSE(comparer_.flag("Key", true));
    store("-1");
    EXPECT_TRUE(comparer_.flag("Key", true));
}

TEST_F(ToolKeysTest, TheCaseOfATextCounts) {
    store("Mm");
    EXPECT_TRUE(comparer_.text("Key", "Mm"));
    EXPECT_FALSE(comparer_.text("Key", "mm"));
}

TEST(ToolKeyText, HasEveryKeyWithItsValueAsInTheFile) {
    ToolKeyText keys;
    EXPECT_TRUE(keys.number("Left", 12.5));
    EXPECT_TRUE(keys.factor("Factor", 1.0 / 3));
    EXPECT_TRUE(keys.integer("Color", -7));
    EXPECT_TRUE(keys.flag("Hide", true));
    EXPECT_TRUE(keys.text("Unit", "m"));
    EXPECT_EQ(keys.text(), "Left= 12.5\nFactor= .333333333333333\nColor=-7\nHide=-1\nUnit=m\n");
}

}  // namespace
}  // namespace ormala
