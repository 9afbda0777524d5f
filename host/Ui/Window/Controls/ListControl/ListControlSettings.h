#pragma once

#include <cstddef>
#include <set>
#include <vector>

namespace qev::ui {

/// What a list keeps of the user's arrangement.
struct ListControlSettings
{
    /// In pixels, by column; columns beyond the end have their default width.
    std::vector<unsigned int> columnWidths;
    std::set<std::size_t> hiddenColumns;
    /// The columns from left to right; those that are not named follow in their own order.
    std::vector<std::size_t> columnOrder = {};

    friend bool operator==(ListControlSettings const&, ListControlSettings const&) = default;
};

} // namespace qev::ui
