#include "Core/String/Utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::str;

TEST(Utf8, AcceptsCharactersOfEachLength)
{
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("plain"));
    EXPECT_TRUE(isUtf8("ä€\U0001F600"));
    EXPECT_TRUE(isUtf8("\xF4\x8F\xBF\xBF")) << "the largest character";
    EXPECT_TRUE(isUtf8("\xED\x9F\xBF")) << "the one before the surrogates";
}

TEST(Utf8, RefusesMalformedBytes)
{
    EXPECT_FALSE(isUtf8("\x80")) << "a continuation alone";
    EXPECT_FALSE(isUtf8("a\xE4")) << "Latin-1";
    EXPECT_FALSE(isUtf8("\xC3")) << "cut short";
    EXPECT_FALSE(isUtf8("\xE2\x82")) << "cut short";
    EXPECT_FALSE(isUtf8("\xC0\x80")) << "overlong";
    EXPECT_FALSE(isUtf8("\xE0\x80\x80")) << "overlong";
    EXPECT_FALSE(isUtf8("\xF0\x80\x80\x80")) << "overlong";
    EXPECT_FALSE(isUtf8("\xED\xA0\x80")) << "a surrogate";
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80")) << "too large";
    EXPECT_FALSE(isUtf8("\xFF"));
}

TEST(Utf8, Latin1BytesBecomeTheirCharacters)
{
    EXPECT_EQ(utf8FromLatin1("Stra\xDF"
                             "e"),
              "Straße");
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_TRUE(isUtf8(utf8FromLatin1(all)));
    EXPECT_EQ(utf8FromLatin1(all).size(), 127u + 2 * 128u);
}

TEST(Utf8, WhatIsNoCharacterBecomesTheReplacementCharacter)
{
    std::string text;
    appendUtf8(text, 0xD800);
    appendUtf8(text, 0x110000);
    EXPECT_EQ(text, "\uFFFD\uFFFD");
}

} // namespace
