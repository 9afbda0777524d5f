#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>

namespace qev::str {

/// \p text with all letters of every script in the form that leaves out their case, for looking for texts:
/// two texts that differ by case alone become the same.
HOSTCORE_EXPORT std::string foldCase(std::string_view text);

} // namespace qev::str
