#include "Format/Ifc/Step/RecordLookup.h"

#include "Core/Platform/Prefetch.h"

#include <algorithm>
#include <numeric>

namespace qev::step {

void RecordLookup::build(CompactColumn const& ids, bool ascending)
{
    std::size_t const count = ids.size();
    m_table.clear();
    m_shift = 0;
    if (count == 0) {
        m_kind = Kind::Empty;
        return;
    }
    m_lowest = ids[0];
    m_highest = ids[0];
    for (std::size_t i = 1; i < count && !ascending; ++i) {
        m_lowest = std::min(m_lowest, ids[i]);
        m_highest = std::max(m_highest, ids[i]);
    }
    if (ascending) {
        m_highest = ids[count - 1];
        buildAscending(ids);
    } else if (m_highest - m_lowest < std::uint64_t{count} * 4 + 1024)
        buildDense(ids);
    else
        buildSorted(ids);
}

void RecordLookup::buildAscending(CompactColumn const& ids)
{
    constexpr std::size_t recordsPerRange = 8;
    m_kind = Kind::Ascending;
    std::size_t const count = ids.size();
    InstanceId const span = m_highest - m_lowest;
    m_shift = 0;
    while ((span >> m_shift) > count / recordsPerRange + 1)
        ++m_shift;
    auto const ranges = static_cast<std::size_t>(span >> m_shift) + 1;
    m_table.assign(ranges + 1, static_cast<RecordIndex>(count));
    std::size_t nextRange = 0;
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const range = tablePlace(ids[i]);
        while (nextRange <= range)
            m_table[nextRange++] = static_cast<RecordIndex>(i);
    }
}

void RecordLookup::buildDense(CompactColumn const& ids)
{
    m_kind = Kind::Dense;
    m_table.assign(static_cast<std::size_t>(m_highest - m_lowest) + 1, StepFile::noRecord);
    for (std::size_t i = ids.size(); i-- > 0;)
        m_table[static_cast<std::size_t>(ids[i] - m_lowest)] = static_cast<RecordIndex>(i);
}

void RecordLookup::buildSorted(CompactColumn const& ids)
{
    m_kind = Kind::Sorted;
    m_table.resize(ids.size());
    std::iota(m_table.begin(), m_table.end(), RecordIndex{0});
    std::sort(m_table.begin(), m_table.end(), [&ids](RecordIndex a, RecordIndex b) {
        InstanceId const idOfA = ids[a];
        InstanceId const idOfB = ids[b];
        return idOfA != idOfB ? idOfA < idOfB : a < b;
    });
}

RecordIndex RecordLookup::find(CompactColumn const& ids, InstanceId id) const
{
    if (m_kind == Kind::None || m_kind == Kind::Empty || id < m_lowest || id > m_highest)
        return StepFile::noRecord;
    if (m_kind == Kind::Dense)
        return m_table[static_cast<std::size_t>(id - m_lowest)];

    std::size_t low = 0;
    std::size_t high = m_table.size();
    if (m_kind == Kind::Ascending) {
        std::size_t const range = tablePlace(id);
        low = m_table[range];
        high = m_table[range + 1];
    }
    bool const sorted = m_kind == Kind::Sorted;
    std::size_t const end = high;
    while (low < high) {
        std::size_t const middle = low + (high - low) / 2;
        if (ids[sorted ? m_table[middle] : middle] < id)
            low = middle + 1;
        else
            high = middle;
    }
    if (low == end)
        return StepFile::noRecord;
    RecordIndex const record = sorted ? m_table[low] : static_cast<RecordIndex>(low);
    return ids[record] == id ? record : StepFile::noRecord;
}

void RecordLookup::expectTable(InstanceId id) const
{
    bool const isPlaceKnown = m_kind == Kind::Ascending || m_kind == Kind::Dense;
    if (isPlaceKnown && id >= m_lowest && id <= m_highest)
        platform::prefetch(reinterpret_cast<char const*>(m_table.data() + tablePlace(id)));
}

void RecordLookup::expectIds(CompactColumn const& ids, InstanceId id) const
{
    if (m_kind == Kind::Ascending && id >= m_lowest && id <= m_highest)
        ids.expect(m_table[tablePlace(id)]);
}

std::vector<RecordIndex> RecordLookup::find(CompactColumn const& ids,
                                            std::span<InstanceId const> wanted) const
{
    constexpr std::size_t ahead = 8;
    std::vector<RecordIndex> records;
    records.reserve(wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (i + 2 * ahead < wanted.size())
            expectTable(wanted[i + 2 * ahead]);
        if (i + ahead < wanted.size())
            expectIds(ids, wanted[i + ahead]);
        records.push_back(find(ids, wanted[i]));
    }
    return records;
}

} // namespace qev::step
