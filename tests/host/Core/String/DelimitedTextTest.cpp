#include "Core/String/DelimitedText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace qev::str;
using testing::ElementsAre;
using testing::IsEmpty;

using Rows = std::vector<std::vector<std::string>>;

TEST(DelimitedTextTest, PlainCellsStandAsTheyAre)
{
    EXPECT_EQ(writeDelimited({{"GlobalId", "Name"}, {"1", "Wall 1"}}, ','), "GlobalId,Name\n1,Wall 1\n");
    EXPECT_EQ(writeDelimited({{"a,b", "c"}}, '\t'), "a,b\tc\n");
    EXPECT_EQ(writeDelimited({}, ','), "");
}

TEST(DelimitedTextTest, CellsThatWouldBeTornApartAreQuoted)
{
    EXPECT_EQ(writeDelimited({{"a,b", "say \"hi\"", "two\nlines"}}, ','),
              "\"a,b\",\"say \"\"hi\"\"\",\"two\nlines\"\n");
    EXPECT_EQ(writeDelimited({{"a\tb", "\r"}}, '\t'), "\"a\tb\"\t\"\r\"\n");
}

TEST(DelimitedTextTest, WhatWasWrittenReadsBackTheSame)
{
    Rows const rows = {{"", "x"}, {"a,\"b\"", "line 1\r\nline 2"}, {""}, {"\"", "end"}};
    Rows read;
    for (auto const& row : readDelimited(writeDelimited(rows, ','), ','))
        read.push_back(row.cells);
    EXPECT_EQ(read, rows);
}

TEST(DelimitedTextTest, RowsKnowTheirLine)
{
    auto const rows = readDelimited("a\r\n\"b\nc\",d\n\ne", ',');
    EXPECT_THAT(rows, ElementsAre(DelimitedRow{1, {"a"}}, DelimitedRow{2, {"b\nc", "d"}},
                                  DelimitedRow{4, {""}}, DelimitedRow{5, {"e"}}));
}

TEST(DelimitedTextTest, ALastLineBreakBeginsNoRow)
{
    EXPECT_THAT(readDelimited("a\n", ','), ElementsAre(DelimitedRow{1, {"a"}}));
    EXPECT_THAT(readDelimited("a,\n", ','), ElementsAre(DelimitedRow{1, {"a", ""}}));
    EXPECT_THAT(readDelimited("", ','), IsEmpty());
}

TEST(DelimitedTextTest, AByteOrderMarkIsPassedOver)
{
    EXPECT_THAT(readDelimited("\xEF\xBB\xBFGlobalId;Name", ';'),
                ElementsAre(DelimitedRow{1, {"GlobalId", "Name"}}));
}

TEST(DelimitedTextTest, OddQuotationMarksLoseNothing)
{
    EXPECT_THAT(readDelimited("8\" pipe,\"open", ','), ElementsAre(DelimitedRow{1, {"8\" pipe", "open"}}));
    EXPECT_THAT(readDelimited("\"a\"b,c", ','), ElementsAre(DelimitedRow{1, {"ab", "c"}}));
}

} // namespace
