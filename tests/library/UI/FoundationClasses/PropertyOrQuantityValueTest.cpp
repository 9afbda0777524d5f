#include "UI/FoundationClasses/PropertyOrQuantityValue.h"

#include "kit/ReportRecorder.h"

#include <gtest/gtest.h>

namespace {

using qev::fc::ui::PropertyOrQuantityValue;

TEST(PropertyOrQuantityValue, ATextIsGivenBack)
{
    auto const value = PropertyOrQuantityValue::fromText("F30");

    EXPECT_EQ(value.getStringValue(), "F30");
    EXPECT_EQ(value.getQuantityValue(), std::nullopt);
    EXPECT_FALSE(value.isClearing());
}

TEST(PropertyOrQuantityValue, TheEmptyTextClears)
{
    EXPECT_TRUE(PropertyOrQuantityValue::fromText("").isClearing());
}

TEST(PropertyOrQuantityValue, ANumberNeverClears)
{
    auto const value = PropertyOrQuantityValue::fromNumber(0.0);

    EXPECT_EQ(value.getQuantityValue(), 0.0);
    EXPECT_FALSE(value.isClearing());
}

TEST(PropertyOrQuantityValue, ANumberTakenForATextIsReportedAndEmpty)
{
    EXPECT_EQ(PropertyOrQuantityValue::fromNumber(1.0).getStringValue(), "");

    qev::test::expectReport("Not a string value.", "qev::fc::ui::PropertyOrQuantityValue::getStringValue",
                            "Ui/FoundationClasses/PropertyOrQuantityValue");
}

} // namespace
