#include "storage/ProfileText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace ormala {
namespace {

using Names = std::vector<std::string_view>;

std::string afterSetting(std::string_view text, std::string_view section, std::string_view key,
                         std::string_view value) {
    ProfileText profile{std::string(text)};
    profile.setValue(section, key, value);
    return profile.bytes();
}

TEST(ProfileText, FindsAValueAndDropsTheBlanksAroundIt) {
    const ProfileText text("[A]\r\n Key = 12.5 \r\nTab\t=\t7\t\r\n");
    EXPECT_EQ(text.value("A", "Key"), "12.5");
    EXPECT_EQ(text.value("A", "Tab"), "7");
    EXPECT_EQ(text.value("A", "Other"), std::nullopt);
    EXPECT_EQ(text.value("B", "Key"), std::nullopt);
}

TEST(ProfileText, ComparesNamesWithoutCase) {
    const ProfileText text("[General]\r\nVersion=1\r\n");
    EXPECT_EQ(text.value("gENERAL", "vERSION"), "1");
}

TEST(ProfileText, ComparesLettersBeyondZByTheirBytes) {
    const ProfileText text("[A]\r\n\xC4=1\r\n");
    EXPECT_EQ(text.value("a", "\xC4"), "1");
    EXPECT_EQ(text.value("a", "\xE4"), std::nullopt);
}

TEST(ProfileText, LooksOnlyIntoTheSectionAsked) {
    const ProfileText text("K=0\r\n[A]\r\nK=1\r\n[B]\r\nK=2\r\nL=3\r\n");
    EXPECT_EQ(text.value("A", "K"), "1");
    EXPECT_EQ(text.value("B", "K"), "2");
    EXPECT_EQ(text.value("A", "L"), std::nullopt);
}

TEST(ProfileText, TheFirstOfSeveralOfOneNameCounts) {
    const ProfileText text("[A]\nK=1\nK=2\n[a]\nK=3\nL=4\n");
    EXPECT_EQ(text.value("A", "K"), "1");
    EXPECT_EQ(text.value("A", "L"), std::nullopt);
}

TEST(ProfileText, KeepsQuotesAndFurtherEqualsSignsAsText) {
    const ProfileText text("[A]\nQ= \" x \" \nE=a=b\n");
    EXPECT_EQ(text.value("A", "Q"), "\" x \"");
    EXPECT_EQ(text.value("A", "E"), "a=b");
}

TEST(ProfileText, CommentsAndLinesWithoutEqualsSignAreNoKeys) {
    const ProfileText text("[A]\n;K=1\nK\n ; K=2\n");
    EXPECT_EQ(text.value("A", "K"), std::nullopt);
    EXPECT_EQ(text.value("A", ";K"), std::nullopt);
}

TEST(ProfileText, ReadsEveryKindOfLineEnd) {
    const ProfileText text("[A]\rK=1\nL=2\r\n\r\n[B]\n\nM=3");
    EXPECT_EQ(text.value("A", "K"), "1");
    EXPECT_EQ(text.value("A", "L"), "2");
    EXPECT_EQ(text.value("B", "M"), "3");
}

TEST(ProfileText, ListsSectionsInTheOrderOfTheFile) {
    const ProfileText text(
        "[Tool 2]\n[]\n[General] ; note\nx=[no]\n  [Tool 1]  \n[open\n[Tool 2]\n");
    EXPECT_EQ(text.sectionNames(), (Names{"Tool 2", "General", "Tool 1", "Tool 2"}));
    EXPECT_TRUE(ProfileText().sectionNames().empty());
}

TEST(ProfileText, ReplacesAValueInPlace) {
    EXPECT_EQ(afterSetting("[A]\r\n; note\r\n Key = 1 \r\nL=2\r\n", "a", "key", " 12.5"),
              "[A]\r\n; note\r\n Key = 12.5\r\nL=2\r\n");
    EXPECT_EQ(afterSetting("[A]\nK=1", "A", "K", "long text"), "[A]\nK=long text");
    EXPECT_EQ(afterSetting("[A]\nK=1\n[B]\nK=2\n", "B", "K", ""), "[A]\nK=1\n[B]\nK=\n");
}

TEST(ProfileText, AppendsAKeyBeforeTheEmptyLinesThatEndItsSection) {
    EXPECT_EQ(afterSetting("[A]\r\nK=1\r\n\r\n  \r\n[B]\r\nL=2\r\n", "A", "M", "3"),
              "[A]\r\nK=1\r\nM=3\r\n\r\n  \r\n[B]\r\nL=2\r\n");
    EXPECT_EQ(afterSetting("[A]\r\n\r\n[B]\r\n", "A", "M", "3"), "[A]\r\nM=3\r\n\r\n[B]\r\n");
}

TEST(ProfileText, AppendsAKeyBehindALineWithoutEnd) {
    EXPECT_EQ(afterSetting("[A]\nK=1", "A", "M", "3"), "[A]\nK=1\r\nM=3\r\n");
    EXPECT_EQ(afterSetting("[A]", "A", "M", "3"), "[A]\r\nM=3\r\n");
}

TEST(ProfileText, AppendsASectionAtTheEnd) {
    EXPECT_EQ(afterSetting("", "A", "K", " 1"), "[A]\r\nK= 1\r\n");
    EXPECT_EQ(afterSetting("[A]\nK=1", "B", "K", "2"), "[A]\nK=1\r\n[B]\r\nK=2\r\n");
    EXPECT_EQ(afterSetting("[A]\nK=1\n\n", "B", "K", "2"), "[A]\nK=1\n\n[B]\r\nK=2\r\n");
}

TEST(ProfileText, ReadsWhatItHasWritten) {
    ProfileText text("[First]\r\nx=1\r\n[Last]");
    text.setValue("Last", "a", "1");
    text.setValue("First", "y", "22");
    text.setValue("New", "b", "333");
    text.setValue("first", "X", "4444");
    text.setValue("Last", "c", "5");
    text.setValue("New", "b", "");
    EXPECT_EQ(text.bytes(), "[First]\r\nx=4444\r\ny=22\r\n[Last]\r\na=1\r\nc=5\r\n[New]\r\nb=\r\n");
    EXPECT_EQ(text.value("Last", "c"), "5");
    EXPECT_EQ(text.value("New", "b"), "");
    EXPECT_EQ(text.sectionNames(), (Names{"First", "Last", "New"}));
}

TEST(ProfileText, TellsWhetherAWriteChangedAnything) {
    ProfileText text("[A]\nK= 1\n");
    EXPECT_FALSE(text.setValue("A", "K", " 1"));
    EXPECT_TRUE(text.setValue("A", "K", "1"));
    EXPECT_TRUE(text.setValue("A", "L", ""));
}

TEST(ProfileText, AnEmptyKeyIsAKeyLikeAnyOther) {
    ProfileText text;
    text.setValue("A", "", "1");
    text.setValue("A", "", "2");
    EXPECT_EQ(text.bytes(), "[A]\r\n=2\r\n");
}

TEST(ProfileText, TextsEndWhereALineWouldEnd) {
    EXPECT_EQ(afterSetting("", "A\r\nB", "K\nL", std::string("1\0002", 3)), "[A]\r\nK=1\r\n");
}

TEST(ProfileText, AValueEndsAtItsFirstZeroByte) {
    const std::string line("[S]\nLengthUnit=mm \0x\nNumber= 1\n", 31);
    const ProfileText text(line);
    EXPECT_EQ(text.value("S", "LengthUnit"), "mm");
    EXPECT_EQ(text.value("S", "Number"), "1");
    EXPECT_EQ(text.bytes(), line);
}

TEST(ProfileText, CantHoldKeysThatWouldReadAsSomethingElse) {
    EXPECT_FALSE(ProfileText::canHold("[K]"));
    EXPECT_FALSE(ProfileText::canHold(" ;K"));
    EXPECT_FALSE(ProfileText::canHold("a=b"));
    EXPECT_TRUE(ProfileText::canHold("Key 1"));
}

TEST(ProfileText, KeepsWhatItDoesNotUnderstand) {
    using namespace std::string_literals;
    const std::string noise = "\0\x01=\xFF\n[\n]\r\r;\n=\n[A]\nK=1\nx\0y=2\n\x1A"s;
    ProfileText text(noise);
    EXPECT_TRUE(text.setValue("A", "K", "2"));
    std::string expected = noise;
    expected[expected.find("K=1") + 2] = '2';
    EXPECT_EQ(text.bytes(), expected);
}

/// Keys and sections are kept in a list beside the text, which has to follow each change.
TEST(ProfileText, ReadsAfterAnyChangesWhatAReaderOfItsBytesReads) {
    const std::string pieces[] = {"[A]\r\n", "[b] \n", "\n",       "K=1\r\n", " L = 22 \n",
                                  ";K=3\n",  "[A]\n",  "junk\r\n", "k=4",     "=5\n"};
    const std::string names[] = {"A", "B", "C"};
    const std::string keys[] = {"K", "L", "M", ""};
    std::mt19937 random(1);
    const auto pick = [&random](std::size_t below) { return random() % below; };
    for (int round = 0; round < 300; ++round) {
        std::string start;
        for (std::size_t i = pick(12); i > 0; --i) {
            start += pieces[pick(std::size(pieces))];
        }
        ProfileText text(start);
        for (int change = 0; change < 10; ++change) {
            const std::string& section = names[pick(3)];
            const std::string& key = keys[pick(4)];
            const std::string value(pick(12), 'v');
            text.setValue(section, key, value);
            const ProfileText fresh(text.bytes());
            EXPECT_EQ(fresh.value(section, key), value) << text.bytes();
            EXPECT_EQ(fresh.sectionNames(), text.sectionNames()) << text.bytes();
            for (const std::string& name : names) {
                for (const std::string& other : keys) {
                    EXPECT_EQ(fresh.value(name, other), text.value(name, other)) << text.bytes();
                }
            }
        }
    }
}

TEST(ProfileText, LeavesAKeyThatItCantHoldOut) {
    ProfileText text("[A]\r\n");
    EXPECT_FALSE(text.setValue("A", "a=b", "1"));
    EXPECT_FALSE(text.setValue("A", ";k", "1"));
    EXPECT_EQ(text.bytes(), "[A]\r\n");
}

/// A quadratic walk over these would take hours; linear ones take far less than a second each.
TEST(ProfileText, StaysLinearOnLargeDamagedInput) {
    constexpr std::size_t tenMillion = 10'000'000;
    const auto start = std::chrono::steady_clock::now();
    for (const std::string& input :
         {std::string(tenMillion, 'x'), std::string(tenMillion, '['), std::string(tenMillion, '\n'),
          std::string(tenMillion, ' '), std::string(tenMillion, '\0'),
          "[A]\n" + std::string(tenMillion, '='), "[" + std::string(tenMillion, ']')}) {
        ProfileText text(input);
        text.setValue("A", "K", "1");
        EXPECT_EQ(text.value("A", "K"), "1");
        EXPECT_LE(text.sectionNames().size(), 2U);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

}  // namespace
}  // namespace ormala
