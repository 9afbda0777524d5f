#pragma once

#include "Format/Ifc/Step/CompactColumn.h"
#include "Format/Ifc/Step/StepFile.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace qev::step {

/// Finds the record of an id.
///
/// Files nearly always have their ids in ascending order or dense; both are looked up in constant
/// time. Any other order is sorted.
class RecordLookup
{
public:
    void build(CompactColumn const& ids, bool ascending);

    /// The first record with this id, else `StepFile::noRecord`.
    [[nodiscard]] RecordIndex find(CompactColumn const& ids, InstanceId id) const;
    /// The same for many ids, in their order: the memory for those further on comes while the present ones
    /// are looked up.
    [[nodiscard]] std::vector<RecordIndex> find(CompactColumn const& ids,
                                                std::span<InstanceId const> wanted) const;
    [[nodiscard]] bool isBuilt() const { return m_kind != Kind::None; }
    [[nodiscard]] InstanceId highestId() const { return m_highest; }

private:
    enum class Kind : std::uint8_t
    {
        None,
        Empty,
        Ascending,
        Dense,
        Sorted
    };

    void buildAscending(CompactColumn const& ids);
    void buildDense(CompactColumn const& ids);
    void buildSorted(CompactColumn const& ids);
    /// Where `find` begins for an id between the lowest and the highest, where that tells from the id alone.
    [[nodiscard]] std::size_t tablePlace(InstanceId id) const
    {
        return static_cast<std::size_t>((id - m_lowest) >> m_shift);
    }
    void expectTable(InstanceId id) const;
    void expectIds(CompactColumn const& ids, InstanceId id) const;

    Kind m_kind = Kind::None;
    InstanceId m_lowest = 0;
    InstanceId m_highest = 0;
    unsigned int m_shift = 0;
    /// Ascending: the first record of each range of ids. Dense: the record of each id.
    /// Sorted: all records in the order of their ids.
    std::vector<RecordIndex> m_table;
};

} // namespace qev::step
