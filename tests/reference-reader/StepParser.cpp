#include "reference-reader/StepParser.h"

#include "reference-reader/StepText.h"

#include <stdexcept>
#include <utility>

namespace qev::test::reference {
namespace {

constexpr int deepest = 200;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool isLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           character == '_';
}

bool isBlank(char character) { return static_cast<unsigned char>(character) <= ' '; }

bool isLineBreak(char character) { return character == '\n' || character == '\r'; }

char upper(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

} // namespace

StepDocument StepParser::parse()
{
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_position = 3;
    skipBlanks();
    while (!atEnd() && !m_text.substr(m_position).starts_with("END-ISO-10303-21")) {
        std::size_t const start = m_position;
        try {
            parseStatement();
        } catch (std::runtime_error const& problem) {
            goOnAfter(start, problem.what());
        }
        skipBlanks();
    }
    return std::move(m_document);
}

void StepParser::skipBlanks()
{
    while (!atEnd()) {
        if (isBlank(peek())) {
            ++m_position;
        } else if (m_text.substr(m_position, 2) == "/*") {
            std::size_t const end = m_text.find("*/", m_position + 2);
            m_position = end == std::string_view::npos ? m_text.size() : end + 2;
        } else {
            return;
        }
    }
}

bool StepParser::accept(char character)
{
    skipBlanks();
    if (peek() != character || atEnd())
        return false;
    ++m_position;
    return true;
}

void StepParser::expect(char character)
{
    if (!accept(character))
        fail(std::string("'") + character + "'");
}

void StepParser::fail(std::string const& expected) const { throw std::runtime_error(expected + " expected"); }

void StepParser::parseStatement()
{
    if (peek() == '#') {
        parseRecord();
        return;
    }
    std::string const keyword = parseKeyword();
    skipBlanks();
    if (peek() == '(')
        parseHeaderRecord(keyword);
    expect(';');
}

void StepParser::parseRecord()
{
    StepRecord record;
    record.line = lineOf(m_position);
    record.id = parseId();
    expect('=');
    skipBlanks();
    if (accept('(')) {
        while (!accept(')'))
            record.arguments.push_back(parseTyped());
    } else {
        record.keyword = parseKeyword();
        record.arguments = parseArguments();
    }
    expect(';');
    if (!m_document.m_positions.emplace(record.id, m_document.m_records.size()).second) {
        m_document.m_messages.push_back({record.line, "#" + std::to_string(record.id) + " stands twice"});
        return;
    }
    m_document.m_records.push_back(std::move(record));
}

void StepParser::parseHeaderRecord(std::string const& keyword)
{
    std::vector<StepArgument> const arguments = parseArguments();
    if (keyword == "FILE_SCHEMA" && !arguments.empty() && !arguments[0].items.empty())
        m_document.m_schemaName = arguments[0].items[0].text;
    if (keyword == "FILE_NAME" && arguments.size() > 5)
        m_document.m_originatingSystem = arguments[5].text;
}

void StepParser::goOnAfter(std::size_t start, std::string const& problem)
{
    m_document.m_messages.push_back({lineOf(start), problem});
    m_depth = 0;
    m_position = start + 1;
    while (!atEnd()) {
        std::string_view const rest = m_text.substr(m_position);
        if (isLineBreak(m_text[m_position - 1]) && (rest.starts_with('#') || rest.starts_with("ENDSEC")))
            return;
        ++m_position;
    }
}

std::size_t StepParser::lineOf(std::size_t position)
{
    for (; m_countedTo < position; ++m_countedTo) {
        bool const carriageOfPair = m_text[m_countedTo] == '\r' && m_text.substr(m_countedTo, 2) == "\r\n";
        if (isLineBreak(m_text[m_countedTo]) && !carriageOfPair)
            ++m_line;
    }
    return m_line;
}

std::string StepParser::parseKeyword()
{
    skipBlanks();
    std::string keyword;
    while (isLetter(peek()) || isDigit(peek()) || peek() == '-' || (keyword.empty() && peek() == '!'))
        keyword += upper(m_text[m_position++]);
    if (keyword.empty())
        fail("a keyword");
    return keyword;
}

std::uint64_t StepParser::parseId()
{
    expect('#');
    skipBlanks();
    std::uint64_t id = 0;
    std::size_t const start = m_position;
    while (isDigit(peek())) {
        if (m_position - start >= 19)
            fail("a smaller number behind #");
        id = id * 10 + static_cast<std::uint64_t>(m_text[m_position++] - '0');
    }
    if (m_position == start)
        fail("a number behind #");
    return id;
}

std::vector<StepArgument> StepParser::parseArguments()
{
    if (++m_depth > deepest)
        fail("less deep nesting");
    std::vector<StepArgument> arguments;
    expect('(');
    if (!accept(')')) {
        do {
            arguments.push_back(parseArgument());
        } while (accept(','));
        expect(')');
    }
    --m_depth;
    return arguments;
}

StepArgument StepParser::parseArgument()
{
    skipBlanks();
    char const first = peek();
    if (first == '$' || first == '*') {
        ++m_position;
        return {first == '$' ? StepArgument::Kind::Unset : StepArgument::Kind::Derived, {}, 0, {}};
    }
    if (first == '#')
        return {StepArgument::Kind::Reference, {}, parseId(), {}};
    if (first == '(')
        return {StepArgument::Kind::List, {}, 0, parseArguments()};
    if (first == '\'')
        return parseText();
    if (first == '.' && m_position + 1 < m_text.size() && isLetter(m_text[m_position + 1]))
        return parseEnumeration();
    if (first == '"')
        return parseBinary();
    if (isLetter(first) || first == '!')
        return parseTyped();
    return parseNumber();
}

StepArgument StepParser::parseNumber()
{
    StepArgument number{StepArgument::Kind::Integer, {}, 0, {}};
    bool hasDigit = false;
    auto const isSign = [](char character) { return character == '+' || character == '-'; };
    while (isDigit(peek()) || isSign(peek()) || peek() == '.' || upper(peek()) == 'E') {
        if (!isDigit(peek()) && !isSign(peek()))
            number.kind = StepArgument::Kind::Real;
        hasDigit = hasDigit || isDigit(peek());
        number.text += m_text[m_position++];
    }
    if (!hasDigit)
        fail("a value");
    return number;
}

StepArgument StepParser::parseText()
{
    std::size_t const start = ++m_position;
    while (true) {
        if (atEnd())
            fail("the closing quote of a text");
        std::string_view const rest = m_text.substr(m_position);
        if (rest.starts_with("''") || rest.starts_with("\\\\"))
            m_position += 2;
        else if (rest.starts_with("\\S\\"))
            m_position += 4;
        else if (rest[0] == '\'')
            break;
        else
            ++m_position;
    }
    std::string_view const written = m_text.substr(start, m_position - start);
    ++m_position;
    return {StepArgument::Kind::Text, decodeText(written), 0, {}};
}

StepArgument StepParser::parseEnumeration()
{
    ++m_position;
    StepArgument item{StepArgument::Kind::Enumeration, {}, 0, {}};
    while (isLetter(peek()) || isDigit(peek()))
        item.text += upper(m_text[m_position++]);
    if (peek() != '.')
        fail("the closing point of an item");
    ++m_position;
    return item;
}

StepArgument StepParser::parseBinary()
{
    std::size_t const start = ++m_position;
    std::size_t const end = m_text.find('"', start);
    if (end == std::string_view::npos)
        fail("the closing quote of a binary");
    m_position = end + 1;
    return {StepArgument::Kind::Binary, std::string(m_text.substr(start, end - start)), 0, {}};
}

StepArgument StepParser::parseTyped()
{
    std::string keyword = parseKeyword();
    return {StepArgument::Kind::Typed, std::move(keyword), 0, parseArguments()};
}

} // namespace qev::test::reference
