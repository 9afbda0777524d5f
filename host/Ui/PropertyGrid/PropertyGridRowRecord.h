#pragma once

#include "HostUiExport.h"
#include "Ui/Window/CheckState.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace qev::ui {

class PropertyGridRow;

/// What one row of a property grid says, as plain data to print or to compare.
struct HOSTUI_EXPORT PropertyGridRowRecord
{
    /// The names from the top level down to the row, its own last.
    std::vector<std::string> path;
    bool isGroup = false;
    /// The text shown; empty for rows that show none.
    std::string value;
    /// The number in internal units; nothing for other rows and blank ones.
    std::optional<double> number;
    /// The unit that the value is shown in; empty without one.
    std::string unit;
    /// "none", "text", "number", "choice", "check box" or "check box with value".
    std::string editor;
    /// The entries of the drop list that can be chosen.
    std::vector<std::string> choices;
    /// Nothing for rows without a check box.
    std::optional<CheckState> checked;
    bool enabled = true;
    /// The user can change the row in some way.
    bool editable = false;
    bool hasButton = false;
    /// The keys of the buttons at the end of the row, from left to right.
    std::vector<std::string> buttonKeys;
    /// The row stands for values that differ.
    bool isMixed = false;
    bool isLink = false;
    bool isLocalValue = false;
    std::string description;

    [[nodiscard]] static PropertyGridRowRecord of(PropertyGridRow const& row);
    [[nodiscard]] static std::vector<std::string> getPath(PropertyGridRow const& row);
    /// What the row is known by when the rows are made anew: its key, or else its name below the place of the
    /// row above it.
    [[nodiscard]] static std::vector<std::string> getPlace(PropertyGridRow const& row);
};

} // namespace qev::ui
