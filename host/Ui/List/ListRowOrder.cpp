#include "Ui/List/ListRowOrder.h"

#include <algorithm>
#include <utility>

namespace qev::ui {

void ListRowOrder::setRowCount(std::size_t rows)
{
    // As long as there are as many, the old positions lead to rows, and nothing jumps to and fro.
    if (rows != m_rowCount)
        m_rows.reset();
    m_rowCount = rows;
    m_work.reset();
    if (!m_filter.isEmpty() || !m_sorting.empty())
        restart();
}

void ListRowOrder::setFilter(ListFilter filter)
{
    if (filter == m_filter)
        return;
    m_filter = std::move(filter);
    restart();
}

void ListRowOrder::setSorting(std::vector<ListSortColumn> sorting)
{
    if (sorting == m_sorting)
        return;
    m_sorting = std::move(sorting);
    restart();
}

void ListRowOrder::restart()
{
    m_work.emplace(Work{ListRowFilter(m_filter), ListSortKeys(m_sorting), {}, 0});
}

bool ListRowOrder::advance(std::size_t rows, Cells const& cells)
{
    if (!m_work)
        return false;
    bool const isFiltered = !m_filter.isEmpty();
    if (!isFiltered && m_sorting.empty())
        m_work->nextRow = m_rowCount;
    auto const end = m_work->nextRow + std::min(rows, m_rowCount - m_work->nextRow);
    for (; m_work->nextRow < end; ++m_work->nextRow) {
        auto const row = m_work->nextRow;
        if (isFiltered &&
            !m_work->filter.passes([&](std::size_t column) { return cells.getText(row, column); }))
            continue;
        if (m_sorting.empty()) {
            m_work->rows.push_back(row);
            continue;
        }
        std::vector<ListSortCell> sortCells;
        for (auto const& column : m_sorting)
            sortCells.push_back(cells.getSortCell(row, column.column));
        m_work->keys.add(row, std::move(sortCells));
    }
    if (m_work->nextRow < m_rowCount)
        return false;
    finish();
    return true;
}

std::vector<std::size_t> ListRowOrder::getPositions(std::vector<std::size_t> const& rows) const
{
    std::vector<std::size_t> positions;
    if (!m_rows) {
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(positions),
                     [this](std::size_t row) { return row < m_rowCount; });
        std::sort(positions.begin(), positions.end());
        return positions;
    }
    auto wanted = rows;
    std::sort(wanted.begin(), wanted.end());
    for (std::size_t position = 0; position < m_rows->size(); ++position)
        if (std::binary_search(wanted.begin(), wanted.end(), (*m_rows)[position]))
            positions.push_back(position);
    return positions;
}

void ListRowOrder::finish()
{
    if (m_filter.isEmpty() && m_sorting.empty())
        m_rows.reset();
    else
        m_rows = m_sorting.empty() ? std::move(m_work->rows) : m_work->keys.takeSorted();
    m_work.reset();
}

} // namespace qev::ui
