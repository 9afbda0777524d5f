#include "Core/String/Utf8.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <type_traits>

namespace {

using namespace qev::str;

TEST(Utf8, LeavesCharactersOfEachLengthAsTheyAre)
{
    for (std::string const text : {"", "plain", "ä€\U0001F600"})
        EXPECT_EQ(wellFormedUtf8(text), text);
    EXPECT_EQ(wellFormedUtf8("\xF4\x8F\xBF\xBF"), "\xF4\x8F\xBF\xBF") << "the largest character";
    EXPECT_EQ(wellFormedUtf8("\xED\x9F\xBF"), "\xED\x9F\xBF") << "the one before the surrogates";
}

TEST(Utf8, MarksEachByteThatIsPartOfNoCharacter)
{
    EXPECT_EQ(wellFormedUtf8("\x80"), "\uFFFD") << "a continuation alone";
    EXPECT_EQ(wellFormedUtf8("a\xE4z"), "a\uFFFDz") << "Latin-1";
    EXPECT_EQ(wellFormedUtf8("\xC3"), "\uFFFD") << "cut short";
    EXPECT_EQ(wellFormedUtf8("ä\xE2\x82"), "ä\uFFFD\uFFFD") << "cut short";
    EXPECT_EQ(wellFormedUtf8("\xC0\x80"), "\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(wellFormedUtf8("\xE0\x80\x80"), "\uFFFD\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(wellFormedUtf8("\xF0\x80\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD") << "overlong";
    EXPECT_EQ(wellFormedUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD") << "a surrogate";
    EXPECT_EQ(wellFormedUtf8("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD") << "too large";
    EXPECT_EQ(wellFormedUtf8("\xFFz"), "\uFFFDz");
}

TEST(Utf8, SpellsPathsAsPeopleWroteThem)
{
    EXPECT_EQ(utf8FromPath(std::filesystem::path(u8"Müllerstraße")), "Müllerstraße");
    EXPECT_EQ(utf8FromPath(std::filesystem::path(u8"建物.ifc").stem()), "建物");
}

TEST(Utf8, MarksTheBytesOfAPathInAnotherEncoding)
{
    if constexpr (!std::is_same_v<std::filesystem::path::value_type, char>)
        GTEST_SKIP() << "paths are UTF-16 here";
    EXPECT_EQ(utf8FromPath(std::filesystem::path("M\xFCller.ifc")), "M\uFFFDller.ifc");
}

} // namespace
