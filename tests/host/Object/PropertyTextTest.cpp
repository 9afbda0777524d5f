#include "Object/PropertyText.h"

#include "Core/Unit/QuantityPresentation.h"
#include "Core/Unit/QuantityPresentationFactory.h"

#include <gtest/gtest.h>

namespace qev::test {
namespace {

using object::PropertyText;
using Value = object::PropertyValue;

std::optional<Value> read(std::string const& text, Value const& like)
{
    return PropertyText::read(text, like, nullptr);
}

TEST(PropertyText, WritesEachKind)
{
    EXPECT_EQ(PropertyText::getText(Value()), "");
    EXPECT_EQ(PropertyText::getText(Value(-3)), "-3");
    EXPECT_EQ(PropertyText::getText(Value(std::uint32_t(4000000000))), "4000000000");
    EXPECT_EQ(PropertyText::getText(Value(true)), "true");
    EXPECT_EQ(PropertyText::getText(Value(1.25)), "1.25");
    EXPECT_EQ(PropertyText::getText(Value(std::optional(false))), "false");
    EXPECT_EQ(PropertyText::getText(Value(std::optional<double>())), "");
}

TEST(PropertyText, WhatIsTypedTakesTheKindOfTheProperty)
{
    EXPECT_EQ(read("7", Value(1)), Value(7));
    EXPECT_EQ(read("7", Value(std::optional<int>())), Value(std::optional(7)));
    EXPECT_EQ(read("7", Value(std::uint32_t(1))), Value(std::uint32_t(7)));
    EXPECT_EQ(read("7", Value(1.5)), Value(7.0));
    EXPECT_EQ(read("7", Value("text")), Value("7"));
    EXPECT_EQ(read("7", Value(std::optional<std::string>())), Value(std::optional<std::string>("7")));
}

TEST(PropertyText, UnsignedNumbersAreWholeNumbersWithoutASign)
{
    Value const like(std::optional<std::uint32_t>(1));
    EXPECT_EQ(read("4000000000", like), Value(std::optional<std::uint32_t>(4000000000)));
    EXPECT_EQ(read("-1", like), std::nullopt);
    EXPECT_EQ(read("1.5", like), std::nullopt);
    EXPECT_EQ(read("many", like), std::nullopt);
}

TEST(PropertyText, TruthValuesHaveSeveralWords)
{
    for (auto const* const word : {"true", "Yes", "1"})
        EXPECT_EQ(read(word, Value(false)), Value(true)) << word;
    for (auto const* const word : {"FALSE", "no", "0"})
        EXPECT_EQ(read(word, Value(std::optional<bool>())), Value(std::optional(false))) << word;
    EXPECT_EQ(read("perhaps", Value(true)), std::nullopt);
}

TEST(PropertyText, NumbersMayCarryAUnitWhereThereIsAPresentation)
{
    auto const length = unit::createPresentationForMeasure("LengthMeasure");
    EXPECT_EQ(PropertyText::read("25 cm", Value(1.0), length.get()), Value(0.25));
    EXPECT_EQ(PropertyText::read("wide", Value(1.0), length.get()), std::nullopt);
    EXPECT_EQ(read("25 cm", Value(1.0)), std::nullopt);
}

TEST(PropertyText, TheEmptyTextMeansThatNothingIsSet)
{
    EXPECT_EQ(read("", Value(1)), Value(std::optional<int>()));
    EXPECT_EQ(read("", Value(std::optional<std::string>("x"))), Value(std::optional<std::string>()));
}

TEST(PropertyText, APropertyThatReadsAsNothingTakesATextOrANumber)
{
    EXPECT_EQ(PropertyText::getLike(Value(), true), Value(std::optional<double>()));
    EXPECT_EQ(PropertyText::getLike(Value(), false), Value(std::optional<std::string>()));
    EXPECT_EQ(PropertyText::getLike(Value(3), true), Value(3));
}

TEST(PropertyText, NothingAndAnOptionalWithoutAValueAreUnset)
{
    EXPECT_TRUE(PropertyText::isUnset(Value()));
    EXPECT_TRUE(PropertyText::isUnset(Value(std::optional<bool>())));
    EXPECT_FALSE(PropertyText::isUnset(Value("")));
    EXPECT_FALSE(PropertyText::isUnset(Value(std::optional(false))));
}

} // namespace
} // namespace qev::test
