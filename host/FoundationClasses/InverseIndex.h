#pragma once

#include "FoundationClasses/EntityIndex.h"
#include "HostFoundationClassesExport.h"

#include <compare>
#include <cstddef>
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
/// Knows the relations of some targets at first. Those of all others come at once, as one sorted list; what
/// changes later stands beside it.
class HOSTFOUNDATIONCLASSES_EXPORT InverseIndex
{
public:
    /// The relations that refer to \p target, ascending; null when they are not known yet. Valid until
    /// relations of this target are added or removed; what is learnt of others does not matter.
    [[nodiscard]] std::vector<EntityIndex> const* find(EntityIndex target) const;
    /// How many targets are known one by one, while not all are.
    [[nodiscard]] std::size_t knownTargets() const { return m_lists.size(); }

    /// Takes all relations of a target that is not known yet.
    void learn(EntityIndex target, std::vector<EntityIndex> relations);
    /// Takes all references there are, as pairs of target and relation. From then on every target is known.
    void learnAll(std::vector<std::pair<EntityIndex, EntityIndex>> references);

    /// A change. Of no concern for a target that is not known yet: who finds its relations later finds the
    /// change with them.
    void add(EntityIndex target, EntityIndex relation);
    void remove(EntityIndex target, EntityIndex relation);

private:
    /// Null for a target that is not known yet.
    std::vector<EntityIndex>* changeableList(EntityIndex target) const;

    bool m_knowsAll = false;
    std::vector<std::pair<EntityIndex, EntityIndex>> m_references;
    /// The lists that were learnt, asked for or changed. They take the place of those in `m_references`.
    mutable std::unordered_map<EntityIndex, std::vector<EntityIndex>> m_lists;
};

} // namespace qev::fc
