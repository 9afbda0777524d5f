#include "Classification/ClassificationReader.h"

#include "Core/String/Ascii.h"
#include "Core/String/DelimitedText.h"
#include "Core/String/Fold.h"
#include "Core/String/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>

namespace qev::classification {

namespace {

using str::trimmed;

/// The separator that parts the first line into the most cells.
char findSeparator(std::string_view text)
{
    std::size_t begin = 0;
    while (begin < text.size() && text[begin] == '#')
        begin = std::min(text.find('\n', begin), text.size() - 1) + 1;
    auto const line = text.substr(begin, text.find('\n', begin) - begin);
    std::array<char, 3> const separators{',', ';', '\t'};
    return *std::max_element(separators.begin(), separators.end(), [line](char left, char right) {
        return std::count(line.begin(), line.end(), left) < std::count(line.begin(), line.end(), right);
    });
}

/// The positions of the columns.
struct Columns
{
    std::optional<std::size_t> code = 0;
    std::optional<std::size_t> title = 1;
    std::optional<std::size_t> parent = 2;
    std::optional<std::size_t> description;
};

std::optional<std::size_t> findColumn(std::vector<std::string> const& cells, std::string_view name)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
        if (str::foldCase(trimmed(cells[i])) == name)
            return i;
    return std::nullopt;
}

class TableReader
{
public:
    TableReader(std::string_view text, std::filesystem::path const& fileName)
        : m_fileName(str::utf8FromPath(fileName.filename()))
        , m_rows(str::readDelimited(text, findSeparator(text)))
    {
        m_info.name = str::utf8FromPath(fileName.stem());
    }

    ClassificationReadResult read()
    {
        auto row = m_rows.begin();
        for (; row != m_rows.end() && isRemark(*row); ++row)
            readRemark(*row);
        if (row != m_rows.end() && findColumn(row->cells, "code"))
            readHeader(*row++);
        for (; row != m_rows.end(); ++row)
            readCode(*row);
        checkParents();
        if (m_codes.empty())
            m_result.messages.push_back(m_fileName +
                                        ": there is no code in it; expected lines of code, title and parent");
        else
            m_result.systems.push_back(std::make_shared<ClassificationSystem>(m_info, std::move(m_codes)));
        return std::move(m_result);
    }

private:
    static bool isRemark(str::DelimitedRow const& row)
    {
        return row.cells.front().starts_with('#') || isEmpty(row);
    }

    static bool isEmpty(str::DelimitedRow const& row)
    {
        return std::all_of(row.cells.begin(), row.cells.end(),
                           [](std::string const& cell) { return trimmed(cell).empty(); });
    }

    void readRemark(str::DelimitedRow const& row)
    {
        // A separator within the text has parted it.
        std::string text;
        for (auto const& cell : row.cells)
            text += (text.empty() ? "" : ", ") + std::string(trimmed(cell));
        auto const colon = text.find(':');
        if (colon == std::string::npos)
            return;
        auto const name = str::foldCase(trimmed(std::string_view(text).substr(1, colon - 1)));
        std::string const value(trimmed(std::string_view(text).substr(colon + 1)));
        if (name == "name" && !value.empty())
            m_info.name = value;
        else if (name == "description")
            m_info.description = value;
        else if (name == "source")
            m_info.source = value;
        else if (name == "edition")
            m_info.edition = value;
    }

    void readHeader(str::DelimitedRow const& row)
    {
        m_columns = {findColumn(row.cells, "code"), findColumn(row.cells, "title"),
                     findColumn(row.cells, "parent"), findColumn(row.cells, "description")};
    }

    static std::string cellOf(str::DelimitedRow const& row, std::optional<std::size_t> column)
    {
        return column && *column < row.cells.size() ? std::string(trimmed(row.cells[*column]))
                                                    : std::string();
    }

    void readCode(str::DelimitedRow const& row)
    {
        if (isRemark(row))
            return;
        ClassificationCode code{cellOf(row, m_columns.code), cellOf(row, m_columns.title),
                                cellOf(row, m_columns.description), cellOf(row, m_columns.parent)};
        if (code.code.empty())
            tell(row.line, "the code is missing; the line was left out");
        else if (!m_known.insert(code.code).second)
            tell(row.line, "the code \"" + code.code + "\" is there already; the line was left out");
        else {
            m_lines.push_back(row.line);
            m_codes.push_back(std::move(code));
        }
    }

    void checkParents()
    {
        for (std::size_t i = 0; i < m_codes.size(); ++i) {
            auto const& code = m_codes[i];
            if (!code.parent.empty() && !m_known.contains(code.parent))
                tell(m_lines[i], "the parent \"" + code.parent + "\" of \"" + code.code +
                                     "\" is no code of the table; \"" + code.code + "\" stands at the top");
        }
    }

    void tell(std::size_t line, std::string const& text)
    {
        m_result.messages.push_back(m_fileName + ", line " + std::to_string(line) + ": " + text);
    }

    std::string m_fileName;
    std::vector<str::DelimitedRow> m_rows;
    ClassificationSystemInfo m_info;
    Columns m_columns;
    std::vector<ClassificationCode> m_codes;
    /// Where each of the codes stands.
    std::vector<std::size_t> m_lines;
    std::set<std::string> m_known;
    ClassificationReadResult m_result;
};

} // namespace

ClassificationReadResult readClassificationTable(std::string_view text, std::filesystem::path const& fileName)
{
    return TableReader(text, fileName).read();
}

} // namespace qev::classification
