#include "Format/Ifc/Step/StepIndexer.h"

#include "Format/Ifc/Step/StepHeaderReader.h"

#include <string_view>

namespace qev::step {

namespace {

/// Records between two calls of the progress function.
constexpr std::size_t progressStep = std::size_t{1} << 14;

} // namespace

bool StepIndexer::run(std::size_t position, StepFile::Progress const& progress)
{
    std::size_t const size = m_scanner.size();
    std::size_t untilProgress = progressStep;
    while (!m_atEnd) {
        position = skipBlanks(position);
        if (position >= size)
            break;
        if (m_scanner.at(position) != '#' || m_section == Section::Other) {
            position = readStatement(position);
            continue;
        }
        position = indexRecord(position);
        if (--untilProgress == 0) {
            untilProgress = progressStep;
            if (progress && !progress(position, size))
                return false;
        }
    }
    if (!m_atEnd) {
        closeSection(size);
        m_report(Severity::Warning, size, std::nullopt,
                 "Expected \"END-ISO-10303-21;\", found the end of the file.");
    }
    return true;
}

inline std::size_t StepIndexer::skipBlanks(std::size_t position)
{
    // Nearly always a record follows at once in the next line.
    if (m_scanner.at(position) == '\r')
        ++position;
    if (m_scanner.at(position) == '\n')
        ++position;
    return m_scanner.at(position) == '#' ? position : m_scanner.skipBlanks(position);
}

std::size_t StepIndexer::readStatement(std::size_t position)
{
    std::string const word = wordAt(m_scanner, position);
    if (word == "END-ISO-10303-21") {
        closeSection(position);
        m_atEnd = true;
        return position;
    }
    std::size_t const end = m_scanner.findEnd(position).end;
    if (word == "DATA") {
        closeSection(position);
        m_section = Section::Data;
        m_columns.insertPosition = end;
    } else if (word == "ENDSEC") {
        m_section = Section::None;
    } else if (m_section == Section::None &&
               (word == "ANCHOR" || word == "REFERENCE" || word == "SIGNATURE")) {
        m_section = Section::Other;
    } else if (m_section != Section::Other) {
        m_report(Severity::Error, position, std::nullopt,
                 "Expected a record or \"ENDSEC;\", found " + foundAt(m_scanner, position) + ".");
    }
    return end;
}

void StepIndexer::closeSection(std::size_t position)
{
    if (m_section != Section::None)
        m_report(Severity::Warning, position, std::nullopt,
                 "Expected \"ENDSEC;\" at the end of the section, found " + foundAt(m_scanner, position) +
                     ".");
    m_section = Section::None;
}

std::size_t StepIndexer::indexRecord(std::size_t position)
{
    constexpr std::size_t digitsThatFit = 18;
    char const* const first = m_scanner.data() + position + 1;
    char const* p = first;
    InstanceId id = 0;
    for (unsigned int digit = 0; (digit = static_cast<unsigned char>(*p - '0')) < 10; ++p)
        id = id * 10 + digit;
    auto const digits = static_cast<std::size_t>(p - first);
    if (m_section != Section::Data || digits > digitsThatFit || id == 0 || *p != '=')
        return indexUnusualRecord(position);
    ++p;
    if (*p == ' ')
        ++p;
    std::size_t const length = distanceTo(p, '(');
    StepKeywordTable::ClassNumber const number = length < 64 ? m_table.findInBuffer(p, length) : 0;
    if (number == StepKeywordTable::unknown)
        return indexUnusualRecord(position);
    return finishRecord(position, id, number, static_cast<std::size_t>(p - m_scanner.data()) + length + 1);
}

std::size_t StepIndexer::indexUnusualRecord(std::size_t position)
{
    using Problem = StepScanner::RecordHead::Problem;
    if (m_section == Section::None) {
        m_report(Severity::Error, position, std::nullopt,
                 "Expected \"DATA;\" before a record, found " + foundAt(m_scanner, position) + ".");
        m_section = Section::Data;
        m_columns.insertPosition = position;
    }
    StepScanner::RecordHead const head = m_scanner.readHead(position);
    if (head.problem != Problem::None)
        reportHead(head);
    if (head.problem != Problem::None && head.problem != Problem::NoParenthesis)
        return m_scanner.findEnd(head.arguments).end;
    if (head.id == 0)
        m_report(Severity::Warning, position, head.id, "Expected an id above 0, found #0.");
    StepKeywordTable::ClassNumber const number = head.isComplex ? 0 : m_table.find(head.keyword);
    return finishRecord(position, head.id, number, head.arguments);
}

void StepIndexer::reportHead(StepScanner::RecordHead const& head)
{
    using Problem = StepScanner::RecordHead::Problem;
    std::string const found = ", found " + foundAt(m_scanner, head.arguments) + ".";
    bool const hasId = head.problem != Problem::NoId && head.problem != Problem::IdTooLarge;
    std::optional<InstanceId> const id = hasId ? std::optional(head.id) : std::nullopt;
    std::string expected = "Expected a keyword";
    if (head.problem == Problem::NoId)
        expected = "Expected an id behind \"#\"";
    else if (head.problem == Problem::IdTooLarge)
        expected = "Expected an id of up to 64 bits before this place";
    else if (head.problem == Problem::NoEqualsSign)
        expected = "Expected \"=\" behind the id";
    else if (head.problem == Problem::NoParenthesis)
        expected = "Expected \"(\" behind the keyword";
    m_report(Severity::Error, head.arguments, id, expected + found);
}

inline std::size_t StepIndexer::finishRecord(std::size_t position, InstanceId id,
                                             StepKeywordTable::ClassNumber number, std::size_t body)
{
    m_columns.positions.push(position);
    m_columns.ids.push(id);
    m_columns.classes.push(number);
    m_columns.ascending = m_columns.ascending && (id > m_lastId || m_columns.ids.size() == 1);
    m_lastId = id;

    StepScanner::RecordEnd const end = m_scanner.findEnd(body);
    bool const complete = end.ending == StepFile::Ending::Complete;
    if (!complete || m_scanner.at(end.end - 2) != ')')
        checkEnding(end, body, id);
    if (complete)
        m_columns.insertPosition = end.end;
    return end.end;
}

void StepIndexer::checkEnding(StepScanner::RecordEnd const& end, std::size_t body, InstanceId id)
{
    std::size_t last = end.end - 1;
    switch (end.ending) {
    case StepFile::Ending::Complete:
        while (last > body && isBlank(m_scanner.at(last - 1)))
            --last;
        // Behind a comment only reading the arguments tells.
        if (last == 0 || (m_scanner.at(last - 1) != ')' && m_scanner.at(last - 1) != '/'))
            m_report(Severity::Error, end.end - 1, id,
                     "Expected \")\" before the \";\" of the record, found none.");
        break;
    case StepFile::Ending::MissingSemicolon:
        m_report(Severity::Error, end.end, id,
                 "Expected \";\" at the end of the record, found the next record.");
        break;
    case StepFile::Ending::UnclosedText:
        m_report(Severity::Error, end.end, id, "Expected \"'\" at the end of a text, found the next record.");
        break;
    case StepFile::Ending::EndOfFile:
        m_report(Severity::Error, end.end, id,
                 "Expected \";\" at the end of the record, found the end of the file.");
        break;
    }
}

} // namespace qev::step
