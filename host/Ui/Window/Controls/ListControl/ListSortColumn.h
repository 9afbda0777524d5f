#pragma once

#include <cstddef>

namespace qev::ui {

/// One of the columns that the rows of a list are sorted by.
struct ListSortColumn
{
    std::size_t column = 0;
    bool isDescending = false;

    friend bool operator==(ListSortColumn const&, ListSortColumn const&) = default;
};

} // namespace qev::ui
