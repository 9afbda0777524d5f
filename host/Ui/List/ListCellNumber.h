#pragma once

#include "HostUiExport.h"

#include <optional>
#include <string>
#include <string_view>

namespace qev::ui {

/// The number that the text of a cell shows.
struct HOSTUI_EXPORT ListCellNumber
{
    double value = 0;
    /// What stands behind the number; empty for a number alone. Feet with inches have the unit "ft in".
    std::string unit;

    /// Reads a whole text: a number with a decimal point or comma and at most one word behind it, "2.5 m", or
    /// feet and inches, "8' 2 1/2\"". Nothing for all other texts.
    [[nodiscard]] static std::optional<ListCellNumber> read(std::string_view text);
};

} // namespace qev::ui
