#pragma once

#include <compare>
#include <string>

namespace qev::fc::ui {

/// The property that a column of a list shows.
struct ColumnPropertyNames
{
    std::string setName;
    std::string propertyName;

    friend bool operator==(ColumnPropertyNames const&, ColumnPropertyNames const&) = default;
    friend auto operator<=>(ColumnPropertyNames const&, ColumnPropertyNames const&) = default;
};

} // namespace qev::fc::ui
