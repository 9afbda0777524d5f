#include "Format/Ifc/Step/StepHeaderReader.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/ArgumentReader.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace qev::step {

namespace {

constexpr std::string_view startWord = "ISO-10303-21";

bool isUtf16(std::string_view bytes)
{
    using namespace std::string_view_literals;
    return bytes.starts_with("\xff\xfe"sv) || bytes.starts_with("\xfe\xff"sv) ||
           bytes.starts_with("I\0S\0"sv) || bytes.starts_with("\0I\0S"sv);
}

} // namespace

std::string wordAt(StepScanner const& scanner, std::size_t position)
{
    constexpr std::size_t longest = 64;
    std::string word;
    for (char c = scanner.at(position); word.size() < longest && (isKeywordCharacter(c) || c == '-');
         c = scanner.at(++position))
        word += str::toUpper(c);
    return word;
}

std::string foundAt(StepScanner const& scanner, std::size_t position)
{
    constexpr std::size_t longest = 20;
    if (position >= scanner.size())
        return "the end of the file";
    std::string found;
    while (position < scanner.size() && found.size() < longest &&
           static_cast<unsigned char>(scanner.at(position)) >= ' ')
        found += scanner.at(position++);
    return found.empty() ? "the end of the line" : "\"" + found + "\"";
}

bool StepHeaderReader::refuse(std::string text)
{
    m_report(StepMessage::Severity::Refused, m_position, std::move(text));
    return false;
}

bool StepHeaderReader::run() { return checkEncoding() && readStart() && readSections(); }

bool StepHeaderReader::checkEncoding()
{
    std::string_view const bytes(m_scanner.data(), m_scanner.size());
    if (bytes.empty())
        return refuse("Expected a STEP file, found an empty file.");
    if (isUtf16(bytes))
        return refuse("Expected a STEP file with one byte for each character, found UTF-16. "
                      "Saving it as UTF-8 makes it readable.");
    if (bytes.starts_with("PK\x03\x04"))
        return refuse("Expected a STEP file, found a ZIP archive. The file inside may be one.");
    if (bytes.starts_with("\xef\xbb\xbf"))
        m_position = 3;
    return true;
}

bool StepHeaderReader::readStart()
{
    m_position = m_scanner.skipBlanks(m_position);
    std::string const word = wordAt(m_scanner, m_position);
    if (word == "HEADER") {
        m_report(StepMessage::Severity::Warning, m_position,
                 "Expected \"ISO-10303-21;\" at the beginning, found \"HEADER\".");
        return true;
    }
    if (word != startWord)
        return refuse("Expected \"ISO-10303-21;\" at the beginning of a STEP file, found " +
                      foundAt(m_scanner, m_position) + ".");
    m_position = m_scanner.skipBlanks(m_position + word.size());
    if (m_scanner.at(m_position) == ';')
        ++m_position;
    else
        m_report(StepMessage::Severity::Warning, m_position,
                 "Expected \";\" behind \"ISO-10303-21\", found " + foundAt(m_scanner, m_position) + ".");
    return true;
}

bool StepHeaderReader::readSections()
{
    enum class Section : std::uint8_t
    {
        None,
        Header,
        Other
    };
    Section section = Section::None;
    while (true) {
        m_position = m_scanner.skipBlanks(m_position);
        std::string const word = wordAt(m_scanner, m_position);
        bool const isRecord = section != Section::Other && m_scanner.at(m_position) == '#' &&
                              m_scanner.startsStatement(m_position);
        if (word == "DATA" || isRecord) {
            if (section != Section::None)
                m_report(StepMessage::Severity::Warning, m_position,
                         "Expected \"ENDSEC;\" at the end of the section, found " +
                             foundAt(m_scanner, m_position) + ".");
            return m_hasHeader || refuse("Expected a HEADER section before the data, found none.");
        }
        if (m_position >= m_scanner.size() || word == "END-ISO-10303-21")
            return refuse("Expected a " + std::string(m_hasHeader ? "DATA" : "HEADER") + " section, found " +
                          foundAt(m_scanner, m_position) + ".");
        std::size_t const end = m_scanner.findEnd(m_position).end;
        if (word == "HEADER") {
            section = Section::Header;
            m_hasHeader = true;
        } else if (word == "ENDSEC") {
            section = Section::None;
        } else if (section == Section::Header) {
            readHeaderRecord(word, m_position + word.size(), end);
        } else {
            section = Section::Other;
        }
        m_position = end;
    }
}

void StepHeaderReader::readHeaderRecord(std::string const& keyword, std::size_t keywordEnd, std::size_t end)
{
    std::size_t const open = m_scanner.skipBlanks(keywordEnd);
    if (keyword.empty() || m_scanner.at(open) != '(') {
        m_report(StepMessage::Severity::Error, m_position,
                 "Expected a record of the header, found " + foundAt(m_scanner, m_position) + ".");
        return;
    }
    StepHeaderRecord record;
    record.keyword = keyword;
    ArgumentReader reader(m_scanner.data() + open + 1, m_scanner.data() + end, true);
    reader.readList(record.arguments);
    reader.expect(';', "\";\"");
    if (reader.error()) {
        auto const position = static_cast<std::size_t>(reader.error()->position - m_scanner.data());
        m_report(StepMessage::Severity::Error, position,
                 "Expected " + reader.error()->expected + " in " + keyword + ", found " +
                     foundAt(m_scanner, position) + ".");
    }
    m_header.add(std::move(record));
}

} // namespace qev::step
