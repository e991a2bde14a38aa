#include "storage/TextMark.h"

#include <gtest/gtest.h>

#include <string>

#include "support/MemoryCodePage.h"

namespace ormala {
namespace {

std::string textOf(const std::string& bytes) {
    return codePageText(bytes, MemoryCodePage());
}

TEST(CodePageText, WithoutAMarkIsAsItStands) {
    EXPECT_EQ(textOf("[A]\r\nK=\xFC\r\n"), "[A]\r\nK=\xFC\r\n");
    EXPECT_EQ(textOf("\xC3\xBC"), "\xC3\xBC");
    EXPECT_EQ(textOf(""), "");
    EXPECT_EQ(textOf("\xFF"), "\xFF");
    EXPECT_EQ(textOf("\xFE\xFF"), "\xFE\xFF");
}

TEST(CodePageText, WithTheMarkOfUtf8IsReadAsSuch) {
    EXPECT_EQ(textOf("\xEF\xBB\xBF[A]\r\nK=\xC3\xBC\r\n"), "[A]\r\nK=\xFC\r\n");
    EXPECT_EQ(textOf("\xEF\xBB\xBF"), "");
}

TEST(CodePageText, WithTheMarkOfUtf16IsReadAsSuch) {
    EXPECT_EQ(textOf(std::string("\xFF\xFE[\0\xFC\0]\0\r\0\n\0", 12)), "[\xFC]\r\n");
    EXPECT_EQ(textOf("\xFF\xFE"), "");
}

TEST(CodePageText, HalfACharacterAtTheEndIsDropped) {
    EXPECT_EQ(textOf(std::string("\xFF\xFE[\0]", 5)), "[");
}

TEST(CodePageText, WhatTheCodePageLacksHasItsSubstitute) {
    EXPECT_EQ(textOf("\xEF\xBB\xBF\xCE\xA9"), "?");
    EXPECT_EQ(textOf(std::string("\xFF\xFE\xA9\x03", 4)), "?");
    EXPECT_EQ(textOf(std::string("\xFF\xFE\x3D\xD8", 4)), "?");
}

}  // namespace
}  // namespace ormala
