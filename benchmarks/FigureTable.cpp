#include "FigureTable.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <utility>

namespace qev::benchmarks {

FigureTable::FigureTable(std::string title)
    : m_title(std::move(title))
{
}

void FigureTable::add(std::string work, std::string figure)
{
    m_rows.push_back({std::move(work), std::move(figure), {}, {}});
}

void FigureTable::add(std::string work, std::string figure, std::string bar, double share)
{
    m_rows.push_back(
        {std::move(work), std::move(figure), std::move(bar), share <= 1.0 ? "holds" : "TOO MUCH"});
}

void FigureTable::addFailure(std::string work)
{
    m_hasFailures = true;
    m_rows.push_back({std::move(work), "not measured", {}, "FAILED"});
}

void FigureTable::print(std::ostream& out) const
{
    std::size_t workWidth = 0;
    std::size_t figureWidth = 0;
    std::size_t barWidth = 0;
    for (Row const& row : m_rows) {
        workWidth = std::max(workWidth, row.work.size());
        figureWidth = std::max(figureWidth, row.figure.size());
        barWidth = std::max(barWidth, row.bar.size());
    }
    auto const column = [&out](std::string const& text, std::size_t width) {
        out << "  " << std::left << std::setw(static_cast<int>(width)) << text;
    };
    out << m_title << '\n';
    for (Row const& row : m_rows) {
        column(row.work, workWidth);
        column(row.figure, figureWidth);
        column(row.bar, barWidth);
        out << "  " << row.verdict << '\n';
    }
    out << std::endl;
}

} // namespace qev::benchmarks
