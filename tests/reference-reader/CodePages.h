#pragma once

namespace qev::test::reference {

/// The character that \p byte means on page \p page of ISO 8859 (1 to 9).
[[nodiscard]] char32_t codePageCharacter(int page, unsigned char byte);

} // namespace qev::test::reference
