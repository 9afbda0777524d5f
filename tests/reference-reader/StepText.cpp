#include "reference-reader/StepText.h"

#include "reference-reader/CodePages.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace qev::test::reference {
namespace {

constexpr char32_t replacement = 0xFFFD;

void append(std::string& text, char32_t character)
{
    if (character > 0x10FFFF || (character >= 0xD800 && character < 0xE000))
        character = replacement;
    auto const tail = [&](int shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// The number of bytes of the UTF-8 character that begins \p text; 0 when there is none.
std::size_t utf8Length(std::string_view text)
{
    auto const byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    std::size_t const length = byte(0) < 0x80             ? 1
                               : (byte(0) & 0xE0) == 0xC0 ? 2
                               : (byte(0) & 0xF0) == 0xE0 ? 3
                               : (byte(0) & 0xF8) == 0xF0 ? 4
                                                          : 0;
    if (length == 0 || length > text.size())
        return 0;
    char32_t character = length == 1 ? byte(0) : byte(0) & (0xFF >> (length + 1));
    for (std::size_t index = 1; index < length; ++index) {
        if ((byte(index) & 0xC0) != 0x80)
            return 0;
        character = (character << 6) | (byte(index) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    bool const surrogate = character >= 0xD800 && character < 0xE000;
    return character < smallest[length] || character > 0x10FFFF || surrogate ? 0 : length;
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        std::size_t const length = utf8Length(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::optional<char32_t> hexadecimal(std::string_view digits)
{
    char32_t value = 0;
    for (char const digit : digits) {
        value *= 16;
        if (digit >= '0' && digit <= '9')
            value += static_cast<char32_t>(digit - '0');
        else if (digit >= 'A' && digit <= 'F')
            value += static_cast<char32_t>(digit - 'A' + 10);
        else if (digit >= 'a' && digit <= 'f')
            value += static_cast<char32_t>(digit - 'a' + 10);
        else
            return std::nullopt;
    }
    return value;
}

class Decoder
{
public:
    explicit Decoder(std::string_view written)
        : m_written(written)
        , m_utf8(isUtf8(written))
    {
    }

    std::string decode()
    {
        while (m_position < m_written.size())
            step();
        return m_text;
    }

private:
    [[nodiscard]] bool at(std::string_view token) const
    {
        return m_written.substr(m_position, token.size()) == token;
    }

    void step()
    {
        if (at("''")) {
            m_text += '\'';
            m_position += 2;
        } else if (m_written[m_position] != '\\' || !escape()) {
            plain();
        }
    }

    void plain()
    {
        auto const byte = static_cast<unsigned char>(m_written[m_position++]);
        if (byte < 0x20)
            return;
        if (byte < 0x80 || m_utf8)
            m_text += static_cast<char>(byte);
        else
            append(m_text, byte);
    }

    /// Reads the escape at the current position; false when there is none.
    bool escape()
    {
        if (at("\\\\")) {
            m_text += '\\';
            m_position += 2;
            return true;
        }
        if (at("\\S\\") && m_position + 3 < m_written.size()) {
            auto const low = static_cast<unsigned char>(m_written[m_position + 3]);
            append(m_text, codePageCharacter(m_page, static_cast<unsigned char>(low | 0x80)));
            m_position += 4;
            return true;
        }
        if (at("\\P") && m_position + 3 < m_written.size() && m_written[m_position + 3] == '\\') {
            char const letter = m_written[m_position + 2];
            if (letter < 'A' || letter > 'I')
                return false;
            m_page = letter - 'A' + 1;
            m_position += 4;
            return true;
        }
        return at("\\X\\")    ? shortHexadecimal()
               : at("\\X2\\") ? longHexadecimal(4)
                              : at("\\X4\\") && longHexadecimal(8);
    }

    bool shortHexadecimal()
    {
        std::string_view const digits = m_written.substr(m_position + 3, 2);
        std::optional<char32_t> const character = digits.size() == 2 ? hexadecimal(digits) : std::nullopt;
        if (!character)
            return false;
        append(m_text, *character);
        m_position += 5;
        return true;
    }

    bool longHexadecimal(std::size_t width)
    {
        std::size_t const begin = m_position + 4;
        std::size_t const end = m_written.find("\\X0\\", begin);
        if (end == std::string_view::npos || (end - begin) % width != 0)
            return false;
        std::string characters;
        char32_t high = 0;
        for (std::size_t index = begin; index < end; index += width) {
            std::optional<char32_t> const unit = hexadecimal(m_written.substr(index, width));
            if (!unit)
                return false;
            if (high != 0 && *unit >= 0xDC00 && *unit < 0xE000) {
                append(characters, 0x10000 + ((high - 0xD800) << 10) + (*unit - 0xDC00));
                high = 0;
                continue;
            }
            if (high != 0)
                append(characters, replacement);
            high = width == 4 && *unit >= 0xD800 && *unit < 0xDC00 ? *unit : 0;
            if (high == 0)
                append(characters, *unit);
        }
        if (high != 0)
            append(characters, replacement);
        m_text += characters;
        m_position = end + 4;
        return true;
    }

    std::string_view m_written;
    bool m_utf8;
    std::size_t m_position = 0;
    int m_page = 1;
    std::string m_text;
};

} // namespace

std::string decodeText(std::string_view written) { return Decoder(written).decode(); }

} // namespace qev::test::reference
