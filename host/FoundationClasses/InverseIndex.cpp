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

void InverseIndex::learn(EntityIndex target, std::vector<EntityIndex> relations)
{
    std::sort(relations.begin(), relations.end());
    m_lists.try_emplace(target, std::move(relations));
}

void InverseIndex::learnAll(std::vector<std::pair<EntityIndex, EntityIndex>> references)
{
    if (!std::is_sorted(references.begin(), references.end()))
        sortReferences(references);
    references.erase(std::unique(references.begin(), references.end()), references.end());
    m_references = std::move(references);
    m_knowsAll = true;
}

std::vector<EntityIndex>* InverseIndex::changeableList(EntityIndex target) const
{
    if (auto const known = m_lists.find(target); known != m_lists.end())
        return &known->second;
    if (!m_knowsAll)
        return nullptr;
    std::vector<EntityIndex>& list = m_lists[target];
    auto reference =
        std::lower_bound(m_references.begin(), m_references.end(), std::pair(target, EntityIndex{0}));
    for (; reference != m_references.end() && reference->first == target; ++reference)
        list.push_back(reference->second);
    return &list;
}

std::vector<EntityIndex> const* InverseIndex::find(EntityIndex target) const
{
    static std::vector<EntityIndex> const none;
    if (auto const known = m_lists.find(target); known != m_lists.end())
        return &known->second;
    if (!m_knowsAll)
        return nullptr;
    // Most entities have no relation of most kinds, and need no list to say so.
    auto const reference =
        std::lower_bound(m_references.begin(), m_references.end(), std::pair(target, EntityIndex{0}));
    return reference == m_references.end() || reference->first != target ? &none : changeableList(target);
}

void InverseIndex::add(EntityIndex target, EntityIndex relation)
{
    std::vector<EntityIndex>* const list = changeableList(target);
    if (!list)
        return;
    auto const place = std::lower_bound(list->begin(), list->end(), relation);
    if (place == list->end() || *place != relation)
        list->insert(place, relation);
}

void InverseIndex::remove(EntityIndex target, EntityIndex relation)
{
    std::vector<EntityIndex>* const list = changeableList(target);
    if (!list)
        return;
    auto const place = std::lower_bound(list->begin(), list->end(), relation);
    if (place != list->end() && *place == relation)
        list->erase(place);
}

} // namespace qev::fc
