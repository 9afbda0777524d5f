#include "Core/DateTime/DateTimeFormat.h"

#include <gtest/gtest.h>

namespace {

using namespace qev::datetime;
using std::chrono::seconds;
using std::chrono::sys_seconds;

/// 2026-01-31 14:30:05 UTC.
constexpr sys_seconds afternoon = std::chrono::sys_days(std::chrono::year_month_day(
                                      std::chrono::year(2026), std::chrono::January, std::chrono::day(31))) +
                                  std::chrono::hours(14) + std::chrono::minutes(30) + seconds(5);

TEST(DateTimeFormat, WritesEachForm)
{
    EXPECT_EQ(DateTimeFormat(2, 3).toString(afternoon), "2026-01-31 14:30:05");
    EXPECT_EQ(DateTimeFormat(3, 3).toString(afternoon), "31.01.2026 14:30:05");
    EXPECT_EQ(DateTimeFormat(1, 2).toString(afternoon), "20260131 14:30");
    EXPECT_EQ(DateTimeFormat(2, 0).toString(afternoon), "2026-01-31");
    EXPECT_EQ(DateTimeFormat(0, 1).toString(afternoon), "14");
    EXPECT_EQ(DateTimeFormat(0, 0).toString(afternoon), "");
    EXPECT_EQ(DateTimeFormat(7, -1).toString(afternoon), "");
}

TEST(DateTimeFormat, TimesBefore1970AreWrittenToo)
{
    EXPECT_EQ(DateTimeFormat(2, 3).toString(sys_seconds(seconds(-1))), "1969-12-31 23:59:59");
}

TEST(DateTimeFormat, ReadsWhatItWrites)
{
    for (int const date : {1, 2, 3}) {
        DateTimeFormat const format(date, 3);
        EXPECT_EQ(format.fromString(format.toString(afternoon)), afternoon);
    }
    EXPECT_EQ(DateTimeFormat(0, 3).fromString("00:01:01"), sys_seconds(seconds(61)));
}

TEST(DateTimeFormat, WhatIsLeftOutOfTheTimeIsZero)
{
    DateTimeFormat const format(2, 3);
    EXPECT_EQ(format.fromString("2026-01-31T14:30:05"), afternoon);
    EXPECT_EQ(format.fromString("2026-01-31 14:30"), afternoon - seconds(5));
    EXPECT_EQ(format.fromString("2026-01-31"), std::chrono::floor<std::chrono::days>(afternoon));
}

TEST(DateTimeFormat, OtherTextsAndDaysThatDoNotExistAreRefused)
{
    DateTimeFormat const format(2, 3);
    for (char const* const text :
         {"", "2026-02-30", "2026-13-01", "31.01.2026", "2026-01-31 24:00", "2026-01-31 14:60",
          "2026-01-31 14:30:05Z", "2026-01-31 ", "2026-1-31", "2026-01-31x14", "20260131", "2026-01-31 14:3"})
        EXPECT_FALSE(format.fromString(text)) << text;
    EXPECT_FALSE(DateTimeFormat(2, 0).fromString("2026-01-31 14:30"));
}

} // namespace
