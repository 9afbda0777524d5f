#include "Core/String/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace {

using namespace qev::str;

TEST(NumberText, ShortestTextHasAnExponentOnlyForVeryLargeAndVerySmallNumbers)
{
    EXPECT_EQ(shortestText(0.1), "0.1");
    EXPECT_EQ(shortestText(2), "2");
    EXPECT_EQ(shortestText(-0.0), "-0");
    EXPECT_EQ(shortestText(100000), "100000");
    EXPECT_EQ(shortestText(0.0001), "0.0001");
    EXPECT_EQ(shortestText(0.00001), "1e-05");
    EXPECT_EQ(shortestText(1e16), "1e+16");
    EXPECT_EQ(shortestText(1.5e300), "1.5e+300");
}

TEST(NumberText, EveryNumberReadsBackEqual)
{
    std::mt19937_64 random(1);
    int checked = 0;
    while (checked < 2000) {
        std::uint64_t const bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value))
            continue;
        ++checked;
        EXPECT_EQ(parseDouble(shortestText(value)), value);
    }
}

TEST(NumberText, ReadsTheFormsOfNumbers)
{
    EXPECT_EQ(parseDouble("2."), 2.0);
    EXPECT_EQ(parseDouble(".5"), 0.5);
    EXPECT_EQ(parseDouble("+1"), 1.0);
    EXPECT_EQ(parseDouble("1.E-05"), 1e-5);
    EXPECT_EQ(parseDouble("-1e3"), -1000.0);
}

TEST(NumberText, RefusesWhatIsNoNumberAlone)
{
    for (char const* const text :
         {"", " 1", "1 ", "1,5", "0x10", "inf", "nan", "1e", "1e+", ".", "-", "+-1", "1.2.3", "1e999", "abc"})
        EXPECT_FALSE(parseDouble(text)) << text;
}

TEST(NumberText, RoundsToDecimalsAndToSignificantDigits)
{
    EXPECT_EQ(fixedText(2.345, 1), "2.3");
    EXPECT_EQ(fixedText(2, 3), "2.000");
    EXPECT_EQ(fixedText(2.5, -1), "2");
    EXPECT_EQ(significantText(0.000123456, 3), "0.000123");
    EXPECT_EQ(significantText(300, 6), "300");
    EXPECT_GT(fixedText(std::numeric_limits<double>::max(), 100).size(), 300u);
}

TEST(NumberText, APowerOfTenMovesThePointAlone)
{
    EXPECT_EQ(timesPowerOfTen("250.1", -3), "0.2501");
    EXPECT_EQ(timesPowerOfTen("0.2501", 3), "250.1");
    EXPECT_EQ(timesPowerOfTen("-1.5e2", 1), "-1500");
    EXPECT_EQ(timesPowerOfTen("+007.50", 0), "7.5");
    EXPECT_EQ(timesPowerOfTen("1.25", -9), "1.25e-9");
    EXPECT_EQ(timesPowerOfTen("3", 40), "3e40");
    EXPECT_EQ(timesPowerOfTen("-0.00", 5), "-0");
    EXPECT_EQ(timesPowerOfTen("x", 5), std::nullopt);
    EXPECT_EQ(timesPowerOfTen("1e99999999999", 5), std::nullopt);
}

} // namespace
