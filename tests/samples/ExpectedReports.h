#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

namespace qev::test::samples {

/// The reports that a test may raise, for they answer ordinary data. Counts them.
class ExpectedReports
{
public:
    explicit ExpectedReports(std::set<std::string> texts);

    /// Allows for one more.
    void add(std::string const& text) { m_texts.insert(text); }

    /// Takes the reports raised so far, and fails on each that was not expected.
    void take(std::string const& where);
    void print() const;

private:
    std::set<std::string> m_texts;
    std::map<std::string, std::size_t> m_counts;
};

} // namespace qev::test::samples
