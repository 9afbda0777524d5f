#include "Format/Ifc/Step/RecordSearch.h"

#include "Core/String/Ascii.h"
#include "Format/Ifc/Step/ByteSearch.h"

#include <utility>

namespace qev::step {

namespace {

/// Records that lie behind each other are searched in one go, but not more of them than this.
constexpr std::size_t longestRun = 64;

std::size_t endOfRun(std::span<RecordIndex const> records, std::size_t place)
{
    std::size_t end = place + 1;
    while (end < records.size() && end - place < longestRun && records[end] == records[end - 1] + 1)
        ++end;
    return end;
}

/// Whether the digits at \p place, \p count of them, are the whole number of a reference.
bool isWholeReference(std::string_view bytes, std::size_t place, std::size_t count)
{
    std::size_t const end = place + count;
    if (end < bytes.size() && str::isDigit(bytes[end]))
        return false;
    while (place > 0 && bytes[place - 1] == '0')
        --place;
    return place > 0 && bytes[place - 1] == '#';
}

} // namespace

RecordSearch::RecordSearch(StepFile const& file, std::string wanted, bool isReference)
    : m_file(&file)
    , m_wanted(std::move(wanted))
    , m_isReference(isReference)
{
}

RecordSearch RecordSearch::forBytes(StepFile const& file, std::string_view bytes)
{
    return {file, std::string(bytes), false};
}

RecordSearch RecordSearch::forReferencesTo(StepFile const& file, InstanceId id)
{
    return {file, std::to_string(id), true};
}

std::size_t RecordSearch::next(std::span<RecordIndex const> records, std::size_t place) const
{
    while (place < records.size()) {
        m_file->expectNext(records, place);
        std::size_t const end = endOfRun(records, place);
        std::size_t const begin = m_file->positionOf(records[place]);
        std::size_t const found = find(m_file->bytes().substr(begin, endOf(records[end - 1]) - begin));
        if (found == std::string_view::npos) {
            place = end;
            continue;
        }
        while (endOf(records[place]) <= begin + found)
            ++place;
        if (begin + found + m_wanted.size() <= endOf(records[place]))
            return place;
        ++place;
    }
    return records.size();
}

std::size_t RecordSearch::find(std::string_view bytes) const
{
    std::size_t found = findBytes(bytes, m_wanted);
    while (m_isReference && found != std::string_view::npos &&
           !isWholeReference(bytes, found, m_wanted.size())) {
        std::size_t const further = findBytes(bytes.substr(found + 1), m_wanted);
        found = further == std::string_view::npos ? further : found + 1 + further;
    }
    return found;
}

std::size_t RecordSearch::endOf(RecordIndex record) const
{
    // Its true end would take longer to find.
    return record + 1 < m_file->recordCount() ? m_file->positionOf(record + 1) : m_file->bytes().size();
}

} // namespace qev::step
