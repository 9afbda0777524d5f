#include "Core/Assert/Assert.h"

#include "ReportRecorder.h"

#include <gtest/gtest.h>

namespace {

using namespace qev;

TEST(Assert, AReportCarriesTextFunctionAndPath)
{
    assert::report("Something is wrong.", "qev::f", "Core/F");
    test::expectReport("Something is wrong.", "qev::f", "Core/F");
}

TEST(Assert, AReportCarriesTheLineOfItsCaller)
{
    unsigned int const line = __LINE__ + 1;
    assert::report("Something is wrong.", "qev::f", "Core/F");
    auto const reports = test::takeReports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports.front().line, line);
}

TEST(Assert, AReportCarriesItsKind)
{
    assert::report("Something is wrong.", "qev::f", "Core/F");
    assert::report("Something is missing.", "qev::f", "Core/F", 1);
    auto const reports = test::takeReports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].kind, 0u);
    EXPECT_EQ(reports[1].kind, 1u);
}

TEST(Assert, WithoutAHandlerAReportGoesToTheErrorStream)
{
    auto const handler = assert::Assert::setHandler({});
    testing::internal::CaptureStderr();
    assert::Assert::addAssert({0, "Something is wrong.", "qev::f", "Core/F", 7});
    std::string const written = testing::internal::GetCapturedStderr();
    assert::Assert::setHandler(handler);
    EXPECT_EQ(written, "Assertion: Something is wrong. (qev::f, Core/F:7)\n");
}

TEST(Assert, IsEnabledUnlessTurnedOff)
{
    EXPECT_TRUE(assert::Assert::isEnabled());
    assert::Assert::setEnabled(false);
    EXPECT_FALSE(assert::Assert::isEnabled());
    assert::Assert::setEnabled(true);
}

TEST(Assert, ADisabledReportIsDropped)
{
    assert::Assert::setEnabled(false);
    assert::report("Something is wrong.", "qev::f", "Core/F");
    assert::Assert::setEnabled(true);
    EXPECT_TRUE(test::takeReports().empty());
}

} // namespace
