#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace qev::ui {

/// Which rows of a list are to be shown.
struct ListFilter
{
    /// Each of its words has to be found in one of the `searchedColumns` of a row.
    std::string text;
    std::vector<std::size_t> searchedColumns;
    /// What the cell of a column has to hold, by column: all the words of the text, wherever they stand; the
    /// very text behind "="; a number in a relation, "> 2.5"; anything but the text behind "!=". "=" alone is
    /// the empty cell, "!=" any other.
    std::map<std::size_t, std::string> columnTexts;

    /// True when every row passes.
    [[nodiscard]] bool isEmpty() const
    {
        return text.find_first_not_of(' ') == std::string::npos && columnTexts.empty();
    }

    friend bool operator==(ListFilter const&, ListFilter const&) = default;
};

} // namespace qev::ui
