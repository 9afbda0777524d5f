#include "Format/Ifc/Step/StepText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace qev::step {
namespace {

/// The text, and a mark in front when an escape was broken.
std::string decoded(std::string_view encoded)
{
    std::string text;
    bool const good = StepText::decode(encoded, text);
    return (good ? "" : "broken: ") + text;
}

std::string encoded(std::string_view text)
{
    std::string out;
    StepText::appendEncoded(out, text);
    return out;
}

TEST(StepText, LeavesPlainTextAsItIs)
{
    EXPECT_EQ(decoded(""), "");
    EXPECT_EQ(decoded("Wall 1; #2=(x)/*"), "Wall 1; #2=(x)/*");
}

TEST(StepText, DecodesDoubledApostrophesAndBackslashes)
{
    EXPECT_EQ(decoded("it''s"), "it's");
    EXPECT_EQ(decoded("''''"), "''");
    EXPECT_EQ(decoded("C:\\\\temp"), "C:\\temp");
    EXPECT_EQ(decoded("\\\\X2\\\\00E4"), "\\X2\\00E4");
}

TEST(StepText, DecodesSingleBytes)
{
    EXPECT_EQ(decoded("\\X\\E4\\X\\f6"), "\u00e4\u00f6");
    EXPECT_EQ(decoded("a\\X\\0Ab"), "a\nb");
}

TEST(StepText, DecodesGroups)
{
    EXPECT_EQ(decoded("\\X2\\00E400f6\\X0\\x"), "\u00e4\u00f6x");
    EXPECT_EQ(decoded("\\X4\\0001F600000000E4\\X0\\"), "\U0001f600\u00e4");
    EXPECT_EQ(decoded("\\X2\\\\X0\\"), "");
}

TEST(StepText, DecodesSurrogatePairs) { EXPECT_EQ(decoded("\\X2\\D83DDE00\\X0\\"), "\U0001f600"); }

TEST(StepText, DecodesPageCharacters)
{
    EXPECT_EQ(decoded("\\S\\d"), "\u00e4");
    EXPECT_EQ(decoded("\\S\\'"), "\u00a7");
    EXPECT_EQ(decoded("\\S\\ "), "\u00a0");
}

TEST(StepText, DecodesPageCharactersOfTheChosenPart)
{
    EXPECT_EQ(decoded("\\PA\\\\S\\d"), "\u00e4");
    EXPECT_EQ(decoded("\\PB\\\\S\\#"), "\u0141");
    EXPECT_EQ(decoded("\\PE\\\\S\\P\\S\\Q"), "\u0430\u0431");
    EXPECT_EQ(decoded("\\PG\\\\S\\a"), "\u03b1");
    EXPECT_EQ(decoded("\\PH\\\\S\\`"), "\u05d0");
    EXPECT_EQ(decoded("\\PI\\\\S\\p"), "\u011f");
    EXPECT_EQ(decoded("\\PE\\\\S\\P\\PA\\\\S\\d"), "\u0430\u00e4");
}

TEST(StepText, KeepsStrayBackslashes)
{
    EXPECT_EQ(decoded("C:\\temp\\new"), "C:\\temp\\new");
    EXPECT_EQ(decoded("\\Q unknown \\"), "\\Q unknown \\");
    EXPECT_EQ(decoded("\\PZ\\"), "\\PZ\\");
}

TEST(StepText, KeepsBrokenEscapesAndTells)
{
    EXPECT_EQ(decoded("\\X2\\00E\\X0\\ half"), "broken: \\X2\\00E\\X0\\ half");
    EXPECT_EQ(decoded("\\X2\\D83D\\X0\\ lone"), "broken: \\X2\\D83D\\X0\\ lone");
    EXPECT_EQ(decoded("\\X2\\DE00D83D\\X0\\"), "broken: \\X2\\DE00D83D\\X0\\");
    EXPECT_EQ(decoded("\\X2\\0041 unterminated"), "broken: \\X2\\0041 unterminated");
    EXPECT_EQ(decoded("\\X4\\00110000\\X0\\"), "broken: \\X4\\00110000\\X0\\");
    EXPECT_EQ(decoded("\\X\\G0"), "broken: \\X\\G0");
    EXPECT_EQ(decoded("\\X\\"), "broken: \\X\\");
    EXPECT_EQ(decoded("\\S\\"), "broken: \\S\\");
    EXPECT_EQ(decoded("\\PF\\\\S\\!"), "broken: \\S\\!");
}

TEST(StepText, TakesRawUtf8AsItIs)
{
    EXPECT_EQ(decoded("\u0416\u6f22 \U0001f600"), "\u0416\u6f22 \U0001f600");
}

TEST(StepText, TakesOtherBytesAsLatin1)
{
    EXPECT_EQ(decoded("\xe4\xf6"), "\u00e4\u00f6");
    EXPECT_EQ(decoded("\xc3\xa4\xff"), "\u00c3\u00a4\u00ff");
    EXPECT_EQ(decoded("\xc0\x80"), "\u00c0\u0080");
    EXPECT_EQ(decoded("\xed\xa0\x80"), "\u00ed\u00a0\u0080");
}

TEST(StepText, EncodesEverythingWithPrintableAscii)
{
    EXPECT_EQ(encoded("it's C:\\"), "it''s C:\\\\");
    EXPECT_EQ(encoded("a\u00e4\u00f6b"), "a\\X2\\00E400F6\\X0\\b");
    EXPECT_EQ(encoded("\u00e4\U0001f600\U0001f601\u00e4"),
              "\\X2\\00E4\\X0\\\\X4\\0001F6000001F601\\X0\\\\X2\\00E4\\X0\\");
    EXPECT_EQ(encoded("a\nb\x7f"), "a\\X2\\000A\\X0\\b\\X2\\007F\\X0\\");
    EXPECT_EQ(encoded("\xe4"), "\\X2\\00E4\\X0\\");
}

TEST(StepText, ReadsBackWhatItWroteForEveryCharacter)
{
    auto const utf8 = [](char32_t c) {
        std::string text;
        if (c < 0x80) {
            text = {static_cast<char>(c)};
        } else if (c < 0x800) {
            text = {static_cast<char>(0xc0 | c >> 6), static_cast<char>(0x80 | (c & 63))};
        } else if (c < 0x10000) {
            text = {static_cast<char>(0xe0 | c >> 12), static_cast<char>(0x80 | (c >> 6 & 63)),
                    static_cast<char>(0x80 | (c & 63))};
        } else {
            text = {static_cast<char>(0xf0 | c >> 18), static_cast<char>(0x80 | (c >> 12 & 63)),
                    static_cast<char>(0x80 | (c >> 6 & 63)), static_cast<char>(0x80 | (c & 63))};
        }
        return text;
    };
    std::string all;
    for (char32_t c = 0; c <= 0x10ffff; c += c < 0x3000 ? 1 : 97)
        if (c < 0xd800 || c > 0xdfff)
            all += utf8(c);
    EXPECT_TRUE(StepText::decode(encoded(all)) == all);

    std::mt19937 random(3);
    constexpr std::string_view parts[] = {"\\",         "'",    "X2\\", "X0\\", "S\\", "\u00e4",
                                          "\U0001f600", "00E4", "\n",   "P",    "A"};
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (unsigned int i = random() % 12; i > 0; --i)
            text += parts[random() % std::size(parts)];
        ASSERT_EQ(StepText::decode(encoded(text)), text);
    }
}

} // namespace
} // namespace qev::step
