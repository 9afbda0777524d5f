#include "Objects.h"

#include "Core/String/Ascii.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelAggregates.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/ProductExtension/FcRelContainedInSpatialStructure.h"
#include "FoundationClasses/Core/ProductExtension/FcSpatialElement.h"

#include <algorithm>
#include <iostream>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;
using fc::core::kernel::FcRelAggregates;
using fc::core::kernel::FcRelNests;
using fc::core::productextension::FcRelContainedInSpatialStructure;

/// The first relation of class \p Relation that lists the object in the attribute of that name.
template <class Relation>
std::shared_ptr<Relation> relationOf(fc::FcBase const& object, char const* attribute)
{
    fc::Data const* const data = object.getData();
    unsigned int const slot = slotFromName(Relation::staticEntityClass(), attribute);
    auto const& places = data->relating(object.getIndex(), Relation::idFirst, Relation::idLast, slot);
    return places.empty() ? nullptr : fc::entityCast<Relation>(data->entity(places.front()));
}

} // namespace

fc::EntityClass const* findClass(std::string const& name)
{
    for (unsigned int number = 1; number <= fc::FcBase::idLast; ++number) {
        fc::EntityClass const* const candidate = fc::entityClassFromNumber(number);
        if (str::equalIgnoringCase(candidate->name, name))
            return candidate;
    }
    return nullptr;
}

std::vector<fc::EntityIndex> findObjects(ifc::IfcFile const& file, ObjectSelection const& selection)
{
    fc::Data const& data = *file.data();
    if (selection.all)
        return data.indicesFromId(FcObjectDefinition::idFirst, FcObjectDefinition::idLast);
    if (!selection.className.empty()) {
        fc::EntityClass const* const entityClass = findClass(selection.className);
        if (!entityClass || entityClass->idFirst < FcObjectDefinition::idFirst ||
            entityClass->idLast > FcObjectDefinition::idLast) {
            std::cerr << "qev-ifc: " << selection.className << " is no class of objects\n";
            return {};
        }
        return data.indicesFromId(entityClass->idFirst, entityClass->idLast);
    }
    std::vector<fc::EntityIndex> places;
    for (std::string const& globalId : selection.globalIds) {
        auto const entity = file.entityFromGlobalId(globalId);
        if (fc::entityCast<FcObjectDefinition>(entity))
            places.push_back(entity->getIndex());
        else
            std::cerr << "qev-ifc: there is no object with the GlobalId " << globalId << '\n';
    }
    return places;
}

std::shared_ptr<fc::FcBase> containerOf(fc::FcBase const& object)
{
    if (auto const relation = relationOf<FcRelContainedInSpatialStructure>(object, "RelatedElements"))
        return relation->RelatingStructure->get();
    if (auto const relation = relationOf<FcRelAggregates>(object, "RelatedObjects"))
        return relation->RelatingObject->get();
    if (auto const relation = relationOf<FcRelNests>(object, "RelatedObjects"))
        return relation->RelatingObject->get();
    return nullptr;
}

std::string nameOf(fc::FcBase const& entity) { return entity.getAttributeAsString("Name").value_or(""); }

std::string globalIdOf(fc::FcBase const& entity) { return entity.getAttributeAsString("GlobalId").value_or(""); }

} // namespace qev::application
