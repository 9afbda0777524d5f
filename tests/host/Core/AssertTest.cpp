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

TEST(Assert, ADisabledReportIsDropped)
{
    assert::Assert::setEnabled(false);
    assert::report("Something is wrong.", "qev::f", "Core/F");
    assert::Assert::setEnabled(true);
    EXPECT_TRUE(test::takeReports().empty());
}

} // namespace
