#include "ExpectedReports.h"

#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <iostream>
#include <utility>

namespace qev::test::samples {

ExpectedReports::ExpectedReports(std::set<std::string> texts)
    : m_texts(std::move(texts))
{
}

void ExpectedReports::take(std::string const& where)
{
    for (assert::AssertInfo const& report : takeReports()) {
        EXPECT_TRUE(m_texts.contains(report.text))
            << where << ": " << report.text << " (" << report.function << ')';
        ++m_counts[report.text];
    }
}

void ExpectedReports::print() const
{
    for (auto const& [text, count] : m_counts)
        std::cout << "    " << count << " x " << text << '\n';
}

} // namespace qev::test::samples
