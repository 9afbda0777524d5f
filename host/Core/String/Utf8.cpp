#include "Core/String/Utf8.h"

#include <algorithm>
#include <cstddef>

namespace qev::str {

namespace {

/// U+FFFD.
constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// The length of the well-formed character at the start of \p text; 0 when there is none.
std::size_t characterLength(std::string_view text)
{
    auto const byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char const first = byte(0);
    if (first < 0x80)
        return 1;
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!isContinuation(byte(i)))
            return 0;
    }
    unsigned char const second = byte(1);
    bool const overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    bool const surrogate = first == 0xED && second > 0x9F;
    bool const tooLarge = first == 0xF4 && second > 0x8F;
    return overlong || surrogate || tooLarge ? 0 : length;
}

} // namespace

std::string wellFormedUtf8(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        auto const length = characterLength(text);
        result += length == 0 ? replacementCharacter : text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

std::string utf8FromPath(std::filesystem::path const& path)
{
    // The bytes of a POSIX path are those that someone once wrote, of whatever encoding.
    auto const text = path.u8string();
    return wellFormedUtf8(std::string(text.begin(), text.end()));
}

} // namespace qev::str
