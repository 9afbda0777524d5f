#pragma once

#include "HostUiExport.h"
#include "Ui/List/ListSortCell.h"
#include "Ui/Window/Controls/ListControl/ListSortColumn.h"

#include <cstddef>
#include <string>
#include <vector>

namespace qev::ui {

/// Sorts rows by their cells, each of which is read once.
///
/// Numbers go by their value where all cells of a column that hold anything have a number, or a text that is
/// a number in the same unit; other columns go by the natural order of texts. Empty cells come last,
/// whichever way round a column is sorted. Rows with the same texts stay in the order they have.
class HOSTUI_EXPORT ListSortKeys
{
public:
    explicit ListSortKeys(std::vector<ListSortColumn> const& columns);

    /// Adds a row; \p cells are those of the columns, in their order. Rows come in ascending order.
    void add(std::size_t row, std::vector<ListSortCell> cells);
    /// The rows in their new order. Nothing is left of them here.
    [[nodiscard]] std::vector<std::size_t> takeSorted();

private:
    /// The cells of one column, by position.
    struct Keys
    {
        bool isDescending = false;
        std::vector<std::string> texts;
        /// Not a number for an empty cell; empty when not all cells have numbers.
        std::vector<double> numbers;
        bool hasNumbers = true;
    };

    static void prepare(Keys& keys);
    [[nodiscard]] static bool readNumbers(Keys& keys);
    /// Negative when the cell at \p left comes first, 0 when neither does.
    [[nodiscard]] static int compare(Keys const& keys, std::size_t left, std::size_t right);

    std::vector<std::size_t> m_rows;
    std::vector<Keys> m_keys;
};

} // namespace qev::ui
