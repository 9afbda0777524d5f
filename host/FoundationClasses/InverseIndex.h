#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <compare>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qev::fc {

/// Which relation an inverse index is about: the classes of the relation and the attribute followed.
struct InverseKey
{
    unsigned int relationFirst = 0;
    unsigned int relationLast = 0;
    unsigned int slot = 0;

    friend auto operator<=>(InverseKey const&, InverseKey const&) = default;
};

/// For each entity, the entities that refer to it by one attribute.
///
/// Built at once from all references, as one sorted list; what changes later stands beside it.
class HOSTFOUNDATIONCLASSES_EXPORT InverseIndex
{
public:
    /// Takes pairs of target and relation.
    explicit InverseIndex(std::vector<std::pair<EntityIndex, EntityIndex>> references);

    /// The relations that refer to \p target, ascending. Valid until the index changes.
    [[nodiscard]] std::vector<EntityIndex> const& relating(EntityIndex target) const;
    void add(EntityIndex target, EntityIndex relation);
    void remove(EntityIndex target, EntityIndex relation);

private:
    std::vector<EntityIndex>& changeable(EntityIndex target) const;

    std::vector<std::pair<EntityIndex, EntityIndex>> m_references;
    /// The lists that were asked for or changed. They take the place of those in `m_references`.
    mutable std::unordered_map<EntityIndex, std::vector<EntityIndex>> m_lists;
};

} // namespace qev::fc
