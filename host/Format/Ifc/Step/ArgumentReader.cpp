#include "Format/Ifc/Step/ArgumentReader.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepScanner.h"
#include "Format/Ifc/Step/StepText.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace qev::step {

namespace {

bool isNumberCharacter(char c)
{
    return isDigit(c) || c == '+' || c == '-' || c == '.' || c == 'E' || c == 'e';
}

/// Whether a number that no double can hold is too close to zero rather than too large.
bool isTiny(std::string_view number)
{
    std::size_t const exponent = number.find_first_of("Ee");
    std::string_view const digits = number.substr(0, exponent);
    auto const negativeExponent = exponent + 1 < number.size() && number[exponent + 1] == '-';
    if (exponent != std::string_view::npos)
        return negativeExponent;
    std::size_t const point = digits.find('.');
    return digits.substr(0, point).find_first_of("123456789") == std::string_view::npos;
}

bool isHexadecimal(char c) { return isDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'); }

} // namespace

char const* ArgumentReader::findCommentEnd()
{
    if (m_noCommentEnds)
        return nullptr;
    std::string_view const rest(m_position, static_cast<std::size_t>(m_end - m_position));
    std::size_t const end = rest.find("*/", 2);
    m_noCommentEnds = end == std::string_view::npos;
    return m_noCommentEnds ? nullptr : m_position + end + 2;
}

void ArgumentReader::skipBlanks()
{
    while (m_position < m_end) {
        if (isBlank(*m_position)) {
            ++m_position;
            continue;
        }
        if (*m_position != '/' || m_end - m_position < 2 || m_position[1] != '*')
            return;
        char const* end = findCommentEnd();
        if (end == nullptr)
            return;
        m_position = end;
    }
}

StepValue ArgumentReader::fail(char const* position, char const* expected)
{
    if (!m_error)
        m_error = Error{position, expected};
    return {};
}

void ArgumentReader::expect(char character, char const* expected)
{
    skipBlanks();
    if (peek() == character && m_position < m_end)
        ++m_position;
    else
        fail(m_position, expected);
}

char const* ArgumentReader::findTextEnd() const
{
    char const* const begin = m_position + 1;
    char const* p = begin;
    while (p < m_end) {
        auto const* quote =
            static_cast<char const*>(std::memchr(p, '\'', static_cast<std::size_t>(m_end - p)));
        if (quote == nullptr)
            return nullptr;
        bool const hidden = m_escapesHideApostrophes && isHiddenApostrophe(begin, quote);
        if (hidden)
            p = quote + 1;
        else if (quote + 1 < m_end && quote[1] == '\'')
            p = quote + 2;
        else
            return quote + 1;
    }
    return nullptr;
}

void ArgumentReader::skipDelimited(char delimiter)
{
    char const* end = nullptr;
    if (delimiter == '\'') {
        end = findTextEnd();
    } else {
        auto const left = static_cast<std::size_t>(m_end - m_position - 1);
        end = static_cast<char const*>(std::memchr(m_position + 1, delimiter, left));
        end = end == nullptr ? nullptr : end + 1;
    }
    m_position = end == nullptr ? m_end : end;
}

void ArgumentReader::recover()
{
    int depth = 0;
    while (m_position < m_end) {
        char const c = *m_position;
        if (c == ';' || (depth == 0 && (c == ',' || c == ')')))
            return;
        if (c == '\'' || c == '"') {
            skipDelimited(c);
            continue;
        }
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        ++m_position;
    }
}

void ArgumentReader::readItems(std::vector<StepValue>& values, unsigned int depth)
{
    values.clear();
    skipBlanks();
    if (peek() == ')') {
        ++m_position;
        return;
    }
    // A list that has become this long may have thousands: room for all of them spares moving them again and
    // again. Counting costs short lists more than it saves.
    constexpr std::size_t longList = 64;
    while (true) {
        if (values.size() == longList)
            values.reserve(longList + itemsAhead());
        values.push_back(readValue(depth));
        skipBlanks();
        if (m_position < m_end && *m_position != ',' && *m_position != ')') {
            fail(m_position, "\",\" or \")\"");
            recover();
        }
        if (peek() == ',') {
            ++m_position;
            continue;
        }
        if (peek() == ')')
            ++m_position;
        else
            fail(m_position, "\",\" or \")\"");
        return;
    }
}

std::size_t ArgumentReader::itemsAhead() const
{
    constexpr std::string_view ends = "()'";
    char const* const end = std::find_first_of(m_position, m_end, ends.begin(), ends.end());
    return static_cast<std::size_t>(std::count(m_position, end, ',')) + 1;
}

StepValue ArgumentReader::readValue(unsigned int depth)
{
    skipBlanks();
    char const c = peek();
    switch (c) {
    case '$':
        ++m_position;
        return {};
    case '*':
        ++m_position;
        return StepValue::derived();
    case '\'':
        return readText();
    case '#':
        return readReference();
    case '"':
        return readBinary();
    case '.':
        return m_end - m_position > 1 && isDigit(m_position[1]) ? readNumber() : readEnumeration();
    case '(': {
        if (depth + 1 >= StepRecordParser::maximumDepth) {
            fail(m_position, "no more than 64 lists inside each other");
            recover();
            return {};
        }
        ++m_position;
        std::vector<StepValue> items;
        items.reserve(3);
        readItems(items, depth + 1);
        return StepValue::list(std::move(items));
    }
    default:
        break;
    }
    if (isDigit(c) || c == '-' || c == '+')
        return readNumber();
    if (isKeywordStart(c))
        return readTyped(depth);
    fail(m_position, "a value");
    recover();
    return {};
}

StepValue ArgumentReader::readText()
{
    char const* const end = findTextEnd();
    if (end == nullptr) {
        fail(m_position, "a text that ends with \"'\"");
        m_position = m_end;
        return {};
    }
    std::string text;
    std::string_view const encoded(m_position + 1, static_cast<std::size_t>(end - m_position - 2));
    bool const good = StepText::decode(encoded, text);
    if (!good)
        fail(m_position, "a text without broken escapes");
    m_position = end;
    return StepValue::text(std::move(text));
}

StepValue ArgumentReader::readNumber()
{
    char const* const begin = m_position;
    bool isReal = false;
    while (m_position < m_end && isNumberCharacter(*m_position)) {
        isReal = isReal || *m_position == '.' || *m_position == 'E' || *m_position == 'e';
        ++m_position;
    }
    std::string_view number(begin, static_cast<std::size_t>(m_position - begin));
    if (number.front() == '+')
        number.remove_prefix(1);
    StepValue value = readNumberText(number, isReal);
    if (!value.isNumber())
        fail(begin, "a number");
    return value;
}

StepValue ArgumentReader::readNumberText(std::string_view number, bool isReal)
{
    char const* const begin = number.data();
    char const* const end = begin + number.size();
    if (!isReal) {
        std::int64_t integer = 0;
        auto const [rest, problem] = std::from_chars(begin, end, integer);
        if (problem == std::errc() && rest == end)
            return StepValue::integer(integer);
        if (problem != std::errc::result_out_of_range)
            return {};
        // A whole number beyond 64 bits is still a number.
    }
    double real = 0.0;
    auto const [rest, problem] = std::from_chars(begin, end, real);
    if (rest != end)
        return {};
    // Too small to tell from zero is zero; too large is no number.
    if (problem == std::errc::result_out_of_range)
        return isTiny(number) ? StepValue::real(0.0) : StepValue();
    return problem == std::errc() ? StepValue::real(real) : StepValue();
}

StepValue ArgumentReader::readReference()
{
    char const* const begin = m_position;
    ++m_position;
    InstanceId id = 0;
    auto const [rest, problem] = std::from_chars(m_position, m_end, id);
    if (rest == m_position || problem != std::errc()) {
        while (m_position < m_end && isDigit(*m_position))
            ++m_position;
        return fail(begin, "a reference with an id of up to 64 bits");
    }
    m_position = rest;
    return StepValue::reference(id);
}

StepValue ArgumentReader::readEnumeration()
{
    char const* const begin = m_position;
    ++m_position;
    while (m_position < m_end && isKeywordCharacter(*m_position))
        ++m_position;
    if (peek() != '.' || m_position == begin + 1)
        return fail(begin, "an enumeration item between dots");
    ++m_position;
    return StepValue::enumeration(str::toUpper({begin + 1, m_position - 1}));
}

StepValue ArgumentReader::readBinary()
{
    char const* const begin = m_position;
    ++m_position;
    while (m_position < m_end && isHexadecimal(*m_position))
        ++m_position;
    if (peek() != '"')
        return fail(begin, "hexadecimal digits between quotation marks");
    ++m_position;
    return StepValue::binary(std::string(begin + 1, m_position - 1));
}

StepValue ArgumentReader::readTyped(unsigned int depth)
{
    char const* const begin = m_position;
    ++m_position;
    while (m_position < m_end && isKeywordCharacter(*m_position))
        ++m_position;
    std::string keyword = str::toUpper({begin, m_position});
    skipBlanks();
    if (peek() != '(')
        return fail(begin, "a value");
    if (depth + 1 >= StepRecordParser::maximumDepth) {
        fail(m_position, "no more than 64 lists inside each other");
        recover();
        return {};
    }
    ++m_position;
    skipBlanks();
    if (peek() == ')') {
        fail(m_position, "a value");
        ++m_position;
        return {};
    }
    StepValue item = readValue(depth + 1);
    skipBlanks();
    if (peek() == ')') {
        ++m_position;
        return StepValue::typed(std::move(keyword), std::move(item));
    }
    fail(m_position, "\")\"");
    while (peek() == ',') {
        ++m_position;
        recover();
    }
    if (peek() == ')')
        ++m_position;
    return {};
}

bool ArgumentReader::skipArgument(std::string_view& argument)
{
    skipBlanks();
    char const* const begin = m_position;
    char const* contentEnd = m_position;
    int depth = 0;
    while (m_position < m_end) {
        char const c = *m_position;
        if (c == ';')
            return false;
        if (depth == 0 && (c == ',' || c == ')')) {
            argument = {begin, static_cast<std::size_t>(contentEnd - begin)};
            return true;
        }
        if (isBlank(c) || c == '/') {
            char const* const before = m_position;
            skipBlanks();
            if (m_position != before)
                continue;
        }
        if (c == '\'' || c == '"') {
            skipDelimited(c);
        } else {
            depth += c == '(' ? 1 : c == ')' ? -1 : 0;
            ++m_position;
        }
        contentEnd = m_position;
    }
    return false;
}

char ArgumentReader::takeSeparator()
{
    char const c = peek();
    if (c != ',' && c != ')')
        return '\0';
    ++m_position;
    return c;
}

bool ArgumentReader::nextReference(InstanceId& id, int& depth, bool everything)
{
    while (m_position < m_end) {
        char const c = *m_position;
        if (c == '#') {
            auto const [rest, problem] = std::from_chars(m_position + 1, m_end, id);
            bool const good = problem == std::errc();
            m_position = std::max(rest, m_position + 1);
            if (good)
                return true;
            continue;
        }
        if (c == '\'' || c == '"') {
            skipDelimited(c);
            continue;
        }
        if (c == '/') {
            char const* const before = m_position;
            skipBlanks();
            if (m_position != before)
                continue;
        }
        bool const ends = depth == 0 && (c == ',' || c == ')');
        if (c == ';' || (ends && !everything)) {
            m_position = m_end;
            return false;
        }
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        ++m_position;
    }
    return false;
}

} // namespace qev::step
