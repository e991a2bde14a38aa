#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(Utf8, ConvertsBothWays) {
    const std::string text = "a\u00fc\u20ac\U0001F600z";
    EXPECT_EQ(utf16FromUtf8(text), u"a\u00fc\u20ac\U0001F600z");
    EXPECT_EQ(utf8FromUtf16(utf16FromUtf8(text)), text);
}

TEST(Utf8, BrokenSequencesBecomeTheReplacementCharacter) {
    EXPECT_EQ(utf16FromUtf8("a\xC3"), u"a\uFFFD");
    EXPECT_EQ(utf16FromUtf8("\x80z"), u"\uFFFDz");
    EXPECT_EQ(utf16FromUtf8("\xED\xA0\x80"), u"\uFFFD");
    EXPECT_EQ(utf16FromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");
}

TEST(Utf8, LoneSurrogatesBecomeTheReplacementCharacter) {
    const std::u16string high{char16_t{0xD800}, u'a'};
    EXPECT_EQ(utf8FromUtf16(high), "\uFFFDa");
    const std::u16string low{char16_t{0xDC00}};
    EXPECT_EQ(utf8FromUtf16(low), "\uFFFD");
}

TEST(Utf8, TrimsBlanksOnly) {
    EXPECT_EQ(trimBlanks("  a b\t "), "a b\t");
    EXPECT_EQ(trimBlanks("   "), "");
}

TEST(LowerCase, ChangesTheLettersFromAToZOnly) {
    EXPECT_EQ(lowerCase("Tool 1 [AZ@`]"), "tool 1 [az@`]");
    EXPECT_EQ(lowerCase("\u00c4\u00d6"), "\u00c4\u00d6");
    EXPECT_EQ(lowerCase(""), "");
}

}  // namespace
}  // namespace ormala
