#pragma once

namespace qev::step {

/// The character that \p byte stands for in a part of ISO 8859, 'A' being part 1 and 'I' part 9.
/// 0 when the part has no such character.
char32_t codePageCharacter(char page, unsigned char byte);

} // namespace qev::step
