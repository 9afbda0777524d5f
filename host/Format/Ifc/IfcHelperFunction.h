#pragma once

#include "HostIfcSchemaExport.h"

#include <string>
#include <string_view>

namespace qev::ifc::details {

/// Strips the three characters "Ifc" from the name of a class or type: "IfcLabel" becomes "Label".
///
/// A text of three characters or fewer is reported and gives the empty text. A longer text that begins
/// otherwise is reported and cut by three characters all the same.
[[nodiscard]] HOSTIFCSCHEMA_EXPORT std::string removePrefix(std::string_view name);

} // namespace qev::ifc::details
