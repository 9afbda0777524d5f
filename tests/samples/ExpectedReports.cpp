#include "ExpectedReports.h"

#include "ReportRecorder.h"

#include <gtest/gtest.h>

#include <iostream>
#include <set>

namespace qev::test::samples {

void ExpectedReports::take(std::string const& where)
{
    // Sets without properties (the lining of a door) come as three reports of their unknown type. Two answer
    // files that hold something else where the standard wants a boolean, and the last a number that is
    // cleared.
    static std::set<std::string> const ordinary = {
        "IfcPropertyReferenceValue not implemented.",
        "IfcPropertyTableValue not implemented.",
        "IfcComplexProperty not implemented.",
        "Unknown property.",
        "Unknown quantity.",
        "Unknown property set definition type.",
        "Unknown type",
        "Should create grid property object",
        "Must be a simple value to hold a boolean.",
        "FcSimpleValue doesn't hold a boolean.",
        "Quantity formatted property should be compatible with double."};
    for (assert::AssertInfo const& report : takeReports()) {
        EXPECT_TRUE(ordinary.contains(report.text))
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
