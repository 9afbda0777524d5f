#include "Format/Ifc/Step/StepKeywordTable.h"

#include <gtest/gtest.h>

#include <string>

namespace qev::step {
namespace {

TEST(StepKeywordTable, FindsKeywordsInAnyCase)
{
    StepKeywordTable table;
    table.add("IfcWall", 7);
    EXPECT_EQ(table.find("IFCWALL"), 7);
    EXPECT_EQ(table.find("ifcwall"), 7);
    EXPECT_EQ(table.find("IFCWAL"), StepKeywordTable::unknown);
    EXPECT_EQ(table.find("IFCWALLS"), StepKeywordTable::unknown);
    EXPECT_EQ(table.find(""), StepKeywordTable::unknown);
}

TEST(StepKeywordTable, TakesTheNewestNumberOfAKeyword)
{
    StepKeywordTable table;
    table.add("IFCWALL", 7);
    table.add("ifcwall", 9);
    EXPECT_EQ(table.find("IFCWALL"), 9);
    EXPECT_EQ(table.classCount(), 10U);
}

TEST(StepKeywordTable, TellsThousandsOfKeywordsOfTheSameLengthApart)
{
    StepKeywordTable table;
    for (unsigned int i = 1; i <= 5000; ++i)
        table.add("IFCSAMEBEGINNING" + std::to_string(10000 + i) + "SAMEENDINGOFALL",
                  static_cast<std::uint16_t>(i));
    for (unsigned int i = 1; i <= 5000; ++i)
        ASSERT_EQ(table.find("IFCSAMEBEGINNING" + std::to_string(10000 + i) + "SAMEENDINGOFALL"), i);
    EXPECT_EQ(table.find("IFCSAMEBEGINNING15001SAMEENDINGOFALL"), StepKeywordTable::unknown);
}

TEST(StepKeywordTable, KnowsNoKeywordLongerThanAnySchemaHas)
{
    StepKeywordTable table;
    table.add(std::string(63, 'A'), 1);
    table.add(std::string(64, 'A'), 2);
    EXPECT_EQ(table.find(std::string(63, 'A')), 1);
    EXPECT_EQ(table.find(std::string(64, 'A')), StepKeywordTable::unknown);
}

} // namespace
} // namespace qev::step
