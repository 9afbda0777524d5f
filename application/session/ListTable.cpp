#include "ListTable.h"

#include "Core/String/Ascii.h"
#include "Core/String/DelimitedText.h"
#include "IdentityColumns.h"

#include <algorithm>
#include <array>

namespace qev::application {

namespace {

/// Where the GlobalId stands among \p cells; nothing when it does not.
std::optional<std::size_t> globalIdIn(std::vector<std::string> const& cells)
{
    auto const found = std::find_if(cells.begin(), cells.end(), [](std::string const& cell) {
        return str::equalIgnoringCase(cell, IdentityColumns::globalId);
    });
    return found == cells.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - cells.begin()));
}

ListTable tableOf(std::vector<str::DelimitedRow> rows, std::size_t globalId)
{
    auto const position = static_cast<std::ptrdiff_t>(globalId);
    ListTable table;
    table.columns = std::move(rows.front().cells);
    std::size_t const width = table.columns.size();
    table.columns.erase(table.columns.begin() + position);
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        bool const isEmpty = std::all_of(row->cells.begin(), row->cells.end(),
                                         [](std::string const& cell) { return cell.empty(); });
        if (isEmpty)
            continue;
        row->cells.resize(width);
        std::string id = std::move(row->cells[globalId]);
        row->cells.erase(row->cells.begin() + position);
        table.rows.push_back({row->line, std::move(id), std::move(row->cells)});
    }
    return table;
}

} // namespace

std::optional<ListTable> ListTable::fromCsv(std::string_view text)
{
    for (char const separator : std::array{',', ';', '\t'}) {
        auto rows = str::readDelimited(text, separator);
        auto const globalId = rows.empty() ? std::nullopt : globalIdIn(rows.front().cells);
        if (globalId)
            return tableOf(std::move(rows), *globalId);
    }
    return std::nullopt;
}

std::string tableHeader(ListColumn const& column)
{
    return column.unit.empty() ? column.id : column.id + " [" + column.unit + "]";
}

std::vector<std::string> tableRow(ui::ListControl& list, std::size_t row,
                                  std::vector<ListColumn> const& columns)
{
    std::vector<std::string> cells;
    cells.reserve(columns.size());
    for (ListColumn const& column : columns)
        cells.push_back(fireEvent(list.onGetItemEditText, ui::ListControl::ItemInfo{row, column.index}));
    return cells;
}

} // namespace qev::application
