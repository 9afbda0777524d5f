#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include "Core/Id/Guid.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcPort.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPortToElement.h"
#include "FoundationClasses/Data.h"
#include "FoundationClasses/Core/ProductExtension/FcDistributionElement.h"

#include <algorithm>

namespace qev::fc::core::kernel {

namespace {

void appendSets(FcRelDefinesByProperties const& relation, std::vector<std::shared_ptr<FcBase>>& sets)
{
    auto const& definition = relation.RelatingPropertyDefinition.get();
    if (auto set = definition.entity())
        sets.push_back(std::move(set));
    for (ReferenceBase const& reference : definition.references()) {
        if (auto set = reference.entity())
            sets.push_back(std::move(set));
    }
}

/// Takes one object from a relation to several sets, so that it keeps all of them but \p set.
void leaveOutSet(FcRelDefinesByProperties& relation, std::shared_ptr<FcPropertySetDefinition> const& set,
                 std::shared_ptr<FcObjectDefinition> const& object)
{
    std::vector<ReferenceBase> kept;
    for (ReferenceBase const& reference : relation.RelatingPropertyDefinition->references()) {
        if (reference.entity() != set)
            kept.push_back(reference);
    }
    FcPropertySetDefinitionSelect definition;
    definition.setReferences("IfcPropertySetDefinitionSet", std::move(kept));
    if (relation.RelatedObjects->get().size() == 1) {
        relation.RelatingPropertyDefinition = definition;
        return;
    }
    relation.RelatedObjects.edit([&object](auto& objects) { objects.erase(object); });
    auto const own = std::make_shared<FcRelDefinesByProperties>();
    own->setGuid(Guid::generate());
    own->OwnerHistory = relation.OwnerHistory.get();
    own->RelatedObjects.edit([&object](auto& objects) { objects.push_back(object); });
    own->RelatingPropertyDefinition = definition;
    relation.getData()->entityAdd(own, false);
}

} // namespace

std::vector<std::shared_ptr<FcBase>> FcObjectDefinition::attachedSets() const
{
    std::vector<std::shared_ptr<FcBase>> sets;
    if (isOfClass<FcTypeObject>(*this)) {
        auto const& own = static_cast<FcTypeObject const&>(*this).HasPropertySets.get();
        if (own)
            sets.assign(own->get().begin(), own->get().end());
        return sets;
    }
    for (auto const& relation : setRelations())
        appendSets(*relation, sets);
    return sets;
}

std::vector<std::shared_ptr<FcRelDefinesByProperties>> FcObjectDefinition::setRelations() const
{
    static unsigned int const slot = slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatedObjects");
    std::vector<std::shared_ptr<FcRelDefinesByProperties>> relations;
    if (!getData())
        return relations;
    for (EntityIndex const index : getData()->relating(getIndex(), FcRelDefinesByProperties::idFirst,
                                                       FcRelDefinesByProperties::idLast, slot)) {
        if (auto relation = entityCast<FcRelDefinesByProperties>(getData()->entity(index)))
            relations.push_back(std::move(relation));
    }
    return relations;
}

std::shared_ptr<FcBase> FcObjectDefinition::findSet(std::string_view name, unsigned int first, unsigned int last) const
{
    for (auto& set : attachedSets()) {
        if (set->getIdFirst() < first || set->getIdFirst() > last)
            continue;
        auto const& setName = static_cast<FcPropertySetDefinition const&>(*set).Name.get();
        if (setName && *setName == name)
            return set;
    }
    return nullptr;
}

void FcObjectDefinition::attachNewSet(Data& data, std::shared_ptr<FcPropertySetDefinition> const& set,
                                      std::string const& name)
{
    ChangeLog::Step const step(data.changes(), "Add property set");
    set->setGuid(Guid::generate());
    set->Name = name;
    set->OwnerHistory = OwnerHistory.get();
    data.entityAdd(set, false);
    if (isOfClass<FcTypeObject>(*this)) {
        static_cast<FcTypeObject&>(*this).HasPropertySets.edit([&set](auto& sets) {
            if (!sets)
                sets.emplace();
            sets->push_back(set);
        });
        return;
    }
    auto const relation = std::make_shared<FcRelDefinesByProperties>();
    relation->setGuid(Guid::generate());
    relation->OwnerHistory = OwnerHistory.get();
    relation->RelatedObjects.edit([this](auto& objects) {
        objects.push_back(std::static_pointer_cast<FcObjectDefinition>(shared_from_this()));
    });
    relation->RelatingPropertyDefinition = FcPropertySetDefinitionSelect(set);
    data.entityAdd(relation, false);
}

bool FcObjectDefinition::deletePropertySetDefinition(std::string const& name)
{
    auto const set = std::static_pointer_cast<FcPropertySetDefinition>(
        findSet(name, FcPropertySetDefinition::idFirst, FcPropertySetDefinition::idLast));
    if (!set)
        return false;
    Data* const data = getData();
    std::optional<ChangeLog::Step> step;
    if (data)
        step.emplace(data->changes(), "Delete property set");
    if (isOfClass<FcTypeObject>(*this))
        static_cast<FcTypeObject&>(*this).eraseHasPropertySets(set);
    else
        detachFromRelations(set);
    if (data && !data->isReferenced(set->getIndex()))
        set->deletePset(*data);
    return true;
}

void FcObjectDefinition::detachFromRelations(std::shared_ptr<FcPropertySetDefinition> const& set)
{
    auto const self = std::static_pointer_cast<FcObjectDefinition>(shared_from_this());
    for (auto const& relation : setRelations()) {
        std::vector<std::shared_ptr<FcBase>> sets;
        appendSets(*relation, sets);
        if (std::find(sets.begin(), sets.end(), set) == sets.end())
            continue;
        if (sets.size() > 1)
            leaveOutSet(*relation, set, self);
        else if (relation->RelatedObjects->get().size() > 1)
            relation->RelatedObjects.edit([&self](auto& objects) { objects.erase(self); });
        else
            getData()->entityDelete(relation);
        return;
    }
}

std::string FcObjectDefinition::predefinedTypeDerived() const
{
    char const* const own = getPredefinedTypeText();
    if (own && *own != '\0' && std::string_view(own) != "NOTDEFINED")
        return own;
    auto const type = typeOfThis();
    return type ? type->predefinedTypeDerived() : "NOTDEFINED";
}

std::optional<std::string> FcObjectDefinition::userDefinedTypeDerived() const
{
    if (auto own = ownUserDefinedType())
        return own;
    auto const type = typeOfThis();
    return type ? type->userDefinedTypeDerived() : std::nullopt;
}

std::optional<std::string> FcObjectDefinition::ownUserDefinedType() const
{
    for (char const* const attribute : {"ObjectType", "ElementType", "ProcessType", "ResourceType"}) {
        if (auto text = getAttributeAsString(attribute))
            return text;
    }
    return std::nullopt;
}

char const* FcObjectDefinition::getPredefinedTypeText() const { return nullptr; }

std::vector<std::shared_ptr<productextension::FcPort>> FcObjectDefinition::getPorts() const
{
    using productextension::FcPort;
    std::vector<std::shared_ptr<FcPort>> ports;
    auto const add = [&ports](std::shared_ptr<FcPort> const& port) {
        if (port && std::find(ports.begin(), ports.end(), port) == ports.end())
            ports.push_back(port);
    };
    for (auto const& reference : IsNestedBy()) {
        auto const relation = reference.lock();
        if (!relation)
            continue;
        for (auto const& nested : relation->RelatedObjects->get())
            add(entityCast<FcPort>(nested));
    }
    if (isOfClass<productextension::FcDistributionElement>(*this)) {
        auto const& element = static_cast<productextension::FcDistributionElement const&>(*this);
        for (auto const& reference : element.HasPorts()) {
            if (auto const relation = reference.lock())
                add(relation->RelatingPort->get());
        }
    }
    return ports;
}

std::shared_ptr<FcObjectDefinition const> FcObjectDefinition::typeOfThis() const { return nullptr; }

} // namespace qev::fc::core::kernel
