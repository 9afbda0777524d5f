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

    friend bool operator==(ListControlSettings const&, ListControlSettings const&) = default;
};

} // namespace qev::ui
