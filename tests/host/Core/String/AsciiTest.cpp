#include "Core/String/Ascii.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::str;

TEST(Ascii, ChangesTheCaseOfLettersAlone)
{
    EXPECT_EQ(toUpper("az[\xC3\xA4 9"), "AZ[\xC3\xA4 9");
    EXPECT_EQ(toLower("AZ{\xC3\x84 9"), "az{\xC3\x84 9");
}

TEST(Ascii, TellsDigits)
{
    EXPECT_TRUE(isDigit('0'));
    EXPECT_TRUE(isDigit('9'));
    EXPECT_FALSE(isDigit('/'));
    EXPECT_FALSE(isDigit(':'));
    EXPECT_FALSE(isDigit('\xB2'));
}

TEST(Ascii, ComparesWithoutRegardToCase)
{
    EXPECT_TRUE(equalIgnoringCase("IfcWall", "IFCWALL"));
    EXPECT_FALSE(equalIgnoringCase("IfcWall", "IfcWal"));
    EXPECT_FALSE(equalIgnoringCase("@", "`"));
}

TEST(Ascii, TrimsBothEndsAndNothingBetween)
{
    EXPECT_EQ(trimmed(" \t a b\r\n"), "a b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(" \n "), "");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed(" a\n", " "), "a\n");
}

} // namespace
