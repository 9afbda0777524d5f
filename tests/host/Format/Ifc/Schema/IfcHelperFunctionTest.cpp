#include "Format/Ifc/IfcHelperFunction.h"

#include "ReportRecorder.h"

#include <gtest/gtest.h>

namespace {

using qev::ifc::details::removePrefix;

TEST(RemovePrefix, TheThreeCharactersAreStripped)
{
    EXPECT_EQ(removePrefix("IfcLengthMeasure"), "LengthMeasure");
}

TEST(RemovePrefix, ATextOfThreeCharactersIsReportedAndGivesNothing)
{
    EXPECT_EQ(removePrefix("Ifc"), "");
    qev::test::expectReport("Prefix is equal or has exceeded length of string",
                            "qev::ifc::details::removePrefix", "Format/Ifc/IfcHelperFunction");
}

TEST(RemovePrefix, AShorterTextIsReportedAndGivesNothing)
{
    EXPECT_EQ(removePrefix(""), "");
    qev::test::expectReport("Prefix is equal or has exceeded length of string",
                            "qev::ifc::details::removePrefix", "Format/Ifc/IfcHelperFunction");
}

TEST(RemovePrefix, AnotherPrefixIsReportedAndCutAllTheSame)
{
    EXPECT_EQ(removePrefix("LengthMeasure"), "gthMeasure");
    qev::test::expectReport("Prefix not found", "qev::ifc::details::removePrefix",
                            "Format/Ifc/IfcHelperFunction");
}

} // namespace
