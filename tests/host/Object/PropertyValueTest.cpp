#include "Object/PropertyValue.h"

#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace qev;
using object::PropertyValue;

void expectWrongKindReport()
{
    test::expectReport("Property value doesn't hold the given type.", "qev::object::PropertyValue::get",
                       "Object/PropertyValue");
}

TEST(PropertyValue, TheKindsStandInTheirFixedOrder)
{
    EXPECT_EQ(PropertyValue().variant().index(), 0u);
    EXPECT_EQ(PropertyValue(1).variant().index(), 1u);
    EXPECT_EQ(PropertyValue(std::uint32_t{1}).variant().index(), 2u);
    EXPECT_EQ(PropertyValue(true).variant().index(), 3u);
    EXPECT_EQ(PropertyValue(1.5).variant().index(), 4u);
    EXPECT_EQ(PropertyValue("text").variant().index(), 5u);
    EXPECT_EQ(PropertyValue(std::optional<int>()).variant().index(), 6u);
    EXPECT_EQ(PropertyValue(std::optional<std::uint32_t>()).variant().index(), 7u);
    EXPECT_EQ(PropertyValue(std::optional<bool>()).variant().index(), 8u);
    EXPECT_EQ(PropertyValue(std::optional<double>()).variant().index(), 9u);
    EXPECT_EQ(PropertyValue(std::optional<std::string>()).variant().index(), 10u);
    EXPECT_EQ(PropertyValue("text").kind(), PropertyValue::Kind::String);
}

TEST(PropertyValue, GivesAValueOfExactlyItsKind)
{
    EXPECT_EQ(PropertyValue(1.5).get<double>(), 1.5);
    EXPECT_EQ(PropertyValue("text").get<std::string>(), "text");
    EXPECT_EQ(PropertyValue(std::optional<double>(1.5)).get<std::optional<double>>(), 1.5);
}

TEST(PropertyValue, AnotherKindIsReportedAndGivesADefault)
{
    EXPECT_EQ(PropertyValue("text").get<double>(), 0.0);
    expectWrongKindReport();
    EXPECT_EQ(PropertyValue(1.5).get<std::string>(), "");
    expectWrongKindReport();
    EXPECT_EQ(PropertyValue().get<std::optional<std::string>>(), std::nullopt);
    expectWrongKindReport();
}

TEST(PropertyValue, ANumberInAnOptionalIsNoPlainNumber)
{
    EXPECT_EQ(PropertyValue(std::optional<double>(1.5)).get<double>(), 0.0);
    expectWrongKindReport();
}

TEST(PropertyValue, WithReportsDisabledTheCheckStillRuns)
{
    assert::Assert::setEnabled(false);
    EXPECT_EQ(PropertyValue("text").get<double>(), 0.0);
    assert::Assert::setEnabled(true);
    EXPECT_TRUE(test::takeReports().empty());
}

TEST(PropertyValue, NothingAndAnOptionalThatIsNotSetDiffer)
{
    EXPECT_FALSE(PropertyValue().isNullopt());
    EXPECT_TRUE(PropertyValue(std::optional<int>()).isNullopt());
    EXPECT_FALSE(PropertyValue(std::optional<int>(0)).isNullopt());
    EXPECT_FALSE(PropertyValue("").isNullopt());
    EXPECT_NE(PropertyValue(), PropertyValue(std::optional<int>()));
}

TEST(PropertyValue, UnwrapsAnOptional)
{
    EXPECT_EQ(PropertyValue(std::optional<double>(1.5)).getUnwrappedOptionalValue(), PropertyValue(1.5));
    EXPECT_EQ(PropertyValue(std::optional<double>()).getUnwrappedOptionalValue(), std::nullopt);
    EXPECT_EQ(PropertyValue(1.5).getUnwrappedOptionalValue(), PropertyValue(1.5));
    EXPECT_EQ(PropertyValue().getUnwrappedOptionalValue(), PropertyValue());
}

TEST(PropertyValue, WrapsAValueIntoItsOwnOptionalKind)
{
    PropertyValue const number(2.0);
    EXPECT_EQ(number.getWrappedOptionalValue(PropertyValue(1.5)), PropertyValue(std::optional<double>(1.5)));
    PropertyValue const optionalText{std::optional<std::string>()};
    EXPECT_EQ(optionalText.getWrappedOptionalValue(PropertyValue("text")),
              PropertyValue(std::optional<std::string>("text")));
    EXPECT_EQ(optionalText.getWrappedOptionalValue(PropertyValue(std::optional<std::string>("text"))),
              PropertyValue(std::optional<std::string>("text")));
}

TEST(PropertyValue, WrappingConvertsBetweenNumbersAlone)
{
    EXPECT_EQ(PropertyValue(0.0).getWrappedOptionalValue(PropertyValue(3)),
              PropertyValue(std::optional<double>(3.0)));
    EXPECT_EQ(PropertyValue(std::uint32_t{0}).getWrappedOptionalValue(PropertyValue(3)),
              PropertyValue(std::optional<std::uint32_t>(3)));
    EXPECT_EQ(PropertyValue(std::uint32_t{0}).getWrappedOptionalValue(PropertyValue(-3)),
              PropertyValue(std::optional<std::uint32_t>()));
    EXPECT_EQ(
        PropertyValue(0).getWrappedOptionalValue(PropertyValue(std::numeric_limits<std::uint32_t>::max())),
        PropertyValue(std::optional<int>()));
    EXPECT_EQ(PropertyValue(0.0).getWrappedOptionalValue(PropertyValue("3")),
              PropertyValue(std::optional<double>()));
    EXPECT_EQ(PropertyValue(0.0).getWrappedOptionalValue(PropertyValue(true)),
              PropertyValue(std::optional<double>()));
}

TEST(PropertyValue, WrappingNothingGivesTheOptionalThatIsNotSet)
{
    EXPECT_EQ(PropertyValue(0.0).getWrappedOptionalValue(PropertyValue()),
              PropertyValue(std::optional<double>()));
    EXPECT_EQ(PropertyValue(0.0).getWrappedOptionalValue(PropertyValue(std::optional<std::string>())),
              PropertyValue(std::optional<double>()));
    EXPECT_EQ(PropertyValue().getWrappedOptionalValue(PropertyValue(1.5)), PropertyValue());
}

} // namespace
