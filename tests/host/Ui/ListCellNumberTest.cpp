#include "Ui/List/ListCellNumber.h"

#include <gtest/gtest.h>

namespace {

using qev::ui::ListCellNumber;

struct Reading
{
    char const* text;
    double value;
    char const* unit;
};

class ListCellNumberTest : public testing::TestWithParam<Reading>
{
};

TEST_P(ListCellNumberTest, ReadsTheNumberAndItsUnit)
{
    auto const number = ListCellNumber::read(GetParam().text);
    ASSERT_TRUE(number);
    EXPECT_DOUBLE_EQ(number->value, GetParam().value);
    EXPECT_EQ(number->unit, GetParam().unit);
}

INSTANTIATE_TEST_SUITE_P(Texts, ListCellNumberTest,
                         testing::Values(Reading{"12", 12, ""}, Reading{"-2.5 m", -2.5, "m"},
                                         Reading{"2,5 m", 2.5, "m"}, Reading{" 1e3 kg/m³ ", 1000, "kg/m³"},
                                         Reading{"1E-2", 0.01, ""}, Reading{"30°", 30, "°"},
                                         Reading{"+4", 4, ""}, Reading{"5 elements", 5, "elements"},
                                         Reading{"8' 2 1/2\"", 98.5, "ft in"},
                                         Reading{"-8' 2\"", -98, "ft in"}, Reading{"8'", 96, "ft in"},
                                         Reading{"3/4\"", 0.75, "ft in"}));

TEST(ListCellNumber, OtherTextsAreNoNumbers)
{
    for (auto const* const text :
         {"", "Wall 2", "m", "-", "1 2", "2 m 3", "1.2.3 m x", "5' x\"", "1/0\"", "2026-11-21"})
        EXPECT_FALSE(ListCellNumber::read(text)) << text;
}

} // namespace
