#include "Core/String/Utf8.h"

#include <cstddef>
#include <cstdint>

namespace qev::str {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t largestCharacter = 0x10FFFF;

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

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        auto const length = characterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string utf8FromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (char const byte : bytes)
        appendUtf8(text, static_cast<unsigned char>(byte));
    return text;
}

void appendUtf8(std::string& text, char32_t character)
{
    bool const surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (surrogate || character > largestCharacter)
        character = replacementCharacter;
    auto const append = [&text](char32_t byte) {
        text += static_cast<char>(static_cast<unsigned char>(byte));
    };
    auto const appendContinuation = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        appendContinuation(0);
    } else if (character < 0x10000) {
        append(0xE0 | (character >> 12));
        appendContinuation(6);
        appendContinuation(0);
    } else {
        append(0xF0 | (character >> 18));
        appendContinuation(12);
        appendContinuation(6);
        appendContinuation(0);
    }
}

} // namespace qev::str
