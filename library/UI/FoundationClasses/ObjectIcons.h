#pragma once

#include "Core/Id/Guid.h"
#include "QevFoundationClassesUiExport.h"

#include <optional>
#include <string_view>

namespace qev::fc {
class FcBase;
}

namespace qev::fc::ui {

/// The size that an icon is wanted in. Where only the other one exists, that one serves.
enum class IconSize : int
{
    Small = 0, ///< 16 pixels
    Large = 1, ///< 20 pixels
};

/// The id of the icon of a class, such as "IfcWall" or "IfcWallType", and of one of its predefined types
/// where there is an icon for that. A class without an icon of its own gets the generic one.
///
/// Throws `std::bad_optional_access` when the program's icons lack even that.
QEVFOUNDATIONCLASSESUI_EXPORT Guid getIcon(std::string_view className,
                                           std::optional<std::string_view> predefinedType, IconSize size);

/// The id of the icon of an object, by its class and its predefined type.
QEVFOUNDATIONCLASSESUI_EXPORT Guid getIconForObject(FcBase const& object, IconSize size);

} // namespace qev::fc::ui
