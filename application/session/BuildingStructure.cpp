#include "BuildingStructure.h"

#include "Core/String/Compare.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcProject.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"
#include "ObjectLabel.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <tuple>

namespace qev::application {

namespace {

using fc::EntityIndex;
using fc::core::kernel::FcProject;
using fc::core::kernel::FcRelAggregates;
using fc::core::kernel::FcRelNests;
using fc::core::productextension::FcRelContainedInSpatialStructure;
using fc::core::productextension::FcSpatialElement;

/// The relations of class \p Relation that refer to \p object in the attribute of that name.
template <class Relation>
std::vector<EntityIndex> const& getRelations(fc::Data const& data, EntityIndex object,
                                             std::string_view attribute)
{
    auto const slot = slotFromName(Relation::staticEntityClass(), attribute);
    return data.relating(object, Relation::idFirst, Relation::idLast, slot);
}

template <class Relation, class Use>
void forEachRelation(fc::Data const& data, EntityIndex object, std::string_view attribute, Use const& use)
{
    for (auto const index : getRelations<Relation>(data, object, attribute))
        if (auto const relation = fc::entityCast<Relation>(data.entity(index)))
            use(*relation);
}

bool isSpatial(fc::Data const& data, EntityIndex object)
{
    auto const number = data.classNumber(object);
    return number >= FcSpatialElement::idFirst && number <= FcSpatialElement::idLast;
}

} // namespace

std::vector<EntityIndex> BuildingStructure::getRoots() const
{
    auto roots = m_data.indicesFromId(FcProject::idFirst, FcProject::idLast);
    if (!roots.empty())
        return roots;
    roots = m_data.indicesFromId(FcSpatialElement::idFirst, FcSpatialElement::idLast);
    std::erase_if(roots, [this](EntityIndex object) { return getParent(object) != fc::noEntity; });
    sortForPeople(roots);
    return roots;
}

std::vector<EntityIndex> BuildingStructure::getChildren(EntityIndex object) const
{
    std::vector<EntityIndex> children;
    std::set<EntityIndex> known{object};
    auto const add = [&](auto const& list) {
        for (auto const& reference : list.references())
            if (auto const child = reference.index();
                child != fc::noEntity && !m_data.isDeleted(child) && known.insert(child).second)
                children.push_back(child);
    };
    forEachRelation<FcRelAggregates>(m_data, object, "RelatingObject",
                                     [&](auto const& relation) { add(relation.RelatedObjects.get()); });
    forEachRelation<FcRelContainedInSpatialStructure>(
        m_data, object, "RelatingStructure",
        [&](auto const& relation) { add(relation.RelatedElements.get()); });
    forEachRelation<FcRelNests>(m_data, object, "RelatingObject",
                                [&](auto const& relation) { add(relation.RelatedObjects.get()); });
    sortForPeople(children);
    return children;
}

bool BuildingStructure::hasChildren(EntityIndex object) const
{
    return !getRelations<FcRelAggregates>(m_data, object, "RelatingObject").empty() ||
           !getRelations<FcRelContainedInSpatialStructure>(m_data, object, "RelatingStructure").empty() ||
           !getRelations<FcRelNests>(m_data, object, "RelatingObject").empty();
}

EntityIndex BuildingStructure::getParent(EntityIndex object) const
{
    auto parent = fc::noEntity;
    auto const take = [&](auto const& reference) {
        if (parent == fc::noEntity)
            parent = reference.index();
    };
    forEachRelation<FcRelAggregates>(m_data, object, "RelatedObjects",
                                     [&](auto const& relation) { take(relation.RelatingObject.get()); });
    forEachRelation<FcRelContainedInSpatialStructure>(
        m_data, object, "RelatedElements",
        [&](auto const& relation) { take(relation.RelatingStructure.get()); });
    forEachRelation<FcRelNests>(m_data, object, "RelatedObjects",
                                [&](auto const& relation) { take(relation.RelatingObject.get()); });
    return parent;
}

std::vector<EntityIndex> BuildingStructure::getPath(EntityIndex object) const
{
    std::vector<EntityIndex> path;
    std::set<EntityIndex> passed;
    for (; object != fc::noEntity && passed.insert(object).second; object = getParent(object))
        path.push_back(object);
    std::reverse(path.begin(), path.end());
    return path;
}

void BuildingStructure::sortForPeople(std::vector<EntityIndex>& objects) const
{
    struct Key
    {
        bool isElement;
        ObjectLabel label;
        EntityIndex object;
    };
    std::vector<Key> keys;
    keys.reserve(objects.size());
    for (auto const object : objects)
        keys.push_back({!isSpatial(m_data, object), ObjectLabel::of(m_data, object), object});
    std::stable_sort(keys.begin(), keys.end(), [](Key const& left, Key const& right) {
        if (left.isElement != right.isElement)
            return right.isElement;
        if (left.isElement && left.label.className != right.label.className)
            return left.label.className < right.label.className;
        using str::details::CaseLevel;
        return str::details::compare(std::string_view(left.label.name), std::string_view(right.label.name),
                                     CaseLevel::Counted) < 0;
    });
    std::transform(keys.begin(), keys.end(), objects.begin(), [](Key const& key) { return key.object; });
}

} // namespace qev::application
