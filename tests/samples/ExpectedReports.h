#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace qev::test::samples {

/// Takes the reports raised so far, fails on each that is not an answer to ordinary data, and counts the
/// others.
class ExpectedReports
{
public:
    void take(std::string const& where);
    void print() const;

private:
    std::map<std::string, std::size_t> m_counts;
};

} // namespace qev::test::samples
