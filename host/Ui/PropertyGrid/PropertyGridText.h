#pragma once

#include "HostUiExport.h"

#include <string>

namespace qev::ui {

class PropertyGridRow;

/// Writes rows of a property grid as lines of text, the same on every platform.
class HOSTUI_EXPORT PropertyGridText
{
public:
    /// One line without its end. Line breaks in texts are written as "\n".
    [[nodiscard]] static std::string getLine(PropertyGridRow const& row, bool isExpanded);
};

} // namespace qev::ui
