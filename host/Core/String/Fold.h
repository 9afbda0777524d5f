#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace qev::str {

/// \p text with all letters of every script in the form that leaves out their case, for looking for texts:
/// two texts that differ by case alone become the same.
HOSTCORE_EXPORT std::string foldCase(std::string_view text);

/// The words of \p text, parted by blanks, tabs and line ends, each as `foldCase` gives it.
HOSTCORE_EXPORT std::vector<std::string> foldedWords(std::string_view text);

} // namespace qev::str
