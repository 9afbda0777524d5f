#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <utility>

namespace qev::test {

namespace {

class UnexpectedReports : public testing::EmptyTestEventListener
{
    void OnTestEnd(testing::TestInfo const&) override
    {
        for (auto const& info : takeReports())
            ADD_FAILURE() << "unexpected report: " << info.text << " (" << info.function << ", " << info.path
                          << ':' << info.line << ')';
    }
};

} // namespace

ReportRecorder& ReportRecorder::instance()
{
    static ReportRecorder recorder;
    return recorder;
}

void ReportRecorder::install()
{
    assert::Assert::setHandler([this](assert::AssertInfo const& info) { m_reports.push_back(info); });
}

std::vector<assert::AssertInfo> ReportRecorder::takeReports() { return std::exchange(m_reports, {}); }

std::vector<assert::AssertInfo> takeReports() { return ReportRecorder::instance().takeReports(); }

std::vector<std::string> takeReportTexts()
{
    std::vector<std::string> texts;
    for (auto const& info : takeReports())
        texts.push_back(info.text);
    return texts;
}

void failTestsOnUnexpectedReports()
{
    ReportRecorder::instance().install();
    testing::UnitTest::GetInstance()->listeners().Append(new UnexpectedReports);
}

void expectReport(std::string const& text, std::string const& function, std::string const& path)
{
    auto const reports = takeReports();
    ASSERT_EQ(reports.size(), 1u) << "expected the report: " << text;
    EXPECT_EQ(reports.front().text, text);
    EXPECT_EQ(reports.front().function, function);
    EXPECT_EQ(reports.front().path, path);
}

} // namespace qev::test
