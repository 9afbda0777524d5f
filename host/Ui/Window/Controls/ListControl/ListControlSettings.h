#pragma once

#include "Ui/Window/Controls/ListControl/ListSortColumn.h"

#include <cstddef>
#include <set>
#include <vector>

namespace qev::ui {

/// What a list keeps of the user's arrangement. Columns are meant by their index.
struct ListControlSettings
{
    /// In pixels, by column; columns beyond the end, and those with 0, have their default width.
    std::vector<unsigned int> columnWidths = {};
    std::set<std::size_t> hiddenColumns = {};
    /// The columns from left to right; empty when they stand in their own order.
    std::vector<std::size_t> columnOrder = {};
    /// The columns that the rows are sorted by, the one that decides first in front.
    std::vector<ListSortColumn> sorting = {};

    friend bool operator==(ListControlSettings const&, ListControlSettings const&) = default;
};

} // namespace qev::ui
