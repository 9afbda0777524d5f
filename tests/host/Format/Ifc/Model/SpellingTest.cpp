#include "Format/Ifc/Model/Spelling.h"

#include <gtest/gtest.h>

namespace {

using qev::ifc::respelled;
using qev::step::StepValue;

StepValue numbers(std::vector<double> const& values)
{
    std::vector<StepValue> items;
    for (double const value : values)
        items.push_back(StepValue::real(value));
    return StepValue::list(std::move(items));
}

TEST(Spelling, AnUnchangedValueKeepsItsText)
{
    EXPECT_EQ(respelled("1.50E0", StepValue::real(1.5)), "1.50E0");
}

TEST(Spelling, AChangedValueIsWrittenShort) { EXPECT_EQ(respelled("1.50E0", StepValue::real(2.5)), "2.5"); }

TEST(Spelling, ElementsThatDidNotChangeKeepTheirText)
{
    EXPECT_EQ(respelled("(1.00, 2.0,3.E0)", numbers({1.0, 7.0, 3.0})), "(1.00,7.,3.E0)");
}

TEST(Spelling, ElementsMayBeAddedAndRemoved)
{
    EXPECT_EQ(respelled("(1.00,2.00)", numbers({1.0, 2.0, 3.0})), "(1.00,2.00,3.)");
    EXPECT_EQ(respelled("(1.00,2.00)", numbers({1.0})), "(1.00)");
}

TEST(Spelling, CommasInsideTextsAndNestedListsAreNoSeparators)
{
    auto const list = StepValue::list({StepValue::text("a,b"), numbers({1.0, 2.0}), StepValue::text("new")});
    EXPECT_EQ(respelled("('a,b',(1.0,2.0),'old')", list), "('a,b',(1.0,2.0),'new')");
}

TEST(Spelling, AnApostropheThatBelongsToAnEscapeDoesNoHarm)
{
    auto const list = StepValue::list({StepValue::text("x"), StepValue::text("new")});
    EXPECT_EQ(respelled("('\\S\\'',',')", list), "('x','new')");
}

TEST(Spelling, TheRoundingOfAConversionIsNoChange)
{
    double const feet = 7.1;
    EXPECT_EQ(respelled("(7.10)", numbers({feet * 0.3048 / 0.3048})), "(7.10)");
}

TEST(Spelling, AValueTakesThePlaceOfNone)
{
    EXPECT_EQ(respelled("$", StepValue::typed("IFCLABEL", StepValue::text("x"))), "IFCLABEL('x')");
    EXPECT_EQ(respelled("'x'", StepValue()), "$");
}

} // namespace
