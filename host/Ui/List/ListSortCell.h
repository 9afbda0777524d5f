#pragma once

#include <optional>
#include <string>

namespace qev::ui {

/// What a cell is sorted by.
struct ListSortCell
{
    /// Empty cells come last.
    std::string text;
    /// The number that the text stands for; nothing when the owner of the list knows none.
    std::optional<double> number = {};
};

} // namespace qev::ui
