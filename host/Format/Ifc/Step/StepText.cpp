#include "Format/Ifc/Step/StepText.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/StepCodePages.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace qev::step {

namespace {

constexpr char32_t lastCharacter = 0x10ffff;

bool isSurrogate(char32_t c) { return c >= 0xd800 && c <= 0xdfff; }

void appendUtf8(std::string& out, char32_t c)
{
    auto const byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (c < 0x80) {
        out += byte(c);
    } else if (c < 0x800) {
        out += byte(0xc0 | c >> 6);
        out += byte(0x80 | (c & 0x3f));
    } else if (c < 0x10000) {
        out += byte(0xe0 | c >> 12);
        out += byte(0x80 | (c >> 6 & 0x3f));
        out += byte(0x80 | (c & 0x3f));
    } else {
        out += byte(0xf0 | c >> 18);
        out += byte(0x80 | (c >> 12 & 0x3f));
        out += byte(0x80 | (c >> 6 & 0x3f));
        out += byte(0x80 | (c & 0x3f));
    }
}

/// A character and how many bytes it takes.
struct Utf8Character
{
    char32_t code;
    std::size_t length;
};

/// The character that \p bytes begin with; nothing when they are not well-formed UTF-8.
std::optional<Utf8Character> readUtf8(std::string_view bytes)
{
    auto const at = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    unsigned char const lead = at(0);
    if (lead < 0x80)
        return Utf8Character{lead, 1};
    std::size_t const length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || bytes.size() < length)
        return std::nullopt;
    char32_t code = lead & (0xffU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xc0) != 0x80)
            return std::nullopt;
        code = code << 6 | (at(i) & 0x3fU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < smallest[length] || code > lastCharacter || isSurrogate(code))
        return std::nullopt;
    return Utf8Character{code, length};
}

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        std::optional<Utf8Character> const character = readUtf8(bytes);
        if (!character)
            return false;
        bytes.remove_prefix(character->length);
    }
    return true;
}

bool isAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Reads \p digits hexadecimal digits; nothing when there are others, or too few.
std::optional<char32_t> readHexadecimal(std::string_view bytes, std::size_t digits)
{
    if (bytes.size() < digits)
        return std::nullopt;
    char32_t number = 0;
    for (char const c : bytes.substr(0, digits)) {
        if (str::isDigit(c))
            number = number << 4 | static_cast<char32_t>(c - '0');
        else if (c >= 'A' && c <= 'F')
            number = number << 4 | static_cast<char32_t>(c - 'A' + 10);
        else if (c >= 'a' && c <= 'f')
            number = number << 4 | static_cast<char32_t>(c - 'a' + 10);
        else
            return std::nullopt;
    }
    return number;
}

class Decoder
{
public:
    Decoder(std::string_view encoded, std::string& text)
        : m_rest(encoded)
        , m_text(text)
        , m_isUtf8(isAscii(encoded) || isUtf8(encoded))
    {
    }

    bool run()
    {
        while (!m_rest.empty()) {
            if (m_rest.front() == '\\')
                decodeEscape();
            else if (m_rest.starts_with("''"))
                take(2, U'\'');
            else
                takeByte();
        }
        return m_ok;
    }

private:
    void take(std::size_t length, char32_t character)
    {
        appendUtf8(m_text, character);
        m_rest.remove_prefix(length);
    }

    void takeByte()
    {
        if (m_isUtf8) {
            m_text += m_rest.front();
            m_rest.remove_prefix(1);
        } else {
            take(1, static_cast<unsigned char>(m_rest.front()));
        }
    }

    void decodeEscape()
    {
        if (m_rest.starts_with("\\\\"))
            take(2, U'\\');
        else if (m_rest.starts_with("\\S\\"))
            decodePageCharacter();
        else if (m_rest.starts_with("\\X\\"))
            decodeByte();
        else if (m_rest.starts_with("\\X2\\"))
            decodeGroup(4);
        else if (m_rest.starts_with("\\X4\\"))
            decodeGroup(8);
        else if (m_rest.size() >= 4 && m_rest[1] == 'P' && m_rest[3] == '\\' && m_rest[2] >= 'A' &&
                 m_rest[2] <= 'I') {
            m_page = m_rest[2];
            m_rest.remove_prefix(4);
        } else {
            takeByte();
        }
    }

    /// Leaves the escape in the text: its backslash stands for itself, the rest follows as it is.
    void keepAsItStands()
    {
        m_ok = false;
        takeByte();
    }

    void decodePageCharacter()
    {
        constexpr std::size_t length = 4;
        bool const hasCharacter = m_rest.size() >= length && m_rest[3] >= ' ' && m_rest[3] <= '~';
        char32_t const character =
            hasCharacter ? codePageCharacter(m_page, static_cast<unsigned char>(m_rest[3] | 0x80)) : 0;
        if (character == 0)
            keepAsItStands();
        else
            take(length, character);
    }

    void decodeByte()
    {
        if (std::optional<char32_t> const character = readHexadecimal(m_rest.substr(3), 2))
            take(5, *character);
        else
            keepAsItStands();
    }

    void decodeGroup(std::size_t digits)
    {
        constexpr std::string_view end = "\\X0\\";
        std::size_t const sizeBefore = m_text.size();
        std::string_view rest = m_rest.substr(4);
        while (!rest.starts_with(end)) {
            std::optional<char32_t> character = readHexadecimal(rest, digits);
            if (character)
                rest.remove_prefix(digits);
            if (character && digits == 4 && *character >= 0xd800 && *character < 0xdc00) {
                std::optional<char32_t> const low = readHexadecimal(rest, digits);
                if (low && *low >= 0xdc00 && *low < 0xe000) {
                    character = 0x10000 + ((*character - 0xd800) << 10) + (*low - 0xdc00);
                    rest.remove_prefix(digits);
                }
            }
            if (!character || isSurrogate(*character) || *character > lastCharacter) {
                m_text.resize(sizeBefore);
                keepAsItStands();
                return;
            }
            appendUtf8(m_text, *character);
        }
        m_rest = rest.substr(end.size());
    }

    std::string_view m_rest;
    std::string& m_text;
    bool m_isUtf8;
    bool m_ok = true;
    char m_page = 'A';
};

void appendHexadecimal(std::string& out, char32_t number, unsigned int digits)
{
    for (unsigned int i = digits; i-- > 0;)
        out += "0123456789ABCDEF"[number >> (i * 4) & 0xf];
}

} // namespace

bool StepText::decode(std::string_view encoded, std::string& text)
{
    bool const isPlain = std::all_of(encoded.begin(), encoded.end(), [](char c) {
        return c != '\\' && c != '\'' && static_cast<unsigned char>(c) < 0x80;
    });
    if (isPlain) {
        text.assign(encoded);
        return true;
    }
    text.clear();
    return Decoder(encoded, text).run();
}

std::string StepText::decode(std::string_view encoded)
{
    std::string text;
    decode(encoded, text);
    return text;
}

void StepText::appendEncoded(std::string& out, std::string_view text)
{
    // Digits of the group that is open: 0 for none, 4 for \X2\, 8 for \X4\.
    unsigned int open = 0;
    auto const switchTo = [&open, &out](unsigned int digits) {
        if (open == digits)
            return;
        if (open != 0)
            out += "\\X0\\";
        if (digits != 0)
            out += digits == 4 ? "\\X2\\" : "\\X4\\";
        open = digits;
    };
    while (!text.empty()) {
        Utf8Character const character =
            readUtf8(text).value_or(Utf8Character{static_cast<unsigned char>(text.front()), 1});
        text.remove_prefix(character.length);
        if (character.code >= 0x20 && character.code < 0x7f) {
            switchTo(0);
            auto const c = static_cast<char>(character.code);
            if (c == '\'' || c == '\\')
                out += c;
            out += c;
        } else {
            switchTo(character.code < 0x10000 ? 4 : 8);
            appendHexadecimal(out, character.code, open);
        }
    }
    switchTo(0);
}

} // namespace qev::step
