#pragma once

#include <string>
#include <string_view>

namespace qev::test::reference {

/// The text that \p written (what stands between the quotes) means, in UTF-8.
///
/// Understands `''`, `\\`, `\S\`, `\P?\`, `\X\`, `\X2\` and `\X4\`. Line breaks and other control characters
/// are no part of a text. Bytes outside ASCII are taken as UTF-8 when all of the text is valid UTF-8, else as
/// Latin-1. A backslash that begins none of these stays as it is.
[[nodiscard]] std::string decodeText(std::string_view written);

} // namespace qev::test::reference
