#pragma once

#include "HostUiExport.h"
#include "Ui/List/ListFilter.h"
#include "Ui/List/ListRowFilter.h"
#include "Ui/List/ListSortKeys.h"
#include "Ui/Window/Controls/ListControl/ListSortColumn.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui {

/// Which rows of a list are shown, and in which order.
///
/// The list's own rows stay what they are: this maps the positions on the screen to them. A new filter or
/// order is worked out bit by bit with `advance`, so that a long list keeps nobody waiting; until it is done
/// the old one stays. Values that change later move no row until `restart`. Without a filter and an order
/// it keeps nothing of the rows.
class HOSTUI_EXPORT ListRowOrder
{
public:
    /// How the cells are read.
    struct Cells
    {
        /// What a filter looks at.
        std::function<std::string(std::size_t row, std::size_t column)> getText;
        std::function<ListSortCell(std::size_t row, std::size_t column)> getSortCell;
    };

    /// The rows are new ones. When they are more or fewer than before, all are shown in their own order until
    /// filter and sorting have been worked out for them.
    void setRowCount(std::size_t rows);
    void setFilter(ListFilter filter);
    /// The first column decides, the next where it does not, and so on. None: the rows' own order.
    void setSorting(std::vector<ListSortColumn> sorting);
    /// Works filter and order out anew, as the values have changed.
    void restart();

    [[nodiscard]] ListFilter const& getFilter() const { return m_filter; }
    [[nodiscard]] std::vector<ListSortColumn> const& getSorting() const { return m_sorting; }

    /// A filter or an order is still to be worked out.
    [[nodiscard]] bool isPending() const { return m_work.has_value(); }
    /// How many rows have been looked at for it.
    [[nodiscard]] std::size_t getProgress() const { return m_work ? m_work->nextRow : m_rowCount; }
    /// Looks at up to \p rows more rows. True when the positions have changed: the work is done.
    bool advance(std::size_t rows, Cells const& cells);

    [[nodiscard]] std::size_t getRowCount() const { return m_rowCount; }
    /// How many positions there are.
    [[nodiscard]] std::size_t getShownCount() const { return m_rows ? m_rows->size() : m_rowCount; }
    /// The row at a position below `getShownCount()`.
    [[nodiscard]] std::size_t getRow(std::size_t position) const
    {
        return m_rows ? (*m_rows)[position] : position;
    }
    /// Where each of \p rows stands, in ascending order of positions; rows that are not shown are left out.
    [[nodiscard]] std::vector<std::size_t> getPositions(std::vector<std::size_t> const& rows) const;

private:
    struct Work
    {
        ListRowFilter filter;
        ListSortKeys keys;
        std::vector<std::size_t> rows;
        std::size_t nextRow = 0;
    };

    void finish();

    std::size_t m_rowCount = 0;
    ListFilter m_filter;
    std::vector<ListSortColumn> m_sorting;
    /// The row at each position; nothing when each row is at its own.
    std::optional<std::vector<std::size_t>> m_rows;
    std::optional<Work> m_work;
};

} // namespace qev::ui
