#pragma once

#include "HostUiExport.h"

#include <string>

namespace qev::ui {

class PropertyGridRow;

/// Writes rows of a property grid as text, the same on every platform.
class HOSTUI_EXPORT PropertyGridText
{
public:
    /// One line without its end. Line breaks in texts are written as "\n".
    [[nodiscard]] static std::string getLine(PropertyGridRow const& row, bool isExpanded);
    /// The value as it is shown; of a check box without one "true", "false" or, undecided, nothing.
    [[nodiscard]] static std::string getValueText(PropertyGridRow const& row);
    /// What a copy of the row takes: its value, or the name of a group.
    [[nodiscard]] static std::string getCopiedText(PropertyGridRow const& row);
};

} // namespace qev::ui
