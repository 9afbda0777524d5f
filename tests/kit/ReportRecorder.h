#pragma once

#include "Core/Assert/Assert.h"

#include <string>
#include <vector>

namespace qev::test {

/// Collects every report of a programming error while a test runs.
///
/// The test program installs one recorder. A test that raises a report on purpose
/// takes it with `takeReports()`; whatever is left at its end fails the test.
class ReportRecorder
{
public:
    static ReportRecorder& instance();

    void install();
    [[nodiscard]] std::vector<assert::AssertInfo> const& reports() const { return m_reports; }
    std::vector<assert::AssertInfo> takeReports();

private:
    std::vector<assert::AssertInfo> m_reports;
};

/// The reports raised since the last call, oldest first.
std::vector<assert::AssertInfo> takeReports();

/// The texts alone of `takeReports()`.
std::vector<std::string> takeReportTexts();

/// Installs the recorder, and fails from now on each test that leaves a report behind.
void failTestsOnUnexpectedReports();

/// Expects that exactly one report was raised, with this text, function and path.
void expectReport(std::string const& text, std::string const& function, std::string const& path);

} // namespace qev::test
