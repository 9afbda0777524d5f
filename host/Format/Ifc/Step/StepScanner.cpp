#include "Format/Ifc/Step/StepScanner.h"

#include <string_view>

namespace qev::step {

namespace {

constexpr std::size_t nowhere = ~std::size_t{0};
constexpr std::string_view endOfSection = "ENDSEC";

} // namespace

bool isHiddenApostrophe(char const* begin, char const* position)
{
    if (position - begin < 3 || position[-1] != '\\' || position[-2] != 'S' || position[-3] != '\\')
        return false;
    // In `\\S\'` the first two are an escaped backslash, and `S` is a letter like any other.
    char const* first = position - 3;
    while (first != begin && first[-1] == '\\')
        --first;
    return (position - first) % 2 == 1;
}

std::size_t StepScanner::commentEnd(std::size_t position)
{
    if (position >= m_noCommentEndFrom)
        return nowhere;
    std::size_t const found = std::string_view(m_data, m_size).find("*/", position);
    if (found == std::string_view::npos) {
        m_noCommentEndFrom = position;
        return nowhere;
    }
    return found + 2;
}

std::size_t StepScanner::skipBlanks(std::size_t position)
{
    while (position < m_size) {
        if (isBlank(m_data[position])) {
            ++position;
            continue;
        }
        if (m_data[position] != '/' || m_data[position + 1] != '*')
            break;
        std::size_t const end = commentEnd(position + 2);
        if (end == nowhere)
            break;
        position = end;
    }
    return position;
}

StepScanner::RecordHead StepScanner::readHead(std::size_t position)
{
    using Problem = RecordHead::Problem;
    RecordHead head;
    // Where something is missing, the next record may begin behind the blanks: reading stops before them.
    head.arguments = position + 1;
    std::size_t p = skipBlanks(position + 1);
    std::size_t const digits = p;
    while (isDigit(m_data[p])) {
        auto const digit = static_cast<InstanceId>(m_data[p] - '0');
        if (head.id > (~InstanceId{0} - digit) / 10)
            head.problem = Problem::IdTooLarge;
        head.id = head.id * 10 + digit;
        ++p;
    }
    if (p == digits)
        head.problem = Problem::NoId;
    else
        head.arguments = p;
    if (head.problem != Problem::None)
        return head;

    p = skipBlanks(p);
    if (m_data[p] != '=') {
        head.problem = Problem::NoEqualsSign;
        return head;
    }
    head.arguments = p + 1;
    p = skipBlanks(p + 1);
    if (m_data[p] == '(') {
        head.isComplex = true;
        head.arguments = p + 1;
        return head;
    }
    std::size_t const keyword = p;
    if (isKeywordStart(m_data[p]))
        ++p;
    while (p > keyword && isKeywordCharacter(m_data[p]))
        ++p;
    if (p == keyword) {
        head.problem = Problem::NoKeyword;
        return head;
    }
    head.keyword = {m_data + keyword, p - keyword};
    head.arguments = p;
    p = skipBlanks(p);
    if (m_data[p] == '(')
        head.arguments = p + 1;
    else
        head.problem = Problem::NoParenthesis;
    return head;
}

bool StepScanner::startsStatement(std::size_t position) const
{
    std::size_t p = position;
    while (m_data[p] == ' ' || m_data[p] == '\t')
        ++p;
    if (m_data[p] == '#') {
        std::size_t const digits = ++p;
        while (isDigit(m_data[p]))
            ++p;
        if (p == digits)
            return false;
        while (m_data[p] == ' ' || m_data[p] == '\t')
            ++p;
        return m_data[p] == '=' && p < m_size;
    }
    for (char const c : endOfSection) {
        if (m_data[p] != c)
            return false;
        ++p;
    }
    while (m_data[p] == ' ' || m_data[p] == '\t')
        ++p;
    return m_data[p] == ';' && p < m_size;
}

std::size_t StepScanner::trimmedEnd(std::size_t begin, std::size_t end) const
{
    while (end > begin && isBlank(m_data[end - 1]))
        --end;
    return end;
}

StepScanner::RecordEnd StepScanner::findUnusualEnd(std::size_t position)
{
    bool hidApostrophe = false;
    RecordEnd const strict = findEnd(position, true, hidApostrophe);
    if (strict.ending == StepFile::Ending::Complete || !hidApostrophe)
        return strict;
    // A text like 'C:\S\' ends where a conforming one would go on; reading it so may find the end.
    RecordEnd const lenient = findEnd(position, false, hidApostrophe);
    return lenient.ending == StepFile::Ending::Complete ? lenient : strict;
}

StepScanner::RecordEnd StepScanner::findEnd(std::size_t position, bool escapesHideApostrophes,
                                            bool& hidApostrophe)
{
    RecordEnd result;
    result.escapesHideApostrophes = escapesHideApostrophes;
    m_structural.seek(position);
    while (true) {
        std::size_t const p = m_structural.next();
        if (p >= m_size) {
            result.end = trimmedEnd(position, m_size);
            result.ending = StepFile::Ending::EndOfFile;
            return result;
        }
        switch (m_data[p]) {
        case ';':
            result.end = p + 1;
            return result;
        case '\'': {
            std::size_t brokenAt = nowhere;
            std::size_t const close = findTextEnd(p + 1, escapesHideApostrophes, hidApostrophe, brokenAt);
            if (brokenAt != nowhere) {
                result.end = trimmedEnd(position, brokenAt);
                result.ending = StepFile::Ending::UnclosedText;
                return result;
            }
            if (close >= m_size) {
                result.end = trimmedEnd(position, m_size);
                result.ending = StepFile::Ending::EndOfFile;
                return result;
            }
            break;
        }
        case '/':
            if (m_data[p + 1] == '*') {
                std::size_t const end = commentEnd(p + 2);
                if (end != nowhere)
                    m_structural.seek(end);
            }
            break;
        default:
            if (startsStatement(p + 1)) {
                result.end = trimmedEnd(position, p);
                result.ending = StepFile::Ending::MissingSemicolon;
                return result;
            }
            break;
        }
    }
}

std::size_t StepScanner::findTextEnd(std::size_t begin, bool escapesHideApostrophes, bool& hidApostrophe,
                                     std::size_t& brokenAt)
{
    while (true) {
        std::size_t const p = m_structural.next();
        if (p >= m_size)
            return m_size;
        char const c = m_data[p];
        if (c == '\'') {
            if (!isHiddenApostrophe(m_data + begin, m_data + p))
                return p;
            if (!escapesHideApostrophes)
                return p;
            hidApostrophe = true;
        } else if ((c == '\n' || c == '\r') && startsStatement(p + 1)) {
            brokenAt = p;
            return p;
        }
    }
}

} // namespace qev::step
