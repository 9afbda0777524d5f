#pragma once

#include "HeadlessList.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qev::application {

/// Writes the rows of a list of objects to a file that other programs read.
class ListExport
{
public:
    /// Told how many rows of how many are done; false asks to stop.
    using Progress = std::function<bool(std::size_t done, std::size_t total)>;

    /// What is to be written: rows and columns of \p list, in this order. The list outlives the export.
    ListExport(ui::ListControl& list, std::vector<ListColumn> columns, std::vector<std::size_t> rows);

    /// Writes a table with commas, such as `ListTable::fromCsv` reads back. An existing file is replaced in
    /// one step. \returns what went wrong; nothing when all is written, or \p progress asked to stop.
    [[nodiscard]] std::optional<std::string> writeCsv(std::filesystem::path const& path,
                                                      Progress const& progress = {}) const;
    /// Writes a workbook in the same way. Numbers are numbers in it, in the unit that stands in their header.
    [[nodiscard]] std::optional<std::string> writeWorkbook(std::filesystem::path const& path,
                                                           std::string const& sheetName,
                                                           Progress const& progress = {}) const;
    /// Tells if workbooks can be written here.
    [[nodiscard]] static bool canWriteWorkbooks();

private:
    [[nodiscard]] std::vector<std::string> getHeaders() const;

    ui::ListControl& m_list;
    std::vector<ListColumn> m_columns;
    std::vector<std::size_t> m_rows;
};

} // namespace qev::application
