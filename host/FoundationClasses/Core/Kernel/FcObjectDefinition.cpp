#include "FoundationClasses/Core/Kernel/FcObjectDefinition.h"

#include "Core/Id/Guid.h"
#include "FoundationClasses/Core/Kernel/FcPropertySetDefinition.h"
#include "FoundationClasses/Core/Kernel/FcRelDefinesByProperties.h"
#include "FoundationClasses/Core/Kernel/FcRelNests.h"
#include "FoundationClasses/Core/Kernel/FcTypeObject.h"
#include "FoundationClasses/Core/ProductExtension/FcDistributionElement.h"
#include "FoundationClasses/Core/ProductExtension/FcPort.h"
#include "FoundationClasses/Core/ProductExtension/FcRelConnectsPortToElement.h"
#include "FoundationClasses/Data.h"

#include <algorithm>
#include <functional>

namespace qev::fc::core::kernel {

namespace {

/// The places of the relations by which \p object has its sets, ascending. Good until a relation changes.
std::vector<EntityIndex> const& setRelations(FcObjectDefinition const& object)
{
    static unsigned int const slot =
        slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatedObjects");
    static std::vector<EntityIndex> const none;
    Data const* const data = object.getData();
    return data ? data->relating(object.getIndex(), FcRelDefinesByProperties::idFirst,
                                 FcRelDefinesByProperties::idLast, slot)
                : none;
}

/// Calls \p visit with the places of the sets in the relation at \p relation. False when it ended the work.
bool visitSetPlaces(Data const& data, EntityIndex relation, std::function<bool(EntityIndex)> const& visit)
{
    static unsigned int const slot =
        slotFromName(FcRelDefinesByProperties::staticEntityClass(), "RelatingPropertyDefinition");
    bool goesOn = true;
    data.visitReferences(relation, slot, [&](EntityIndex set) {
        unsigned int const number = data.classNumber(set);
        bool const isSet =
            number >= FcPropertySetDefinition::idFirst && number <= FcPropertySetDefinition::idLast;
        if (goesOn && isSet && !data.isDeleted(set))
            goesOn = visit(set);
    });
    return goesOn;
}

std::shared_ptr<FcRelDefinesByProperties> relationAt(Data const& data, EntityIndex index)
{
    return entityCast<FcRelDefinesByProperties>(data.entity(index));
}

using SetVisitor = std::function<bool(std::shared_ptr<FcBase> const&)>;

/// False when \p visit ended the work.
bool visitSets(FcRelDefinesByProperties const& relation, SetVisitor const& visit)
{
    auto const& definition = relation.RelatingPropertyDefinition.get();
    if (auto const set = definition.entity(); set && !visit(set))
        return false;
    for (ReferenceBase const& reference : definition.references()) {
        if (auto const set = reference.entity(); set && !visit(set))
            return false;
    }
    return true;
}

/// Files may list an object twice.
void eraseAll(FcRelDefinesByProperties& relation, std::shared_ptr<FcObjectDefinition> const& object)
{
    relation.RelatedObjects.edit([&object](auto& objects) {
        while (objects.erase(object)) {
        }
    });
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
    eraseAll(relation, object);
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
    forEachAttachedSet([&sets](std::shared_ptr<FcBase> const& set) {
        sets.push_back(set);
        return true;
    });
    return sets;
}

void FcObjectDefinition::forEachAttachedSet(SetVisitor const& visit) const
{
    if (!isOfClass<FcTypeObject>(*this)) {
        for (EntityIndex const index : setRelations(*this)) {
            auto const relation = relationAt(*getData(), index);
            if (relation && !visitSets(*relation, visit))
                return;
        }
        return;
    }
    auto const& own = static_cast<FcTypeObject const&>(*this).HasPropertySets.get();
    if (!own)
        return;
    for (auto const& set : own->get()) {
        if (!visit(set))
            return;
    }
}

void FcObjectDefinition::forEachAttachedSetName(
    std::function<bool(unsigned int classNumber, std::optional<std::string> const& name)> const& visit) const
{
    if (isOfClass<FcTypeObject>(*this)) {
        forEachAttachedSet([&visit](std::shared_ptr<FcBase> const& set) {
            return visit(set->getIdFirst(), static_cast<FcPropertySetDefinition const&>(*set).Name.get());
        });
        return;
    }
    static unsigned int const slot = slotFromName(FcPropertySetDefinition::staticEntityClass(), "Name");
    for (EntityIndex const relation : setRelations(*this)) {
        Data const& data = *getData();
        bool const goesOn = visitSetPlaces(data, relation, [&](EntityIndex set) {
            return visit(data.classNumber(set), data.attributeText(set, slot));
        });
        if (!goesOn)
            return;
    }
}

std::shared_ptr<FcBase> FcObjectDefinition::findSet(std::string_view name, unsigned int first,
                                                    unsigned int last) const
{
    std::shared_ptr<FcBase> found;
    forEachAttachedSet([&](std::shared_ptr<FcBase> const& set) {
        if (set->getIdFirst() < first || set->getIdFirst() > last)
            return true;
        auto const& setName = static_cast<FcPropertySetDefinition const&>(*set).Name.get();
        if (setName && *setName == name)
            found = set;
        return !found;
    });
    return found;
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
    // A copy: the relations change on the way.
    auto const relations = setRelations(*this);
    for (EntityIndex const index : relations) {
        auto const relation = relationAt(*getData(), index);
        std::size_t setCount = 0;
        bool hasSet = false;
        if (relation)
            visitSets(*relation, [&](std::shared_ptr<FcBase> const& candidate) {
                ++setCount;
                hasSet = hasSet || candidate == set;
                return true;
            });
        if (!hasSet)
            continue;
        if (setCount > 1)
            leaveOutSet(*relation, set, self);
        else if (relation->RelatedObjects->get().size() > 1)
            eraseAll(*relation, self);
        else
            getData()->entityDelete(relation);
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
