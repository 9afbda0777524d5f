#pragma once

#include "HostCoreExport.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace qev::str {

/// \p text with U+FFFD in the place of each byte that belongs to no well-formed character. Overlong forms,
/// surrogates and what is above U+10FFFF are none.
HOSTCORE_EXPORT std::string wellFormedUtf8(std::string_view text);

/// A path, or a part of one, for messages and names: well-formed UTF-8 on every platform, which
/// `path::string` is not. What opens a file takes the path itself.
HOSTCORE_EXPORT std::string utf8FromPath(std::filesystem::path const& path);

} // namespace qev::str
