#pragma once

#include "HeadlessList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qev::application {

/// A table as it goes to other programs and comes back: one row for each object, known by its GlobalId.
///
/// Numbers have all their digits and are in the unit that stands in brackets behind the name of their column;
/// truth values are "TRUE" and "FALSE"; what has no value is empty.
struct ListTable
{
    struct Row
    {
        /// Where the row stood in the text it was read from.
        std::size_t line = 0;
        std::string globalId;
        /// One for each column.
        std::vector<std::string> cells;
    };

    /// The names of the columns beside the GlobalId: set name, a dot and property name, and the unit.
    std::vector<std::string> columns;
    std::vector<Row> rows;

    /// Reads a CSV file with commas, semicolons or tabs. Rows without any text are passed over, and cells
    /// that are missing are empty. Nothing when no column is called GlobalId.
    [[nodiscard]] static std::optional<ListTable> fromCsv(std::string_view text);
};

/// The name of a column in a table.
[[nodiscard]] std::string tableHeader(ListColumn const& column);
/// The cells of a row of \p list in a table.
[[nodiscard]] std::vector<std::string> tableRow(ui::ListControl& list, std::size_t row,
                                                std::vector<ListColumn> const& columns);

} // namespace qev::application
