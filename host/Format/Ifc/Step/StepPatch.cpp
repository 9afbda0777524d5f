#include "Format/Ifc/Step/StepPatch.h"

#include "Core/Platform/AtomicFileWriter.h"
#include "Core/String/Utf8.h"
#include "Format/Ifc/Step/StepRecordParser.h"
#include "Format/Ifc/Step/StepScanner.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace qev::step {

/// A range of the old bytes and what stands there instead.
struct StepPatch::Piece
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string text;
};

namespace {

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

/// Behind the line end that begins at \p position, if one does.
std::size_t behindLineEnd(std::string_view bytes, std::size_t position)
{
    if (position < bytes.size() && bytes[position] == '\r')
        ++position;
    if (position < bytes.size() && bytes[position] == '\n' &&
        (position == 0 || bytes[position - 1] == '\r' || !isLineEnd(bytes[position - 1])))
        ++position;
    return position;
}

std::size_t skipSpaces(std::string_view bytes, std::size_t position)
{
    while (position < bytes.size() && (bytes[position] == ' ' || bytes[position] == '\t'))
        ++position;
    return position;
}

std::size_t lineBegin(std::string_view bytes, std::size_t position)
{
    while (position > 0 && !isLineEnd(bytes[position - 1]))
        --position;
    return position;
}

bool isOnlySpaces(std::string_view text) { return text.find_first_not_of(" \t") == std::string_view::npos; }

/// The line end that the file uses: the first one it has.
std::string_view lineEndOf(std::string_view bytes)
{
    std::size_t const first = bytes.find_first_of("\r\n");
    if (first == std::string_view::npos)
        return "\n";
    return bytes.substr(first,
                        bytes[first] == '\r' && first + 1 < bytes.size() && bytes[first + 1] == '\n' ? 2 : 1);
}

/// How the records of a file are laid out.
struct RecordStyle
{
    std::string indentation;
    std::string beforeEquals;
    std::string afterEquals;
};

std::string spacesAt(std::string_view bytes, std::size_t position)
{
    return std::string(bytes.substr(position, skipSpaces(bytes, position) - position));
}

RecordStyle styleOf(StepFile const& file)
{
    RecordStyle style;
    if (file.recordCount() == 0)
        return style;
    std::string_view const bytes = file.bytes();
    std::size_t const begin = file.positionOf(file.recordCount() - 1);
    std::size_t const line = lineBegin(bytes, begin);
    if (isOnlySpaces(bytes.substr(line, begin - line)))
        style.indentation = bytes.substr(line, begin - line);
    std::size_t p = begin + 1;
    while (p < bytes.size() && isDigit(bytes[p]))
        ++p;
    style.beforeEquals = spacesAt(bytes, p);
    p = skipSpaces(bytes, p);
    if (p < bytes.size() && bytes[p] == '=')
        style.afterEquals = spacesAt(bytes, p + 1);
    return style;
}

/// Whether both paths lead to one file.
bool isSameFile(std::filesystem::path const& a, std::filesystem::path const& b)
{
    std::error_code error;
    return a == b || std::filesystem::equivalent(a, b, error);
}

} // namespace

StepPatch::StepPatch(StepFile const& file)
    : m_file(&file)
{
}

bool StepPatch::replaceArguments(RecordIndex record,
                                 std::span<std::pair<std::size_t, std::string> const> texts)
{
    if (record >= m_file->recordCount())
        return false;
    std::optional<std::vector<std::string_view>> const spans =
        StepRecordParser(*m_file).argumentSpans(record);
    if (!spans)
        return false;
    bool const allThere = std::all_of(texts.begin(), texts.end(),
                                      [&spans](auto const& text) { return text.first < spans->size(); });
    if (!allThere)
        return false;
    for (auto const& [slot, text] : texts) {
        std::string_view const span = (*spans)[slot];
        auto const position = static_cast<std::size_t>(span.data() - m_file->bytes().data());
        m_replaced[record].insert_or_assign(slot, Replacement{position, span.size(), text});
    }
    return true;
}

bool StepPatch::removeRecord(RecordIndex record)
{
    if (record >= m_file->recordCount() || m_file->endingOf(record) != StepFile::Ending::Complete)
        return false;
    m_removed.insert(record);
    return true;
}

void StepPatch::appendRecord(InstanceId id, std::string_view keyword, std::string_view arguments)
{
    m_appended.push_back({id, std::string(keyword), std::string(arguments)});
}

bool StepPatch::empty() const { return m_replaced.empty() && m_removed.empty() && m_appended.empty(); }

StepPatch::Piece StepPatch::removal(RecordIndex record) const
{
    std::string_view const bytes = m_file->bytes();
    std::string_view const recordBytes = m_file->bytesOf(record);
    std::size_t const begin = m_file->positionOf(record);
    std::size_t const end = begin + recordBytes.size();
    std::size_t const line = lineBegin(bytes, begin);
    std::size_t const rest = skipSpaces(bytes, end);
    bool const aloneInFront = isOnlySpaces(bytes.substr(line, begin - line));
    if (aloneInFront && rest < bytes.size() && isLineEnd(bytes[rest]))
        return {line, behindLineEnd(bytes, rest), {}};
    return {begin, end, {}};
}

StepPatch::Piece StepPatch::insertion() const
{
    std::string_view const bytes = m_file->bytes();
    std::string const lineEnd(lineEndOf(bytes));
    RecordStyle const style = styleOf(*m_file);
    std::size_t const behindRecord = m_file->insertPosition();
    std::size_t position = skipSpaces(bytes, behindRecord);
    bool const atLineEnd = position < bytes.size() && isLineEnd(bytes[position]);
    position = atLineEnd ? behindLineEnd(bytes, position) : behindRecord;

    Piece piece{position, position, {}};
    if (!atLineEnd)
        piece.text += lineEnd;
    for (Appended const& record : m_appended)
        piece.text += style.indentation + '#' + std::to_string(record.id) + style.beforeEquals + '=' +
                      style.afterEquals + record.keyword + '(' + record.arguments + ");" + lineEnd;
    return piece;
}

std::vector<StepPatch::Piece> StepPatch::pieces() const
{
    std::vector<Piece> result;
    for (auto const& [record, arguments] : m_replaced) {
        if (m_removed.contains(record))
            continue;
        for (auto const& [slot, replacement] : arguments)
            result.push_back(
                {replacement.position, replacement.position + replacement.length, replacement.text});
    }
    for (RecordIndex const record : m_removed)
        result.push_back(removal(record));
    if (!m_appended.empty())
        result.push_back(insertion());
    // Where a removed line ends, new records begin: the removal comes first.
    std::stable_sort(result.begin(), result.end(), [](Piece const& a, Piece const& b) {
        return std::pair(a.begin, a.end) < std::pair(b.begin, b.end);
    });
    return result;
}

void StepPatch::write(Sink const& sink) const
{
    std::string_view const bytes = m_file->bytes();
    std::size_t done = 0;
    for (Piece const& piece : pieces()) {
        sink(bytes.substr(done, std::max(piece.begin, done) - done));
        sink(piece.text);
        done = std::max(done, piece.end);
    }
    sink(bytes.substr(done));
}

std::string StepPatch::toText() const
{
    std::string text;
    write([&text](std::string_view part) { text += part; });
    return text;
}

StepSaveResult StepPatch::save(StepFile& file, StepPatch const& patch, std::filesystem::path const& target,
                               IfChanged ifChanged, Progress const& progress)
{
    using Status = StepSaveResult::Status;
    auto const changedMeanwhile = [&file, &target] {
        return file.stamp() && isSameFile(file.path(), target) && platform::fileStamp(target) != file.stamp();
    };
    StepSaveResult const changed{Status::ChangedMeanwhile, "Another program changed \"" +
                                                               str::utf8FromPath(target) +
                                                               "\" since it was read."};
    if (ifChanged == IfChanged::Refuse && changedMeanwhile())
        return changed;

    platform::AtomicFileWriter writer(target);
    constexpr std::uint64_t step = std::uint64_t{16} << 20;
    std::uint64_t done = 0;
    std::uint64_t nextReport = step;
    bool cancelled = false;
    // The parts between many small changes are small too, so steps are counted over all of them.
    patch.write([&](std::string_view part) {
        while (!part.empty() && !cancelled && !writer.failed()) {
            std::string_view const piece = part.substr(0, nextReport - done);
            writer.write(piece);
            part.remove_prefix(piece.size());
            done += piece.size();
            if (done < nextReport)
                continue;
            nextReport += step;
            cancelled = progress && !progress(done, file.bytes().size());
        }
    });
    if (cancelled)
        return {Status::Cancelled, "Saving \"" + str::utf8FromPath(target) + "\" was cancelled."};
    // Writing takes its time, in which another program may have saved.
    if (ifChanged == IfChanged::Refuse && changedMeanwhile())
        return changed;
    if (!writer.commit())
        return {Status::Failed, writer.error()};
    file.noteSaved(target, writer.stamp());
    return {Status::Saved, {}};
}

} // namespace qev::step
