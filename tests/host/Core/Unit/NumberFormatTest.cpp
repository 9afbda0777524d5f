#include "Core/Unit/NumberFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using qev::unit::NumberFormat;

TEST(NumberFormat, WritesTheShortestTextWithItsDecimalSign)
{
    EXPECT_EQ(NumberFormat().write(2.5), "2.5");
    EXPECT_EQ(NumberFormat{','}.write(2.5), "2,5");
    EXPECT_EQ(NumberFormat().write(-0.0), "0");
    EXPECT_EQ(NumberFormat().write(0.1 + 0.2), "0.30000000000000004");
}

TEST(NumberFormat, ReadsWhatPeopleOfBothHalvesOfTheWorldWrite)
{
    NumberFormat const point;
    EXPECT_EQ(point.read(" 2,5\t"), 2.5);
    EXPECT_EQ(point.read("+2.5"), 2.5);
    EXPECT_EQ(point.read("-1,234,567.5"), -1234567.5);
    EXPECT_EQ(point.read("1.234,5"), 1234.5);
    EXPECT_EQ(point.read("-123,4567"), -123.4567);
    EXPECT_FALSE(std::signbit(*point.read("-0")));
    for (char const* const text : {"", "x", "2 5", "+-2", "1e999", "inf", "nan", "2.5 m", "1.2.3"})
        EXPECT_FALSE(point.read(text)) << text;
}

TEST(NumberFormat, RefusesWhatMayMeanThousands)
{
    NumberFormat const point;
    NumberFormat const comma{','};
    for (char const* const text : {"1,234", "-12,345", "+123,456"}) {
        EXPECT_FALSE(point.read(text)) << text;
        EXPECT_TRUE(comma.read(text)) << text;
    }
    EXPECT_FALSE(comma.read("1.234"));
    EXPECT_EQ(point.read("1.234"), 1.234);
    EXPECT_EQ(point.describeExpected("-1,234"), "1,234 can be read in two ways. Write 1.234 or 1234.");
    EXPECT_EQ(comma.describeExpected("x"), "A number is expected, such as 2,5.");
}

TEST(NumberFormat, ReadsExactlyWhatItWrites)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-15, 15);
    for (char const sign : {'.', ','}) {
        NumberFormat const format{sign};
        for (int i = 0; i < 500; ++i) {
            double const number = mantissa(random) * std::pow(10.0, exponent(random));
            EXPECT_EQ(format.read(format.write(number)), number);
        }
        EXPECT_EQ(format.read(format.write(1.125)), 1.125);
    }
}

} // namespace
