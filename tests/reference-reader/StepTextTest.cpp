#include "reference-reader/StepText.h"

#include <gtest/gtest.h>

namespace {

using qev::test::reference::decodeText;

TEST(StepText, PlainTextStaysAsItIs) { EXPECT_EQ(decodeText("Wall 1"), "Wall 1"); }

TEST(StepText, TwoQuotesAreOne) { EXPECT_EQ(decodeText("it''s"), "it's"); }

TEST(StepText, TwoBackslashesAreOne) { EXPECT_EQ(decodeText(R"(C:\\X\\41)"), R"(C:\X\41)"); }

TEST(StepText, ShortEscapeIsLatin1) { EXPECT_EQ(decodeText(R"(Gr\X\F6\X\DFe)"), "Gr\u00f6\u00dfe"); }

TEST(StepText, ShiftedCharacterIsLatin1WithoutAPage) { EXPECT_EQ(decodeText(R"(\S\D\S\\)"), "\u00c4\u00dc"); }

TEST(StepText, ShiftedApostropheIsNoQuote) { EXPECT_EQ(decodeText(R"(\S\')"), "\u00a7"); }

TEST(StepText, PageChoosesTheAlphabetOfShiftedCharacters)
{
    EXPECT_EQ(decodeText(R"(\PE\\S\<\S\^)"), "\u041c\u043e");
    EXPECT_EQ(decodeText(R"(\PB\\S\#)"), "\u0141") << "Latin-2";
}

TEST(StepText, LongEscapeHoldsSeveralCharacters)
{
    EXPECT_EQ(decodeText(R"(\X2\58994F53\X0\ (wall))"), "\u5899\u4f53 (wall)");
}

TEST(StepText, LongEscapeJoinsSurrogates) { EXPECT_EQ(decodeText(R"(\X2\D842DFB7\X0\)"), "\U00020bb7"); }

TEST(StepText, LoneSurrogateIsReplaced) { EXPECT_EQ(decodeText(R"(\X2\D8420041\X0\)"), "\ufffdA"); }

TEST(StepText, LongestEscapeHoldsAnyCharacter)
{
    EXPECT_EQ(decodeText(R"(\X4\00020BB7000091CE\X0\)"), "\U00020bb7\u91ce");
}

TEST(StepText, RawUtf8IsKept) { EXPECT_EQ(decodeText("B\u00fcro"), "B\u00fcro"); }

TEST(StepText, OtherBytesAreLatin1) { EXPECT_EQ(decodeText("B\xFCro"), "B\u00fcro"); }

TEST(StepText, LineBreaksAreNoPartOfAText) { EXPECT_EQ(decodeText("a\r\nb"), "ab"); }

TEST(StepText, WhatIsNoEscapeStays)
{
    EXPECT_EQ(decodeText(R"(a\b)"), R"(a\b)");
    EXPECT_EQ(decodeText(R"(\X\G1)"), R"(\X\G1)");
    EXPECT_EQ(decodeText(R"(\X2\0041)"), R"(\X2\0041)") << "the end is missing";
    EXPECT_EQ(decodeText("\\"), "\\");
}

} // namespace
