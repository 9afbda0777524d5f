#include "Objects.h"

#include "Core/String/Ascii.h"
#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include <iostream>

namespace qev::application {

namespace {

using fc::core::kernel::FcObjectDefinition;

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

std::shared_ptr<fc::FcBase> findObject(ifc::IfcFile const& file, std::string const& globalId)
{
    auto entity = file.entityFromGlobalId(globalId);
    if (!entity)
        std::cerr << "qev-ifc: there is no object with the GlobalId " << globalId << '\n';
    return entity;
}

void releaseIfMany(fc::Data& data, std::size_t held)
{
    constexpr std::size_t mostObjects = 20'000;
    if (data.objectCount() > held + mostObjects)
        data.releaseUnused();
}

} // namespace qev::application
