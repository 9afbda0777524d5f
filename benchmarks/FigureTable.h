#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace qev::benchmarks {

/// The figures of one file, each beside the bar it has to stay below.
class FigureTable
{
public:
    explicit FigureTable(std::string title);

    /// A figure without a bar.
    void add(std::string work, std::string figure);
    /// \p share is the figure as a part of its bar; up to 1 it holds.
    void add(std::string work, std::string figure, std::string bar, double share);
    void addFailure(std::string work);

    [[nodiscard]] bool hasFailures() const { return m_hasFailures; }
    void print(std::ostream& out) const;

private:
    struct Row
    {
        std::string work;
        std::string figure;
        std::string bar;
        std::string verdict;
    };

    std::string m_title;
    std::vector<Row> m_rows;
    bool m_hasFailures = false;
};

} // namespace qev::benchmarks
