#include "Core/String/DelimitedText.h"

#include <utility>

namespace qev::str {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void appendCell(std::string& text, std::string_view cell, char separator)
{
    bool const isPlain = cell.find_first_of("\"\r\n") == std::string_view::npos &&
                         cell.find(separator) == std::string_view::npos;
    if (isPlain) {
        text += cell;
        return;
    }
    text += '"';
    for (char const character : cell) {
        if (character == '"')
            text += '"';
        text += character;
    }
    text += '"';
}

/// Takes a text apart, cell by cell.
class Reader
{
public:
    Reader(std::string_view text, char separator)
        : m_text(text)
        , m_separator(separator)
    {
    }

    [[nodiscard]] bool isAtEnd() const { return m_position >= m_text.size(); }

    DelimitedRow readRow()
    {
        DelimitedRow row{m_line, {}};
        do {
            row.cells.push_back(readCell());
        } while (take(m_separator));
        takeLineBreak();
        return row;
    }

private:
    [[nodiscard]] bool isAt(char character) const { return !isAtEnd() && m_text[m_position] == character; }

    bool take(char character)
    {
        bool const taken = isAt(character);
        if (taken)
            ++m_position;
        return taken;
    }

    [[nodiscard]] bool isAtLineBreak() const { return isAt('\n') || isAt('\r'); }

    bool takeLineBreak()
    {
        bool const hasReturn = take('\r');
        bool const hasFeed = take('\n');
        if (hasReturn || hasFeed)
            ++m_line;
        return hasReturn || hasFeed;
    }

    std::string readCell()
    {
        std::string cell;
        if (take('"'))
            cell = readQuoted();
        auto const begin = m_position;
        while (!isAtEnd() && !isAt(m_separator) && !isAtLineBreak())
            ++m_position;
        cell += m_text.substr(begin, m_position - begin);
        return cell;
    }

    /// What stands between the quotation mark that has been taken and the next single one.
    std::string readQuoted()
    {
        std::string cell;
        while (!isAtEnd()) {
            if (take('"') && !isAt('"'))
                break;
            auto const begin = m_position;
            if (!takeLineBreak())
                ++m_position;
            cell += m_text.substr(begin, m_position - begin);
        }
        return cell;
    }

    std::string_view m_text;
    char m_separator;
    std::size_t m_position = 0;
    std::size_t m_line = 1;
};

} // namespace

std::string writeDelimited(std::vector<std::vector<std::string>> const& rows, char separator)
{
    std::string text;
    for (auto const& row : rows) {
        bool isFirst = true;
        for (auto const& cell : row) {
            if (!std::exchange(isFirst, false))
                text += separator;
            appendCell(text, cell, separator);
        }
        text += '\n';
    }
    return text;
}

std::vector<DelimitedRow> readDelimited(std::string_view text, char separator)
{
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    Reader reader(text, separator);
    std::vector<DelimitedRow> rows;
    while (!reader.isAtEnd())
        rows.push_back(reader.readRow());
    return rows;
}

} // namespace qev::str
