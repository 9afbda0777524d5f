#include "RecordChanges.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <string_view>
#include <vector>

namespace qev::test::samples {

namespace {

/// One record, from its number to its semicolon.
struct Piece
{
    std::uint64_t id = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
};

bool isBlank(char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; }

/// The position behind the text literal that begins at \p position.
std::size_t behindText(std::string const& text, std::size_t position)
{
    for (++position; position < text.size() && text[position] != '\''; ++position) {
        // The character behind this escape is no end of the text, whatever it is.
        if (text.compare(position, 3, "\\S\\") == 0)
            position += 3;
    }
    return position + 1;
}

std::size_t behindComment(std::string const& text, std::size_t position)
{
    std::size_t const end = text.find("*/", position + 2);
    return end == std::string::npos ? text.size() : end + 2;
}

/// The position behind the semicolon of the statement that begins at \p position.
std::size_t behindStatement(std::string const& text, std::size_t position)
{
    while (position < text.size() && text[position] != ';') {
        if (text[position] == '\'')
            position = behindText(text, position);
        else if (text.compare(position, 2, "/*") == 0)
            position = behindComment(text, position);
        else
            ++position;
    }
    return std::min(position + 1, text.size());
}

std::vector<Piece> recordsOf(std::string const& text)
{
    std::vector<Piece> records;
    std::size_t position = 0;
    while (position < text.size()) {
        if (isBlank(text[position])) {
            ++position;
            continue;
        }
        if (text.compare(position, 2, "/*") == 0) {
            position = behindComment(text, position);
            continue;
        }
        std::size_t const end = behindStatement(text, position);
        if (text[position] == '#')
            records.push_back({std::strtoull(text.c_str() + position + 1, nullptr, 10), position, end});
        position = end;
    }
    return records;
}

std::map<std::uint64_t, std::string_view> byNumber(std::string const& text, std::vector<Piece> const& records)
{
    std::map<std::uint64_t, std::string_view> all;
    for (Piece const& record : records)
        all.emplace(record.id, std::string_view(text).substr(record.begin, record.end - record.begin));
    return all;
}

/// The position behind the line break at \p position; \p position where there is none.
std::size_t behindLineBreak(std::string const& text, std::size_t position)
{
    if (text.compare(position, 2, "\r\n") == 0)
        return position + 2;
    bool const isLineBreak = position < text.size() && (text[position] == '\n' || text[position] == '\r');
    return isLineBreak ? position + 1 : position;
}

/// The text without the records that \p isLeftOut names and the line breaks behind them.
template <class Predicate>
std::string withoutRecords(std::string const& text, std::vector<Piece> const& records,
                           Predicate const& isLeftOut)
{
    std::string rest;
    std::size_t position = 0;
    for (Piece const& record : records) {
        if (!isLeftOut(record.id))
            continue;
        rest.append(text, position, record.begin - position);
        position = behindLineBreak(text, record.end);
    }
    return rest.append(text, position, std::string::npos);
}

} // namespace

RecordChanges RecordChanges::between(std::string const& before, std::string const& after)
{
    auto const oldRecords = recordsOf(before);
    auto const newRecords = recordsOf(after);
    auto const oldTexts = byNumber(before, oldRecords);
    auto const newTexts = byNumber(after, newRecords);
    RecordChanges changes;
    for (auto const& [id, text] : oldTexts) {
        auto const found = newTexts.find(id);
        if (found == newTexts.end())
            changes.removed.insert(id);
        else if (found->second != text)
            changes.changed.insert(id);
    }
    for (auto const& [id, text] : newTexts) {
        if (!oldTexts.contains(id))
            changes.added.insert(id);
    }
    auto const isTouched = [&changes](std::uint64_t id) {
        return changes.changed.contains(id) || changes.removed.contains(id) || changes.added.contains(id);
    };
    changes.isRestSame =
        withoutRecords(before, oldRecords, isTouched) == withoutRecords(after, newRecords, isTouched);
    return changes;
}

} // namespace qev::test::samples
