#pragma once

#include "HostCoreExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qev::str {

/// A row of a table as it stood in a text.
struct DelimitedRow
{
    /// The line on which the row begins, counted from 1.
    std::size_t line = 0;
    std::vector<std::string> cells;

    friend bool operator==(DelimitedRow const&, DelimitedRow const&) = default;
};

/// \p rows as text: cells parted by \p separator, rows by line breaks.
///
/// A cell with a separator, a line break or a quotation mark in it stands in quotation marks, its own
/// doubled.
HOSTCORE_EXPORT std::string writeDelimited(std::vector<std::vector<std::string>> const& rows, char separator);

/// The rows of \p text, as `writeDelimited` and spreadsheets write them. Any text can be read: a quotation
/// mark within a cell that does not begin with one is a character like others, and a missing last one stands
/// at the end. A byte-order mark at the beginning is passed over. A line without anything on it is a row with
/// one empty cell.
HOSTCORE_EXPORT std::vector<DelimitedRow> readDelimited(std::string_view text, char separator);

} // namespace qev::str
