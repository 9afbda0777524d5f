#include "FoundationClasses/InverseIndex.h"

#include <algorithm>
#include <cstdint>

namespace qev::fc {

namespace {

using Reference = std::pair<EntityIndex, EntityIndex>;

/// Sorts by target and then by relation. A pair packed into one number compares in one step, and there
/// may be hundreds of thousands.
void sortReferences(std::vector<Reference>& references)
{
    constexpr int bits = 32;
    std::vector<std::uint64_t> packed;
    packed.reserve(references.size());
    for (auto const& [target, relation] : references)
        packed.push_back(std::uint64_t{target} << bits | relation);
    std::sort(packed.begin(), packed.end());
    std::transform(packed.begin(), packed.end(), references.begin(), [](std::uint64_t reference) {
        return Reference(static_cast<EntityIndex>(reference >> bits), static_cast<EntityIndex>(reference));
    });
}

} // namespace

InverseIndex::InverseIndex(std::vector<std::pair<EntityIndex, EntityIndex>> references)
    : m_references(std::move(references))
{
    if (!std::is_sorted(m_references.begin(), m_references.end()))
        sortReferences(m_references);
    m_references.erase(std::unique(m_references.begin(), m_references.end()), m_references.end());
}

std::vector<EntityIndex>& InverseIndex::changeable(EntityIndex target) const
{
    auto const [position, isNew] = m_lists.try_emplace(target);
    std::vector<EntityIndex>& list = position->second;
    if (isNew) {
        auto reference =
            std::lower_bound(m_references.begin(), m_references.end(), std::pair(target, EntityIndex{0}));
        for (; reference != m_references.end() && reference->first == target; ++reference)
            list.push_back(reference->second);
    }
    return list;
}

std::vector<EntityIndex> const& InverseIndex::relating(EntityIndex target) const
{
    static std::vector<EntityIndex> const none;
    if (auto const known = m_lists.find(target); known != m_lists.end())
        return known->second;
    // Most entities have no relation of most kinds, and need no list to say so.
    auto const reference =
        std::lower_bound(m_references.begin(), m_references.end(), std::pair(target, EntityIndex{0}));
    return reference == m_references.end() || reference->first != target ? none : changeable(target);
}

void InverseIndex::add(EntityIndex target, EntityIndex relation)
{
    std::vector<EntityIndex>& list = changeable(target);
    auto const place = std::lower_bound(list.begin(), list.end(), relation);
    if (place == list.end() || *place != relation)
        list.insert(place, relation);
}

void InverseIndex::remove(EntityIndex target, EntityIndex relation)
{
    std::vector<EntityIndex>& list = changeable(target);
    auto const place = std::lower_bound(list.begin(), list.end(), relation);
    if (place != list.end() && *place == relation)
        list.erase(place);
}

} // namespace qev::fc
