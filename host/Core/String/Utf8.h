#pragma once

#include "HostCoreExport.h"

#include <string>
#include <string_view>

namespace qev::str {

/// Whether \p text is well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
HOSTCORE_EXPORT bool isUtf8(std::string_view text);

/// The UTF-8 text of bytes that are ISO 8859-1.
HOSTCORE_EXPORT std::string utf8FromLatin1(std::string_view bytes);

/// Appends the UTF-8 bytes of a character. A number that is no character gives U+FFFD.
HOSTCORE_EXPORT void appendUtf8(std::string& text, char32_t character);

} // namespace qev::str
